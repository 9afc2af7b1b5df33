#include "win32/ComResult.h"

#include "win32/ComRef.h"
#include "win32/Errors.h"

#include <exception>
#include <new>
#include <oleauto.h>

namespace sifter {

namespace {

constexpr TextView kSource = u"RowSifter";

struct Failure {
  HRESULT result = E_FAIL;
  Text description;
};

Failure FailureOf(const RuntimeError& error) { return {ResultOf(error), error.Description()}; }

// What went wrong without being a run-time error is none of the numbers that hosts know.
Failure CurrentFailure() noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return FailureOf(error);
  } catch (const std::bad_alloc&) {
    return {E_OUTOFMEMORY, u"Out of memory"_text};
  } catch (...) {
    return {E_FAIL, u"Automation error"_text};
  }
}

// Null when there is no memory for it; then it is the empty text.
BSTR NewBstr(TextView text) noexcept {
  return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()),
                           static_cast<UINT>(text.size()));
}

void LeaveOnThread(const Failure& failure) noexcept {
  ComRef<ICreateErrorInfo> information;
  if (FAILED(CreateErrorInfo(information.Receive()))) return;
  const BSTR source = NewBstr(kSource);
  const BSTR description = NewBstr(failure.description);
  information->SetSource(source);
  information->SetDescription(description);
  SysFreeString(source);
  SysFreeString(description);
  if (const auto readable = information.As<IErrorInfo>(IID_IErrorInfo))
    SetErrorInfo(0, readable.Get());
}

}  // namespace

HRESULT detail::ResultOfCurrent() noexcept {
  const Failure failure = CurrentFailure();
  LeaveOnThread(failure);
  return failure.result;
}

HRESULT detail::ResultOfCurrent(EXCEPINFO* details) noexcept {
  const Failure failure = CurrentFailure();
  if (details == nullptr) return failure.result;
  *details = {};
  details->scode = failure.result;
  details->bstrSource = NewBstr(kSource);
  details->bstrDescription = NewBstr(failure.description);
  return DISP_E_EXCEPTION;
}

}  // namespace sifter
