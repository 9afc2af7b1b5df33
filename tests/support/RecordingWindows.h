#pragma once

#include "support/MemoryWindowSystem.h"
#include "support/Recorder.h"

#include <cstdint>
#include <string>

namespace sifter {

// Windows in memory that record what is done to their procedures and who gets the focus:
//
//   read procedure of 101
//   101 gets the replacement
//   101 gets its own back
class RecordingWindows final : public MemoryWindowSystem {
 public:
  explicit RecordingWindows(Recorder& recorder) : recorder_(recorder) {}

  Procedure WindowProcedure(std::int32_t window) const override {
    recorder_.Line("read procedure of " + std::to_string(window));
    return MemoryWindowSystem::WindowProcedure(window);
  }

  void SetWindowProcedure(std::int32_t window, Procedure procedure) override {
    recorder_.Line(std::to_string(window) +
                   (procedure == kReplacement ? " gets the replacement" : " gets its own back"));
    MemoryWindowSystem::SetWindowProcedure(window, procedure);
  }

  void SetFocus(std::int32_t window) override {
    recorder_.Line("focus to " + std::to_string(window));
    MemoryWindowSystem::SetFocus(window);
  }

 private:
  Recorder& recorder_;
};

}  // namespace sifter
