#include "script/ScriptObject.h"

#include "container/Bstr.h"
#include "container/ComObject.h"
#include "container/Failure.h"

#include <utility>

namespace hosts {

namespace {

class MemberTable : public IDispatch {
 public:
  static bool Answers(REFIID id) { return IsEqualIID(id, IID_IDispatch); }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override {
    if (names == nullptr || ids == nullptr) return E_POINTER;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    if (count > 0) ids[0] = Find(names[0]);
    return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT*) override {
    if (id < 1 || id > static_cast<DISPID>(members_.size())) return DISP_E_MEMBERNOTFOUND;
    if (parameters == nullptr) return E_POINTER;
    const ScriptMember& member = members_[static_cast<std::size_t>(id) - 1];
    try {
      return Invoke(member, kind, *parameters, result);
    } catch (const Failure& failure) {
      return Tell(failure, exception);
    } catch (...) {
      return E_FAIL;
    }
  }

 protected:
  explicit MemberTable(const std::vector<ScriptMember>& members) : members_(members) {}
  ~MemberTable() = default;

 private:
  DISPID Find(const wchar_t* name) const {
    for (std::size_t i = 0; i < members_.size(); ++i)
      if (lstrcmpiW(members_[i].name, name) == 0) return static_cast<DISPID>(i + 1);
    return DISPID_UNKNOWN;
  }

  static HRESULT Invoke(const ScriptMember& member, WORD kind, const DISPPARAMS& parameters,
                        VARIANT* result) {
    std::vector<Variant> arguments;
    for (UINT i = parameters.cArgs; i > 0; --i) arguments.emplace_back(parameters.rgvarg[i - 1]);
    if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
      if (member.put == nullptr || arguments.empty()) return DISP_E_MEMBERNOTFOUND;
      member.put(arguments.back());
      return S_OK;
    }
    if (member.call == nullptr) return DISP_E_MEMBERNOTFOUND;
    Variant value = member.call(arguments);
    if (result != nullptr) value.MoveTo(result);
    return S_OK;
  }

  static HRESULT Tell(const Failure& failure, EXCEPINFO* exception) {
    if (exception == nullptr) return failure.Result();
    *exception = EXCEPINFO{};
    exception->scode = failure.Result();
    exception->bstrDescription = SysAllocString(failure.Description().c_str());
    return DISP_E_EXCEPTION;
  }

  std::vector<ScriptMember> members_;
};

}  // namespace

ComRef<IDispatch> MakeScriptObject(std::vector<ScriptMember> members) {
  return ComRef<IDispatch>(ComObject<MemberTable>::Make(members).Get());
}

}  // namespace hosts
