#include "win32/WindowTap.h"

#include "base/Ref.h"
#include "base/RuntimeError.h"
#include "win32/ThreadSlot.h"
#include "win32/WindowEntry.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace sifter {

namespace {

// Who sees the messages of a window, the last comer first. A list is never changed, only replaced:
// a message may be on its way along it.
struct Hooks final : Object {
  std::vector<Ref<WindowTap::Hook>> all;
};

}  // namespace

// A tapped window and the procedure that it had.
struct WindowTap::Tapped final : Object {
  HWND window = nullptr;  // null once it has been destroyed
  WNDPROC original = nullptr;
  bool unicode = false;
  bool isCode = false;  // whether the procedure can be called as it is
  Ref<Hooks> hooks = MakeRef<Hooks>();

  // A window of the same kind as its procedure needs nothing translated; being called through the
  // system costs more than many a message.
  LRESULT CallOriginal(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (window == nullptr) return 0;
    if (isCode) return original(window, message, wParam, lParam);
    return unicode ? CallWindowProcW(original, window, message, wParam, lParam)
                   : CallWindowProcA(original, window, message, wParam, lParam);
  }
};

struct WindowTap::Hook final : Object {
  Ref<Tapped> tapped;
  Handler handler;
  bool ended = false;
};

namespace {

LRESULT CALLBACK TapProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

using Tapped = WindowTap::Tapped;
using TappedWindows = std::vector<Ref<Tapped>>;

// A thread has a handful of tapped windows at most. Windows belong to one thread, and so does what
// the slot leads to; it is there only while it has entries.
ThreadSlot& Slot() {
  static ThreadSlot slot;
  return slot;
}

TappedWindows* OfThisThread() { return static_cast<TappedWindows*>(Slot().Get()); }

Ref<Tapped> Find(HWND window) {
  if (const TappedWindows* windows = OfThisThread())
    for (const Ref<Tapped>& tapped : *windows)
      if (tapped->window == window) return tapped;
  return nullptr;
}

void Remember(const Ref<Tapped>& tapped) {
  if (OfThisThread() == nullptr) Slot().Set(new TappedWindows);
  OfThisThread()->push_back(tapped);
}

void Forget(const Ref<Tapped>& tapped) noexcept {
  TappedWindows* const windows = OfThisThread();
  if (windows == nullptr) return;
  std::erase(*windows, tapped);
  if (!windows->empty()) return;
  Slot().Set(nullptr);
  delete windows;
}

LONG_PTR ProcedureOf(HWND window, bool unicode) {
  return unicode ? GetWindowLongPtrW(window, GWLP_WNDPROC)
                 : GetWindowLongPtrA(window, GWLP_WNDPROC);
}

LONG_PTR SetProcedure(HWND window, bool unicode, LONG_PTR procedure) {
  return unicode ? SetWindowLongPtrW(window, GWLP_WNDPROC, procedure)
                 : SetWindowLongPtrA(window, GWLP_WNDPROC, procedure);
}

// What the system hands out for a procedure may be a handle that only the system can call.
bool IsCode(LONG_PTR procedure) {
  constexpr DWORD kExecutable =
      PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
  MEMORY_BASIC_INFORMATION memory{};
  return VirtualQuery(reinterpret_cast<const void*>(procedure), &memory, sizeof memory) != 0 &&
         memory.State == MEM_COMMIT && (memory.Protect & kExecutable) != 0;
}

LONG_PTR TapAddress() { return reinterpret_cast<LONG_PTR>(&TapProcedure); }

Ref<Tapped> FindOrTap(HWND window) {
  if (!IsWindow(window) || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId())
    throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  if (Ref<Tapped> tapped = Find(window)) return tapped;
  const Ref<Tapped> tapped = MakeRef<Tapped>();
  tapped->window = window;
  // Through the other kind of call the window would turn into one of that kind.
  tapped->unicode = IsWindowUnicode(window) != 0;
  const LONG_PTR procedure = ProcedureOf(window, tapped->unicode);
  tapped->original = reinterpret_cast<WNDPROC>(procedure);
  tapped->isCode = IsCode(procedure);
  Remember(tapped);
  SetProcedure(window, tapped->unicode, TapAddress());
  return tapped;
}

// The last one has left. With somebody in front of us the procedure must stay where it is: putting
// the original back would cut them off.
void Untap(const Ref<Tapped>& tapped) noexcept {
  if (ProcedureOf(tapped->window, tapped->unicode) != TapAddress()) return;
  SetProcedure(tapped->window, tapped->unicode, reinterpret_cast<LONG_PTR>(tapped->original));
  Forget(tapped);
}

// Hands the message to the hooks behind place `first`, then to the window.
LRESULT Pass(Tapped& tapped, std::size_t first, UINT message, WPARAM wParam, LPARAM lParam) {
  const Ref<Hooks> hooks = tapped.hooks;
  for (std::size_t i = first; i < hooks->all.size(); ++i) {
    WindowTap::Hook& hook = *hooks->all[i];
    if (hook.ended) continue;
    std::optional<LRESULT> result;
    WindowEntry([&] { result = hook.handler(message, wParam, lParam); });
    if (result) return *result;
  }
  return tapped.CallOriginal(message, wParam, lParam);
}

LRESULT CALLBACK TapProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const Ref<Tapped> tapped = Find(window);
  if (!tapped) return DefWindowProcW(window, message, wParam, lParam);
  const LRESULT result = Pass(*tapped, 0, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    tapped->window = nullptr;
    Forget(tapped);
  }
  return result;
}

}  // namespace

WindowTap::WindowTap() = default;

WindowTap::WindowTap(HWND window, Handler handler) : hook_(MakeRef<Hook>()) {
  const Ref<Tapped> tapped = FindOrTap(window);
  hook_->tapped = tapped;
  hook_->handler = std::move(handler);
  const Ref<Hooks> hooks = MakeRef<Hooks>();
  hooks->all = tapped->hooks->all;
  hooks->all.insert(hooks->all.begin(), hook_);
  tapped->hooks = hooks;
}

WindowTap::WindowTap(WindowTap&& other) noexcept = default;

WindowTap& WindowTap::operator=(WindowTap&& other) noexcept {
  if (this != &other) {
    Reset();
    hook_ = std::move(other.hook_);
  }
  return *this;
}

WindowTap::~WindowTap() { Reset(); }

void WindowTap::Reset() noexcept {
  const Ref<Hook> hook = std::exchange(hook_, nullptr);
  if (!hook) return;
  hook->ended = true;
  const Ref<Tapped> tapped = std::exchange(hook->tapped, nullptr);
  const Ref<Hooks> hooks = MakeRef<Hooks>();
  hooks->all = tapped->hooks->all;
  std::erase(hooks->all, hook);
  tapped->hooks = hooks;
  if (tapped->window != nullptr && hooks->all.empty()) Untap(tapped);
}

LRESULT WindowTap::Default(UINT message, WPARAM wParam, LPARAM lParam) const {
  const Ref<Hook> hook = hook_;
  if (!hook) return 0;
  const Ref<Tapped> tapped = hook->tapped;
  const std::vector<Ref<Hook>>& hooks = tapped->hooks->all;
  const auto place = std::find(hooks.begin(), hooks.end(), hook);
  const auto behind = static_cast<std::size_t>(place - hooks.begin()) + 1;
  return Pass(*tapped, behind, message, wParam, lParam);
}

}  // namespace sifter
