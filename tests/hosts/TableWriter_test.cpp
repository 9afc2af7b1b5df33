#include "sift/TableWriter.h"

#include "Tables.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

std::string Table(const std::vector<std::string>& names, std::vector<Alignment> alignments,
                  const Lines& lines) {
  TableWriter table(TextsOf(names), std::move(alignments));
  for (const std::vector<std::string>& line : lines) table.Add(TextsOf(line));
  return table.Written();
}

constexpr Alignment kLeft = Alignment::kLeft;
constexpr Alignment kRight = Alignment::kRight;

TEST(TableWriter, AlignsColumnsUnderTheirNames) {
  EXPECT_EQ(Table({"Name", "Qty", "Note"}, {kLeft, kRight, kLeft},
                  {{"Oak", "3", "tall"}, {"Hornbeam", "1200", "hard wood"}}),
            "Name       Qty  Note\n"
            "--------  ----  ---------\n"
            "Oak          3  tall\n"
            "Hornbeam  1200  hard wood\n");
}

TEST(TableWriter, CountsWideCharactersTwice) {
  EXPECT_EQ(
      Table({"Name", "Qty"}, {kLeft, kRight}, {{"漢字", "1"}, {"abcdef", "2"}, {"e\u0301", "3"}}),
      "Name    Qty\n"
      "------  ---\n"
      "漢字      1\n"
      "abcdef    2\n"
      "e\u0301         3\n");
}

TEST(TableWriter, LeavesNoBlanksAtTheEndOfALine) {
  EXPECT_EQ(
      Table({"A", "B", "C"}, {kLeft, kRight, kLeft}, {{"", "", ""}, {"x", "", ""}, {"", "2", ""}}),
      "A  B  C\n"
      "-  -  -\n"
      "\n"
      "x\n"
      "   2\n");
}

TEST(TableWriter, KeepsEveryRecordOnOneLine) {
  EXPECT_EQ(Table({"A\nB", "C"}, {kLeft, kLeft}, {{"x\r\ny", "\x1B[2J"}}),
            "A␊B   C\n"
            "----  ----\n"
            "x␍␊y  ␛[2J\n");
}

TEST(TableWriter, GivesAColumnWithoutNameARule) {
  EXPECT_EQ(Table({"", "B"}, {kLeft, kLeft}, {}),
            "   B\n"
            "-  -\n");
}

}  // namespace
}  // namespace sifter
