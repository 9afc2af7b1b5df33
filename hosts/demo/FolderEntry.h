#pragma once

#include <string>
#include <vector>

namespace hosts {

// A row of the list: a file or a folder, in words.
struct FolderEntry {
  std::wstring name;
  std::wstring type;
  std::wstring size;  // in bytes, without separators, so that it counts as a number; "" for folders
  std::wstring modified;
  std::wstring attributes;
  int icon = 0;  // in the system's list of small icons
  bool isFolder = false;

  bool operator==(const FolderEntry&) const = default;
};

// The order of the rows: folders first, then by name without regard to case.
bool ComesBefore(const FolderEntry& a, const FolderEntry& b);

// All entries of a folder, in order. Throws Failure when it can't be read.
std::vector<FolderEntry> ReadFolder(const std::wstring& folder);

}  // namespace hosts
