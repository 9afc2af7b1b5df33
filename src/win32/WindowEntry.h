#pragma once

#include <exception>
#include <type_traits>
#include <utility>

namespace sifter {

// Where exceptions wait that came up in a callback of the platform. Nothing may unwind through the
// platform's own frames, so they are kept until the call that led to the callback is back.
class EntryErrors {
 public:
  EntryErrors() noexcept;
  EntryErrors(const EntryErrors&) = delete;
  EntryErrors& operator=(const EntryErrors&) = delete;
  ~EntryErrors();

  // Throws what was kept, the first of several.
  void Rethrow();

  // Keeps the exception in flight for the innermost of these on this thread. Without any it is
  // told to the debugger and forgotten: the host's own message loop knows nothing of exceptions.
  static void KeepCurrent() noexcept;

 private:
  EntryErrors* outer_;
  std::exception_ptr first_;
};

// The body of a window procedure, a timer's or a hook's callback: no exception leaves it. After an
// exception the result is `onError`.
template <class Work, class Result = std::invoke_result_t<Work>>
requires(!std::is_void_v<Result>) Result
    WindowEntry(Work&& work, std::type_identity_t<Result> onError = Result())
noexcept {
  try {
    return std::forward<Work>(work)();
  } catch (...) {
    EntryErrors::KeepCurrent();
    return onError;
  }
}

template <class Work>
requires std::is_void_v<std::invoke_result_t<Work>>
void WindowEntry(Work&& work) noexcept {
  try {
    std::forward<Work>(work)();
  } catch (...) {
    EntryErrors::KeepCurrent();
  }
}

// Calls the platform where that may call us back (dispatching a message, sending one, showing a
// window); an exception that a callback kept meanwhile comes out of here.
template <class Work>
auto CallingWindows(Work&& work) {
  EntryErrors errors;
  if constexpr (std::is_void_v<std::invoke_result_t<Work>>) {
    std::forward<Work>(work)();
    errors.Rethrow();
  } else {
    auto result = std::forward<Work>(work)();
    errors.Rethrow();
    return result;
  }
}

}  // namespace sifter
