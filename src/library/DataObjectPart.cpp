#include "library/DataObjectPart.h"

#include "library/ControlFrame.h"
#include "library/ControlPicture.h"
#include "win32/ComEnum.h"

#include <iterator>
#include <ole2.h>

namespace sifter {

namespace {

const FORMATETC kFormats[] = {
    {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT},
    {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
};

HRESULT Check(const FORMATETC& asked) {
  if (asked.dwAspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (asked.lindex != -1) return DV_E_LINDEX;
  for (const FORMATETC& format : kFormats)
    if (format.cfFormat == asked.cfFormat)
      return (format.tymed & asked.tymed) != 0 ? S_OK : DV_E_TYMED;
  return DV_E_FORMATETC;
}

}  // namespace

HRESULT DataObjectPart::GetData(FORMATETC* format, STGMEDIUM* medium) {
  if (format == nullptr || medium == nullptr) return E_POINTER;
  *medium = {};
  return Answer([&]() -> HRESULT {
    const HRESULT known = Check(*format);
    if (known != S_OK) return known;
    const UserControl& control = Frame().Control().Shown();
    if (format->cfFormat == CF_ENHMETAFILE) {
      medium->hEnhMetaFile = EnhancedPictureOf(control, Frame().Extent());
      medium->tymed = TYMED_ENHMF;
    } else {
      medium->hMetaFilePict = PictureOf(control, Frame().Extent());
      medium->tymed = TYMED_MFPICT;
    }
    return S_OK;
  });
}

// A metafile can't be put into a place that the caller has made.
HRESULT DataObjectPart::GetDataHere(FORMATETC* format, STGMEDIUM* medium) {
  return format == nullptr || medium == nullptr ? E_POINTER : DV_E_TYMED;
}

HRESULT DataObjectPart::QueryGetData(FORMATETC* format) {
  return format == nullptr ? E_POINTER : Check(*format);
}

HRESULT DataObjectPart::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) {
  if (format == nullptr || canonical == nullptr) return E_POINTER;
  *canonical = *format;
  canonical->ptd = nullptr;  // it looks the same on every device
  return DATA_S_SAMEFORMATETC;
}

HRESULT DataObjectPart::SetData(FORMATETC* format, STGMEDIUM* medium, BOOL) {
  return format == nullptr || medium == nullptr ? E_POINTER : DV_E_FORMATETC;
}

HRESULT DataObjectPart::EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) {
  if (formats == nullptr) return E_POINTER;
  *formats = nullptr;
  if (direction != DATADIR_GET) return E_NOTIMPL;
  return Answer([&] {
    using Formats = ComEnum<IEnumFORMATETC, FORMATETC>;
    *formats = Formats::Make({std::begin(kFormats), std::end(kFormats)});
    return S_OK;
  });
}

HRESULT DataObjectPart::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                DWORD* connection) {
  if (connection != nullptr) *connection = 0;
  if (format == nullptr || sink == nullptr || connection == nullptr) return E_POINTER;
  return Answer([&]() -> HRESULT {
    // A sink without a format hears of every change.
    const bool all = format->cfFormat == 0 && format->dwAspect == 0xFFFFFFFF;
    const HRESULT known = all ? S_OK : Check(*format);
    if (known != S_OK) return known;
    return Frame().Notices().Data().Advise(this, format, flags, sink, connection);
  });
}

HRESULT DataObjectPart::DUnadvise(DWORD connection) {
  return Answer([&] { return Frame().Notices().Data().Unadvise(connection); });
}

HRESULT DataObjectPart::EnumDAdvise(IEnumSTATDATA** sinks) {
  if (sinks == nullptr) return E_POINTER;
  *sinks = nullptr;
  return Answer([&] { return Frame().Notices().Data().EnumAdvise(sinks); });
}

}  // namespace sifter
