#include "win32/ModelessKeys.h"

#include "win32/WindowEntry.h"

#include <algorithm>
#include <utility>

namespace sifter {

namespace {

// Those with a window to watch, by thread. A hook procedure is told nothing about who set it.
thread_local std::vector<ModelessKeys*> watching;

}  // namespace

ModelessKeys::~ModelessKeys() {
  while (!windows_.empty()) Forget(*windows_.back());
}

void ModelessKeys::Watch(FormWindow& window) {
  Forget(window);
  windows_.push_back(&window);
  if (hook_ != nullptr) return;
  if (std::find(watching.begin(), watching.end(), this) == watching.end()) watching.push_back(this);
  hook_ = SetWindowsHookExW(WH_GETMESSAGE, Procedure, nullptr, GetCurrentThreadId());
}

void ModelessKeys::Forget(FormWindow& window) {
  std::erase(windows_, &window);
  if (!windows_.empty()) return;
  std::erase(watching, this);
  if (hook_ != nullptr) UnhookWindowsHookEx(std::exchange(hook_, nullptr));
}

bool ModelessKeys::Translate(MSG& message) {
  for (FormWindow* window : std::vector<FormWindow*>(windows_))
    if (std::find(windows_.begin(), windows_.end(), window) != windows_.end() &&
        window->TranslateKey(message))
      return true;
  return false;
}

LRESULT CALLBACK ModelessKeys::Procedure(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && wParam == PM_REMOVE)
    WindowEntry([&] {
      auto& message = *reinterpret_cast<MSG*>(lParam);
      const std::vector<ModelessKeys*> all = watching;
      for (ModelessKeys* keys : all)
        if (std::find(watching.begin(), watching.end(), keys) != watching.end() &&
            keys->Translate(message)) {
          message.message = WM_NULL;  // the loop has nothing left to do with it
          return;
        }
    });
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace sifter
