#pragma once

#include "controls/Container.h"
#include "support/Recorder.h"

#include <cstdint>
#include <optional>

namespace sifter {

// A host's form that has the colour that the test wants, and records when it is asked for it:
//
//   ambient back colour
class ContainerFake final : public Container {
 public:
  explicit ContainerFake(Recorder& recorder) : recorder_(recorder) {}

  std::optional<std::int32_t> backColor;

  std::optional<std::int32_t> AmbientBackColor() const override {
    recorder_.Line("ambient back colour");
    return backColor;
  }

 private:
  Recorder& recorder_;
};

}  // namespace sifter
