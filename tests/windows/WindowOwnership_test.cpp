#include "win32/Dpi.h"
#include "win32/UniqueGdi.h"
#include "win32/UniqueImageList.h"
#include "win32/UniqueMenu.h"
#include "win32/UniqueWindow.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace sifter {
namespace {

UniqueWindow NewWindow(HWND parent = nullptr) {
  return UniqueWindow(CreateWindowExW(0, L"STATIC", L"", parent == nullptr ? WS_POPUP : WS_CHILD, 0,
                                      0, 10, 10, parent, nullptr, nullptr, nullptr));
}

TEST(UniqueWindow, IsDestroyedWithItsHolder) {
  HWND window = nullptr;
  {
    UniqueWindow holder = NewWindow();
    window = holder.Get();
    const UniqueWindow moved = std::move(holder);
    EXPECT_FALSE(holder);
    EXPECT_TRUE(IsWindow(window));
  }
  EXPECT_FALSE(IsWindow(window));
}

TEST(UniqueWindow, MayHaveGoneWithItsParent) {
  UniqueWindow parent = NewWindow();
  UniqueWindow child = NewWindow(parent.Get());
  ASSERT_TRUE(IsWindow(child.Get()));
  parent.Reset();
  EXPECT_FALSE(IsWindow(child.Get()));
  child.Reset();
}

TEST(UniqueWindow, OutlivesAHolderThatReleasedIt) {
  UniqueWindow holder = NewWindow();
  const HWND window = holder.Release();
  holder.Reset();
  EXPECT_TRUE(IsWindow(window));
  DestroyWindow(window);
}

struct RecordingKind {
  using Handle = std::vector<int>*;  // what is written there when it is closed
  static void Close(Handle log) noexcept { log->push_back(1); }
};
using UniqueRecording = UniqueHandle<RecordingKind>;

TEST(UniqueHandle, ClosesEachHandleOnce) {
  std::vector<int> first;
  std::vector<int> second;
  {
    UniqueRecording holder(&first);
    holder.Reset(&first);
    EXPECT_TRUE(first.empty());
    holder.Reset(&second);
    EXPECT_EQ(first.size(), 1u);
    UniqueRecording& same = holder;
    holder = std::move(same);
    EXPECT_TRUE(second.empty());
  }
  EXPECT_EQ(first.size(), 1u);
  EXPECT_EQ(second.size(), 1u);
}

TEST(UniqueGdi, DeletesDrawingObjects) {
  HBRUSH brush = nullptr;
  HFONT font = nullptr;
  {
    const UniqueBrush brushHolder(CreateSolidBrush(RGB(1, 2, 3)));
    const UniqueFont fontHolder(CreateFontW(-12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
    brush = brushHolder.Get();
    font = fontHolder.Get();
    EXPECT_EQ(GetObjectType(brush), DWORD{OBJ_BRUSH});
    EXPECT_EQ(GetObjectType(font), DWORD{OBJ_FONT});
  }
  EXPECT_EQ(GetObjectType(brush), 0u);
  EXPECT_EQ(GetObjectType(font), 0u);
}

TEST(SelectedObject, PutsTheFormerOneBack) {
  const WindowDc screen(nullptr);
  const UniqueMemoryDc context(CreateCompatibleDC(screen.Get()));
  const UniquePen pen(CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
  const HGDIOBJ before = GetCurrentObject(context.Get(), OBJ_PEN);
  {
    const SelectedObject selected(context.Get(), pen.Get());
    EXPECT_EQ(GetCurrentObject(context.Get(), OBJ_PEN), pen.Get());
  }
  EXPECT_EQ(GetCurrentObject(context.Get(), OBJ_PEN), before);
}

TEST(UniqueMenu, IsDestroyedWithItsHolder) {
  HMENU menu = nullptr;
  {
    const UniqueMenu holder(CreatePopupMenu());
    menu = holder.Get();
    EXPECT_TRUE(IsMenu(menu));
  }
  EXPECT_FALSE(IsMenu(menu));
}

TEST(UniqueImageList, IsDestroyedWithItsHolder) {
  UniqueImageList images(ImageList_Create(16, 16, ILC_COLOR32, 1, 1));
  const HIMAGELIST list = images.Get();
  EXPECT_EQ(ImageList_GetImageCount(list), 0);
  images.Reset();
  EXPECT_FALSE(images);
}

TEST(Dpi, MeasuresPixelsOfTwips) {
  const struct {
    double twips;
    int dpi;
    int pixels;
  } cases[] = {{1440, 96, 96}, {1440, 144, 144}, {15, 96, 1},  {7.4, 96, 0},    {7.5, 96, 1},
               {-15, 96, -1},  {0, 96, 0},       {10, 144, 1}, {4455, 96, 297}, {32767, 120, 2731}};
  for (const auto& c : cases)
    EXPECT_EQ(TwipsToPixels(c.twips, c.dpi), c.pixels) << c.twips << " at " << c.dpi;
  EXPECT_EQ(PixelsToTwips(297, 96), 4455);
  EXPECT_EQ(PixelsToTwips(1, 144), 10);
}

TEST(Dpi, IsThatOfTheScreen) {
  const UniqueWindow window = NewWindow();
  EXPECT_EQ(DpiOf(nullptr), 96);
  EXPECT_EQ(DpiOf(window.Get()), 96);
}

TEST(Dpi, IsThatOfTheScreenAt144Dpi) {
  const UniqueWindow window = NewWindow();
  EXPECT_EQ(DpiOf(nullptr), 144);
  EXPECT_EQ(DpiOf(window.Get()), 144);
}

}  // namespace
}  // namespace sifter
