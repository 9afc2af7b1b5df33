#include "support/MemoryListWindow.h"

#include "WatchedWindows.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"

#include <optional>
#include <string>

namespace sifter {

namespace {

class MemoryListWindowTest : public WatchedWindowsTest {
 protected:
  const Ref<MemoryListView> list = MakeList({"a"}, {{"1"}, {"2"}, {"3"}});
  std::optional<MemoryListWindow> window{std::in_place, windows, *list};
  HookClass hook{table, About()};

  void SetUp() override {
    for (const ListMessage message :
         {kInsertItem, kDeleteAllItems, kDeleteItem, kDeleteColumn, kInsertColumn})
      hook.SetMessages(message, true);
    hook.WndProc = [this](std::uint32_t message, std::int32_t wParam, std::int32_t, std::int32_t&) {
      recorder.Line(std::to_string(message) + ' ' + std::to_string(wParam) + ", " +
                    std::to_string(list->ListItems()->Count()) + " rows, " +
                    std::to_string(list->ColumnHeaders()->Count()) + " columns");
    };
    hook.SethWnd(list->hWnd());
    recorder.Clear();
  }
};

TEST_F(MemoryListWindowTest, NoticesOfTheListReachTheHookAsMessages) {
  AddRow(*list, {"4"});
  list->ListItems()->Remove(2);
  AddColumn(*list, "b");
  list->ListItems()->Clear();
  list->ColumnHeaders()->Clear();
  EXPECT_TRUE(recorder.Shows({
      "4103 0, 4 rows, 1 columns",
      "4104 1, 4 rows, 1 columns",
      "4123 1, 3 rows, 2 columns",
      "4105 0, 3 rows, 2 columns",
      "4124 1, 0 rows, 2 columns",
      "4124 0, 0 rows, 1 columns",
  }));
}

TEST_F(MemoryListWindowTest, WithoutTheHookTheListGoesOnSilently) {
  hook.SethWnd(0);
  recorder.Clear();
  AddRow(*list, {"4"});
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(list->ListItems()->Count(), 4);
}

TEST_F(MemoryListWindowTest, AnErrorInTheHookDoesNotReachTheList) {
  hook.WndProc = [](std::uint32_t, std::int32_t, std::int32_t, std::int32_t&) {
    throw RuntimeError(ErrorNumber::kOverflow);
  };
  AddRow(*list, {"4"});
  list->ListItems()->Remove(1);
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"2", "3", "4"}));
}

TEST_F(MemoryListWindowTest, TheEndOfTheWindowEndsTheWatching) {
  window.reset();
  EXPECT_TRUE(recorder.Shows({"101 gets its own back"}));
  EXPECT_EQ(table.Count(), 0);
  EXPECT_EQ(list->hWnd(), 0);
  AddRow(*list, {"4"});
  EXPECT_TRUE(recorder.Shows({"101 gets its own back"}));
}

}  // namespace

}  // namespace sifter
