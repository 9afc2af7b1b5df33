#include "library/ClassFactory.h"
#include "library/ControlClass.h"
#include "library/LibraryServices.h"
#include "library/Module.h"
#include "library/Registration.h"
#include "win32/ComRef.h"
#include "win32/ComResult.h"
#include "win32/FormWindow.h"
#include "win32/UserControlWindow.h"

#include <olectl.h>
#include <windows.h>

using namespace sifter;

// The four doors of the library.

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  for (const ControlClass& made : CreatableClasses()) {
    if (*made.classId != classId) continue;
    HRESULT found = E_NOINTERFACE;
    const HRESULT done = ComResult([&] {
      const auto factory = ComRef<IClassFactory>::Adopt(ClassFactory::Make(made));
      found = factory->QueryInterface(id, object);
    });
    return FAILED(done) ? done : found;
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() { return ModuleIsIdle() ? S_OK : S_FALSE; }

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() {
  return FAILED(ComResult([] { RegisterLibrary(); })) ? SELFREG_E_CLASS : S_OK;
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() {
  return FAILED(ComResult([] { UnregisterLibrary(); })) ? SELFREG_E_CLASS : S_OK;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds) {
  // When the process ends, what we would give back has gone already.
  if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    LibraryServices::End();
    UserControlWindow::ForgetWindowClass();
    FormWindow::ForgetWindowClass();
  }
  return TRUE;
}
