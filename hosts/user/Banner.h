#pragma once

#include <functional>
#include <string>
#include <windows.h>

namespace hosts {

// The strip with the filter button and the count of rows, in another program's window.

// The windows of its buttons.
HWND FilterButtonOf(HWND window);
HWND HostButtonOf(HWND window);

// What it says.
std::wstring BannerCaptionOf(HWND window);

// Waits until it says so. `said` is told what it says meanwhile, each text once, this one last.
void WaitForBannerCaption(HWND window, const std::wstring& caption,
                          const std::function<void(const std::wstring& caption)>& said = {});

}  // namespace hosts
