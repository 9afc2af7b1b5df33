#pragma once

#include "forms/FormHost.h"
#include "win32/FormWindow.h"
#include "win32/ModelessKeys.h"

#include <map>
#include <memory>
#include <windows.h>

namespace sifter {

// Shows forms as windows of the desktop, on the thread that shows them.
class Win32FormHost final : public FormHost {
 public:
  Win32FormHost() = default;
  ~Win32FormHost() override;

  void ShowModal(Form& form) override;
  void ShowModeless(Form& form) override;
  void Hide(Form& form) override;
  void SetFocus(Form& form, Control& control) override;
  void DeleteSystemMenuItem(std::int32_t position) override;
  void Unload(Form& form) override;

  // The window that a form's windows belong to; it is disabled while the form is shown modally.
  // Null (as at first): the window that is active when the form is shown.
  void SetOwner(HWND owner) { owner_ = owner; }

  // The form's window, or null before its first showing.
  FormWindow* WindowOf(const Form& form) const;

 private:
  FormWindow& Realise(Form& form);
  HWND Owner() const;

  HWND owner_ = nullptr;
  ModelessKeys modelessKeys_;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
};

}  // namespace sifter
