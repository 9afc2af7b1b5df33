#pragma once

#include "forms/Label.h"
#include "win32/ControlWindow.h"
#include "win32/UniqueGdi.h"

namespace sifter {

// A label, in a font of its own if it has one. One that is draggable can be dragged with the mouse
// onto another control of the form; Escape ends the dragging.
class LabelWindow final : public ControlWindow {
 public:
  LabelWindow(ControlHost& host, Label& label);

  void Mirror() override;
  void Update(ControlProperty property) override;
  void Place(const RECT& box) override;
  void TakeFont() override;
  bool TakesFocus() const override { return false; }

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void FollowMouse(POINT at);
  void Drop(POINT at);
  ControlWindow* TargetAt(POINT at) const;

  Label& label_;
  UniqueFont ownFont_;
  bool pressed_ = false;
  bool dragging_ = false;
  POINT pressedAt_{};
};

}  // namespace sifter
