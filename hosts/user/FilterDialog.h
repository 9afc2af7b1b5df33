#pragma once

#include <string>
#include <windows.h>

namespace hosts {

// The filter dialog of another program, for somebody who uses it.
class FilterDialog {
 public:
  // The one that is on the screen.
  FilterDialog();

  HWND Window() const { return window_; }

  // Picks the operator in a column's line and types the text into the field that comes up for it.
  void Choose(const std::wstring& column, const std::wstring& word, const std::wstring& text);
  // A button, and waits until the dialog has gone.
  void Leave(const std::wstring& button);

 private:
  // The window of a class, in the line of a column and right of `left`.
  HWND InLine(const std::wstring& column, const std::wstring& windowClass, LONG left);

  HWND window_;
};

}  // namespace hosts
