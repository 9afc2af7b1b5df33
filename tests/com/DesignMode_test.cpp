#include "HostedBanner.h"
#include "PlacedSifter.h"

#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

// A form that is being designed, or one whose controls are not to answer for the moment.
class Untouchable : public PlacedControl, public testing::WithParamInterface<const wchar_t*> {
 protected:
  Untouchable() : PlacedControl(GetParam()) {
    container.site.position = {10, 10, 310, 40};
    Fill(*NativeListView(form.List()), {"Name"}, {{"Oak"}, {"Ash"}});
    EXPECT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
  }

  // Whether a click on the button shows the dialog, which is left again.
  bool AClickShowsTheDialog() {
    bool shown = false;
    user.Does([&] {
      user.Clicks(FilterButton(GetParam(), container.ControlWindow()));
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

TEST_P(Untouchable, WhileTheFormIsBeingDesigned) {
  const LONG_PTR procedure = GetWindowLongPtrW(form.List(), GWLP_WNDPROC);
  container.Offers(DISPID_AMBIENT_USERMODE, false);
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_EQ(GetWindowLongPtrW(form.List(), GWLP_WNDPROC), procedure);
  EXPECT_FALSE(AClickShowsTheDialog());
  container.Remove();
}

TEST_P(Untouchable, WhileTheContainerSaysSo) {
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

TEST_P(Untouchable, NotWithoutAmbients) {
  container.site.ambients.clear();
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(AClickShowsTheDialog());
  container.Remove();
}

TEST_P(Untouchable, NotInAContainerThatHasLittle) {
  container.site.Lacks(IID_IDispatch);
  container.site.Lacks(IID_IOleControlSite);
  container.Place(control);
  container.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(AClickShowsTheDialog());
  container.Remove();
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, Untouchable, testing::Values(kSifter, kBanner),
                         ControlName);

// A banner on a form that is being designed.
class DesignedBanner : public PlacedControl {
 protected:
  DesignedBanner() : PlacedControl(kBanner) {
    container.site.position = {10, 10, 310, 40};
    container.Offers(DISPID_AMBIENT_USERMODE, false);
    container.Place(control);
    container.Activate();
  }

  User user;
};

TEST_F(DesignedBanner, RaisesNoEventWhenItsButtonIsClicked) {
  const IID eventsId = Library::Built().IdOf(L"__TSLvwBannerFilter");
  EventSink events(eventsId, recorder);
  const Connection connection(control.Get(), eventsId, &events);
  ComRef<IDispatch> list;
  ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  Put(control, L"BannerButtonVisible", true);
  const auto clicks = [&] {
    recorder.Clear();
    user.Does([&] { user.Clicks(BannerWindows(container.ControlWindow()).Extra()); });
    user.PumpUntilDone();
    Strings raised;
    for (const std::string& line : recorder.Lines())
      if (line.rfind("event", 0) == 0) raised.push_back(line);
    return raised;
  };
  EXPECT_EQ(clicks(), Strings{});
  container.Offers(DISPID_AMBIENT_USERMODE, true);
  container.Tells(DISPID_AMBIENT_USERMODE);
  EXPECT_EQ(clicks(), Strings{"event 3 \"\""});
}

TEST_F(DesignedBanner, IsTheSameWhenTheFormIsRun) {
  Put(control, L"ItemDescription", u"Trees");
  Put(control, L"FilterCaption", u"Which trees?");
  Put(control, L"BannerButtonVisible", true);
  PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture().Get()));
  EXPECT_EQ(container.As<IPersistStreamInit>()->IsDirty(), S_OK);
  ComRef<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive()), S_OK);
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  EXPECT_EQ(container.As<IPersistStreamInit>()->IsDirty(), S_FALSE);
  const Strings designed = BannerFieldsOf(control);
  container.Remove();
  control = Create(kBanner);
  container.Offers(DISPID_AMBIENT_USERMODE, true);
  container.GiveSite(control);
  ASSERT_EQ(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
  ASSERT_EQ(control.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  container.Activate();
  EXPECT_EQ(BannerFieldsOf(control), designed);
  EXPECT_TRUE(PictureOf(control));
  EXPECT_TRUE(IsWindowVisible(BannerWindows(container.ControlWindow()).Extra()));
}

}  // namespace

}  // namespace sifter
