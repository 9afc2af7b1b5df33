#include "PlacedSifter.h"

#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

class InPlace : public PlacedSifter {};

TEST_F(InPlace, ActivationIsAskedForAndTold) {
  container.Place(control);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(container.ControlWindow(), nullptr);
  container.Activate();
  EXPECT_TRUE(recorder.Shows(
      {"CanInPlaceActivate", "OnInPlaceActivate", "GetWindowContext", "ShowObject"}));
  EXPECT_EQ(GetParent(container.ControlWindow()), form.Parent());
  EXPECT_TRUE(IsWindowVisible(container.ControlWindow()));
}

TEST_F(InPlace, ActivationMayBeRefused) {
  container.Place(control);
  container.site.canActivate = S_FALSE;
  EXPECT_TRUE(FAILED(container.Do(OLEIVERB_INPLACEACTIVATE)));
  EXPECT_TRUE(recorder.Shows({"CanInPlaceActivate"}));
  EXPECT_EQ(container.ControlWindow(), nullptr);
}

TEST_F(InPlace, TheButtonFillsTheControl) {
  container.Place(control);
  container.Activate();
  EXPECT_EQ(Shown(PlaceOf(container.ControlWindow())), "10 10 110 40");
  EXPECT_EQ(Shown(PlaceOf(Button())), "10 10 110 40");
  EXPECT_EQ(WindowText(Button()), u"Filter");
  EXPECT_EQ(GetWindow(Button(), GW_HWNDNEXT), nullptr);
}

TEST_F(InPlace, TheButtonFollowsTheControlsSize) {
  container.Place(control);
  container.Activate();
  const RECT larger{20, 30, 220, 90};
  const RECT clip{0, 0, 600, 400};
  ASSERT_EQ(container.As<IOleInPlaceObject>()->SetObjectRects(&larger, &clip), S_OK);
  EXPECT_EQ(Shown(PlaceOf(container.ControlWindow())), "20 30 220 90");
  EXPECT_EQ(Shown(PlaceOf(Button())), "20 30 220 90");
}

TEST_F(InPlace, WindowsInsideAreNotStopsForTheTabKeyOfTheHost) {
  container.Place(control);
  container.Activate();
  for (const HWND window : {container.ControlWindow(), Button()})
    EXPECT_EQ(GetWindowLongW(window, GWL_STYLE) & (WS_TABSTOP | WS_GROUP), 0);
}

