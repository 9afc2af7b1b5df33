#pragma once

#include "forms/Control.h"

namespace sifter {

// A level line that separates parts of the form; its height is its thickness. It takes no focus.
class Line final : public Control {
 public:
  Line(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kLine, std::move(name), kNoIndex) {}
};

}  // namespace sifter
