#include "win32/NativeListViewDispatchCall.h"

#include "win32/Variants.h"

namespace sifter {

namespace {

bool IsLeftOut(const VARIANT& argument) {
  return argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace

DispatchCall::DispatchCall(const DISPPARAMS& given, std::size_t parameters, bool isWrite)
    : result_(Place(given, parameters, isWrite)) {}

// Arguments stand in reverse order, those with names in front of the others; the new value of a
// property is one with a name.
HRESULT DispatchCall::Place(const DISPPARAMS& given, std::size_t parameters, bool isWrite) {
  const std::size_t named = given.cNamedArgs;
  const std::size_t all = given.cArgs;
  if (named > all) return DISP_E_BADPARAMCOUNT;
  const std::size_t byPosition = all - named;
  if (byPosition > parameters) return DISP_E_BADPARAMCOUNT;
  for (std::size_t i = 0; i < byPosition; ++i) slots_[i] = &given.rgvarg[all - 1 - i];
  for (std::size_t i = 0; i < named; ++i) {
    const DISPID name = given.rgdispidNamedArgs[i];
    if (name == DISPID_PROPERTYPUT && isWrite) {
      newValue_ = &given.rgvarg[i];
      continue;
    }
    if (name < 0 || static_cast<std::size_t>(name) >= parameters) return DISP_E_PARAMNOTFOUND;
    if (slots_[name] != nullptr) return DISP_E_BADPARAMCOUNT;
    slots_[name] = &given.rgvarg[i];
  }
  for (const VARIANT*& slot : slots_)
    if (slot != nullptr && IsLeftOut(*slot)) slot = nullptr;
  return isWrite && newValue_ == nullptr ? DISP_E_PARAMNOTOPTIONAL : S_OK;
}

Value DispatchCall::operator[](std::size_t parameter) const {
  const VARIANT* given = slots_[parameter];
  return given == nullptr ? Value() : ValueFromVariant(*given);
}

Value DispatchCall::NewValue() const { return ValueFromVariant(*newValue_); }

}  // namespace sifter
