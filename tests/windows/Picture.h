#pragma once

#include <string>
#include <vector>
#include <windows.h>

namespace sifter {

// Saves what a window shows, as build/<preset>/pictures/<name>.png. Fails the test when it can't.
void SavePicture(HWND window, const std::string& name);

// The colours of a part of a window, 0x00RRGGBB, row by row; `area` is in pixels from its corner.
std::vector<COLORREF> Pixels(HWND window, const RECT& area);

}  // namespace sifter
