#include "user/Hands.h"

namespace hosts {

namespace {

void SendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

void SendKey(WORD key, WORD unit, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = unit;
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

}  // namespace

void ClickAt(POINT onScreen) {
  SetCursorPos(onScreen.x, onScreen.y);
  SendMouse(MOUSEEVENTF_MOVE);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  SendMouse(MOUSEEVENTF_LEFTUP);
}

void Click(HWND window) {
  RECT box{};
  GetWindowRect(window, &box);
  ClickAt({(box.left + box.right) / 2, (box.top + box.bottom) / 2});
}

void Press(WORD key) {
  SendKey(key, 0, 0);
  SendKey(key, 0, KEYEVENTF_KEYUP);
}

void PressWithAlt(WORD key) {
  SendKey(VK_MENU, 0, 0);
  Press(key);
  SendKey(VK_MENU, 0, KEYEVENTF_KEYUP);
}

void Type(const std::wstring& text) {
  for (const wchar_t unit : text) {
    SendKey(0, unit, KEYEVENTF_UNICODE);
    SendKey(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }
}

}  // namespace hosts
