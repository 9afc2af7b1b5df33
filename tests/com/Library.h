#pragma once

#include "win32/ComRef.h"

#include <gtest/gtest.h>

#include <oaidl.h>
#include <string>
#include <windows.h>

namespace sifter {

inline constexpr wchar_t kProgId[] = L"RowSifter.TSRowSifter";
inline constexpr wchar_t kBannerProgId[] = L"RowSifter.TSLvwBannerFilter";

// The two controls by the names of their classes, which are also in those of their interfaces.
inline constexpr wchar_t kSifter[] = L"TSRowSifter";
inline constexpr wchar_t kBanner[] = L"TSLvwBannerFilter";

// The built component, which lies beside the program of the tests. It stays loaded until they end.
class Library {
 public:
  static const Library& Built();

  const std::wstring& Path() const { return path_; }
  HMODULE Module() const { return module_; }
  ITypeLib& Types() const { return *types_.Get(); }

  // What its type library says about one name in it, such as "_TSRowSifter"; null when there is
  // none.
  ComRef<ITypeInfo> TypeOf(const wchar_t* name) const;
  GUID IdOf(const wchar_t* name) const;

  HRESULT Register() const { return Export("DllRegisterServer"); }
  HRESULT Unregister() const { return Export("DllUnregisterServer"); }
  HRESULT CanUnload() const { return Export("DllCanUnloadNow"); }

  // Whether the registry knows the control by name, as one that this file serves.
  bool IsRegistered() const;

 private:
  Library();
  HRESULT Export(const char* name) const;

  std::wstring path_;
  HMODULE module_;
  ComRef<ITypeLib> types_;
};

// Tests that have the component registered. When one ends, nothing of the component may be left
// alive.
class ComTest : public testing::Test {
 protected:
  ComTest();
  ~ComTest() override;

  // A new control, as a script makes one. Throws when there is none to be had.
  static ComRef<IDispatch> Create(const std::wstring& type = kSifter);
};

}  // namespace sifter
