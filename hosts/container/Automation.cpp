#include "container/Automation.h"

#include "container/Bstr.h"
#include "container/Failure.h"

#include <algorithm>
#include <vector>

namespace hosts {

namespace {

// What an object tells about its error.
class ExceptionInfo {
 public:
  ExceptionInfo() = default;
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;
  ~ExceptionInfo() {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
  }

  EXCEPINFO* Address() noexcept { return &info_; }

  [[noreturn]] void Throw(std::wstring_view member) {
    if (info_.pfnDeferredFillIn != nullptr) info_.pfnDeferredFillIn(&info_);
    const HRESULT result = FAILED(info_.scode) ? info_.scode : DISP_E_EXCEPTION;
    if (SysStringLen(info_.bstrDescription) == 0) Check(result, member);
    throw Failure(std::wstring(member) + L": " + info_.bstrDescription, result);
  }

 private:
  EXCEPINFO info_{};
};

}  // namespace

Automation Automation::Create(const std::wstring& progId) {
  CLSID id;
  Check(CLSIDFromProgID(progId.c_str(), &id), L"Looking for " + progId);
  ComRef<IDispatch> object;
  Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.ReceiveVoid()),
        L"Creating " + progId);
  return Automation(std::move(object));
}

DISPID Automation::Find(std::wstring_view member) const {
  if (!object_) throw Failure(std::wstring(member) + L": there is no object", E_POINTER);
  std::wstring name(member);
  LPOLESTR text = name.data();
  DISPID id = DISPID_UNKNOWN;
  Check(object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id), member);
  return id;
}

bool Automation::Has(std::wstring_view member) const noexcept {
  std::wstring name(member);
  LPOLESTR text = name.data();
  DISPID id = DISPID_UNKNOWN;
  return object_ && SUCCEEDED(object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id));
}

Variant Automation::Invoke(std::wstring_view member, WORD kind,
                           std::span<const Variant> arguments) const {
  const DISPID id = Find(member);
  // They travel in reverse order; the values stay the caller's.
  std::vector<VARIANTARG> reversed;
  for (const Variant& argument : arguments) reversed.push_back(argument.Get());
  std::reverse(reversed.begin(), reversed.end());

  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{};
  parameters.rgvarg = reversed.data();
  parameters.cArgs = static_cast<UINT>(reversed.size());
  const bool puts = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (puts) {
    parameters.rgdispidNamedArgs = &put;
    parameters.cNamedArgs = 1;
  }
  Variant result;
  ExceptionInfo exception;
  UINT badArgument = 0;
  const HRESULT called =
      object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                      puts ? nullptr : result.Receive(), exception.Address(), &badArgument);
  if (called == DISP_E_EXCEPTION) exception.Throw(member);
  Check(called, member);
  return result;
}

Variant Automation::Get(std::wstring_view member, std::initializer_list<Variant> arguments) const {
  return Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
}

Automation Automation::GetObject(std::wstring_view member,
                                 std::initializer_list<Variant> arguments) const {
  return Automation(Get(member, arguments).Object());
}

void Automation::Put(std::wstring_view member, const Variant& value) const {
  Invoke(member, DISPATCH_PROPERTYPUT, std::span(&value, 1));
}

void Automation::PutAt(std::wstring_view member, int index, const Variant& value) const {
  const Variant arguments[] = {Variant(index), value};
  Invoke(member, DISPATCH_PROPERTYPUT, arguments);
}

void Automation::PutReference(std::wstring_view member, IDispatch* value) const {
  const Variant argument(value);
  Invoke(member, DISPATCH_PROPERTYPUTREF, std::span(&argument, 1));
}

Variant Automation::Call(std::wstring_view member, std::initializer_list<Variant> arguments) const {
  return Invoke(member, DISPATCH_METHOD, arguments);
}

Variant Automation::Call(std::wstring_view member, std::span<const Variant> arguments) const {
  return Invoke(member, DISPATCH_METHOD, arguments);
}

}  // namespace hosts
