#include "matching/ParameterValues.h"

#include "Criteria.h"
#include "base/RuntimeError.h"
#include "support/ClockFake.h"
#include "support/Errors.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace sifter {
namespace {

const char* const kTypeMismatch = "13: Type mismatch";

struct ReferenceCase {
  const char* name;
  TextView text;
  int column;
};

TEST(ColumnFromReference, FindsTheFirstColumnWithExactlyThisCaption) {
  const std::vector<FilterCriterion> rows = {
      TextRow("Name"), NumberRow("Price"), NumberRow("name"), TextRow("Price"), DateRow("a]b"),
      DateRow("[x]"),  NumberRow(""),      TextRow("x"),      TextRow("Straße")};
  const ReferenceCase cases[] = {
      {"first column", u"[Name]", 1},
      {"first of two with one caption", u"[Price]", 2},
      {"another case is another column", u"[name]", 3},
      {"no such case", u"[price]", 0},
      {"bracket inside", u"[a]b]", 5},
      {"brackets around", u"[[x]]", 6},
      {"one letter", u"[x]", 8},
      {"beyond ascii", u"[Straße]", 9},
      {"not folded", u"[STRASSE]", 0},
      {"unknown", u"[none]", 0},
      {"blank in front of the name", u"[ Name]", 0},
      {"blank in front", u" [Name]", 0},
      {"blank behind", u"[Name] ", 0},
      {"no opening bracket", u"Name]", 0},
      {"no closing bracket", u"[Name", 0},
      {"no brackets", u"Name", 0},
      {"too short for the empty caption", u"[]", 0},
      {"one bracket", u"[", 0},
      {"empty", u"", 0},
  };
  for (const ReferenceCase& c : cases)
    EXPECT_EQ(ColumnFromReference(c.text, rows), c.column) << c.name;
}

TEST(ColumnFromReference, WithoutRowsThereIsNone) {
  EXPECT_EQ(ColumnFromReference(u"[Name]", {}), 0);
}

TEST(ColumnFromReference, ColumnNumbersAreSixteenBit) {
  std::vector<FilterCriterion> rows(32768, TextRow("x"));
  rows[32766].caption = u"last";
  rows[32767].caption = u"beyond";
  EXPECT_EQ(ColumnFromReference(u"[last]", rows), 32767);
  EXPECT_EQ(ErrorOf([&] { ColumnFromReference(u"[beyond]", rows); }), kOverflowError);
}

// Quotes have always been characters like any other here. Users type them to find cells that hold
// them; stripping them would change what saved habits match.
TEST(StripQuotes, NeverStripsAnything) {
  for (const TextView text : {u"\"oak\"", u"\"\"\"", u"\"\"", u"\"", u"", u"oak", u" oak ",
                              u" \"and right(OrgStr,1)=\"", u" \"and right(OrgStr,1)=\"x "})
    EXPECT_EQ(StripQuotes(text), text);
}

TEST(CellDate, OfTextThatIsNoDateIsATypeMismatch) {
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  EXPECT_EQ(CellDate(u"1/2/2005 12:00", conversions), Day(2005, 1, 2, 12));
  for (const TextView text : {u"", u" ", u"bad", u"1/1/2005@", u"2005"})
    EXPECT_EQ(ErrorOf([&] { CellDate(text, conversions); }), kTypeMismatch) << Quoted(text);
}

// A row of a list by its texts; notes down which column was read.
class Cells {
 public:
  explicit Cells(std::vector<Text> texts) : texts_(std::move(texts)) {}

  Text operator()(std::int16_t column) {
    read_.push_back(column);
    return texts_.at(static_cast<std::size_t>(column) - 1);
  }

  const std::vector<int>& Read() const { return read_; }

 private:
  std::vector<Text> texts_;
  std::vector<int> read_;
};

class GetParameterValueOf : public testing::Test {
 protected:
  Value First(const FilterCriterion& row, Cells& cells, std::int16_t type) const {
    return GetParameterValue(ParameterControl(row, ParameterSlot::kFirst, kRows), cells, type,
                             conversions_);
  }
  Value Second(const FilterCriterion& row, Cells& cells, std::int16_t type) const {
    return GetParameterValue(ParameterControl(row, ParameterSlot::kSecond, kRows), cells, type,
                             conversions_);
  }

  const std::vector<FilterCriterion> kRows = {TextRow("Name"), NumberRow("Price"), DateRow("Due")};
  Cells cells_{{u"oak", u"12abc", u"1/2/2005"}};

