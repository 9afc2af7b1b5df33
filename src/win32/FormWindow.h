#pragma once

#include "forms/ControlParent.h"
#include "forms/Form.h"
#include "win32/ControlHost.h"
#include "win32/ControlWindow.h"
#include "win32/FormMeasures.h"

#include <map>
#include <memory>
#include <vector>
#include <windows.h>

namespace sifter {

// The window that shows one form, with a system window for each control. It is made when the form
// is first shown and lives until the form ends; hiding only hides it.
//
// The window is never larger than the work area of its monitor; a form that is gets a scroll bar,
// and the control with the focus is kept in view.
class FormWindow final : public ControlWatcher, public ControlHost {
 public:
  explicit FormWindow(Form& form);
  ~FormWindow() override;

  // Null once the window has been destroyed together with its owner.
  HWND Handle() const override { return window_; }
  const FormMeasures& Measures() const override { return measures_; }

  // Puts the window on the screen, owned by `owner` (the host's). Without one (null) it stands on
  // its own, and outlives the host's windows.
  void Show(HWND owner);
  void Hide();
  bool IsShown() const { return shown_; }

  // The windows that wait for a form that is shown modally.
  enum class Waiting { kOwners, kThread };

  // Runs messages until the form is no longer visible, with its owner disabled. Without an owner
  // all the windows of the thread are.
  void RunModal(HWND owner, Waiting waiting = Waiting::kOwners);

  // Deals with what the keyboard does in a dialog: Tab, Enter, arrows, Alt and a letter. True when
  // the message needs no further treatment.
  bool TranslateKey(MSG& message);

  void FocusOn(Control& control);

  ControlWindow* Find(HWND window) const override;
  ControlWindow* Find(const Control& control) const override;
  int IdOf(const Control& control) const override;
  Text AccessibleNameOf(const Control& control) const override;
  void FocusCame(ControlWindow& control) override;

  // Before the module that this code is part of is unloaded; the window class goes.
  static void ForgetWindowClass() noexcept;

 private:
  void OnControlAdded(Control& control) override;
  void OnControlRemoved(Control& control) override;
  void OnPropertyChanged(Control& control, ControlProperty property) override;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void OnActivate(WPARAM wParam);
  void OnScroll(WPARAM wParam);
  void OnNewSurroundings();
  void OnDestroy();

  void MakeControl(Control& control);
  void CompleteSoon();
  void Complete();
  void Place(ControlWindow& control);
  void PlaceInPicker(ControlWindow& control, ControlWindow& picker);
  void ShowOrHide(ControlWindow& control);
  void Resize();
  void EnableOwners();
  void DisableThread();
  void ScrollTo(int offset);
  void ScrollIntoView(HWND window);
  void MoveFocus(bool backwards);
  bool PressMnemonic(WPARAM letter);
  std::vector<HWND> TabStops() const;

  Form& form_;
  FormMeasures measures_;
  HWND window_ = nullptr;
  HWND behind_ = nullptr;       // its owner, or the window that was active when the form came
  std::vector<HWND> disabled_;  // while the form is shown modally
  HWND focusBefore_ = nullptr;  // where the focus was before the form came
  HWND lastFocus_ = nullptr;
  bool shown_ = false;
  bool completing_ = false;  // Complete() is on its way
  int scroll_ = 0;           // pixels that the content has been moved up
  int contentHeight_ = 0;    // pixels
  std::map<const Control*, std::unique_ptr<ControlWindow>> controls_;
};

}  // namespace sifter
