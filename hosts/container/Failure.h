#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <windows.h>

namespace hosts {

// A call into the system or into an object that went wrong, in words for the user.
class Failure : public std::exception {
 public:
  explicit Failure(std::wstring description, HRESULT result = E_FAIL);

  const std::wstring& Description() const noexcept { return description_; }
  HRESULT Result() const noexcept { return result_; }
  const char* what() const noexcept override { return narrow_.c_str(); }

 private:
  std::wstring description_;
  std::string narrow_;  // the same in UTF-8
  HRESULT result_;
};

// Throws unless the call went well; `doing` says what was tried.
void Check(HRESULT result, std::wstring_view doing);

// The same for functions that leave their error with the thread.
[[noreturn]] void ThrowLastError(std::wstring_view doing);

// The exception in flight, in words.
std::wstring DescribeCurrentFailure();

// The body of a COM method: no exception leaves it.
template <class Work>
HRESULT ComBody(Work&& work) noexcept {
  try {
    work();
    return S_OK;
  } catch (const Failure& failure) {
    return failure.Result();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace hosts
