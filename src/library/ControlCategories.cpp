#include "library/ControlCategories.h"

#include "library/ControlClass.h"
#include "win32/ComRef.h"
#include "win32/Errors.h"

#include <comcat.h>
#include <objbase.h>

namespace sifter {

namespace {

constexpr GUID kCategories[] = {
    // Control
    {0x40FC6ED4, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}},
    // Programmable
    {0x40FC6ED5, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}},
    // PersistsToStorage
    {0x0DE86A52, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}},
    // PersistsToStreamInit
    {0x0DE86A53, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}},
    // PersistsToPropertyBag
    {0x0DE86A57, 0x2BAA, 0x11CF, {0xA2, 0x29, 0x00, 0xAA, 0x00, 0x3D, 0x73, 0x52}},
};

constexpr ULONG kCount = sizeof kCategories / sizeof *kCategories;

// Whoever registers a library need not have initialised COM on this thread.
class ComOnThisThread {
 public:
  ComOnThisThread() noexcept
      : initialised_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~ComOnThisThread() {
    if (initialised_) CoUninitialize();
  }
  ComOnThisThread(const ComOnThisThread&) = delete;
  ComOnThisThread& operator=(const ComOnThisThread&) = delete;

 private:
  bool initialised_;
};

ComRef<ICatRegister> Manager() {
  ComRef<ICatRegister> manager;
  ThrowIfFailed(CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER,
                                 IID_ICatRegister, manager.ReceiveVoid()));
  return manager;
}

CATID* Categories() { return const_cast<CATID*>(kCategories); }  // the manager only reads them

}  // namespace

std::span<const GUID> ControlCategories() { return kCategories; }

void EnterCategories() {
  const ComOnThisThread com;
  const ComRef<ICatRegister> manager = Manager();
  for (const ControlClass& made : CreatableClasses())
    ThrowIfFailed(manager->RegisterClassImplCategories(*made.classId, kCount, Categories()));
}

void LeaveCategories() noexcept {
  const ComOnThisThread com;
  ComRef<ICatRegister> manager;
  if (FAILED(CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER,
                              IID_ICatRegister, manager.ReceiveVoid())))
    return;
  for (const ControlClass& made : CreatableClasses())
    manager->UnRegisterClassImplCategories(*made.classId, kCount, Categories());
}

}  // namespace sifter
