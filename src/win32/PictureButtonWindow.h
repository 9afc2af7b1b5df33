#pragma once

#include "forms/PictureButton.h"
#include "win32/ControlWindow.h"

namespace sifter {

// A push button with a picture on it. Its window text is its accessible name and is never drawn.
class PictureButtonWindow final : public ControlWindow {
 public:
  PictureButtonWindow(ControlHost& host, PictureButton& button);

  void Mirror() override;
  void Update(ControlProperty property) override;
  void OnCommand(WORD code) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;
  bool OnKey(WPARAM key) override;

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  PictureButton& button_;
};

}  // namespace sifter