TEST_F(InPlace, UserInterfaceActivationTellsTheFrame) {
  container.Place(control);
  container.Activate();
  recorder.Clear();
  ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_NE(container.frame.ActiveObject(), nullptr);
  EXPECT_EQ(recorder.Lines().front(), "OnUIActivate");
  recorder.Clear();
  ASSERT_EQ(container.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
  EXPECT_EQ(container.frame.ActiveObject(), nullptr);
  EXPECT_TRUE(recorder.Shows({"frame.SetActiveObject none", "OnUIDeactivate"}));
  EXPECT_TRUE(IsWindowVisible(container.ControlWindow()));
}

TEST_F(InPlace, DeactivationTakesTheWindowAway) {
  container.Place(control);
  container.Activate();
  const HWND window = container.ControlWindow();
  recorder.Clear();
  ASSERT_EQ(container.As<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
  EXPECT_TRUE(recorder.Shows({"OnInPlaceDeactivate"}));
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(container.ControlWindow(), nullptr);
  ASSERT_EQ(container.As<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
  EXPECT_TRUE(recorder.Shows({"OnInPlaceDeactivate"}));
  container.Activate();
  EXPECT_EQ(Shown(PlaceOf(Button())), "10 10 110 40");
}

TEST_F(InPlace, ClosingDeactivatesFirst) {
  ViewSink views(recorder);
  container.Place(control);
  DWORD cookie = 0;
  ASSERT_EQ(container.As<IOleObject>()->Advise(&views, &cookie), S_OK);
  container.Activate();
  ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
  recorder.Clear();
  ASSERT_EQ(container.As<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_TRUE(recorder.Shows(
      {"frame.SetActiveObject none", "OnUIDeactivate", "OnInPlaceDeactivate", "closed"}));
  ASSERT_EQ(container.As<IOleObject>()->Unadvise(cookie), S_OK);
  EXPECT_EQ(views.References(), 0);
}

TEST_F(InPlace, SavesItselfOnClosingWhenItIsTold) {
  container.Place(control);
  Put(control, L"FilterCaption", u"Trees");
  recorder.Clear();
  ASSERT_EQ(container.As<IOleObject>()->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
  EXPECT_TRUE(recorder.Shows({"SaveObject"}));
}

TEST_F(InPlace, VerbsShowAndHide) {
  container.Place(control);
  ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
  const HWND window = container.ControlWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(IsWindowVisible(window));
  ASSERT_EQ(container.Do(OLEIVERB_HIDE), S_OK);
  EXPECT_FALSE(IsWindow(window) && IsWindowVisible(window));
  ASSERT_EQ(container.Do(OLEIVERB_PRIMARY), S_OK);
  EXPECT_TRUE(IsWindowVisible(container.ControlWindow()));
  EXPECT_EQ(container.Do(99), OLEOBJ_S_INVALIDVERB);
  EXPECT_TRUE(FAILED(container.Do(-99)));
}

TEST_F(InPlace, MayLoseItsParentWhileItIsActive) {
  container.Place(control);
  container.Activate();
  form.Destroy();
  EXPECT_EQ(container.ControlWindow(), nullptr);
}

TEST_F(InPlace, MayLoseItsSiteWhileItIsActive) {
  container.Place(control);
  container.Activate();
  const HWND window = container.ControlWindow();
  ASSERT_EQ(container.As<IOleObject>()->SetClientSite(nullptr), S_OK);
  EXPECT_FALSE(IsWindow(window));
  ComRef<IOleClientSite> site;
  EXPECT_EQ(container.As<IOleObject>()->GetClientSite(site.Receive()), S_OK);
  EXPECT_FALSE(site);
}

TEST_F(InPlace, SaysWhatKindOfObjectItIs) {
  DWORD state = 0;
  ASSERT_EQ(control.As<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &state), S_OK);
  const DWORD windowed = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT |
                         OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_RECOMPOSEONRESIZE |
                         OLEMISC_CANTLINKINSIDE;
  EXPECT_EQ(state & windowed, windowed);
  EXPECT_EQ(state & OLEMISC_INVISIBLEATRUNTIME, 0u);
  UniqueVariant name;
  LPOLESTR type = nullptr;
  ASSERT_EQ(control.As<IOleObject>()->GetUserType(USERCLASSTYPE_FULL, &type), S_OK);
  EXPECT_NE(std::wstring(type), L"");
  CoTaskMemFree(type);
}

TEST_F(InPlace, KeepsTheExtentThatItIsGiven) {
  container.Place(control);
  SIZEL given{2540, 1270};
  ASSERT_EQ(container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &given), S_OK);
  SIZEL got{};
  ASSERT_EQ(container.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &got), S_OK);
  EXPECT_EQ(got.cx, 2540);
  EXPECT_EQ(got.cy, 1270);
  got = {};
  ASSERT_EQ(container.As<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &got), S_OK);
  EXPECT_EQ(got.cx, 2540);
  EXPECT_TRUE(FAILED(container.As<IOleObject>()->SetExtent(DVASPECT_ICON, &given)));
  EXPECT_TRUE(FAILED(container.As<IOleObject>()->GetExtent(DVASPECT_ICON, &got)));
}

TEST_F(InPlace, HasAnExtentFromTheStart) {
  SIZEL extent{};
  ASSERT_EQ(control.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  EXPECT_GT(extent.cx, 0);
  EXPECT_GT(extent.cy, 0);
}

TEST_F(InPlace, ForwardsKeysToItsSite) {
  container.Place(control);
  container.Activate();
  ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
  recorder.Clear();
  MSG tab{};
  tab.hwnd = Button();
  tab.message = WM_KEYDOWN;
  tab.wParam = VK_TAB;
  const auto keys = container.As<IOleInPlaceActiveObject>();
  EXPECT_EQ(keys->TranslateAccelerator(&tab), S_FALSE);
  EXPECT_TRUE(recorder.Shows({"TranslateAccelerator 9 with 0"}));
  container.site.takesKey = S_OK;
  EXPECT_EQ(keys->TranslateAccelerator(&tab), S_OK);
}

TEST_F(InPlace, TellsItsSiteOfTheFocus) {
  container.Place(control);
  container.Activate();
  recorder.Clear();
  SetFocus(Button());
  EXPECT_EQ(recorder.Lines().front().substr(0, 2), "On");
  EXPECT_NE(container.frame.ActiveObject(), nullptr);
  recorder.Clear();
  SetFocus(form.List());
  EXPECT_TRUE(recorder.Shows({"OnFocus False"}));
}

TEST_F(InPlace, AnswersForItsMnemonics) {
  container.Place(control);
  CONTROLINFO info{};
  info.cb = sizeof info;
  ASSERT_EQ(container.As<IOleControl>()->GetControlInfo(&info), S_OK);
  EXPECT_EQ(info.cAccel, 0) << "the button's caption has none";
  EXPECT_EQ(info.hAccel, nullptr);
}

TEST_F(InPlace, IsADefaultButtonWhereTheFormWantsIt) {
  container.Offers(DISPID_AMBIENT_DISPLAYASDEFAULT, false);
  container.Place(control);
  container.Activate();
  const auto kind = [&] { return GetWindowLongW(Button(), GWL_STYLE) & BS_TYPEMASK; };
  EXPECT_EQ(kind(), BS_PUSHBUTTON);
  container.Offers(DISPID_AMBIENT_DISPLAYASDEFAULT, true);
  container.Tells(DISPID_AMBIENT_DISPLAYASDEFAULT);
  EXPECT_EQ(kind(), BS_DEFPUSHBUTTON);
  container.Offers(DISPID_AMBIENT_DISPLAYASDEFAULT, false);
  container.Tells(DISPID_UNKNOWN);
  EXPECT_EQ(kind(), BS_PUSHBUTTON);
}

TEST_F(InPlace, NeedsASiteToBeActive) {
  const RECT& box = container.site.position;
  EXPECT_EQ(control.As<IOleObject>()->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, nullptr, 0,
                                             form.Parent(), &box),
            OLEOBJ_S_CANNOT_DOVERB_NOW);
  EXPECT_EQ(container.ControlWindow(), nullptr);
}

TEST_F(InPlace, QuickActivationDoesItAllAtOnce) {
  EventSink events(Library::Built().IdOf(L"__TSRowSifter"), recorder);
  PropertySink properties(recorder);
  ViewSink views(recorder);
  QACONTAINER offered{};
  offered.cbSize = sizeof offered;
  offered.pClientSite = &container.site;
  offered.pAdviseSink = nullptr;
  offered.pPropertyNotifySink = &properties;
  offered.pUnkEventSink = &events;
  offered.dwAmbientFlags = QACONTAINER_USERMODE;
  QACONTROL told{};
  told.cbSize = sizeof told;
  const auto quick = control.As<IQuickActivate>();
  ASSERT_EQ(quick->QuickActivate(&offered, &told), S_OK);
  DWORD state = 0;
  control.As<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &state);
  EXPECT_EQ(told.dwMiscStatus, state);
  EXPECT_NE(told.dwEventCookie, 0u);
  EXPECT_NE(told.dwPropNotifyCookie, 0u);
  Put(control, L"FilterCaption", u"Trees");
  EXPECT_TRUE(recorder.Shows({"changed 0x68030000"}));
  SIZEL extent{1000, 500};
  EXPECT_EQ(quick->SetContentExtent(&extent), S_OK);
  extent = {};
  EXPECT_EQ(quick->GetContentExtent(&extent), S_OK);
  EXPECT_EQ(extent.cx, 1000);
  control.As<IOleObject>()->SetClientSite(nullptr);
  ComRef<IConnectionPoint> point;
  control.As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink,
                                                               point.Receive());
  EXPECT_EQ(point->Unadvise(told.dwPropNotifyCookie), S_OK);
  ComRef<IConnectionPoint> eventPoint;
  control.As<IConnectionPointContainer>()->FindConnectionPoint(
      Library::Built().IdOf(L"__TSRowSifter"), eventPoint.Receive());
  EXPECT_EQ(eventPoint->Unadvise(told.dwEventCookie), S_OK);
}

}  // namespace

}  // namespace sifter
