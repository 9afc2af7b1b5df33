#include "win32/Win32FormHost.h"

#include "forms/Form.h"
#include "win32/WindowEntry.h"

#include <algorithm>

namespace sifter {

Win32FormHost::~Win32FormHost() = default;

FormWindow* Win32FormHost::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

FormWindow& Win32FormHost::Realise(Form& form) {
  std::unique_ptr<FormWindow>& window = windows_[&form];
  if (window != nullptr && window->Handle() == nullptr) window.reset();
  if (window == nullptr) window = std::make_unique<FormWindow>(form);
  return *window;
}

// A form that is on the screen and belongs to nobody; with null any such form.
bool Win32FormHost::IsOnItsOwn(HWND window) const {
  return std::any_of(windows_.begin(), windows_.end(), [window](const auto& entry) {
    if (entry.second == nullptr || !entry.second->IsShown()) return false;
    const HWND shown = entry.second->Handle();
    return (window == nullptr || window == shown) && GetWindow(shown, GW_OWNER) == nullptr;
  });
}

// When the active window belongs to the host's, or is a form that belongs to nobody, the form
// stands in front of both.
HWND Win32FormHost::Owner() const {
  const HWND active = GetActiveWindow();
  if (owner_ == nullptr || !IsWindow(owner_)) return active;
  const HWND owner = GetAncestor(owner_, GA_ROOT);
  for (HWND at = active; at != nullptr; at = GetWindow(at, GW_OWNER))
    if (at == owner || IsOnItsOwn(at)) return active;
  return owner;
}

void Win32FormHost::ShowModal(Form& form) {
  const HWND owner = Owner();
  // One that is shown modeless would answer to the user as before.
  const auto waiting =
      IsOnItsOwn(nullptr) ? FormWindow::Waiting::kThread : FormWindow::Waiting::kOwners;
  FormWindow& window = Realise(form);
  try {
    CallingWindows([&] { window.Show(owner); });
    window.RunModal(owner, waiting);
  } catch (...) {
    window.Hide();
    throw;
  }
}

// It outlives the host's windows, and stands before or behind them as the user likes.
void Win32FormHost::ShowModeless(Form& form) {
  FormWindow& window = Realise(form);
  try {
    CallingWindows([&] { window.Show(nullptr); });
    modelessKeys_.Watch(window);
  } catch (...) {
    window.Hide();
    throw;
  }
}

void Win32FormHost::Hide(Form& form) {
  if (FormWindow* window = WindowOf(form)) {
    modelessKeys_.Forget(*window);
    CallingWindows([&] { window->Hide(); });
  }
}

void Win32FormHost::SetFocus(Form& form, Control& control) {
  if (FormWindow* window = WindowOf(form)) CallingWindows([&] { window->FocusOn(control); });
}

void Win32FormHost::DeleteSystemMenuItem(std::int32_t position) {
  const HMENU menu = GetSystemMenu(GetActiveWindow(), FALSE);
  if (menu != nullptr) DeleteMenu(menu, static_cast<UINT>(position), MF_BYPOSITION);
}

void Win32FormHost::Unload(Form& form) {
  if (FormWindow* window = WindowOf(form)) modelessKeys_.Forget(*window);
  windows_.erase(&form);
}

}  // namespace sifter
