#pragma once

#include <string>
#include <windows.h>

namespace hosts {

// A top-level window of a program's own, of a class of its own. What goes wrong while it handles a
// message is told in a box. Who derives from it destroys the window while it can still handle
// messages.
class TopWindow {
 public:
  TopWindow(const TopWindow&) = delete;
  TopWindow& operator=(const TopWindow&) = delete;

  // Null once the user has closed it.
  HWND Window() const { return window_; }

 protected:
  struct Look {
    const wchar_t* windowClass;
    const wchar_t* program;  // over the boxes
    int menu = 0;            // the number of the resource; 0 for none
  };

  TopWindow() = default;
  ~TopWindow() = default;

  // Hidden, and where the system puts it. Messages arrive from here on.
  void Make(const Look& look, const std::wstring& caption);

  virtual LRESULT Handle(UINT message, WPARAM wide, LPARAM wider) = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider);
  static TopWindow* OwnerOf(HWND window, UINT message, LPARAM wider);

  HWND window_ = nullptr;
  const wchar_t* program_ = L"";
};

}  // namespace hosts
