#pragma once

#include "library/FramePart.h"
#include "win32/UniqueHandle.h"

#include <oleidl.h>

namespace sifter {

struct EnhancedMetafileKind {
  using Handle = HENHMETAFILE;
  static void Close(HENHMETAFILE file) noexcept { DeleteEnhMetaFile(file); }
};
using UniqueEnhancedMetafile = UniqueHandle<EnhancedMetafileKind>;

// Draws the control where the host wants it.
class ViewObjectPart final : public FramePart<IViewObject2> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* details, DVTARGETDEVICE* device,
                                 HDC deviceContext, HDC context, LPCRECTL box, LPCRECTL window,
                                 BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                                 ULONG_PTR goOnWith) override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* details,
                                        DVTARGETDEVICE* device, HDC deviceContext,
                                        LOGPALETTE** colors) override;
  HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* details, DWORD* key) override;
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD key) override;
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* device,
                                      LPSIZEL size) override;

 private:
  UniqueEnhancedMetafile frozen_;  // how it looked when the host asked it not to change
};

}  // namespace sifter
