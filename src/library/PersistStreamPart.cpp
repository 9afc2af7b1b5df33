#include "library/PersistStreamPart.h"

#include "library/ControlFrame.h"
#include "library/StreamedProperties.h"

namespace sifter {

HRESULT PersistStreamPart::GetClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = *Frame().Class().classId;
  return S_OK;
}

HRESULT PersistStreamPart::IsDirty() { return Frame().IsDirty() ? S_OK : S_FALSE; }

HRESULT PersistStreamPart::Load(IStream* stream) {
  if (stream == nullptr) return E_POINTER;
  return Answer([&] {
    SavedProperties saved = ReadStream(*stream);
    Frame().ReadProperties(saved);
    return S_OK;
  });
}

HRESULT PersistStreamPart::Save(IStream* stream, BOOL clearDirty) {
  if (stream == nullptr) return E_POINTER;
  return Answer([&] {
    WriteStream(*stream, StateOf(Frame().Control()));
    if (clearDirty) Frame().SetDirty(false);
    return S_OK;
  });
}

HRESULT PersistStreamPart::GetSizeMax(ULARGE_INTEGER* size) {
  if (size == nullptr) return E_POINTER;
  size->QuadPart = 0;
  return Answer([&] {
    size->QuadPart = StateOf(Frame().Control()).ToBytes().size();
    return S_OK;
  });
}

HRESULT PersistStreamPart::InitNew() {
  return Answer([&] {
    Frame().InitProperties();
    return S_OK;
  });
}

}  // namespace sifter
