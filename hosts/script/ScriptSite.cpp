#include "script/ScriptSite.h"

#include "container/Failure.h"

namespace hosts {

namespace {

std::wstring TakeText(BSTR text) {
  const std::wstring taken(text == nullptr ? L"" : text, SysStringLen(text));
  SysFreeString(text);
  return taken;
}

std::wstring Describe(EXCEPINFO info) {
  const std::wstring source = TakeText(info.bstrSource);
  const std::wstring description = TakeText(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
  const std::wstring start = source.empty() ? L"" : source + L": ";
  if (!description.empty()) return start + description;
  wchar_t number[16];
  swprintf(number, 16, L"0x%08lX", static_cast<unsigned long>(info.scode));
  return start + L"error " + number;
}

}  // namespace

HRESULT ScriptSite::GetLCID(LCID* locale) {
  if (locale == nullptr) return E_POINTER;
  *locale = GetUserDefaultLCID();
  return S_OK;
}

HRESULT ScriptSite::GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** item, ITypeInfo** type) {
  if (item != nullptr) *item = nullptr;
  if (type != nullptr) *type = nullptr;
  const auto found = state_->objects.find(name);
  if (found == state_->objects.end()) return TYPE_E_ELEMENTNOTFOUND;
  if ((wanted & SCRIPTINFO_ITYPEINFO) != 0) return TYPE_E_ELEMENTNOTFOUND;
  if ((wanted & SCRIPTINFO_IUNKNOWN) == 0) return S_OK;
  if (item == nullptr) return E_POINTER;
  *item = ComRef<IDispatch>(found->second).Release();
  return S_OK;
}

HRESULT ScriptSite::OnScriptError(IActiveScriptError* error) {
  return ComBody([&] {
    EXCEPINFO info{};
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    error->GetExceptionInfo(&info);
    error->GetSourcePosition(&context, &line, &column);
    if (state_->onError) state_->onError(Describe(info), static_cast<int>(line) + 1);
  });
}

HRESULT ScriptSiteWindow::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = state_->window;
  return *window == nullptr ? E_FAIL : S_OK;
}

}  // namespace hosts
