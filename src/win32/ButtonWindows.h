#pragma once

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Frame.h"
#include "win32/ControlWindow.h"

namespace sifter {

// The three kinds of control that the system's button class shows.

class CommandButtonWindow final : public ControlWindow {
 public:
  CommandButtonWindow(ControlHost& host, CommandButton& button);
  void Mirror() override;
  void Update(ControlProperty property) override;
  void OnCommand(WORD code) override;
  bool OnKey(WPARAM key) override;

 private:
  CommandButton& button_;
};

class CheckBoxWindow final : public ControlWindow {
 public:
  CheckBoxWindow(ControlHost& host, CheckBox& box);
  void Mirror() override;
  void Update(ControlProperty property) override;
  void OnCommand(WORD code) override;

 private:
  CheckBox& box_;
};

class FrameWindow final : public ControlWindow {
 public:
  FrameWindow(ControlHost& host, Frame& frame);
  void Mirror() override;
  void Update(ControlProperty property) override;
  bool TakesFocus() const override { return false; }

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  Frame& frame_;
};

}  // namespace sifter
