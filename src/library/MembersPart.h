#pragma once

#include "base/Text.h"
#include "library/DispatchPart.h"
#include "win32/UniqueBstr.h"
#include "win32/WideText.h"

#include <string>

namespace sifter {

// The members of a control, as hosts call them: what the bodies of all such members need.
template <class Interface>
class MembersPart : public DispatchPart<Interface> {
 public:
  using DispatchPart<Interface>::DispatchPart;

  // The dispatch identifier of a member; DISPID_UNKNOWN for a name that is none.
  DISPID IdOf(TextView name) const {
    std::wstring wide = Wide(name);
    LPOLESTR names[] = {wide.data()};
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(this->Information()->GetIDsOfNames(names, 1, &id)) ? id : DISPID_UNKNOWN;
  }

 protected:
  static Text TextOf(BSTR text) { return Text(BstrView(text)); }

  // The body of a method without a result of its own.
  template <class Work>
  HRESULT Do(Work&& work) noexcept {
    return this->Answer([&] {
      work();
      return S_OK;
    });
  }

  HRESULT Give(const Text& text, BSTR* out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return Do([&] { *out = UniqueBstr(text.View()).Release(); });
  }

  static HRESULT Give(bool truth, VARIANT_BOOL* out) noexcept {
    if (out == nullptr) return E_POINTER;
    *out = truth ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }
};

}  // namespace sifter
