#pragma once

#include <string>
#include <vector>
#include <windows.h>

namespace hosts {

// The texts of the first column of a list view in another program of the same bitness.
std::vector<std::wstring> RowsOf(HWND listView);

// The texts of another program's status line.
std::vector<std::wstring> PartsOf(HWND statusLine);

}  // namespace hosts
