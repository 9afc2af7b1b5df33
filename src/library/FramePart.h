#pragma once

#include "library/ComPart.h"

namespace sifter {

class ControlFrame;

// An interface of a control's frame.
template <class Interface>
class FramePart : public ComPart<Interface> {
 public:
  // `frame` has the part, and `whole` is its identity.
  FramePart(ControlFrame& frame, IUnknown& whole) noexcept
      : ComPart<Interface>(whole), frame_(frame) {}

 protected:
  ControlFrame& Frame() const noexcept { return frame_; }

 private:
  ControlFrame& frame_;
};

}  // namespace sifter
