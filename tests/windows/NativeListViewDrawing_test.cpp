#include "ListWatcher.h"
#include "NativeListViewFixture.h"
#include "support/Errors.h"

namespace sifter {

namespace {

TEST_F(NativeListViewTest, ALongChangeIsDrawnOnce) {
  Fill(*list, {"a"}, {{"1"}, {"2"}, {"3"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  {
    const UpdateScope outer(list.Get());
    const UpdateScope inner(list.Get());
    list->Shared()->RemoveRows({1, 3});
  }
  EXPECT_TRUE(recorder.Shows(
      {"SetRedraw 0", "DeleteItem 2, 3 rows", "DeleteItem 0, 2 rows", "SetRedraw 1"}));
  EXPECT_TRUE(GetUpdateRect(Window(), nullptr, FALSE));
}

TEST_F(NativeListViewTest, DrawingComesBackAfterAnError) {
  ListWatcher watcher(Window(), list, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  ErrorOf([&] {
    const UpdateScope update(list.Get());
    throw RuntimeError(ErrorNumber::kOverflow);
  });
  EXPECT_TRUE(recorder.Shows({"SetRedraw 0", "SetRedraw 1"}));
}

TEST_F(NativeListViewTest, AHiddenListStaysHidden) {
  ShowWindow(Window(), SW_HIDE);
  {
    const UpdateScope update(list.Get());
    Fill(*list, {"a"}, {{"1"}});
    EXPECT_FALSE(IsWindowVisible(Window()));
  }
  EXPECT_EQ(GetWindowLongPtrW(Window(), GWL_STYLE) & WS_VISIBLE, 0);
  {
    const UpdateScope update(list.Get());
    ShowWindow(Window(), SW_SHOW);
  }
  EXPECT_TRUE(IsWindowVisible(Window()));
}

TEST_F(NativeListViewTest, AListThatIsHiddenMeanwhileStaysHidden) {
  {
    const UpdateScope update(list.Get());
    ShowWindow(Window(), SW_HIDE);
    Fill(*list, {"a"}, {{"1"}});
  }
  EXPECT_EQ(GetWindowLongPtrW(Window(), GWL_STYLE) & WS_VISIBLE, 0);
}

}  // namespace

}  // namespace sifter
