#pragma once

#include "script/Script.h"

#include <activscp.h>
#include <memory>

namespace hosts {

// The engine's view of its host: objects by name, and where errors go.
class ScriptSite : public IActiveScriptSite {
 public:
  static bool Answers(REFIID id) { return IsEqualIID(id, __uuidof(IActiveScriptSite)); }

  HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override;
  HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** item,
                                        ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override;
  HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

 protected:
  explicit ScriptSite(const std::shared_ptr<ScriptState>& state) : state_(state) {}
  ~ScriptSite() = default;

 private:
  std::shared_ptr<ScriptState> state_;
};

// Lends the script a window, for MsgBox and InputBox.
class ScriptSiteWindow : public IActiveScriptSiteWindow {
 public:
  static bool Answers(REFIID id) { return IsEqualIID(id, __uuidof(IActiveScriptSiteWindow)); }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

 protected:
  explicit ScriptSiteWindow(const std::shared_ptr<ScriptState>& state) : state_(state) {}
  ~ScriptSiteWindow() = default;

 private:
  std::shared_ptr<ScriptState> state_;
};

}  // namespace hosts
