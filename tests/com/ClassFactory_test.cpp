#include "Library.h"
#include "win32/ComRef.h"

#include <gtest/gtest.h>

#include <RowSifter.h>
#include <ocidl.h>
#include <oleauto.h>
#include <oleidl.h>
#include <string>
#include <windows.h>

namespace sifter {
namespace {

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

GetClassObject ClassObjectExport() {
  return reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(Library::Built().Module(), "DllGetClassObject")));
}

ComRef<IClassFactory> Factory() {
  ComRef<IClassFactory> factory;
  EXPECT_EQ(ClassObjectExport()(__uuidof(::TSRowSifter), IID_IClassFactory, factory.ReceiveVoid()),
            S_OK);
  return factory;
}

HRESULT CanUnload() { return Library::Built().CanUnload(); }

TEST(ClassFactory, IsThereForTheControlsOnly) {
  void* object = &object;
  EXPECT_EQ(ClassObjectExport()(__uuidof(__TSRowSifter), IID_IClassFactory, &object),
            CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(ClassObjectExport()(__uuidof(_TSRowSifter), IID_IClassFactory, &object),
            CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(ClassObjectExport()(__uuidof(::TSRowSifter), IID_IOleObject, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(ClassObjectExport()(__uuidof(::TSRowSifter), IID_IClassFactory, nullptr), E_POINTER);
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST(ClassFactory, KeepsTheLibraryLoaded) {
  {
    const ComRef<IClassFactory> factory = Factory();
    EXPECT_EQ(CanUnload(), S_FALSE);
  }
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST(ClassFactory, LocksTheLibraryUntilTheLastUnlock) {
  Factory()->LockServer(TRUE);
  Factory()->LockServer(TRUE);
  EXPECT_EQ(CanUnload(), S_FALSE);
  Factory()->LockServer(FALSE);
  EXPECT_EQ(CanUnload(), S_FALSE);
  Factory()->LockServer(FALSE);
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST(ClassFactory, MakesControlsThatKeepTheLibraryLoaded) {
  {
    ComRef<IOleObject> control;
    ASSERT_EQ(Factory()->CreateInstance(nullptr, IID_IOleObject, control.ReceiveVoid()), S_OK);
    EXPECT_EQ(CanUnload(), S_FALSE);
  }
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST(ClassFactory, RefusesInterfacesThatAControlHasNot) {
  void* object = &object;
  EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_IOleLink, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(Factory()->CreateInstance(nullptr, IID_IOleObject, nullptr), E_POINTER);
  EXPECT_EQ(CanUnload(), S_OK);
}

// A copy of the component under a name of its own, so that it is loaded and unloaded by this test
// alone.
class CopiedLibrary {
 public:
  CopiedLibrary() {
    const std::wstring& built = Library::Built().Path();
    file_ = built.substr(0, built.rfind(L'\\') + 1) + L"CopyOfTSRowSifter.ocx";
    EXPECT_TRUE(CopyFileW(built.c_str(), file_.c_str(), FALSE));
  }
  ~CopiedLibrary() { EXPECT_TRUE(DeleteFileW(file_.c_str())); }

  HMODULE Load() const { return LoadLibraryW(file_.c_str()); }
  bool IsLoaded() const { return GetModuleHandleW(L"CopyOfTSRowSifter.ocx") != nullptr; }

 private:
  std::wstring file_;
};

template <class Function>
Function ExportOf(HMODULE module, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

TEST(Unloading, IsSafeWhenTheLibrarySaysSo) {
  const CopiedLibrary copy;
  for (int round = 0; round < 3; ++round) {
    const HMODULE module = copy.Load();
    ASSERT_NE(module, nullptr);
    {
      ComRef<IClassFactory> factory;
      ASSERT_EQ(ExportOf<GetClassObject>(module, "DllGetClassObject")(
                    __uuidof(::TSRowSifter), IID_IClassFactory, factory.ReceiveVoid()),
                S_OK);
      ComRef<_TSRowSifter> control;
      ASSERT_EQ(factory->CreateInstance(nullptr, __uuidof(_TSRowSifter), control.ReceiveVoid()),
                S_OK);
      EXPECT_EQ(control->ResetFilter(), S_OK);  // makes the default dialog, which doesn't count
      EXPECT_EQ(control->TurnOffFilter(), S_OK);
      VARIANT nothing{};
      EXPECT_EQ(control->put_Listview(nothing), static_cast<HRESULT>(0x800A01A8));
      SetErrorInfo(0, nullptr);
    }
    using CanUnloadNow = HRESULT(STDAPICALLTYPE*)();
    EXPECT_EQ(ExportOf<CanUnloadNow>(module, "DllCanUnloadNow")(), S_OK);
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_FALSE(copy.IsLoaded());
  }
}

// An object that offers a control's interfaces as its own, as some hosts wrap controls.
class Wrapper final : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id == IID_IUnknown) {
      *object = this;
      AddRef();
      return S_OK;
    }
    return control_->QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }

  HRESULT Wrap() { return Factory()->CreateInstance(this, IID_IUnknown, control_.ReceiveVoid()); }
  ULONG References() const { return references_; }

 private:
  ComRef<IUnknown> control_;
  ULONG references_ = 0;
};

TEST(AggregatedControl, SpeaksForTheObjectThatItIsPartOf) {
  {
    Wrapper wrapper;
    ASSERT_EQ(wrapper.Wrap(), S_OK);
    EXPECT_EQ(wrapper.References(), 0u);
    ComRef<IOleObject> control;
    ASSERT_EQ(wrapper.QueryInterface(IID_IOleObject, control.ReceiveVoid()), S_OK);
    EXPECT_EQ(wrapper.References(), 1u);
    EXPECT_EQ(control.As<IUnknown>(IID_IUnknown).Get(), &wrapper);
    EXPECT_TRUE(control.As<IDispatch>(IID_IDispatch));
    EXPECT_TRUE(control.As<_TSRowSifter>());
  }
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST(AggregatedControl, IsHandedOutAsIUnknownOnly) {
  Wrapper wrapper;
  void* object = &object;
  EXPECT_EQ(Factory()->CreateInstance(&wrapper, IID_IOleObject, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
}

}  // namespace
}  // namespace sifter
