#pragma once

#include "base/Text.h"

#include <cassert>
#include <new>
#include <oleauto.h>
#include <utility>
#include <windows.h>

namespace sifter {

// The units of a BSTR that somebody else owns; a null BSTR is the empty text.
inline TextView BstrView(BSTR text) noexcept {
  return TextView(reinterpret_cast<const char16_t*>(text), SysStringLen(text));
}

// Sole ownership of a BSTR. Null is the empty text, as it is for the platform.
class UniqueBstr {
 public:
  UniqueBstr() = default;
  // Takes over `text`.
  explicit UniqueBstr(BSTR text) noexcept : text_(text) {}
  // A copy; unlike null it is a BSTR even when it is empty. std::bad_alloc when there is no memory.
  explicit UniqueBstr(TextView text)
      : text_(SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()),
                                static_cast<UINT>(text.size()))) {
    if (text_ == nullptr) throw std::bad_alloc();
  }
  UniqueBstr(UniqueBstr&& other) noexcept : text_(other.Release()) {}
  UniqueBstr& operator=(UniqueBstr&& other) noexcept {
    Reset(other.Release());
    return *this;
  }
  ~UniqueBstr() { SysFreeString(text_); }

  BSTR Get() const noexcept { return text_; }
  TextView View() const noexcept { return BstrView(text_); }

  // Where a function puts a BSTR for us. Nothing may be held at that time.
  BSTR* Receive() noexcept {
    assert(text_ == nullptr);
    return &text_;
  }

  // To be passed where a callee reads it or puts another one in its place.
  BSTR* Address() noexcept { return &text_; }

  // Gives up the ownership.
  [[nodiscard]] BSTR Release() noexcept { return std::exchange(text_, nullptr); }

  // Frees what is held and takes over `text`.
  void Reset(BSTR text = nullptr) noexcept {
    if (text != text_) SysFreeString(std::exchange(text_, text));
  }

 private:
  BSTR text_ = nullptr;
};

}  // namespace sifter
