#pragma once

#include "support/Printers.h"
#include "win32/WideText.h"

#include <string>
#include <string_view>
#include <windows.h>

namespace sifter {

// The message box that a thread has on the screen, as its user sees it.

namespace detail {

inline BOOL CALLBACK TakeMessageBox(HWND window, LPARAM result) {
  wchar_t name[16];
  GetClassNameW(window, name, 16);
  if (std::wstring_view(name) != L"#32770" || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(result) = window;
  return FALSE;
}

}  // namespace detail

// Null when there is none.
inline HWND FindMessageBox() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), detail::TakeMessageBox, reinterpret_cast<LPARAM>(&found));
  return found;
}

// "Error" ! "Error number is 6, Overflow"
//
// Title, "!" for an exclamation mark or "?" for any other icon, text and, unless there is just OK,
// the captions of the buttons.
inline std::string DescribeMessageBox(HWND box) {
  std::string icon;
  std::string text;
  std::string buttons;
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (!IsWindowVisible(child)) continue;
    wchar_t kind[16];
    GetClassNameW(child, kind, 16);
    if (std::wstring_view(kind) == L"Button") {
      buttons += ' ' + WindowText(child).ToUtf8();
    } else if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
      // A box without an icon may have an empty place for one.
      const auto picture = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
      if (picture != nullptr) icon = picture == LoadIconW(nullptr, IDI_EXCLAMATION) ? " !" : " ?";
    } else {
      text = Quoted(WindowText(child));
    }
  }
  if (buttons == " OK") buttons.clear();
  return Quoted(WindowText(box)) + icon + ' ' + text + buttons;
}

}  // namespace sifter
