#pragma once

#include "win32/ComRef.h"

#include <cstdint>
#include <functional>
#include <oaidl.h>
#include <windows.h>

namespace sifter {

// Goes over a collection for hosts (`For Each`), by position: what is added behind the place where
// it stands is still met, and the end is where the collection ends by then.
class DispatchEnum final : public IEnumVARIANT {
 public:
  struct Source {
    std::function<std::int32_t()> count;
    std::function<ComRef<IDispatch>(std::int32_t position)> item;  // may throw
  };

  explicit DispatchEnum(Source source, std::int32_t next = 1)
      : source_(std::move(source)), next_(next) {}
  DispatchEnum(const DispatchEnum&) = delete;
  DispatchEnum& operator=(const DispatchEnum&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* items, ULONG* fetched) override;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  HRESULT STDMETHODCALLTYPE Reset() override;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override;

 private:
  ~DispatchEnum() = default;

  ULONG references_ = 1;
  Source source_;
  std::int32_t next_;
};

}  // namespace sifter
