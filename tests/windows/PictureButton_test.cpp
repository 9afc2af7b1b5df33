#include "forms/PictureButton.h"

#include "Leftovers.h"
#include "Picture.h"
#include "UserControlOnScreen.h"
#include "win32/DrawnPicture.h"

#include <algorithm>
#include <set>
#include <vector>

namespace sifter {

namespace {

constexpr COLORREF kGold = 0x00F2B224;
constexpr COLORREF kInk = 0x00303C4C;
constexpr COLORREF kMagenta = 0x00FF00FF;

struct Buttons : UserControl {
  Buttons() {
    button.Move(0, 0, 480, 480);
    other.Move(600, 0, 480, 480);
    button.SetAccessibleName(u"Filter");
    button.Click = [this] { ++clicks; };
    other.SetVisible(false);
  }
  PictureButton button{*this, u"button"};
  PictureButton other{*this, u"other"};
  int clicks = 0;
};

// A host's picture: a magenta square, which tells where it was drawn.
class SquareFake final : public DrawnPicture {
 public:
  explicit SquareFake(LONG pixels) : pixels_(pixels) {}
  SIZE Size(int dpi) const noexcept override {
    return {MulDiv(pixels_, dpi, 96), MulDiv(pixels_, dpi, 96)};
  }
  void Draw(HDC dc, const RECT& box) const noexcept override {
    const UniqueBrush brush(CreateSolidBrush(RGB(255, 0, 255)));
    FillRect(dc, &box, brush.Get());
  }

 private:
  LONG pixels_;
};

class PictureButtonTest : public UserControlOnScreen<Buttons> {
 protected:
  void SetUp() override { Place(3000, 480); }

  HWND Button() const { return WindowOf(control.button); }
  std::vector<COLORREF> Look() const { return Settled(ClientOf(Button())); }
  // Without the edges.
  std::vector<COLORREF> Inside() const {
    RECT area = ClientOf(Button());
    InflateRect(&area, -5, -5);
    return Settled(area);
  }
  std::vector<COLORREF> Settled(const RECT& area) const {
    Settle();
    return Pixels(Button(), area);
  }
  static bool Has(const std::vector<COLORREF>& pixels, COLORREF color) {
    return std::find(pixels.begin(), pixels.end(), color) != pixels.end();
  }
  void Show(const char16_t* key) { control.button.SetPicture(MakeRef<Picture>(key)); }

  // The box around all pixels of a colour.
  sifter::Box BoxOfColor(COLORREF color) const {
    const RECT area = ClientOf(Button());
    const std::vector<COLORREF> pixels = Look();
    RECT box{area.right, area.bottom, 0, 0};
    for (LONG y = 0; y < area.bottom; ++y)
      for (LONG x = 0; x < area.right; ++x) {
        if (pixels[static_cast<std::size_t>(y * area.right + x)] != color) continue;
        box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
               std::max(box.bottom, y + 1)};
      }
    return BoxOf(box);
  }

