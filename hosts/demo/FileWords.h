#pragma once

#include <string>
#include <windows.h>

namespace hosts {

struct FileKind {
  std::wstring name;  // as the system calls such files
  int icon = 0;
};

// Goes by the name's extension; the file itself is not opened.
FileKind KindOf(const std::wstring& name, DWORD attributes);

// Lends a list view the system's small icons.
void UseSystemIcons(HWND listView);

// In the user's zone and in the short form of the user's locale.
std::wstring TimeInWords(const FILETIME& time);

// A letter for each attribute: "RHA" for one that is read-only, hidden and to be archived.
std::wstring AttributesInWords(DWORD attributes);

}  // namespace hosts
