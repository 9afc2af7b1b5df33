#include "HostedBanner.h"

namespace sifter {

namespace {

// The container that comes with the platform: a window of its class holds the control that the
// window's text names.
class PlatformsContainer : public ComTest {
 protected:
  PlatformsContainer(const std::wstring& name, int width) : type(name) {
    MakeRoomAbove(form.List());
    Fill(*rows, {"Name"}, {{"Oak"}, {"Ash"}, {"Larch"}});
    EXPECT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
    const HMODULE atl = LoadLibraryW(L"atl.dll");
    // Some versions say no when the window class is there already.
    static const WINBOOL registered = Function<WINBOOL(WINAPI*)()>(atl, "AtlAxWinInit")();
    const auto get = Function<HRESULT(WINAPI*)(HWND, IUnknown**)>(atl, "AtlAxGetControl");
    if (!registered) return;
    host = UniqueWindow(CreateWindowExW(0, L"AtlAxWin", (L"RowSifter." + type).c_str(),
                                        WS_CHILD | WS_VISIBLE, 10, 10, width, 30, form.Parent(),
                                        nullptr, nullptr, nullptr));
    ComRef<IUnknown> object;
    if (FAILED(get(host.Get(), object.Receive()))) return;
    control = object.As<IDispatch>();
  }

  template <class Pointer>
  static Pointer Function(HMODULE module, const char* name) {
    return reinterpret_cast<Pointer>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  }

  HWND ControlWindow() const {
    HWND window = nullptr;
    control.As<IOleInPlaceObject>()->GetWindow(&window);
    return window;
  }

  // By the user, who opens the dialog with a click on this window.
  void FilterNames(HWND button) {
    User user;
    CriteriaDialog dialog(user);
    user.Does([&] {
      user.Clicks(button);
      dialog.Appears();
      EXPECT_EQ(GetWindow(CriteriaDialog::Window(), GW_OWNER), form.Parent());
      dialog.Picks(0, "starts with");
      dialog.Fills(0, 1, "a");
      dialog.Clicks("&Apply Criteria");
      dialog.Goes();
    });
    user.PumpUntilDone();
  }

  const std::wstring type;
  const IID eventsId = Library::Built().IdOf((L"__" + type).c_str());
  Recorder recorder;
  EventSink events{eventsId, recorder};
  ListViewOnAForm form;
  Ref<HostListView> rows = NativeListView(form.List());
  ComRef<IDispatch> list;
  UniqueWindow host;
  ComRef<IDispatch> control;
};

class SifterInThePlatformsContainer : public PlatformsContainer {
 protected:
  SifterInThePlatformsContainer() : PlatformsContainer(kSifter, 100) {}
};

TEST_F(SifterInThePlatformsContainer, IsActiveInItsWindow) {
  ASSERT_TRUE(control);
  EXPECT_EQ(GetParent(ControlWindow()), host.Get());
  EXPECT_TRUE(IsWindowVisible(ControlWindow()));
  RECT box;
  GetClientRect(GetWindow(ControlWindow(), GW_CHILD), &box);
  EXPECT_EQ(box.right, 100);
  EXPECT_EQ(box.bottom, 30);
}

TEST_F(SifterInThePlatformsContainer, FollowsItsSize) {
  ASSERT_TRUE(control);
  MoveWindow(host.Get(), 0, 0, 200, 50, TRUE);
  RECT box;
  GetClientRect(GetWindow(ControlWindow(), GW_CHILD), &box);
  EXPECT_EQ(box.right, 200);
  EXPECT_EQ(box.bottom, 50);
}

TEST_F(SifterInThePlatformsContainer, LetsAUserFilter) {
  ASSERT_TRUE(control);
  const Connection connection(control.Get(), eventsId, &events);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  FilterNames(ControlWindow());
  EXPECT_EQ(FirstTexts(*rows), (Strings{"Ash"}));
  EXPECT_TRUE(recorder.Shows({"event 1"}));
}

class BannerInThePlatformsContainer : public PlatformsContainer {
 protected:
  BannerInThePlatformsContainer() : PlatformsContainer(kBanner, 300) {}

  BannerWindows Windows() const { return BannerWindows(ControlWindow()); }
  std::string Caption() const { return WindowText(Windows().Caption()).ToUtf8(); }
  int RightEdgeOf(HWND window) const {
    RECT box;
    GetWindowRect(window, &box);
    MapWindowPoints(nullptr, host.Get(), reinterpret_cast<POINT*>(&box), 2);
    return box.right;
  }
};

TEST_F(BannerInThePlatformsContainer, IsActiveInItsWindow) {
  ASSERT_TRUE(control);
  EXPECT_EQ(GetParent(ControlWindow()), host.Get());
  EXPECT_EQ(Caption(), "Displaying All Items");
  EXPECT_TRUE(IsWindowVisible(Windows().Filter()));
  EXPECT_FALSE(IsWindowVisible(Windows().Extra()));
}

TEST_F(BannerInThePlatformsContainer, FollowsItsSize) {
  ASSERT_TRUE(control);
  EXPECT_EQ(RightEdgeOf(Windows().Filter()), 298);
  MoveWindow(host.Get(), 0, 0, 400, 50, TRUE);
  EXPECT_EQ(RightEdgeOf(Windows().Filter()), 398);
}

TEST_F(BannerInThePlatformsContainer, LetsAUserFilterAndSaysWhatIsLeft) {
  ASSERT_TRUE(control);
  const Connection connection(control.Get(), eventsId, &events);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_EQ(Caption(), "Displaying all Items");
  FilterNames(Windows().Filter());
  EXPECT_EQ(FirstTexts(*rows), (Strings{"Ash"}));
  EXPECT_EQ(Caption(), "Displaying 1 of 3 Items");
  EXPECT_TRUE(recorder.Shows({"event 1"}));
  rows->ListItems()->Clear();
  EXPECT_EQ(Caption(), "Displaying 0 of 3 Items");
}

class EitherInThePlatformsContainer : public PlatformsContainer,
                                      public testing::WithParamInterface<const wchar_t*> {
 protected:
  EitherInThePlatformsContainer() : PlatformsContainer(GetParam(), 300) {}
};

TEST_P(EitherInThePlatformsContainer, GoesWithItsWindow) {
  ASSERT_TRUE(control);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  const HWND window = ControlWindow();
  control.Reset();
  host.Reset();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, EitherInThePlatformsContainer,
                         testing::Values(kSifter, kBanner), ControlName);

}  // namespace

}  // namespace sifter
