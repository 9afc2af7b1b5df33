#pragma once

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

namespace hosts {

// Finding one's way among the windows of another program, as somebody who looks at the screen.
// What isn't there within ten seconds throws Failure.

std::wstring ClassOf(HWND window);
std::wstring CaptionOf(HWND window);

HWND WaitForWindow(const std::wstring& windowClass);
// A visible window somewhere inside `window`.
HWND WaitForChild(HWND window, const std::wstring& windowClass, const std::wstring& caption);
// All that are visible, in no order.
std::vector<HWND> ChildrenOf(HWND window);

void WaitUntil(const std::function<bool()>& holds, const std::wstring& what);

// Until the window and everything inside it has been painted.
void WaitUntilPainted(HWND window);

}  // namespace hosts