 private:
  ClockFake clock_;
  EnUsConversions conversions_{clock_};
};

TEST_F(GetParameterValueOf, ATextRowIsTheTextAsTyped) {
  EXPECT_EQ(First(TextRow("Name", "equals", "\"ab\" "), cells_, 0), Value(u"\"ab\" "));
  EXPECT_EQ(First(TextRow("Name", "equals", ""), cells_, 0), Value(Text()));
  EXPECT_EQ(First(TextRow("Name", "equals", "[name]"), cells_, 0), Value(u"[name]"));
  EXPECT_EQ(cells_.Read(), std::vector<int>());
}

TEST_F(GetParameterValueOf, ATextRowWithAReferenceIsThatCellOfWhateverType) {
  EXPECT_EQ(First(TextRow("Name", "equals", "[Price]"), cells_, 0), Value(u"12abc"));
  EXPECT_EQ(First(TextRow("Name", "equals", "[Name]"), cells_, 0), Value(u"oak"));
  EXPECT_EQ(cells_.Read(), (std::vector<int>{2, 1}));
}

TEST_F(GetParameterValueOf, ANumberRowIsTheLeadingNumberOfEachBox) {
  EXPECT_EQ(First(NumberRow("Price", "is between", "5x", "7"), cells_, 1), Value(5.0));
  EXPECT_EQ(Second(NumberRow("Price", "is between", "5x", "7"), cells_, 1), Value(7.0));
  EXPECT_EQ(First(NumberRow("Price", "equals", ""), cells_, 1), Value(0.0));
  EXPECT_EQ(First(NumberRow("Price", "equals", "[price]"), cells_, 1), Value(0.0));
}

TEST_F(GetParameterValueOf, ANumberRowWithAReferenceIsTheLeadingNumberOfThatCell) {
  EXPECT_EQ(First(NumberRow("Price", "equals", "[Price]"), cells_, 1), Value(12.0));
  EXPECT_EQ(First(NumberRow("Price", "equals", "[Name]"), cells_, 1), Value(0.0));
  EXPECT_EQ(Second(NumberRow("Price", "is between", "", "[Due]"), cells_, 1), Value(1.0));
  EXPECT_EQ(cells_.Read(), (std::vector<int>{2, 1, 3}));
}

TEST_F(GetParameterValueOf, ADateRowIsThePickersDate) {
  const FilterCriterion row = DateRow("Due", "is between", Day(2005, 1, 1, 12), Day(2006, 1, 1));
  EXPECT_EQ(First(row, cells_, 2), Value(Day(2005, 1, 1, 12)));
  EXPECT_EQ(Second(row, cells_, 2), Value(Day(2006, 1, 1)));
}

TEST_F(GetParameterValueOf, ADateRowTakesOnlyAReferenceFromTheBoxOverThePicker) {
  const FilterCriterion row = DateRow("Due", "is between", Day(2005, 1, 1), Day(2006, 1, 1));
  EXPECT_EQ(First(Overlaid(row, "3/3/2003"), cells_, 2), Value(Day(2005, 1, 1)));
  EXPECT_EQ(First(Overlaid(row, "[due]"), cells_, 2), Value(Day(2005, 1, 1)));
  EXPECT_EQ(First(Overlaid(row, "", "[Due]"), cells_, 2), Value(Day(2005, 1, 1)));
  EXPECT_EQ(First(Overlaid(row, "[Due]"), cells_, 2), Value(Day(2005, 1, 2)));
  EXPECT_EQ(Second(Overlaid(row, "", "[Due]"), cells_, 2), Value(Day(2005, 1, 2)));
  EXPECT_EQ(Second(Overlaid(row, "[Due]"), cells_, 2), Value(Day(2006, 1, 1)));
}

TEST_F(GetParameterValueOf, ADateRowWithAReferenceToNoDateIsATypeMismatch) {
  const FilterCriterion row = DateRow("Due", "equals", Day(2005, 1, 1));
  EXPECT_EQ(ErrorOf([&] { First(Overlaid(row, "[Name]"), cells_, 2); }), kTypeMismatch);
  Cells empty({u"", u"", u""});
  EXPECT_EQ(ErrorOf([&] { First(Overlaid(row, "[Due]"), empty, 2); }), kTypeMismatch);
}

TEST_F(GetParameterValueOf, AnyOtherTypeIsEmpty) {
  constexpr std::int16_t kOthers[] = {-1, 3, 32767};
  for (const std::int16_t type : kOthers)
    EXPECT_EQ(First(NumberRow("Price", "equals", "[Price]"), cells_, type), Value()) << type;
  EXPECT_EQ(cells_.Read(), std::vector<int>());
}

}  // namespace
}  // namespace sifter
