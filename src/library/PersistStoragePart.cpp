#include "library/PersistStoragePart.h"

#include "library/ControlFrame.h"
#include "library/StreamedProperties.h"
#include "win32/Errors.h"

#include <objbase.h>
#include <utility>

namespace sifter {

namespace {

constexpr wchar_t kStream[] = L"Contents";

}  // namespace

HRESULT PersistStoragePart::GetClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = *Frame().Class().classId;
  return S_OK;
}

HRESULT PersistStoragePart::IsDirty() { return Frame().IsDirty() ? S_OK : S_FALSE; }

HRESULT PersistStoragePart::InitNew(IStorage* storage) {
  if (storage == nullptr) return E_POINTER;
  return Answer([&] {
    Frame().InitProperties();
    return S_OK;
  });
}

HRESULT PersistStoragePart::Load(IStorage* storage) {
  if (storage == nullptr) return E_POINTER;
  return Answer([&] {
    ComRef<IStream> stream;
    ThrowIfFailed(storage->OpenStream(kStream, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0,
                                      stream.Receive()));
    SavedProperties saved = ReadStream(*stream.Get());
    Frame().ReadProperties(saved);
    return S_OK;
  });
}

HRESULT PersistStoragePart::Save(IStorage* storage, BOOL sameAsLoaded) {
  if (storage == nullptr) return E_POINTER;
  return Answer([&] {
    const SavedProperties saved = StateOf(Frame().Control());
    ThrowIfFailed(WriteClassStg(storage, *Frame().Class().classId));
    ComRef<IStream> stream;
    ThrowIfFailed(storage->CreateStream(kStream, STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0,
                                        0, stream.Receive()));
    WriteStream(*stream.Get(), saved);
    savedInPlace_ = sameAsLoaded != FALSE;
    return S_OK;
  });
}

// Only now it is certain that the container has kept what was saved. A copy that was saved
// somewhere else leaves the control as changed as it was, unless the container goes on with the
// copy.
HRESULT PersistStoragePart::SaveCompleted(IStorage* storage) {
  return Answer([&] {
    if (!std::exchange(savedInPlace_, false) && storage == nullptr) return S_OK;
    Frame().SetDirty(false);
    Frame().Notices().Saved();
    return S_OK;
  });
}

}  // namespace sifter
