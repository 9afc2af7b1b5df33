#include "PlacedSifter.h"
#include "win32/UniqueGdi.h"

#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

// The pixels of a drawing, as a set of colours.
class Drawing : public PlacedSifter {
 protected:
  static constexpr int kWidth = 100;
  static constexpr int kHeight = 30;

  // How many pixels differ from the magenta that was there.
  template <class Draw>
  int DrawnPixels(Draw&& draw) {
    const WindowDc screen(nullptr);
    const UniqueMemoryDc memory(CreateCompatibleDC(screen.Get()));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen.Get(), kWidth, kHeight));
    const SelectedObject selected(memory.Get(), bitmap.Get());
    const RECT all{0, 0, kWidth, kHeight};
    const UniqueBrush magenta(CreateSolidBrush(RGB(255, 0, 255)));
    FillRect(memory.Get(), &all, magenta.Get());
    draw(memory.Get());
    int drawn = 0;
    for (int y = 0; y < kHeight; ++y)
      for (int x = 0; x < kWidth; ++x)
        if (GetPixel(memory.Get(), x, y) != RGB(255, 0, 255)) ++drawn;
    return drawn;
  }
};

TEST_F(Drawing, CoversTheBoundsWithoutAWindow) {
  container.Offers(DISPID_AMBIENT_USERMODE, false);
  container.Place(control);
  EXPECT_EQ(DrawnPixels([&](HDC dc) {
              const RECTL bounds{0, 0, kWidth, kHeight};
              EXPECT_EQ(
                  container.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr,
                                                     nullptr, dc, &bounds, nullptr, nullptr, 0),
                  S_OK);
            }),
            kWidth * kHeight);
  EXPECT_EQ(DrawnPixels([&](HDC dc) {
              const RECTL bounds{0, 0, kWidth / 2, kHeight};
              container.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                 dc, &bounds, nullptr, nullptr, 0);
            }),
            kWidth / 2 * kHeight);
}

TEST_F(Drawing, IsTransferredAsAMetafile) {
  container.Place(control);
  FORMATETC format{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  const auto data = container.As<IDataObject>();
  EXPECT_EQ(data->QueryGetData(&format), S_OK);
  STGMEDIUM medium{};
  ASSERT_EQ(data->GetData(&format, &medium), S_OK);
  ASSERT_EQ(medium.tymed, DWORD{TYMED_MFPICT});
  const auto* picture = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
  ASSERT_NE(picture, nullptr);
  EXPECT_GT(DrawnPixels([&](HDC dc) {
              SetMapMode(dc, MM_ANISOTROPIC);
              SetViewportExtEx(dc, kWidth, kHeight, nullptr);
              EXPECT_TRUE(PlayMetaFile(dc, picture->hMF));
            }),
            kWidth * kHeight / 2);
  GlobalUnlock(medium.hMetaFilePict);
  ReleaseStgMedium(&medium);
}

TEST_F(Drawing, OffersNoOtherForm) {
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

TEST_F(Drawing, ViewsAreToldOfANewSize) {
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
  SIZEL size{5000, 2000};
  ASSERT_EQ(container.As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_TRUE(recorder.Shows({"view changed, aspect 1"}));
  ASSERT_EQ(container.As<IViewObject2>()->SetAdvise(DVASPECT_CONTENT, 0, nullptr), S_OK);
  EXPECT_EQ(views.References(), 0);
}

}  // namespace

}  // namespace sifter
