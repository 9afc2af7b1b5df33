#pragma once

#include "base/Text.h"
#include "forms/ControlParent.h"
#include "forms/FormHost.h"

#include <functional>

namespace sifter {

enum class ShowMode { kModeless = 0, kModal = 1 };

// A window with controls, as state. Nothing is on the screen before it is shown; what was set up
// to then is the state in which it appears. Measures are twips.
class Form : public ControlParent {
 public:
  // `host` must outlive the form.
  explicit Form(FormHost& host) : host_(host) {}
  ~Form() override;

  const Text& Caption() const { return caption_; }
  void SetCaption(Text caption);
  double Width() const { return width_; }
  double Height() const { return height_; }  // of the area that the controls stand on
  void SetWidth(double twips);
  void SetHeight(double twips);

  bool Visible() const { return visible_; }

  // Shows the form. Modal: returns when it has been hidden. A form that is visible already is
  // left as it is when shown modeless, and is error 400 when shown modally. An error of the host's
  // in showing it comes out and leaves it hidden.
  void Show(ShowMode mode);
  void Hide();

  // The control that has the focus, or null; null also after that control has ended.
  Control* ActiveControl() const { return activeControl_; }

  // Moves the focus to a control, if the form is visible and the control can take it; silently
  // nothing otherwise.
  void SetFocus(Control& control);

  // The user has moved the focus.
  void FocusMoved(Control* control) { activeControl_ = control; }

  // Raised each time the form's window becomes the active one.
  std::function<void()> Activate;

  // The user wants the window closed by the means of its frame. A form that doesn't answer stays.
  std::function<void()> CloseRequested;

  // Raised when caption, width or height have changed. Set by whoever shows the form.
  std::function<void()> Changed;

 protected:
  FormHost& Host() const { return host_; }

  // To be called by the most derived class's destructor, while its controls are still whole.
  void Unload();

  void Forget(Control& control) override;

 private:
  void Assign(double& field, double twips);

  FormHost& host_;
  Text caption_;
  double width_ = 0;
  double height_ = 0;
  bool visible_ = false;
  bool loaded_ = true;
  Control* activeControl_ = nullptr;
};

}  // namespace sifter
