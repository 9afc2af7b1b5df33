#pragma once

#include <cstdint>

namespace sifter {

class Control;
class Form;

// Port: whoever puts forms before the user. On Windows it makes windows of them; a console host
// or a test answers by setting the controls' properties and pressing its buttons.
class FormHost {
 public:
  virtual ~FormHost() = default;

  // The form has just become visible. The modal one returns when the form is no longer visible.
  virtual void ShowModal(Form& form) = 0;
  virtual void ShowModeless(Form& form) = 0;

  // The form has just become invisible; a modal showing ends.
  virtual void Hide(Form& form) = 0;

  // The form has the focus on another control now.
  virtual void SetFocus(Form& form, Control& control) = 0;

  // Takes the entry at this 0-based position out of the system menu of the active window.
  virtual void DeleteSystemMenuItem(std::int32_t position) = 0;

  // The form is about to end.
  virtual void Unload(Form& form) = 0;
};

}  // namespace sifter
