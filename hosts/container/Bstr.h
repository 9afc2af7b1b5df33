#pragma once

#include <new>
#include <oleauto.h>
#include <string_view>

namespace hosts {

// Sole ownership of a BSTR.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (text_ == nullptr) throw std::bad_alloc();
  }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text_); }

  BSTR Get() const noexcept { return text_; }
  std::wstring_view View() const noexcept { return {text_, SysStringLen(text_)}; }
  [[nodiscard]] BSTR Release() noexcept {
    const BSTR text = text_;
    text_ = nullptr;
    return text;
  }
  // Where a function puts a text for us.
  BSTR* Receive() noexcept {
    SysFreeString(text_);
    text_ = nullptr;
    return &text_;
  }

 private:
  BSTR text_ = nullptr;
};

}  // namespace hosts
