#include "listmodel/MemoryListView.h"
#include "matching/RowMatcher.h"
#include "support/Lists.h"
#include "support/Printers.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

Ref<MemoryListView> ListOf(int rows) {
  const Ref<MemoryListView> list = MakeList({"Name"});
  for (int i = 1; i <= rows; ++i) AddRow(*list, {std::to_string(i)});
  return list;
}

struct ComplementCase {
  const char* name;
  int rows;
  TextView matchList;
  TextView others;
};

TEST(NonMatchingIndexes, ListsTheRowsThatDidNotPass) {
  const ComplementCase cases[] = {
      {"two of eight", 8, u",3,7", u"1,2,4,5,6,8"},
      {"all", 3, u",1,2,3", u""},
      {"none", 3, u"", u"1,2,3"},
      {"first", 3, u",1", u"2,3"},
      {"last", 3, u",3", u"1,2"},
      {"no rows", 0, u"", u""},
      {"indexes of two digits are not those of one", 12, u",1,11", u"2,3,4,5,6,7,8,9,10,12"},
      {"order plays no part", 3, u",3,1", u"2"},
      {"commas at the end", 3, u",2,,", u"1,3"},
  };
  for (const ComplementCase& c : cases)
    EXPECT_EQ(NonMatchingIndexes(*ListOf(c.rows), c.matchList), c.others) << c.name;
}

TEST(NonMatchingIndexes, IsEmptyAfterAnErrorOfTheList) {
  Recorder calls;
  const auto list = MakeRef<RecordingListView>(ListOf(3), calls);
  list->FailOn("ListItems.Item", 3, RuntimeError(35600, u"Index out of bounds"));
  EXPECT_EQ(NonMatchingIndexes(*list, u",2"), u"");
}

struct RemovalCase {
  const char* name;
  TextView indexes;
  std::vector<std::string> left;
};

TEST(RemoveListItems, RemovesTheRowsAtThesePositions) {
  const RemovalCase cases[] = {
      {"some", u"1,3,4", {"2", "5"}},
      {"one", u"5", {"1", "2", "3", "4"}},
      {"all", u"1,2,3,4,5", {}},
      {"none", u"", {"1", "2", "3", "4", "5"}},
  };
  for (const RemovalCase& c : cases) {
    const Ref<MemoryListView> list = ListOf(5);
    RemoveListItems(*list, c.indexes);
    EXPECT_EQ(FirstTexts(*list), c.left) << c.name;
  }
}

TEST(RemoveListItems, GoesFromTheLastToTheFirst) {
  Recorder calls;
  const auto list = MakeRef<RecordingListView>(ListOf(12), calls);
  list->RecordOnly({"ListItems.Remove", "ListItems.Clear", "ListItems.Add"});
  RemoveListItems(*list, u"2,9,12");
  EXPECT_TRUE(calls.Shows({"ListItems.Remove(12)", "ListItems.Remove(9)", "ListItems.Remove(2)"}));
}

TEST(RemoveListItems, EndsSilentlyAtAPositionThatDoesNotExist) {
  const Ref<MemoryListView> list = ListOf(5);
  RemoveListItems(*list, u"2,9,4");
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"1", "2", "3", "5"}));
}

TEST(RemoveListItems, EndsSilentlyAtWhatIsNoNumber) {
  const Ref<MemoryListView> list = ListOf(5);
  RemoveListItems(*list, u"1,x,3");
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"1", "2", "4", "5"}));
}

TEST(RemoveListItems, EndsSilentlyAtAPositionBeyondSixteenBits) {
  const Ref<MemoryListView> list = ListOf(3);
  RemoveListItems(*list, u"1,2,32768");
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"1", "2", "3"}));
  RemoveListItems(*list, u"1,32768,3");
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"1", "2"}));
}

TEST(RemoveListItems, WithMoreFieldsThanSixteenBitsCanCountRemovesNothing) {
  std::u16string ones = u"1";
  for (int i = 0; i < 32767; ++i) ones += u",1";
  const Ref<MemoryListView> list = ListOf(3);
  RemoveListItems(*list, ones);
  RemoveListItems(*list, ones + u",1");
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"1", "2", "3"}));
}

TEST(RemoveListItems, EndsSilentlyAtAnErrorOfTheListAndKeepsWhatItRemoved) {
  Recorder calls;
  const Ref<MemoryListView> rows = ListOf(5);
  const auto list = MakeRef<RecordingListView>(rows, calls);
  list->FailOn("ListItems.Remove", 2, RuntimeError(35600, u"Index out of bounds"));
  RemoveListItems(*list, u"1,3,5");
  EXPECT_EQ(FirstTexts(*rows), (std::vector<std::string>{"1", "2", "3", "4"}));
}

}  // namespace
}  // namespace sifter
