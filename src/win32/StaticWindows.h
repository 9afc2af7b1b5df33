#pragma once

#include "forms/Image.h"
#include "forms/Line.h"
#include "win32/ControlWindow.h"

namespace sifter {

// The kinds of control that only stand there.

// The application's icon; a form's picture by any other name is shown as that too.
class ImageWindow final : public ControlWindow {
 public:
  ImageWindow(ControlHost& host, Image& image);
  void Mirror() override;
  void Update(ControlProperty) override {}
  bool TakesFocus() const override { return false; }
};

class LineWindow final : public ControlWindow {
 public:
  LineWindow(ControlHost& host, Line& line);
  void Mirror() override {}
  void Update(ControlProperty) override {}
  bool TakesFocus() const override { return false; }
};

}  // namespace sifter
