#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

Ref<MemoryListView> SortedBy(std::int32_t column, std::int32_t order,
                             const std::vector<std::string>& columns, const TextRows& rows) {
  const Ref<MemoryListView> list = MakeList(columns, rows);
  list->SetSortKey(column);
  list->SetSortOrder(order);
  list->SetSorted(true);
  return list;
}

TEST(MemoryListSorting, TurningItOnSortsAtOnceAndByCodeUnit) {
  // A surrogate pair comes before U+FB01, as its units do.
  const Ref<MemoryListView> list = SortedBy(0, 0, {"a"},
                                            {{"\xEF\xAC\x81"},
                                             {"b"},
                                             {"\xC3\xA9"},
                                             {"B"},
                                             {""},
                                             {"10"},
                                             {"\xF0\x9F\x8C\xB2"},
                                             {"9"},
                                             {"a"}});
  EXPECT_EQ(FirstTexts(*list), (Strings{"", "10", "9", "B", "a", "b", "\xC3\xA9",
                                        "\xF0\x9F\x8C\xB2", "\xEF\xAC\x81"}));
}

TEST(MemoryListSorting, EqualTextsKeepTheirOrderInBothDirections) {
  const TextRows rows = {{"1", "x"}, {"2", "y"}, {"3", "x"}, {"4", "y"}, {"5", "x"}};
  EXPECT_EQ(FirstTexts(*SortedBy(1, 0, {"a", "b"}, rows)), (Strings{"1", "3", "5", "2", "4"}));
  EXPECT_EQ(FirstTexts(*SortedBy(1, 1, {"a", "b"}, rows)), (Strings{"2", "4", "1", "3", "5"}));
}

TEST(MemoryListSorting, ManyEqualTextsKeepTheirOrder) {
  const Ref<MemoryListView> list = MakeList({"a", "b"});
  Strings expected;
  for (const char* text : {"x", "y"})
    for (int i = 0; i < 100; ++i)
      if ((i % 3 == 0) == (*text == 'x')) expected.push_back(std::to_string(i));
  for (int i = 0; i < 100; ++i) AddRow(*list, {std::to_string(i), i % 3 == 0 ? "x" : "y"});
  list->SetSortKey(1);
  list->SetSorted(true);
  EXPECT_EQ(FirstTexts(*list), expected);
}

TEST(MemoryListSorting, ChangingKeyOrDirectionSortsAgain) {
  const Ref<MemoryListView> list = SortedBy(0, 0, {"a", "b"}, {{"1", "y"}, {"2", "z"}, {"3", "x"}});
  list->SetSortKey(1);
  EXPECT_EQ(FirstTexts(*list), (Strings{"3", "1", "2"}));
  list->SetSortOrder(1);
  EXPECT_EQ(FirstTexts(*list), (Strings{"2", "1", "3"}));
}

TEST(MemoryListSorting, NothingMovesWhileItIsOff) {
  const Ref<MemoryListView> list = MakeList({"a"}, {{"b"}, {"c"}, {"a"}});
  list->SetSortOrder(1);
  list->SetSortKey(0);
  AddRow(*list, {"d"});
  EXPECT_EQ(FirstTexts(*list), (Strings{"b", "c", "a", "d"}));
}

TEST(MemoryListSorting, TurningItOffLeavesTheOrderAndAppendsAgain) {
  const Ref<MemoryListView> list = SortedBy(0, 0, {"a"}, {{"b"}, {"a"}});
  list->SetSorted(false);
  AddRow(*list, {"0"});
  EXPECT_EQ(FirstTexts(*list), (Strings{"a", "b", "0"}));
}

