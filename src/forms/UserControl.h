#pragma once

#include "forms/ControlParent.h"

#include <cstdint>
#include <functional>

namespace sifter {

// A control that a host places on a form of its own, as state: a size, a background and the
// controls that stand on it. Measures are twips.
class UserControl : public ControlParent {
 public:
  double Width() const { return width_; }
  double Height() const { return height_; }

  // The host has given the control a size. Raises Resize, also when it is the one it has.
  void SetSize(double width, double height) {
    width_ = width;
    height_ = height;
    if (Resize) Resize();
  }

  // A colour of the user's desktop (0x80000000 + number) or 0x00BBGGRR.
  std::int32_t BackColor() const { return backColor_; }
  void SetBackColor(std::int32_t color) {
    if (backColor_ == color) return;
    backColor_ = color;
    if (Changed) Changed();
  }

  // Whether the control answers to the user.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    if (Changed) Changed();
  }

  // Whether the host runs the form, as against designing it.
  bool UserMode() const { return userMode_; }
  void SetUserMode(bool userMode) {
    if (userMode_ == userMode) return;
    userMode_ = userMode;
    if (UserModeChanged) UserModeChanged();
  }

  // Raised when the background or the enabled state has changed. Set by whoever shows the control.
  std::function<void()> Changed;

  // The control has given itself another size, which the host is to give it too.
  std::function<void()> SizeWanted;

 protected:
  void Grow(double width, double height) {
    SetSize(width, height);
    if (SizeWanted) SizeWanted();
  }

  std::function<void()> Resize;
  std::function<void()> UserModeChanged;

 private:
  double width_ = 0;
  double height_ = 0;
  std::int32_t backColor_ = kButtonFace;
  bool enabled_ = true;
  bool userMode_ = true;
};

}  // namespace sifter
