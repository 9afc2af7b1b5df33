#include "listmodel/ColumnClicks.h"

#include "listmodel/MemoryListView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

class ColumnClicksTest : public testing::Test {
 protected:
  ColumnClicks::Clicked Heard(const std::string& name) {
    return
        [this, name](std::int32_t column) { heard.push_back(name + " " + std::to_string(column)); };
  }

  Strings heard;
  ColumnClicks clicks;
};

TEST_F(ColumnClicksTest, AreToldInTheOrderInWhichTheWatchersCame) {
  const Ref<Object> a = clicks.Watch(Heard("a"));
  const Ref<Object> b = clicks.Watch(Heard("b"));
  clicks.Raise(3);
  clicks.Raise(1);
  EXPECT_EQ(heard, (Strings{"a 3", "b 3", "a 1", "b 1"}));
}

TEST_F(ColumnClicksTest, NobodyIsToldWithoutHoldingOn) {
  clicks.Watch(Heard("a"));
  Ref<Object> b = clicks.Watch(Heard("b"));
  b = nullptr;
  clicks.Raise(1);
  EXPECT_EQ(heard, Strings());
}

TEST_F(ColumnClicksTest, AWatcherIsToldForAsLongAsAnybodyHoldsItsToken) {
  Ref<Object> a = clicks.Watch(Heard("a"));
  Ref<Object> other = a;
  a = nullptr;
  clicks.Raise(1);
  other = nullptr;
  clicks.Raise(2);
  EXPECT_EQ(heard, Strings{"a 1"});
}

TEST_F(ColumnClicksTest, AWatcherMayEndItselfAndIsNotToldOfAClickWithinThatOne) {
  Ref<Object> a;
  a = clicks.Watch([&](std::int32_t column) {
    Heard("a")(column);
    a = nullptr;
    clicks.Raise(column + 1);
    Heard("a again")(column);
  });
  const Ref<Object> b = clicks.Watch(Heard("b"));
  clicks.Raise(1);
  EXPECT_EQ(heard, (Strings{"a 1", "b 2", "a again 1", "b 1"}));
}

TEST_F(ColumnClicksTest, AWatcherMayEndOthersBeforeAndBehindIt) {
  Ref<Object> a = clicks.Watch(Heard("a"));
  Ref<Object> c;
  const Ref<Object> b = clicks.Watch([&](std::int32_t column) {
    Heard("b")(column);
    a = nullptr;
    c = nullptr;
  });
  c = clicks.Watch(Heard("c"));
  const Ref<Object> d = clicks.Watch(Heard("d"));
  clicks.Raise(1);
  clicks.Raise(2);
  EXPECT_EQ(heard, (Strings{"a 1", "b 1", "d 1", "b 2", "d 2"}));
}

TEST_F(ColumnClicksTest, WhoComesDuringAClickIsToldOfTheNext) {
  std::vector<Ref<Object>> late;
  Ref<Object> gone;
  const Ref<Object> a = clicks.Watch([&](std::int32_t column) {
    Heard("a")(column);
    gone = nullptr;
    late.push_back(clicks.Watch(Heard("late")));
  });
  gone = clicks.Watch(Heard("gone"));
  clicks.Raise(1);
  EXPECT_EQ(heard, Strings{"a 1"});
  clicks.Raise(2);
  EXPECT_EQ(heard, (Strings{"a 1", "a 2", "late 2"}));
}

TEST_F(ColumnClicksTest, AWatcherThatGoesMayTakeOthersAlong) {
  struct Holder {
    Ref<Object> other;
  };
  auto holder = std::make_shared<Holder>();
  Ref<Object> a = clicks.Watch([holder](std::int32_t) {});
  holder->other = clicks.Watch(Heard("b"));
  std::weak_ptr<Holder> left = holder;
  const Ref<Object> c = clicks.Watch(Heard("c"));
  holder = nullptr;
  a = nullptr;
  EXPECT_TRUE(left.expired());
  clicks.Raise(1);
  EXPECT_EQ(heard, Strings{"c 1"});
}

TEST_F(ColumnClicksTest, NobodyIsToldAnyMoreOnceTheClicksHaveEnded) {
  auto ending = std::make_unique<ColumnClicks>();
  const Ref<Object> a = ending->Watch([&](std::int32_t column) {
    Heard("a")(column);
    ending = nullptr;
  });
  const Ref<Object> b = ending->Watch(Heard("b"));
  ending->Raise(1);
  EXPECT_EQ(heard, Strings{"a 1"});
}

TEST_F(ColumnClicksTest, AnErrorOfAWatcherComesOutAndLeavesTheOthersWatching) {
  const Ref<Object> a = clicks.Watch([](std::int32_t column) {
    if (column == 1) throw RuntimeError(ErrorNumber::kTypeMismatch);
  });
  const Ref<Object> b = clicks.Watch(Heard("b"));
  EXPECT_THROW(clicks.Raise(1), RuntimeError);
  clicks.Raise(2);
  EXPECT_EQ(heard, Strings{"b 2"});
}

TEST_F(ColumnClicksTest, AListInMemoryTellsOfItsClicks) {
  const auto list = MakeRef<MemoryListView>();
  Ref<Object> watching = list->WatchColumnClicks(Heard("list"));
  list->ClickColumn(2);
  watching = nullptr;
  list->ClickColumn(1);
  EXPECT_EQ(heard, Strings{"list 2"});
}

TEST_F(ColumnClicksTest, AListThatDoesntTellHasNothingToHoldOnTo) {
  class Mute : public HostListView {
   public:
    Ref<ColumnHeaderCollection> ColumnHeaders() override { return nullptr; }
    Ref<ListItemCollection> ListItems() override { return nullptr; }
    std::int32_t hWnd() const override { return 0; }
    Value Sorted() const override { return {}; }
    Value SortKey() const override { return {}; }
    Value SortOrder() const override { return {}; }
    void SetSorted(const Value&) override {}
    void SetSortKey(const Value&) override {}
    void SetSortOrder(const Value&) override {}
  };
  EXPECT_EQ(MakeRef<Mute>()->WatchColumnClicks(Heard("mute")), Ref<Object>());
}

}  // namespace

}  // namespace sifter
