#include "filterdialog/ColumnTypes.h"

#include "base/Conversions.h"
#include "support/ClockFake.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace sifter {

namespace {

struct TypeCase {
  std::vector<std::string> values;
  ColumnDataType type;
};

constexpr ColumnDataType kText = ColumnDataType::kText;
constexpr ColumnDataType kNumber = ColumnDataType::kNumber;
constexpr ColumnDataType kDate = ColumnDataType::kDate;

const std::vector<TypeCase>& TypeCases() {
  static const std::vector<TypeCase> cases = {
      {{}, kText},
      {{""}, kText},
      {{"", "", ""}, kText},
      {{"1", "", "3"}, kNumber},
      {{"", "", "3"}, kNumber},
      {{"3", "", ""}, kNumber},
      {{"2005"}, kNumber},  // a number although it could be a year
      {{"1.5"}, kNumber},   // although it could be a day of the month
      {{"1,234", "$5", "(5)", "&H10", "1e5", " 5 ", "+5", "5-", ".5", "1,2,3"}, kNumber},
      {{"1/1/2005"}, kDate},
      {{"", "1/2/2005"}, kDate},
      {{"1/2/2005", "", "3/4/2005"}, kDate},
      {{"1/1/2005", "12:30", "Jan 5", "31/12/2005", "1-2", " 1/2/2005 "}, kDate},
      {{"1", "1/2/2005"}, kText},
      {{"1/2/2005", "1"}, kText},
      {{"1", "", "1/2/2005", "", "2"}, kText},
      {{"x", "1", "2"}, kText},
      {{"1", "x", "2"}, kText},
      {{"1", "2", "x"}, kText},
      {{"1/1/2005", "1/2/2005", "x"}, kText},
      {{"x", "1/1/2005"}, kText},
      {{"", "x"}, kText},
      {{" "}, kText},  // a blank is a value
      {{"1", " "}, kText},
      {{"10@"}, kText},
      {{"1/1/2005@"}, kText},
      {{"1d5", "5"}, kText},
      {{"5%"}, kText},
      {{"0x10"}, kText},
  };
  return cases;
}

class ColumnTypesTest : public testing::Test {
 protected:
  ColumnDataType TypeOf(HostListView& list, std::int32_t column) {
    return DecideColumnType(list, column, conversions);
  }

  Recorder recorder;
  ClockFake clock;
  EnUsConversions conversions{clock};
};

std::string Listed(const std::vector<std::string>& values) {
  return testing::PrintToString(values);
}

TEST_F(ColumnTypesTest, TheValuesInOrderDecide) {
  for (const TypeCase& c : TypeCases()) {
    ColumnTypeDecision decision(conversions);
    for (const std::string& value : c.values) decision.Look(Text::FromUtf8(value));
    EXPECT_EQ(decision.Type(), c.type) << Listed(c.values);
  }
}

TEST_F(ColumnTypesTest, TheOrderOfTheValuesMakesNoDifference) {
  for (TypeCase c : TypeCases()) {
    std::reverse(c.values.begin(), c.values.end());
    ColumnTypeDecision decision(conversions);
    for (const std::string& value : c.values) decision.Look(Text::FromUtf8(value));
    EXPECT_EQ(decision.Type(), c.type) << Listed(c.values);
  }
}

TEST_F(ColumnTypesTest, TextIsFinal) {
  ColumnTypeDecision decision(conversions);
  decision.Look(u"1");
  EXPECT_FALSE(decision.IsFinal());
  decision.Look(u"x");
  EXPECT_TRUE(decision.IsFinal());
  decision.Look(u"2");
  EXPECT_EQ(decision.Type(), kText);
}

TEST_F(ColumnTypesTest, ALiveListIsReadInItsFirstColumnAndInItsCells) {
  for (const TypeCase& c : TypeCases()) {
    const Ref<MemoryListView> list = MakeList({"first", "text", "last"});
    for (const std::string& value : c.values) AddRow(*list, {value, "x", value});
    const Ref<RecordingListView> foreign = MakeRef<RecordingListView>(list, recorder);
    foreign->RecordNothing();
    for (const Ref<HostListView>& live : {Ref<HostListView>(list), Ref<HostListView>(foreign)}) {
      EXPECT_EQ(TypeOf(*live, 1), c.type) << Listed(c.values);
      EXPECT_EQ(TypeOf(*live, 2), kText);
      EXPECT_EQ(TypeOf(*live, 3), c.type) << Listed(c.values);
    }
  }
}

TEST_F(ColumnTypesTest, AColumnIsReadItemByItemAndNoFurtherThanNeeded) {
  const Ref<RecordingListView> list = MakeRef<RecordingListView>(
      MakeList({"a", "b"}, {{"1", "2"}, {"3", "x"}, {"5", "6"}}), recorder);
  EXPECT_EQ(TypeOf(*list, 1), kNumber);
  EXPECT_EQ(TypeOf(*list, 2), kText);
  EXPECT_TRUE(recorder.Shows({
      "ListItems",
      "ListItems.Count",
      "ListItems.Item(1)",
      "ListItems(1).Text",
      "ListItems.Item(2)",
      "ListItems(2).Text",
      "ListItems.Item(3)",
      "ListItems(3).Text",
      "ListItems",
      "ListItems.Count",
      "ListItems.Item(1)",
      "ListItems(1).SubItems(1)",
      "ListItems.Item(2)",
      "ListItems(2).SubItems(1)",
  }));
}

TEST_F(ColumnTypesTest, AnErrorOfTheListComesOut) {
  const Ref<RecordingListView> list =
      MakeRef<RecordingListView>(MakeList({"a", "b"}, {{"1", "2"}}), recorder);
  list->FailOn("ListItem.SubItems", 1, RuntimeError(35600, u"Index out of bounds"));
  EXPECT_EQ(ErrorOf([&] { TypeOf(*list, 2); }), "35600: Index out of bounds");
}

TEST_F(ColumnTypesTest, ARowWithoutACellForTheColumnIsAnError) {
  const Ref<MemoryListView> list = MakeList({"a"}, {{"1"}});
  EXPECT_EQ(ErrorOf([&] { TypeOf(*list, 2); }), kBadPositionError);
}

}  // namespace

}  // namespace sifter
