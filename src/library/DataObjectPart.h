#pragma once

#include "library/FramePart.h"

#include <objidl.h>

namespace sifter {

// The control's picture as data: a metafile, plain or enhanced.
class DataObjectPart final : public FramePart<IDataObject> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* format, STGMEDIUM* medium) override;
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) override;
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) override;
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override;
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                    DWORD* connection) override;
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD connection) override;
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** sinks) override;
};

}  // namespace sifter
