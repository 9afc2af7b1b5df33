#include "HostedBanner.h"
#include "PlacedSifter.h"
#include "win32/UniqueGdi.h"

#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kInk = RGB(0x30, 0x3C, 0x4C);

// A bitmap that was magenta before something has been drawn on it.
class DrawnOn {
 public:
  template <class Draw>
  DrawnOn(int width, int height, Draw&& draw)
      : width_(width),
        height_(height),
        bitmap_(CreateCompatibleBitmap(screen_.Get(), width, height)),
        selected_(memory_.Get(), bitmap_.Get()) {
    const RECT all{0, 0, width, height};
    const UniqueBrush magenta(CreateSolidBrush(kMagenta));
    FillRect(memory_.Get(), &all, magenta.Get());
    const int saved = SaveDC(memory_.Get());
    draw(memory_.Get());
    RestoreDC(memory_.Get(), saved);
  }

  COLORREF At(int x, int y) const { return GetPixel(memory_.Get(), x, y); }
  int Count(const RECT& box, COLORREF colour) const {
    int found = 0;
    for (int y = box.top; y < box.bottom; ++y)
      for (int x = box.left; x < box.right; ++x)
        if (At(x, y) == colour) ++found;
    return found;
  }
  int Drawn() const { return width_ * height_ - Count({0, 0, width_, height_}, kMagenta); }

 private:
  int width_;
  int height_;
  WindowDc screen_{nullptr};
  UniqueMemoryDc memory_{CreateCompatibleDC(screen_.Get())};
  UniqueBitmap bitmap_;
  SelectedObject selected_;
};

class DrawnControl : public PlacedControl {
 protected:
  using PlacedControl::PlacedControl;

  DrawnOn Drawn(int width, int height) { return Drawn(width, height, width); }
  // On the left part of it only.
  DrawnOn Drawn(int width, int height, int part) {
    return {width, height, [&](HDC dc) {
              const RECTL bounds{0, 0, part, height};
              EXPECT_EQ(
                  container.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr,
                                                     nullptr, dc, &bounds, nullptr, nullptr, 0),
                  S_OK);
            }};
  }

  // What the control hands over as a metafile, played.
  DrawnOn Played(int width, int height) {
    FORMATETC format{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
    const auto data = container.As<IDataObject>();
    EXPECT_EQ(data->QueryGetData(&format), S_OK);
    return {width, height, [&](HDC dc) {
              STGMEDIUM medium{};
              ASSERT_EQ(data->GetData(&format, &medium), S_OK);
              ASSERT_EQ(medium.tymed, DWORD{TYMED_MFPICT});
              const auto* picture =
                  static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
              ASSERT_NE(picture, nullptr);
              SetMapMode(dc, MM_ANISOTROPIC);
              SetViewportExtEx(dc, width, height, nullptr);
              EXPECT_TRUE(PlayMetaFile(dc, picture->hMF));
              GlobalUnlock(medium.hMetaFilePict);
              ReleaseStgMedium(&medium);
            }};
  }

  // The same with an enhanced one.
  DrawnOn PlayedEnhanced(int width, int height) {
    FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    return {width, height, [&](HDC dc) {
              STGMEDIUM medium{};
              ASSERT_EQ(container.As<IDataObject>()->GetData(&format, &medium), S_OK);
              ASSERT_EQ(medium.tymed, DWORD{TYMED_ENHMF});
              SetStretchBltMode(dc, COLORONCOLOR);
              const RECT box{0, 0, width, height};
              EXPECT_TRUE(PlayEnhMetaFile(dc, medium.hEnhMetaFile, &box));
              ReleaseStgMedium(&medium);
            }};
  }
};

class Drawing : public DrawnControl, public testing::WithParamInterface<const wchar_t*> {
 protected:
  static constexpr int kWidth = 200;
  static constexpr int kHeight = 30;

  Drawing() : DrawnControl(GetParam()) {}
};

TEST_P(Drawing, CoversTheBoundsWithoutAWindow) {
  container.Offers(DISPID_AMBIENT_USERMODE, false);
  container.Place(control);
  EXPECT_EQ(Drawn(kWidth, kHeight).Drawn(), kWidth * kHeight);
  EXPECT_EQ(Drawn(kWidth, kHeight, kWidth / 2).Drawn(), kWidth / 2 * kHeight);
}

TEST_P(Drawing, IsTransferredAsAMetafile) {
  container.Place(control);
  EXPECT_GT(Played(kWidth, kHeight).Drawn(), kWidth * kHeight / 2);
}

TEST_P(Drawing, OffersNoOtherForm) {
  container.Place(control);
  const auto data = container.As<IDataObject>();
  FORMATETC text{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
  STGMEDIUM medium{};
  EXPECT_TRUE(FAILED(data->GetData(&text, &medium)));
  EXPECT_NE(data->QueryGetData(&text), S_OK);
  ComRef<IEnumFORMATETC> each;
  ASSERT_EQ(data->EnumFormatEtc(DATADIR_GET, each.Receive()), S_OK);
  FORMATETC found{};
  ASSERT_EQ(each->Next(1, &found, nullptr), S_OK);
  EXPECT_EQ(found.cfFormat, CF_METAFILEPICT);
  ASSERT_EQ(each->Next(1, &found, nullptr), S_OK);
  EXPECT_EQ(found.cfFormat, CF_ENHMETAFILE);
  EXPECT_EQ(each->Next(1, &found, nullptr), S_FALSE);
}

TEST_P(Drawing, ViewsAreToldOfANewSize) {
  ViewSink views(recorder);
  container.Place(control);
  ASSERT_EQ(container.As<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, 0, &views), S_OK);
  IAdviseSink* told = nullptr;
  DWORD aspects = 0;
  ASSERT_EQ(container.As<IViewObject2>()->GetAdvise(&aspects, nullptr, &told), S_OK);
  EXPECT_EQ(told, &views);
  EXPECT_EQ(aspects, DWORD{DVASPECT_CONTENT});
  told->Release();
  recorder.Clear();
  SIZEL size{8000, 2000};
  ASSERT_EQ(container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_TRUE(recorder.Shows({"view changed, aspect 1"}));
  ASSERT_EQ(container.As<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, 0, nullptr), S_OK);
  EXPECT_EQ(views.References(), 0);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, Drawing, testing::Values(kSifter, kBanner), ControlName);

