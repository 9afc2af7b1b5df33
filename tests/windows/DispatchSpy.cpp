#include "DispatchSpy.h"

#include "support/Printers.h"
#include "win32/UniqueBstr.h"
#include "win32/Variants.h"
#include "win32/WideText.h"

#include <algorithm>
#include <dispex.h>
#include <utility>

namespace sifter {

namespace {

std::string ShownArgument(const VARIANT& argument) {
  if (argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND) return "-";
  if (argument.vt == VT_DISPATCH || argument.vt == VT_UNKNOWN) return "object";
  return Shown(ValueFromVariant(argument));
}

std::string ShownArguments(const DISPPARAMS& parameters, UINT first) {
  std::string list;
  for (UINT i = parameters.cArgs; i > first; --i)
    list += (list.empty() ? "" : ", ") + ShownArgument(parameters.rgvarg[i - 1]);
  return list;
}

class DispatchSpy final : public IDispatchEx {
 public:
  DispatchSpy(ComRef<IDispatch> object, std::shared_ptr<DispatchSpyLog> log, std::string kind)
      : object_(std::move(object)),
        log_(std::move(log)),
        kind_(std::move(kind)),
        salt_(log_->made++ % 7) {
    ++log_->alive;
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id == IID_IUnknown || id == IID_IDispatch ||
        (log_->isScript && id == __uuidof(IDispatchEx))) {
      *object = static_cast<IDispatchEx*>(this);
      AddRef();
      return S_OK;
    }
    if (log_->otherInterfaces) return log_->otherInterfaces(id, object);
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) override {
    ++log_->nameQuestions;
    return log_->isScript ? E_NOTIMPL : NumberOf(names[0], ids);
  }
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD flags, DISPID* id) override {
    ++log_->nameQuestions;
    return flags == fdexNameCaseInsensitive ? NumberOf(name, id) : DISP_E_UNKNOWNNAME;
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* error, UINT*) override {
    const auto name = Names().find(id);
    if (name == Names().end()) return DISP_E_MEMBERNOTFOUND;
    Record(name->second, flags, *parameters);
    const auto failure = log_->failures.find(name->second);
    if (failure != log_->failures.end()) return Fail(failure, error);
    const HRESULT called = object_->Invoke(Theirs(id), IID_NULL, LOCALE_USER_DEFAULT, flags,
                                           parameters, result, error, nullptr);
    if (FAILED(called) || result == nullptr) return called;
    if (result->vt == VT_DISPATCH && result->pdispVal != nullptr && LeadsToPart(name->second))
      result->pdispVal =
          SpyOn(ComRef<IDispatch>::Adopt(result->pdispVal), log_, KindBehind(name->second))
              .Release();
    const auto change = log_->results.find(name->second);
    if (change != log_->results.end()) change->second(*result);
    return called;
  }

  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     IServiceProvider*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }

 private:
  ~DispatchSpy() { --log_->alive; }

  // Other objects are the host's values.
  static bool LeadsToPart(const std::string& member) {
    return member == "ColumnHeaders" || member == "ListItems" || member == "ListSubItems" ||
           member == "Item" || member == "Add";
  }

  // The elements of a collection are of one kind, new or not.
  std::string KindBehind(const std::string& member) const {
    return kind_ + '.' + (member == "Add" ? "Item" : member);
  }

  std::map<DISPID, std::string>& Names() { return log_->isScript ? own_ : log_->names[kind_]; }

  // A script's objects number their members each in its own way.
  DISPID Ours(DISPID theirs) const { return log_->isScript ? theirs * 8 + 100 + salt_ : theirs; }
  DISPID Theirs(DISPID ours) const { return log_->isScript ? (ours - 100 - salt_) / 8 : ours; }

  HRESULT NumberOf(LPOLESTR name, DISPID* id) {
    const std::string asked = FromWide(name).ToUtf8();
    const bool lacks =
        std::find(log_->lacking.begin(), log_->lacking.end(), asked) != log_->lacking.end();
    const HRESULT found = lacks
                              ? DISP_E_UNKNOWNNAME
                              : object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, id);
    if (FAILED(found)) {
      *id = DISPID_UNKNOWN;
      if (log_->recordCalls) log_->calls.push_back("no " + asked);
      return found;
    }
    *id = Ours(*id);
    Names()[*id] = asked;
    return S_OK;
  }

  void Record(const std::string& name, WORD flags, const DISPPARAMS& parameters) {
    if (!log_->recordCalls) return;
    if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
      const bool byReference = (flags & DISPATCH_PROPERTYPUTREF) != 0;
      const std::string index = ShownArguments(parameters, 1);
      log_->calls.push_back((byReference ? "putref " : "put ") + name +
                            (index.empty() ? "" : '(' + index + ')') + ' ' +
                            ShownArgument(parameters.rgvarg[0]));
      return;
    }
    const bool isCall = (flags & DISPATCH_METHOD) != 0;
    const bool isGet = (flags & DISPATCH_PROPERTYGET) != 0;
    log_->calls.push_back((isCall && isGet ? "get or call "
                           : isCall        ? "call "
                                           : "get ") +
                          name + (isCall ? '(' + ShownArguments(parameters, 0) + ')' : ""));
  }

  HRESULT Fail(std::map<std::string, DispatchSpyLog::Failure>::iterator failure, EXCEPINFO* error) {
    const DispatchSpyLog::Failure told = failure->second;
    log_->failures.erase(failure);
    if (told.result == DISP_E_EXCEPTION && error != nullptr) {
      error->scode = told.code;
      error->bstrDescription = SysAllocString(told.description.c_str());
    }
    return told.result;
  }

  ULONG references_ = 1;
  ComRef<IDispatch> object_;
  std::shared_ptr<DispatchSpyLog> log_;
  std::string kind_;
  std::map<DISPID, std::string> own_;
  int salt_;
};

}  // namespace

ComRef<IDispatch> SpyOn(ComRef<IDispatch> object, std::shared_ptr<DispatchSpyLog> log,
                        std::string kind) {
  return ComRef<IDispatch>::Adopt(static_cast<IDispatchEx*>(
      new DispatchSpy(std::move(object), std::move(log), std::move(kind))));
}

}  // namespace sifter
