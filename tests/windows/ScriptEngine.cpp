#include "ScriptEngine.h"

#include "win32/UniqueBstr.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/WideText.h"

#include <activscp.h>
#include <map>
#include <utility>

namespace sifter {

namespace {

constexpr CLSID kVbScript = {
    0xb54f3741, 0x5b07, 0x11cf, {0xa4, 0xb0, 0x00, 0xaa, 0x00, 0x4a, 0x55, 0xe8}};
#ifdef _WIN64
constexpr IID kScriptParse = {
    0xc7ef7658, 0xe1ee, 0x480e, {0x97, 0xea, 0xd5, 0x2c, 0xb4, 0xd7, 0x6d, 0x17}};
#else
constexpr IID kScriptParse = {
    0xbb1a2ae2, 0xa4f9, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};
#endif
constexpr IID kScriptSite = {
    0xdb01a1e3, 0xa42b, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};
constexpr IID kScript = {
    0xbb1a2ae1, 0xa4f9, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};

// The host's side. Lives in the engine object below, which ends the script first.
class Site final : public IActiveScriptSite {
 public:
  std::map<std::wstring, ComRef<IDispatch>> objects;
  std::string error;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == kScriptSite ? this : nullptr;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override {
    *locale = LOCALE_USER_DEFAULT;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item,
                                        ITypeInfo** type) override {
    if ((mask & SCRIPTINFO_ITYPEINFO) != 0 && type != nullptr) *type = nullptr;
    const auto found = objects.find(name);
    if (found == objects.end()) return TYPE_E_ELEMENTNOTFOUND;
    if ((mask & SCRIPTINFO_IUNKNOWN) != 0) *item = ComRef<IDispatch>(found->second).Release();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* told) override {
    UniqueExcepInfo info;
    told->GetExceptionInfo(info.Address());
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    told->GetSourcePosition(&context, &line, &column);
    error = "line " + std::to_string(line + 1) + ": " +
            std::to_string(static_cast<long>(info.Fill().scode)) + ' ' +
            Text(BstrView(info.Fill().bstrDescription)).ToUtf8();
    return S_FALSE;  // it goes on to whoever has called the script
  }
  HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }
};

class VbScript final : public ScriptEngine {
 public:
  VbScript(ComRef<IActiveScript> script, ComRef<IActiveScriptParse> parse)
      : script_(std::move(script)), parse_(std::move(parse)) {
    parse_->InitNew();
    script_->SetScriptSite(&site_);
    script_->SetScriptState(SCRIPTSTATE_CONNECTED);
  }
  ~VbScript() override { script_->Close(); }

  void Add(const std::wstring& name, ComRef<IDispatch> object) override {
    site_.objects[name] = std::move(object);
    script_->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE);
  }

  std::string Run(const std::wstring& code) override {
    site_.error.clear();
    const HRESULT run = parse_->ParseScriptText(code.c_str(), nullptr, nullptr, nullptr, 0, 0,
                                                SCRIPTTEXT_ISVISIBLE, nullptr, nullptr);
    if (site_.error.empty() && FAILED(run))
      site_.error = "result " + std::to_string(static_cast<long>(run));
    return site_.error;
  }

  ComRef<IDispatch> Globals() override {
    ComRef<IDispatch> globals;
    script_->GetScriptDispatch(nullptr, globals.Receive());
    return globals;
  }

 private:
  Site site_;
  ComRef<IActiveScript> script_;
  ComRef<IActiveScriptParse> parse_;
};

}  // namespace

std::unique_ptr<ScriptEngine> ScriptEngine::Make() {
  CoInitialize(nullptr);
  ComRef<IActiveScript> script;
  if (FAILED(CoCreateInstance(kVbScript, nullptr, CLSCTX_INPROC_SERVER, kScript,
                              script.ReceiveVoid())))
    return nullptr;
  auto parse = script.As<IActiveScriptParse>(kScriptParse);
  if (!parse) return nullptr;
  return std::make_unique<VbScript>(std::move(script), std::move(parse));
}

}  // namespace sifter
