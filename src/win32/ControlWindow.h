#pragma once

#include "forms/Control.h"

#include <memory>
#include <windows.h>

namespace sifter {

class ControlHost;

// The system window that shows one control of a form: takes on the control's properties and passes
// on what the user does to it.
class ControlWindow {
 public:
  // The window for the kind of control, or null for kinds that have none.
  static std::unique_ptr<ControlWindow> For(ControlHost& host, Control& control);

  virtual ~ControlWindow();
  ControlWindow(const ControlWindow&) = delete;
  ControlWindow& operator=(const ControlWindow&) = delete;

  HWND Handle() const { return window_; }
  Control& Shown() const { return control_; }

  // Takes over the whole state of the control, once after the window was made.
  virtual void Mirror() = 0;
  // Writes in the form's font, or in one of its own.
  virtual void TakeFont();

  // Takes over a property that has changed. Place and visibility are the form's to see to.
  virtual void Update(ControlProperty property) = 0;

  // What the window reports to the form.
  virtual void OnCommand(WORD) {}
  virtual LRESULT OnNotify(NMHDR&) { return 0; }
  virtual void OnDraw(const DRAWITEMSTRUCT&) {}

  // A key goes down while the control has the focus. True when it has been dealt with.
  virtual bool OnKey(WPARAM key);

  // Whether the Tab key stops here.
  virtual bool TakesFocus() const { return true; }

  // Whether the mouse wheel is its own at the moment, and not the form's.
  virtual bool TakesWheel() const { return false; }

  void UpdateAccessibleName();

  // Stands behind `previous` in the order of the windows, its accessible name in between.
  void Follow(HWND previous);

  // Becomes a child of another window of the form.
  void MoveInto(HWND parent);

  HWND FirstWindow() const { return accessibleName_ != nullptr ? accessibleName_ : window_; }

  // The control's box in pixels from where it is placed; a list that drops down is not part of it.
  virtual void Place(const RECT& box);

 protected:
  ControlWindow(ControlHost& host, Control& control, const wchar_t* windowClass, DWORD style,
                DWORD extendedStyle = 0);

  // Messages of the window itself. The default passes them on.
  virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

  ControlHost& Host() const { return host_; }
  void ShowText(TextView text) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self);

  ControlHost& host_;
  Control& control_;
  HWND window_;
  HWND accessibleName_ = nullptr;
};

}  // namespace sifter