TEST(MemoryListSorting, NewRowsGoToTheirPlaceBehindTheirEquals) {
  const Ref<MemoryListView> list = SortedBy(0, 0, {"a", "b"}, {{"b", "1"}, {"d", "1"}});
  const Ref<ListItem> row = AddRow(*list, {"b", "2"});
  EXPECT_EQ(row->Index(), Value(2));
  EXPECT_EQ(AddRow(*list, {"a", "2"})->Index(), Value(1));
  EXPECT_EQ(AddRow(*list, {"e", "2"})->Index(), Value(5));
  EXPECT_EQ(list->ListItems()->Add(1, u"k", u"c", Value(), Value())->Index(), Value(4));
  EXPECT_EQ(list->ListItems()->Item(u"k")->Index(), Value(4));
  EXPECT_EQ(row->Index(), Value(3));
  EXPECT_EQ(Texts(*list),
            (TextRows{{"a", "2"}, {"b", "1"}, {"b", "2"}, {"c", ""}, {"d", "1"}, {"e", "2"}}));
}

TEST(MemoryListSorting, NewRowsGoToTheirPlaceInADescendingList) {
  const Ref<MemoryListView> list = SortedBy(0, 1, {"a"}, {{"d"}, {"b"}});
  EXPECT_EQ(AddRow(*list, {"c"})->Index(), Value(2));
  EXPECT_EQ(AddRow(*list, {"b"})->Index(), Value(4));
  EXPECT_EQ(AddRow(*list, {"z"})->Index(), Value(1));
}

// A row comes with its first text only, so by any other column it starts as an empty text.
TEST(MemoryListSorting, ANewRowIsPlacedBeforeItsCellsAreFilled) {
  const Ref<MemoryListView> list = SortedBy(1, 0, {"a", "b"}, {{"1", "x"}, {"2", "z"}});
  const Ref<ListItem> row = AddRow(*list, {"3", "y"});
  EXPECT_EQ(FirstTexts(*list), (Strings{"3", "1", "2"}));
  list->SetSorted(true);
  EXPECT_EQ(row->Index(), Value(2));
}

TEST(MemoryListSorting, RowsWhoseTextChangesStayWhereTheyAre) {
  const Ref<MemoryListView> list = SortedBy(0, 0, {"a"}, {{"a"}, {"b"}, {"c"}});
  list->ListItems()->Item(1)->SetText(u"z");
  EXPECT_EQ(FirstTexts(*list), (Strings{"z", "b", "c"}));
}

TEST(MemoryListSorting, KeysAndHeldRowsFollow) {
  const Ref<MemoryListView> list = MakeList({"a"});
  AddRow(*list, {"b"}, "kb");
  AddRow(*list, {"c"}, "kc");
  AddRow(*list, {"a"}, "ka");
  const Ref<ListItem> held = list->ListItems()->Item(2);
  list->SetSorted(true);
  EXPECT_EQ(list->ListItems()->Item(u"kb")->Index(), Value(2));
  EXPECT_EQ(list->ListItems()->Item(u"ka")->Index(), Value(1));
  EXPECT_EQ(held->Index(), Value(3));
  EXPECT_EQ(held->Text(), Value(u"c"));
}

TEST(MemoryListSorting, AColumnThatThereIsNotLeavesTheOrder) {
  for (const std::int32_t column : {-1, 2, 99})
    EXPECT_EQ(FirstTexts(*SortedBy(column, 0, {"a", "b"}, {{"b", "2"}, {"a", "1"}})),
              (Strings{"b", "a"}));
}

TEST(MemoryListSorting, MembersConvertAndRefuse) {
  const Ref<MemoryListView> list = MakeList({"a"});
  list->SetSorted(u"True");
  list->SetSortKey(u"3");
  list->SetSortOrder(1.0);
  EXPECT_EQ(Shown(list->Sorted()), "True");
  EXPECT_EQ(Shown(list->SortKey()), "3");
  EXPECT_EQ(Shown(list->SortOrder()), "1");
  EXPECT_EQ(ErrorOf([&] { list->SetSortOrder(2); }), "380: Invalid property value");
  EXPECT_EQ(Shown(list->SortOrder()), "1");
}

}  // namespace

}  // namespace sifter
