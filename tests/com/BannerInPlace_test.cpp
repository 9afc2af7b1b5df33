#include "HostedBanner.h"
#include "PlacedSifter.h"

namespace sifter {

namespace {

// The banner's window and its size.
class BannerInPlace : public PlacedControl {
 protected:
  BannerInPlace() : PlacedControl(kBanner) { container.site.position = {10, 10, 310, 40}; }

  BannerWindows Windows() const { return BannerWindows(container.ControlWindow()); }
  void GiveRoom(const RECT& box) {
    EXPECT_EQ(container.As<IOleInPlaceObject>()->SetObjectRects(&box, &box), S_OK);
  }
  SIZEL Extent() const {
    SIZEL extent{};
    EXPECT_EQ(control.As<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    return extent;
  }
};

TEST_F(BannerInPlace, ShowsItsCaptionAndOneButton) {
  container.Place(control);
  container.Activate();
  EXPECT_EQ(WindowText(Windows().Caption()), u"Displaying All Items");
  EXPECT_TRUE(IsWindowVisible(Windows().Filter()));
  EXPECT_FALSE(IsWindowVisible(Windows().Extra()));
  EXPECT_EQ(Shown(PlaceOf(Windows().Filter())), "284 11 308 39");
  Put(control, L"BannerButtonVisible", true);
  EXPECT_TRUE(IsWindowVisible(Windows().Extra()));
  EXPECT_EQ(Shown(PlaceOf(Windows().Extra())), "258 11 282 39");
}

TEST_F(BannerInPlace, DisablesItsWindow) {
  container.Place(control);
  container.Activate();
  Put(control, L"Enabled", false);
  EXPECT_FALSE(IsWindowEnabled(container.ControlWindow()));
  Put(control, L"Enabled", true);
  EXPECT_TRUE(IsWindowEnabled(container.ControlWindow()));
}

TEST_F(BannerInPlace, AsksForTheRoomThatItNeeds) {
  container.site.position = {10, 10, 60, 20};
  container.site.onRoom = [&](const RECT& wanted) { GiveRoom(wanted); };
  container.Place(control);
  container.Activate();
  EXPECT_EQ(Shown(PlaceOf(container.ControlWindow())), "10 10 210 34");
  recorder.Clear();
  GiveRoom({20, 20, 120, 60});
  EXPECT_TRUE(recorder.Shows({"OnPosRectChange 20 20 220 60"}));
  EXPECT_EQ(Shown(PlaceOf(container.ControlWindow())), "20 20 220 60");
  GiveRoom({20, 20, 320, 60});
  EXPECT_TRUE(recorder.Shows({"OnPosRectChange 20 20 220 60"}));
}

TEST_F(BannerInPlace, AContainerMayRefuse) {
  container.site.onRoom = [&](const RECT&) { GiveRoom({10, 10, 60, 20}); };
  container.Place(control);
  container.Activate();
  GiveRoom({10, 10, 60, 20});
  GiveRoom({10, 10, 60, 20});
  EXPECT_TRUE(recorder.Shows({"CanInPlaceActivate", "OnInPlaceActivate", "GetWindowContext",
                              "ShowObject", "OnPosRectChange 10 10 210 34"}));
  EXPECT_EQ(Shown(PlaceOf(container.ControlWindow())), "10 10 60 20");
}

TEST_F(BannerInPlace, GrowsWithoutAWindowToo) {
  container.Place(control);
  const SIZEL least{5292, 635};
  EXPECT_EQ(Extent().cx, least.cx);
  EXPECT_EQ(Extent().cy, least.cy);
  SIZEL small{1000, 200};
  ASSERT_EQ(control.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &small), S_OK);
  EXPECT_EQ(Extent().cx, least.cx);
  EXPECT_EQ(Extent().cy, least.cy);
  SIZEL large{8000, 900};
  ASSERT_EQ(control.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &large), S_OK);
  EXPECT_EQ(Extent().cx, 8000);
  EXPECT_EQ(Extent().cy, 900);
}

TEST_F(BannerInPlace, IsNoButton) {
  DWORD state = 0;
  ASSERT_EQ(control.As<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &state), S_OK);
  EXPECT_EQ(state & OLEMISC_ACTSLIKEBUTTON, 0u);
  EXPECT_NE(state & OLEMISC_ACTIVATEWHENVISIBLE, 0u);
}

}  // namespace

}  // namespace sifter
