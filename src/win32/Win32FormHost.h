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

  // The window that forms belong to while they are shown modally; it is disabled meanwhile. Null
  // (as at first): the window that is active then. Forms that are shown modeless belong to none.
  void SetOwner(HWND owner) { owner_ = owner; }

  // The form's window, or null before its first showing.
  FormWindow* WindowOf(const Form& form) const;

 private:
  FormWindow& Realise(Form& form);
  bool IsOnItsOwn(HWND window) const;
  HWND Owner() const;

  HWND owner_ = nullptr;
  ModelessKeys modelessKeys_;
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
};

}  // namespace sifter
