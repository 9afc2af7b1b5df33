#pragma once

#include "forms/TextBox.h"
#include "win32/ControlWindow.h"
#include "win32/UniqueGdi.h"

namespace sifter {

// A text box. One that is embedded in a date picker shows the picker's date behind its text for as
// long as that is empty.
class TextBoxWindow final : public ControlWindow {
 public:
  TextBoxWindow(ControlHost& host, TextBox& box);

  void Mirror() override;
  void Update(ControlProperty property) override;
  void OnCommand(WORD code) override;
  void Place(const RECT& box) override;

  // The background that the box asks for; null for the window colour.
  HBRUSH Background(HDC dc);

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void TakeEdit();
  void PaintPickerDate();
  bool IsOverlay() const;

  TextBox& box_;
  UniqueBrush background_;
};

}  // namespace sifter
