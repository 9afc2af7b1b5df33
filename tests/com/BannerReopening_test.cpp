#include "HostedBanner.h"

#include <algorithm>

namespace sifter {

namespace {

// What hosts do with a banner beside the usual order of things.
class BannerReopening : public HostedBanner {
 protected:
  void LetGo() {
    connection.Break();
    container.Remove();
    control.Reset();
  }
};

TEST_F(BannerReopening, ActivationAloneOpensAClosedControl) {
  ASSERT_EQ(container.As<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  recorder.Clear();
  Call(control, L"ApplyFilter", {u"Name..11==r2==*?"});
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_EQ(std::count(recorder.Lines().begin(), recorder.Lines().end(), "event 1"), 1);
}

// The window alone is made smaller, so no call of the host's keeps the control alive.
TEST_F(BannerReopening, AControlMayGoWhileItAsksForRoom) {
  int asked = 0;
  container.site.onRoom = [&](const RECT&) {
    if (++asked > 1) return;
    LetGo();
    EXPECT_EQ(Library::Built().CanUnload(), S_FALSE) << "it has gone under its own work";
  };
  SetWindowPos(container.ControlWindow(), nullptr, 10, 10, 50, 8, SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(control);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

TEST_F(BannerReopening, TheModelessDialogBelongsToNoWindow) {
  Call(control, L"ShowFilter");
  const HWND window = CriteriaDialog::Window();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(GetWindow(window, GW_OWNER), nullptr);
  form.Destroy();
  EXPECT_TRUE(IsWindow(window));
  LetGo();
  EXPECT_FALSE(IsWindow(window));
}

}  // namespace

}  // namespace sifter
