#include "win32/Win32FormHost.h"

#include "forms/Form.h"
#include "win32/WindowEntry.h"

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

// When the active window belongs to the host's, the form stands in front of both.
HWND Win32FormHost::Owner() const {
  const HWND active = GetActiveWindow();
  if (owner_ == nullptr || !IsWindow(owner_)) return active;
  const HWND owner = GetAncestor(owner_, GA_ROOT);
  for (HWND at = active; at != nullptr; at = GetWindow(at, GW_OWNER))
    if (at == owner) return active;
  return owner;
}

void Win32FormHost::ShowModal(Form& form) {
  const HWND owner = Owner();
  FormWindow& window = Realise(form);
  try {
    CallingWindows([&] { window.Show(owner); });
    window.RunModal(owner);
  } catch (...) {
    window.Hide();
    throw;
  }
}

void Win32FormHost::ShowModeless(Form& form) {
  const HWND owner = Owner();
  FormWindow& window = Realise(form);
  try {
    CallingWindows([&] { window.Show(owner); });
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
