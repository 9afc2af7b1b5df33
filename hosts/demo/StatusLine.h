#pragma once

#include <deque>
#include <string>
#include <windows.h>

namespace hosts {

// The line at the bottom of the window: how many rows there are, what the control was told and what
// it raised, latest last, and a note of the program's own.
class StatusLine {
 public:
  // The window is a child of `parent`, which destroys it.
  StatusLine(HWND parent, int id);

  HWND Window() const { return window_; }
  int Height() const;
  void Layout();

  void ShowCount(int shown, int total);
  void AddEvent(std::wstring event);
  void ShowNote(const std::wstring& note);

 private:
  void SetPart(int part, const std::wstring& text);

  HWND window_;
  std::deque<std::wstring> events_;
};

}  // namespace hosts
