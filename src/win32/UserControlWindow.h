#pragma once

#include "forms/UserControl.h"
#include "win32/ControlHost.h"
#include "win32/ControlWindow.h"
#include "win32/FormMeasures.h"
#include "win32/ToolTips.h"
#include "win32/UniqueGdi.h"
#include "win32/UniqueWindow.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>
#include <windows.h>

namespace sifter {

// What the window of a control tells whoever has placed the control on a form.
class UserControlSite {
 public:
  virtual ~UserControlSite() = default;

  // Runs what the user has done to the control, or lets it be when it doesn't answer to the user.
  // The work may end the control and its window, which must live until it is over.
  virtual void Run(const std::function<void()>& work) = 0;

  // Runs other work that may end the control; it must live until that is over.
  virtual void Keep(const std::function<void()>& work) = 0;

  // The focus has come to the control, or goes to a window outside of it.
  virtual void FocusCame() = 0;
  virtual void FocusWent() = 0;
};

// The window of a control on a host's form, with a system window for each of the controls that
// stand on it. It is a child of the host's window. How the Tab key comes to it is the host's
// business, so neither it nor the windows in it are tab stops or begin groups.
class UserControlWindow final : public ControlHost, private ControlWatcher {
 public:
  // `control` and `site` must outlive the window. `box` is in pixels of `parent`. Error 5 when
  // `parent` is no window.
  UserControlWindow(UserControl& control, UserControlSite& site, HWND parent, const RECT& box);
  ~UserControlWindow();

  // Null once the window has been destroyed together with its parent.
  HWND Handle() const override { return window_.Get(); }

  // In pixels of the parent. What is outside of `visible` is not drawn.
  void Place(const RECT& box, const RECT& visible);

  // Gives the focus to the first control that takes it, or to the last one when the user has come
  // with Shift+Tab.
  void TakeFocus();

  // Deals with a key that goes down while the control has the focus, if it is one of its own. Tab
  // and the arrow keys are, as long as they lead to another control in here.
  bool TranslateKey(const MSG& message);

  // Draws the frame around buttons that tells what Enter presses.
  void ShowAsDefault(bool isDefault);

  const FormMeasures& Measures() const override { return *measures_; }
  ControlWindow* Find(HWND window) const override;
  ControlWindow* Find(const Control& control) const override;
  int IdOf(const Control& control) const override;
  Text AccessibleNameOf(const Control&) const override { return Text(); }
  void FocusCame(ControlWindow& control) override;
  void FocusLeaves(HWND next) override;

  // Before the module that this code is part of is unloaded; the window class goes.
  static void ForgetWindowClass() noexcept;

 private:
  void OnControlAdded(Control&) override {}
  void OnControlRemoved(Control& control) override;
  void OnPropertyChanged(Control& control, ControlProperty property) override;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void OnDestroy();
  void OnSize();
  void OnNewDpi();

  void Fill();
  void LetGo();
  void MakeControl(Control& control);
  void Place(ControlWindow& control) const;
  void Enable();
  void Enable(ControlWindow& control) const;
  void TakeBackColor();
  std::vector<const ControlWindow*> TabStops() const;
  bool MoveFocus(const ControlWindow& from, WPARAM key, int step);

  UserControl& control_;
  UserControlSite& site_;
  UniqueWindow window_;
  std::optional<FormMeasures> measures_;
  UniqueBrush background_;
  std::optional<ToolTips> tips_;
  std::map<const Control*, std::unique_ptr<ControlWindow>> controls_;
};

// A colour of the user's desktop (0x80000000 + number) or 0x00BBGGRR, as a colour.
COLORREF ColorOf(std::int32_t color);

}  // namespace sifter
