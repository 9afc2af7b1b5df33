#include "library/ClassInfoPart.h"

#include "library/ControlFrame.h"
#include "library/TypeLibrary.h"

namespace sifter {

HRESULT ClassInfoPart::GetClassInfo(ITypeInfo** information) {
  if (information == nullptr) return E_POINTER;
  *information = nullptr;
  return Answer([&] {
    *information = OwnTypeInfo(*Frame().Class().classId).Release();
    return S_OK;
  });
}

HRESULT ClassInfoPart::GetGUID(DWORD kind, GUID* id) {
  if (id == nullptr) return E_POINTER;
  *id = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *id = *Frame().Class().eventsId;
  return S_OK;
}

}  // namespace sifter
