#include "HostedSifter.h"

namespace sifter {

namespace {

// The container that comes with the platform: a window of its class holds the control that the
// window's text names.
class PlatformsContainer : public ComTest {
 protected:
  PlatformsContainer() {
    MakeRoomAbove(form.List());
    Fill(*rows, {"Name"}, {{"Oak"}, {"Ash"}, {"Larch"}});
    EXPECT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
    const HMODULE atl = LoadLibraryW(L"atl.dll");
    // Some versions say no when the window class is there already.
    static const WINBOOL registered = Function<WINBOOL(WINAPI*)()>(atl, "AtlAxWinInit")();
    const auto get = Function<HRESULT(WINAPI*)(HWND, IUnknown**)>(atl, "AtlAxGetControl");
    if (!registered) return;
    host = UniqueWindow(CreateWindowExW(0, L"AtlAxWin", kProgId, WS_CHILD | WS_VISIBLE, 10, 10, 100,
                                        30, form.Parent(), nullptr, nullptr, nullptr));
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

  ListViewOnAForm form;
  Ref<HostListView> rows = NativeListView(form.List());
  ComRef<IDispatch> list;
  UniqueWindow host;
  ComRef<IDispatch> control;
};

TEST_F(PlatformsContainer, ActivatesTheControlInItsWindow) {
  ASSERT_TRUE(control);
  EXPECT_EQ(GetParent(ControlWindow()), host.Get());
  EXPECT_TRUE(IsWindowVisible(ControlWindow()));
  RECT box;
  GetClientRect(GetWindow(ControlWindow(), GW_CHILD), &box);
  EXPECT_EQ(box.right, 100);
  EXPECT_EQ(box.bottom, 30);
}

TEST_F(PlatformsContainer, TheControlFollowsItsSize) {
  ASSERT_TRUE(control);
  MoveWindow(host.Get(), 0, 0, 200, 50, TRUE);
  RECT box;
  GetClientRect(GetWindow(ControlWindow(), GW_CHILD), &box);
  EXPECT_EQ(box.right, 200);
  EXPECT_EQ(box.bottom, 50);
}

TEST_F(PlatformsContainer, AUserFiltersInIt) {
  ASSERT_TRUE(control);
  Recorder recorder;
  EventSink events(Library::Built().IdOf(L"__TSRowSifter"), recorder);
  const Connection connection(control.Get(), Library::Built().IdOf(L"__TSRowSifter"), &events);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  User user;
  CriteriaDialog dialog(user);
  user.Does([&] {
    user.Clicks(ControlWindow());
    dialog.Appears();
    EXPECT_EQ(GetWindow(CriteriaDialog::Window(), GW_OWNER), form.Parent());
    dialog.Picks(0, "starts with");
    dialog.Fills(0, 1, "a");
    dialog.Clicks("&Apply Criteria");
    dialog.Goes();
  });
  user.PumpUntilDone();
  EXPECT_EQ(FirstTexts(*rows), (Strings{"Ash"}));
  EXPECT_TRUE(recorder.Shows({"event 1"}));
}

TEST_F(PlatformsContainer, LetsGoOfTheControlWithItsWindow) {
  ASSERT_TRUE(control);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  const HWND window = ControlWindow();
  control.Reset();
  host.Reset();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

}  // namespace

}  // namespace sifter
