#include "BannerOnAForm.h"

namespace sifter {

namespace {

class BannerLayout : public BannerOnAForm {
 protected:
  // Left, top, width and height.
  static Names Place(const Control& part) {
    return {Shown(part.Left()), Shown(part.Top()), Shown(part.Width()), Shown(part.Height())};
  }
  Names Size() const { return {Shown(control.Width()), Shown(control.Height())}; }
};

TEST_F(BannerLayout, GoesInOrder) {
  control.SetSize(6000, 400);
  EXPECT_TRUE(recorder.Shows({
      "lblFrame.Width 5610",
      "lblFrame.Height 400",
      "lblDisplaying.Height 220",
      "lblDisplaying.Top 100",
      "lblDisplaying.Width 5460",
      "cmdExtraButton.Left 5220",
      "cmdExtraButton.Height 370",
      "cmdFilter.Left 5610",
      "cmdFilter.Height 370",
  }));
}

TEST_F(BannerLayout, LeavesRoomForAVisibleBannerButton) {
  control.SetSize(6000, 400);
  control.SetBannerButtonVisible(true);
  EXPECT_EQ(Place(control.lblFrame), (Names{"0", "0", "5220", "400"}));
  EXPECT_EQ(Place(control.lblDisplaying), (Names{"90", "100", "5070", "220"}));
  EXPECT_EQ(Place(control.cmdExtraButton), (Names{"5220", "15", "360", "370"}));
  EXPECT_EQ(Place(control.cmdFilter), (Names{"5610", "15", "360", "370"}));
  control.SetBannerButtonVisible(false);
  EXPECT_EQ(Place(control.lblFrame), (Names{"0", "0", "5610", "400"}));
  EXPECT_EQ(Place(control.lblDisplaying), (Names{"90", "100", "5460", "220"}));
}

// The place of the banner button is reckoned from the width of the filter button alone.
TEST_F(BannerLayout, ReckonsWithTheWidthsThatTheButtonsHave) {
  control.cmdFilter.SetWidth(500);
  control.cmdExtraButton.SetWidth(700);
  control.SetBannerButtonVisible(true);
  control.SetSize(6001, 365);
  EXPECT_EQ(Place(control.lblFrame), (Names{"0", "0", "4741", "365"}));
  EXPECT_EQ(Place(control.lblDisplaying), (Names{"90", "82.5", "4591", "220"}));
  EXPECT_EQ(Place(control.cmdExtraButton), (Names{"4941", "15", "700", "335"}));
  EXPECT_EQ(Place(control.cmdFilter), (Names{"5471", "15", "500", "335"}));
}

TEST_F(BannerLayout, KeepsLeftEdgesAndButtonsAsDesignedThroughEverySize) {
  for (const double width : {3000.0, 10000.0, 1.0, 4567.0}) {
    control.SetSize(width, width / 10);
    control.SetBannerButtonVisible(!control.BannerButtonVisible());
    EXPECT_EQ(control.lblFrame.Left(), 0);
    EXPECT_EQ(control.lblDisplaying.Left(), 90);
    for (const Control* button : {&control.cmdFilter, &control.cmdExtraButton}) {
      EXPECT_EQ(button->Width(), 360);
      EXPECT_EQ(button->Top(), 15);
    }
  }
}

TEST_F(BannerLayout, SpringsBackToTheLeastSizeAndAsksTheHostForIt) {
  struct Case {
    double width, height;
    Names becomes;
    bool asked;
  };
  const Case cases[] = {
      {1000, 200, {"3000", "360"}, true},   {5000, 200, {"5000", "360"}, true},
      {1000, 500, {"3000", "500"}, true},   {3000, 360, {"3000", "360"}, false},
      {2999.5, 360, {"3000", "360"}, true}, {3000, 359.5, {"3000", "360"}, true},
      {0, 0, {"3000", "360"}, true},
  };
  for (const Case& each : cases) {
    Names wanted;
    control.SizeWanted = [&] { wanted = Size(); };
    control.SetSize(each.width, each.height);
    EXPECT_EQ(Size(), each.becomes);
    EXPECT_EQ(wanted, each.asked ? each.becomes : Names{});
    EXPECT_EQ(control.cmdFilter.Left(), control.Width() - 390);
    EXPECT_EQ(control.cmdFilter.Height(), control.Height() - 30);
  }
}

// The host may answer with a size of its own.
TEST_F(BannerLayout, AHostThatInsistsOnLessIsAskedNoMoreThanItAnswers) {
  int asked = 0;
  control.SizeWanted = [&] {
    if (++asked < 5) control.SetSize(1000, 360);
  };
  control.SetSize(1000, 360);
  EXPECT_EQ(asked, 5);
  EXPECT_EQ(Size(), (Names{"3000", "360"}));
}

TEST_F(BannerLayout, IsDoneAgainForTheSizeItHas) {
  control.SetSize(6000, 400);
  control.cmdFilter.SetLeft(7);
  recorder.Clear();
  control.SetSize(6000, 400);
  EXPECT_TRUE(recorder.Shows({"cmdFilter.Left 5610"}));
  control.cmdFilter.SetLeft(7);
  recorder.Clear();
  control.SetBannerButtonVisible(false);
  EXPECT_TRUE(recorder.Shows({"changed \"BannerButtonVisible\"", "cmdFilter.Left 5610"}));
}

}  // namespace

}  // namespace sifter
