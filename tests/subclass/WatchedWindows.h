#pragma once

#include "subclass/HookClass.h"
#include "support/HeadlessFormHost.h"
#include "support/Recorder.h"
#include "support/RecordingWindows.h"
#include "support/VersionInfoFake.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

namespace sifter {

inline std::string Parameters(std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam) {
  return std::to_string(message) + ' ' + std::to_string(wParam) + ' ' + std::to_string(lParam);
}

// Windows whose own procedures record what they are called with, "101 own: 4103 5 6", and hooks
// that record what they hear, "A hears 4103 5 6".
class WatchedWindowsTest : public testing::Test {
 protected:
  // What an own procedure answers.
  static constexpr std::intptr_t kAnswer = 77;

  Recorder recorder;
  HeadlessFormHost forms{recorder};
  VersionInfoFake version;
  RecordingWindows windows{recorder};
  WinProc& table = windows.Watched();

  // A window. `work` is what its own procedure does besides.
  std::int32_t Window(std::function<void(std::uint32_t message)> work = {}) {
    return windows.Open([this, work = std::move(work)](std::int32_t window, std::uint32_t message,
                                                       std::intptr_t wParam, std::intptr_t lParam) {
      recorder.Line(std::to_string(window) + " own: " + Parameters(message, wParam, lParam));
      if (work) work(message);
      return kAnswer;
    });
  }

  AboutServices About() { return {forms, version}; }

  // Watches no window yet.
  struct Listener : HookClass {
    // `work` is what it does when it hears a message.
    Listener(WatchedWindowsTest& test, std::string name,
             std::initializer_list<std::uint32_t> messages,
             std::function<void(std::uint32_t message)> work = {})
        : HookClass(test.table, test.About()) {
      for (const std::uint32_t message : messages) SetMessages(message, true);
      WndProc = [&recorder = test.recorder, name = std::move(name), work = std::move(work)](
                    std::uint32_t message, std::int32_t wParam, std::int32_t lParam,
                    std::int32_t&) {
        recorder.Line(name + " hears " + Parameters(message, wParam, lParam));
        if (work) work(message);
      };
    }
  };
};

}  // namespace sifter
