#include "PlacedSifter.h"

#include <olectl.h>

namespace sifter {

namespace {

// A form that is being designed, or one whose controls are not to answer for the moment.
class Untouchable : public PlacedSifter {
 protected:
  Untouchable() {
    Fill(*NativeListView(form.List()), {"Name"}, {{"Oak"}, {"Ash"}});
    EXPECT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
  }

  // Whether a click on the button shows the dialog, which is left again.
  bool AClickShowsTheDialog() {
    bool shown = false;
    user.Does([&] {
      user.Clicks(container.ControlWindow());
      user.Rests();
      shown = CriteriaDialog::Window() != nullptr;
      if (!shown) return;
      dialog.PressesByMessage("&Hide Filter");
      dialog.Goes();
    });
    user.PumpUntilDone();
    return shown;
  }

  ComRef<IDispatch> list;
  User user;
  CriteriaDialog dialog{user};
};

TEST_F(Untouchable, WhileTheFormIsBeingDesigned) {
  const LONG_PTR procedure = GetWindowLongPtrW(form.List(), GWLP_WNDPROC);
  container.Offers(DISPID_AMBIENT_USERMODE, false);
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_EQ(GetWindowLongPtrW(form.List(), GWLP_WNDPROC), procedure);
  EXPECT_FALSE(AClickShowsTheDialog());
  container.Remove();
}

TEST_F(Untouchable, WhileTheContainerSaysSo) {
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(AClickShowsTheDialog());
  container.Offers(DISPID_AMBIENT_UIDEAD, true);
  container.Tells(DISPID_AMBIENT_UIDEAD);
  EXPECT_FALSE(AClickShowsTheDialog());
  container.Offers(DISPID_AMBIENT_UIDEAD, false);
  container.Tells(DISPID_AMBIENT_UIDEAD);
  EXPECT_TRUE(AClickShowsTheDialog());
  container.Remove();
}

TEST_F(Untouchable, NotWithoutAmbients) {
  container.site.ambients.clear();
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(AClickShowsTheDialog());
  container.Remove();
}

TEST_F(Untouchable, NotInAContainerThatHasLittle) {
  container.site.Lacks(IID_IDispatch);
  container.site.Lacks(IID_IOleControlSite);
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(AClickShowsTheDialog());
  container.Remove();
}

}  // namespace

}  // namespace sifter
