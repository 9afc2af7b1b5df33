#pragma once

#include "base/Text.h"
#include "forms/Control.h"
#include "win32/FormMeasures.h"

#include <windows.h>

namespace sifter {

class ControlWindow;

// The window that controls stand on, as the windows of those controls see it.
class ControlHost {
 public:
  virtual HWND Handle() const = 0;
  virtual const FormMeasures& Measures() const = 0;

  // The control that `window` or one of its parents shows, or null.
  virtual ControlWindow* Find(HWND window) const = 0;
  virtual ControlWindow* Find(const Control& control) const = 0;

  // Where the stable numbers of controls and accessible names come from.
  virtual int IdOf(const Control& control) const = 0;
  virtual Text AccessibleNameOf(const Control& control) const = 0;

  // The focus has come to a control, or leaves one for another window (null: of another thread).
  virtual void FocusCame(ControlWindow& control) = 0;
  virtual void FocusLeaves(HWND) {}

 protected:
  ControlHost() = default;
  ~ControlHost() = default;
  ControlHost(const ControlHost&) = default;
  ControlHost& operator=(const ControlHost&) = default;
};

}  // namespace sifter
