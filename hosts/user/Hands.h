#pragma once

#include <string>
#include <windows.h>

namespace hosts {

// Mouse and keyboard, as the system's own input.

void Click(HWND window);  // its middle
void ClickAt(POINT onScreen);
void Press(WORD key);
void PressWithAlt(WORD key);
void Type(const std::wstring& text);

}  // namespace hosts
