#pragma once

#include <string>
#include <windows.h>

namespace hosts {

// Puts a text on the clipboard. Throws Failure when another program has it open.
void CopyToClipboard(HWND owner, const std::wstring& text);

}  // namespace hosts
