#include "library/ViewObjectPart.h"

#include "library/ControlFace.h"
#include "library/ControlFrame.h"
#include "library/ControlPicture.h"

#include <olectl.h>

namespace sifter {

namespace {

constexpr DWORD kFreezeKey = 1;

bool IsWhole(LONG index) { return index == -1; }

}  // namespace

HRESULT ViewObjectPart::Draw(DWORD aspect, LONG index, void*, DVTARGETDEVICE*, HDC, HDC context,
                             LPCRECTL box, LPCRECTL, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                             ULONG_PTR) {
  if (context == nullptr || box == nullptr) return E_INVALIDARG;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!IsWhole(index)) return DV_E_LINDEX;
  return Answer([&] {
    const RECT area{box->left, box->top, box->right, box->bottom};
    if (frozen_)
      PlayEnhMetaFile(context, frozen_.Get(), &area);
    else
      DrawControl(Frame().Control().Shown(), context, area);
    return S_OK;
  });
}

// It needs no palette.
HRESULT ViewObjectPart::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) {
  if (colors == nullptr) return E_POINTER;
  *colors = nullptr;
  return S_FALSE;
}

HRESULT ViewObjectPart::Freeze(DWORD aspect, LONG index, void*, DWORD* key) {
  if (key == nullptr) return E_POINTER;
  *key = 0;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!IsWhole(index)) return DV_E_LINDEX;
  return Answer([&]() -> HRESULT {
    *key = kFreezeKey;
    if (frozen_) return VIEW_S_ALREADY_FROZEN;
    frozen_.Reset(EnhancedPictureOf(Frame().Control().Shown(), Frame().Extent()));
    return S_OK;
  });
}

HRESULT ViewObjectPart::Unfreeze(DWORD key) {
  if (key != kFreezeKey || !frozen_) return OLE_E_NOCONNECTION;
  frozen_.Reset();
  return S_OK;
}

HRESULT ViewObjectPart::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  return Answer([&] {
    Frame().Notices().SetView(aspects, flags, sink);
    return S_OK;
  });
}

HRESULT ViewObjectPart::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  Frame().Notices().GetView(aspects, flags, sink);
  return S_OK;
}

HRESULT ViewObjectPart::GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE*, LPSIZEL size) {
  if (size == nullptr) return E_POINTER;
  *size = {};
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!IsWhole(index)) return DV_E_LINDEX;
  *size = Frame().Extent();
  return S_OK;
}

}  // namespace sifter
