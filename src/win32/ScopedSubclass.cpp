#include "win32/ScopedSubclass.h"

#include "base/RuntimeError.h"
#include "win32/WindowEntry.h"

#include <commctrl.h>
#include <utility>

namespace sifter {

// Shared with the calls that are under way, so that it outlives an object that ends in its handler.
// Its address is the subclass's id: unique for as long as the subclass lasts.
struct ScopedSubclass::Hook : std::enable_shared_from_this<Hook> {
  HWND window = nullptr;
  Handler handler;

  UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(this); }
};

ScopedSubclass::ScopedSubclass(HWND window, Handler handler) : hook_(std::make_shared<Hook>()) {
  hook_->window = window;
  hook_->handler = std::move(handler);
  const bool isOurs = GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
  if (!isOurs || !SetWindowSubclass(window, &Procedure, hook_->Id(), hook_->Id()))
    throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
}

ScopedSubclass& ScopedSubclass::operator=(ScopedSubclass&& other) noexcept {
  if (this != &other) {
    Reset();
    hook_ = std::move(other.hook_);
  }
  return *this;
}

void ScopedSubclass::Reset() noexcept {
  const std::shared_ptr<Hook> hook = std::move(hook_);
  hook_ = nullptr;
  if (hook == nullptr || hook->window == nullptr) return;
  RemoveWindowSubclass(std::exchange(hook->window, nullptr), &Procedure, hook->Id());
}

HWND ScopedSubclass::Window() const noexcept { return hook_ == nullptr ? nullptr : hook_->window; }

LRESULT ScopedSubclass::Default(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT CALLBACK ScopedSubclass::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR, DWORD_PTR hookAddress) {
  const std::shared_ptr<Hook> hook = reinterpret_cast<Hook*>(hookAddress)->shared_from_this();
  std::optional<LRESULT> result;
  if (hook->window != nullptr)
    WindowEntry([&] { result = hook->handler(window, message, wParam, lParam); });
  if (message == WM_NCDESTROY && hook->window != nullptr)
    RemoveWindowSubclass(std::exchange(hook->window, nullptr), &Procedure, hook->Id());
  return result ? *result : DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace sifter
