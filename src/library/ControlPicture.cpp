#include "library/ControlPicture.h"

#include "library/ControlExtent.h"
#include "library/ControlFace.h"

#include <algorithm>
#include <new>

namespace sifter {

namespace {

RECT PixelsOf(const SIZEL& extent) {
  const int dpi = DpiOf(nullptr);
  return {0, 0, std::max(1, TwipsToPixels(HimetricToTwips(extent.cx), dpi)),
          std::max(1, TwipsToPixels(HimetricToTwips(extent.cy), dpi))};
}

}  // namespace

HENHMETAFILE EnhancedPictureOf(const UserControl& control, const SIZEL& extent) {
  const RECT frame{0, 0, extent.cx, extent.cy};
  const HDC context = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
  if (context == nullptr) throw std::bad_alloc();
  DrawControl(control, context, PixelsOf(extent));
  return CloseEnhMetaFile(context);
}

HGLOBAL PictureOf(const UserControl& control, const SIZEL& extent) {
  const HDC context = CreateMetaFileW(nullptr);
  if (context == nullptr) throw std::bad_alloc();
  const RECT box = PixelsOf(extent);
  SetMapMode(context, MM_ANISOTROPIC);
  SetWindowOrgEx(context, 0, 0, nullptr);
  SetWindowExtEx(context, box.right, box.bottom, nullptr);
  DrawControl(control, context, box);
  const HMETAFILE file = CloseMetaFile(context);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT));
  if (memory == nullptr) {
    DeleteMetaFile(file);
    throw std::bad_alloc();
  }
  auto* const picture = static_cast<METAFILEPICT*>(GlobalLock(memory));
  *picture = {MM_ANISOTROPIC, extent.cx, extent.cy, file};
  GlobalUnlock(memory);
  return memory;
}

}  // namespace sifter