  void UserDoes(const std::function<void()>& script) {
    user.Does(script);
    user.PumpUntilDone();
  }
};

TEST_F(PictureButtonTest, IsEmptyWithoutAPicture) {
  const std::vector<COLORREF> inside = Inside();
  EXPECT_EQ(std::set<COLORREF>(inside.begin(), inside.end()), std::set<COLORREF>{inside.front()});
  const std::vector<COLORREF> all = Look();
  EXPECT_GT(std::set<COLORREF>(all.begin(), all.end()).size(), 1u) << "it has no edge";
}

TEST_F(PictureButtonTest, ShowsThePictureOfItsKey) {
  Show(u"FilterEmpty");
  EXPECT_TRUE(Has(Look(), kInk));
  EXPECT_FALSE(Has(Look(), kGold));
  Show(u"FilterFull");
  EXPECT_TRUE(Has(Look(), kGold));
  Show(u"print");
  EXPECT_TRUE(Has(Look(), kInk));
  EXPECT_FALSE(Has(Look(), kGold));
  const std::vector<COLORREF> before = Look();
  control.button.SetPicture(nullptr);
  EXPECT_FALSE(Has(Look(), kInk));
  EXPECT_NE(Look(), before);
}

TEST_F(PictureButtonTest, ShowsNothingUnderAKeyThatHasNoPicture) {
  const std::vector<COLORREF> empty = Look();
  Show(u"no such picture");
  EXPECT_EQ(Look(), empty);
}

TEST_F(PictureButtonTest, CentresAHostsPicture) {
  control.button.SetPicture(MakeRef<SquareFake>(10));
  const int dpi = ScreenDpi();
  const LONG side = PixelsOf(480, dpi);
  const LONG size = MulDiv(10, dpi, 96);
  const sifter::Box box = BoxOfColor(kMagenta);
  EXPECT_EQ((sifter::Box{box[2], box[3]}), (sifter::Box{size, size}));
  EXPECT_NEAR(box[0], (side - size) / 2, 1);
  EXPECT_NEAR(box[1], (side - size) / 2, 1);
}

TEST_F(PictureButtonTest, MakesAHostsPictureFit) {
  control.button.SetPicture(MakeRef<SquareFake>(500));
  const sifter::Box box = BoxOfColor(kMagenta);
  const LONG side = PixelsOf(480, ScreenDpi());
  EXPECT_LT(box[2], side);
  EXPECT_EQ(box[2], box[3]);
  EXPECT_GT(box[2], side / 2);
}

TEST_F(PictureButtonTest, HasANameThatIsNotDrawn) {
  EXPECT_EQ(TextOf(Button()), "Filter");
  EXPECT_EQ(ClassOf(Button()), "Button");
  SetWindowTextW(Button(), L"WWWWWW");
  InvalidateRect(Button(), nullptr, TRUE);
  const std::vector<COLORREF> inside = Inside();
  EXPECT_EQ(std::set<COLORREF>(inside.begin(), inside.end()).size(), 1u);
}

TEST_F(PictureButtonTest, LooksPressedWhileItIs) {
  Show(u"FilterFull");
  const std::vector<COLORREF> before = Look();
  SendMessageW(Button(), BM_SETSTATE, TRUE, 0);
  EXPECT_NE(Look(), before);
  SendMessageW(Button(), BM_SETSTATE, FALSE, 0);
  EXPECT_EQ(Look(), before);
}

TEST_F(PictureButtonTest, HasAFrameWithTheFocus) {
  const std::vector<COLORREF> before = Look();
  UserDoes([&] {
    SetFocus(Button());
    user.Rests();
    EXPECT_NE(Look(), before);
    SetFocus(form.Get());
    user.Rests();
    EXPECT_EQ(Look(), before);
  });
}

TEST_F(PictureButtonTest, FadesWhenItCanNotBePressed) {
  Show(u"FilterFull");
  const std::vector<COLORREF> before = Look();
  control.button.SetEnabled(false);
  EXPECT_FALSE(Has(Look(), kGold));
  EXPECT_FALSE(Has(Look(), kInk));
  const std::vector<COLORREF> inside = Inside();
  EXPECT_GT(std::set<COLORREF>(inside.begin(), inside.end()).size(), 2u) << "the picture is gone";
  UserDoes([&] { user.Clicks(Button()); });
  EXPECT_EQ(control.clicks, 0);
  control.button.SetEnabled(true);
  EXPECT_EQ(Look(), before);
}

TEST_F(PictureButtonTest, FadesWithTheWholeControl) {
  Show(u"FilterFull");
  const std::vector<COLORREF> before = Look();
  SetFocus(Button());
  control.SetEnabled(false);
  EXPECT_FALSE(IsWindowEnabled(window->Handle()));
  EXPECT_FALSE(Has(Look(), kGold));
  EXPECT_EQ(GetFocus(), form.Get()) << "the keyboard would still reach it";
  control.SetEnabled(true);
  EXPECT_TRUE(IsWindowEnabled(window->Handle()));
  EXPECT_EQ(Look(), before);
}

TEST_F(PictureButtonTest, IsPressedByTheMouseAndTheKeyboard) {
  UserDoes([&] {
    user.Clicks(Button());
    EXPECT_EQ(control.clicks, 1);
    EXPECT_EQ(GetFocus(), Button());
    user.Presses(VK_SPACE);
    EXPECT_EQ(control.clicks, 2);
  });
  EXPECT_TRUE(Translates(VK_RETURN));
  EXPECT_EQ(control.clicks, 3);
}

TEST_F(PictureButtonTest, CountsQuickClicksOneByOne) {
  UserDoes([&] {
    for (int i = 0; i < 4; ++i) user.Clicks(Button());
  });
  EXPECT_EQ(control.clicks, 4);
}

TEST_F(PictureButtonTest, LeadsToTheNextButtonAndThenOut) {
  control.other.SetVisible(true);
  window->TakeFocus();
  EXPECT_EQ(GetFocus(), Button());
  EXPECT_FALSE(Translates(VK_LEFT));
  EXPECT_TRUE(Translates(VK_TAB));
  EXPECT_EQ(GetFocus(), WindowOf(control.other));
  EXPECT_FALSE(Translates(VK_TAB)) << "it is the host's";
  EXPECT_TRUE(Translates(VK_UP));
  EXPECT_EQ(GetFocus(), Button());
  EXPECT_TRUE(Translates(VK_DOWN));
  EXPECT_EQ(GetFocus(), WindowOf(control.other));
  control.other.SetEnabled(false);
  EXPECT_EQ(GetFocus(), Button());
  EXPECT_FALSE(Translates(VK_TAB));
}

TEST_F(PictureButtonTest, IsPassedBackwardsWithShift) {
  control.other.SetVisible(true);
  UserDoes([&] {
    SetFocus(form.Get());
    keybd_event(VK_SHIFT, 0, 0, 0);
    keybd_event(VK_TAB, 0, 0, 0);
    user.WaitsFor([] { return GetKeyState(VK_TAB) < 0 && GetKeyState(VK_SHIFT) < 0; });
    window->TakeFocus();
    EXPECT_EQ(GetFocus(), WindowOf(control.other));
    EXPECT_TRUE(Translates(VK_TAB));
    EXPECT_EQ(GetFocus(), Button());
    EXPECT_FALSE(Translates(VK_TAB));
    keybd_event(VK_TAB, 0, KEYEVENTF_KEYUP, 0);
    keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    user.WaitsFor([] { return GetKeyState(VK_TAB) >= 0 && GetKeyState(VK_SHIFT) >= 0; });
  });
}

TEST_F(PictureButtonTest, LeaksNothing) {
  const auto round = [this] {
    for (const char16_t* key : {u"FilterEmpty", u"FilterFull", u"print"}) {
      Show(key);
      UpdateWindow(Button());
    }
    control.button.SetEnabled(false);
    UpdateWindow(Button());
    control.button.SetEnabled(true);
    control.button.SetPicture(MakeRef<SquareFake>(10));
    UpdateWindow(Button());
  };
  round();
  const int before = GdiObjects();
  for (int i = 0; i < 20; ++i) round();
  EXPECT_EQ(GdiObjects(), before);
}

// The edges of the picture lie where the image for this resolution has them: nothing was scaled.
TEST_F(PictureButtonTest, IsDrawnAsMadeForTheScreen) {
  Show(u"FilterEmpty");
  const sifter::Box box = BoxOfColor(kInk);
  EXPECT_EQ((sifter::Box{box[2], box[3]}), (sifter::Box{14, 12}));
}

TEST_F(PictureButtonTest, IsDrawnAsMadeForTheScreenAt144Dpi) {
  ASSERT_EQ(ScreenDpi(), 144);
  Show(u"FilterEmpty");
  const sifter::Box box = BoxOfColor(kInk);
  EXPECT_EQ((sifter::Box{box[2], box[3]}), (sifter::Box{21, 18}));
}

}  // namespace

}  // namespace sifter
