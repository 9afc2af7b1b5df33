#pragma once

#include "base/RuntimeError.h"

#include <oaidl.h>
#include <utility>
#include <windows.h>

namespace sifter {

// The body of a COM method that is called through its own interface. No exception leaves it: an
// error becomes its result code, and its description and the source "RowSifter" are left on this
// thread, where callers ask for them (IErrorInfo). S_OK when the work ran to its end.
template <class Work>
HRESULT ComResult(Work&& work) noexcept;

// The body of IDispatch::Invoke: an error becomes DISP_E_EXCEPTION with its code, description and
// source in `details`. A caller that passes none gets the code as the result.
template <class Work>
HRESULT ComResult(EXCEPINFO* details, Work&& work) noexcept;

namespace detail {

// For the exception in flight.
HRESULT ResultOfCurrent() noexcept;
HRESULT ResultOfCurrent(EXCEPINFO* details) noexcept;

}  // namespace detail

template <class Work>
HRESULT ComResult(Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
    return S_OK;
  } catch (...) {
    return detail::ResultOfCurrent();
  }
}

template <class Work>
HRESULT ComResult(EXCEPINFO* details, Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
    return S_OK;
  } catch (...) {
    return detail::ResultOfCurrent(details);
  }
}

}  // namespace sifter
