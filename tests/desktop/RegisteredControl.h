#pragma once

#include <gtest/gtest.h>

#include <windows.h>

namespace hosts {

// Tests that have the built component registered.
class RegisteredControl : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(Call("DllRegisterServer"), S_OK); }
  static void TearDownTestSuite() { EXPECT_EQ(Call("DllUnregisterServer"), S_OK); }

 private:
  static HRESULT Call(const char* name) {
    const HMODULE library = LoadLibraryA(TSROWSIFTER_OCX);
    if (library == nullptr) return HRESULT_FROM_WIN32(GetLastError());
    const auto function = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(library, name)));
    const HRESULT result = function == nullptr ? E_NOTIMPL : function();
    FreeLibrary(library);
    return result;
  }
};

}  // namespace hosts
