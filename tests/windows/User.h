#pragma once

#include "base/Text.h"

#include <functional>
#include <vector>
#include <windows.h>

namespace sifter {

// A user at the keyboard and the mouse, whose doings arrive as the system's own input.
//
// What the user does is written as one function. It runs while a message loop of this thread runs,
// the dialog's, a message box's or PumpUntilDone's, on a stack of its own: after every action it
// waits until the loop has nothing left to do and then goes on.
class User {
 public:
  User();
  ~User();
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  // From the next idle moment on. One script at a time.
  void Does(std::function<void()> script);
  bool IsDone() const { return !script_; }
  // Runs a message loop until the script has ended.
  void PumpUntilDone();

  // For scripts. All keys go down in turn and up again in the opposite order.
  void Presses(const std::vector<int>& keys);
  void Presses(int key) { Presses(std::vector<int>{key}); }
  void Types(TextView text);
  void ClicksAt(POINT onScreen);
  void Clicks(HWND window);  // its middle
  void TurnsWheel(POINT onScreen, int notches);
  // In single steps, for what happens in between.
  void MovesTo(POINT onScreen);
  void HoldsButton();
  void LetsButtonGo();

  // Waits until nothing is left to do.
  void Rests();
  // Waits until `holds`; fails the test when that doesn't come true in ten seconds.
  void WaitsFor(const std::function<bool()>& holds);

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
  static void CALLBACK Live(void* self);
  void SendKey(WORD key, WORD unit, DWORD flags);
  void SendMouse(DWORD flags, DWORD data = 0);

  std::function<void()> script_;
  void* thread_;
  void* own_;
  bool acting_ = false;  // the user's stack is the one that runs
  UINT_PTR timer_ = 0;
};

// The middle of a window, on the screen.
POINT MiddleOf(HWND window);

}  // namespace sifter
