#include "sift/HostList.h"

#include "Tables.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

TEST(MakeHostList, HoldsColumnsAndRecords) {
  const Ref<MemoryListView> list = MakeHostList(ReadCsv("Name,Qty,Due\nOak,3\n,,1/5/2020\n"));
  std::vector<std::string> captions;
  for (std::int32_t i = 1; i <= list->ColumnHeaders()->Count(); ++i)
    captions.push_back(ValueToText(list->ColumnHeaders()->Item(i)->Text()).ToUtf8());
  EXPECT_EQ(captions, (std::vector<std::string>{"Name", "Qty", "Due"}));
  EXPECT_EQ(Texts(*list), (TextRows{{"Oak", "3", ""}, {"", "", "1/5/2020"}}));
}

TEST(RecordsShown, FollowsTheRowsThatAreLeft) {
  const Ref<MemoryListView> list = MakeHostList(ReadCsv("Name\na\na\nb\nb\na\n"));
  EXPECT_EQ(RecordsShown(*list), (std::vector<std::int32_t>{1, 2, 3, 4, 5}));
  list->ListItems()->Remove(2);
  list->ListItems()->Remove(3);
  EXPECT_EQ(RecordsShown(*list), (std::vector<std::int32_t>{1, 3, 5}));
  list->ListItems()->Clear();
  EXPECT_EQ(RecordsShown(*list), std::vector<std::int32_t>());
}

}  // namespace
}  // namespace sifter
