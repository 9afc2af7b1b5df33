#include "script/Script.h"

#include "container/ComObject.h"
#include "container/Failure.h"
#include "script/ScriptSite.h"

#include <utility>

namespace hosts {

Script::Script(HWND window, std::function<void(const std::wstring& error, int line)> onError)
    : state_(std::make_shared<ScriptState>()) {
  state_->window = window;
  state_->onError = std::move(onError);
  CLSID id;
  Check(CLSIDFromProgID(L"VBScript", &id), L"Looking for VBScript");
  Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript),
                         engine_.ReceiveVoid()),
        L"Starting VBScript");
  parser_ = engine_.As<IActiveScriptParse>();
  if (!parser_) throw Failure(L"VBScript takes no text");
  Check(parser_->InitNew(), L"Starting VBScript");
  const ComRef<IActiveScriptSite> site(ComObject<ScriptSite, ScriptSiteWindow>::Make(state_).Get());
  Check(engine_->SetScriptSite(site.Get()), L"Starting VBScript");
  Check(engine_->SetScriptState(SCRIPTSTATE_CONNECTED), L"Starting VBScript");
}

Script::~Script() {
  engine_->Close();
  *state_ = ScriptState();
}

void Script::Add(const std::wstring& name, ComRef<IDispatch> object) {
  state_->objects[name] = std::move(object);
  Check(engine_->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE), L"Naming " + name);
}

bool Script::Run(const std::wstring& text) {
  return SUCCEEDED(parser_->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 0,
                                            SCRIPTTEXT_ISVISIBLE, nullptr, nullptr));
}

void Script::CallIfThere(const std::wstring& procedure, const std::vector<VARIANT*>& arguments) {
  ComRef<IDispatch> procedures;
  Check(engine_->GetScriptDispatch(nullptr, procedures.Receive()), L"Looking for procedures");
  std::wstring name(procedure);
  LPOLESTR text = name.data();
  DISPID id = DISPID_UNKNOWN;
  if (FAILED(procedures->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id))) return;

  std::vector<VARIANTARG> reversed;
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
    reversed.push_back(**argument);
  DISPPARAMS parameters{};
  parameters.rgvarg = reversed.data();
  parameters.cArgs = static_cast<UINT>(reversed.size());
  // The engine tells its site about errors.
  procedures->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                     nullptr, nullptr);
}

}  // namespace hosts