// At its first size, which is 200 by 24 pixels. The caption is on the left, the buttons on the
// right: that of the host's from 152 on, that of the filter from 174.
class BannerWithItsOwnPictures : public DrawnControl {
 protected:
  static constexpr RECT kCaption{8, 4, 140, 20};
  static constexpr RECT kExtraButton{150, 0, 173, 24};
  static constexpr RECT kFilterButton{175, 0, 200, 24};
  static constexpr RECT kAll{0, 0, 200, 24};

  enum class Surface { kScreen, kMetafile, kEnhancedMetafile };
  static constexpr Surface kSurfaces[] = {Surface::kScreen, Surface::kMetafile,
                                          Surface::kEnhancedMetafile};
  DrawnOn On(Surface surface) {
    switch (surface) {
      case Surface::kMetafile:
        return Played(200, 24);
      case Surface::kEnhancedMetafile:
        return PlayedEnhanced(200, 24);
      default:
        return Drawn(200, 24);
    }
  }
  static constexpr COLORREF kRed = RGB(255, 0, 0);

  BannerWithItsOwnPictures() : DrawnControl(kBanner) {
    container.Place(control);
    Put(control, L"BannerButtonVisible", true);
  }
};

class BannerDrawing : public BannerWithItsOwnPictures {
 protected:
  BannerDrawing() {
    PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture(16, 16, kRed).Get()));
  }
};

TEST_F(BannerDrawing, HasCaptionFrameAndBothPictures) {
  const DrawnOn drawn = Drawn(200, 24);
  EXPECT_GT(drawn.Count(kCaption, GetSysColor(COLOR_BTNTEXT)), 20);
  EXPECT_GT(drawn.Count(kExtraButton, kRed), 200);
  EXPECT_EQ(drawn.Count(kAll, kRed), drawn.Count(kExtraButton, kRed));
  // Its edges are sunken: shadow at the top and on the left, light at the bottom and on the right.
  EXPECT_EQ(drawn.At(60, 0), GetSysColor(COLOR_BTNSHADOW));
  EXPECT_EQ(drawn.At(0, 12), GetSysColor(COLOR_BTNSHADOW));
  EXPECT_EQ(drawn.At(60, 23), GetSysColor(COLOR_BTNHIGHLIGHT));
}

TEST_F(BannerDrawing, ShowsWhetherAFilterIsInForce) {
  const auto face = [&] {
    const DrawnOn drawn = Drawn(200, 24);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 24; ++y)
      for (int x = kFilterButton.left; x < kFilterButton.right; ++x)
        pixels.push_back(drawn.At(x, y));
    return pixels;
  };
  ComRef<IDispatch> list;
  ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
  Fill(*NativeListView(form.List()), {"Name"}, {{"Oak"}, {"Ash"}});
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  const auto empty = face();
  Call(control, L"ApplyFilter", {u"Name..11==Oak2==*?"});
  EXPECT_TRUE(face() != empty);
  Call(control, L"DeactivateFilter");
  EXPECT_TRUE(face() == empty);
}

TEST_F(BannerDrawing, IsInTheMetafileToo) {
  for (const Surface surface : {Surface::kMetafile, Surface::kEnhancedMetafile}) {
    SCOPED_TRACE(static_cast<int>(surface));
    const DrawnOn played = On(surface);
    EXPECT_GT(played.Count(kCaption, GetSysColor(COLOR_BTNTEXT)), 20);
    EXPECT_GT(played.Count(kExtraButton, kRed), 100);
    EXPECT_GT(played.Count(kFilterButton, kInk), 10);
  }
}

TEST_F(BannerDrawing, LooksDisabledEverywhere) {
  Put(control, L"Enabled", false);
  for (const Surface surface : kSurfaces) {
    SCOPED_TRACE(static_cast<int>(surface));
    const DrawnOn drawn = On(surface);
    EXPECT_EQ(drawn.Count(kCaption, GetSysColor(COLOR_BTNTEXT)), 0);
    EXPECT_GT(drawn.Count(kCaption, GetSysColor(COLOR_GRAYTEXT)), 20);
    EXPECT_EQ(drawn.Count(kAll, kRed), 0);
    EXPECT_EQ(drawn.Count(kAll, kInk), 0);
  }
}

TEST_F(BannerWithItsOwnPictures, HasThemInMetafilesToo) {
  for (const Surface surface : kSurfaces) {
    SCOPED_TRACE(static_cast<int>(surface));
    const DrawnOn drawn = On(surface);
    EXPECT_GT(drawn.Count(kExtraButton, kInk), 10);
    EXPECT_GT(drawn.Count(kFilterButton, kInk), 10);
  }
}

}  // namespace

}  // namespace sifter
