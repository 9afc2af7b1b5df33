#include "demo/FolderEntry.h"

#include "container/Failure.h"
#include "demo/FileWords.h"

#include <algorithm>
#include <windows.h>

namespace hosts {

namespace {

int CompareNames(const std::wstring& a, const std::wstring& b) {
  const int ignoringCase = CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE) - CSTR_EQUAL;
  return ignoringCase != 0 ? ignoringCase : a.compare(b);
}

FolderEntry EntryOf(const WIN32_FIND_DATAW& found) {
  FolderEntry entry;
  entry.name = found.cFileName;
  entry.isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  const FileKind kind = KindOf(entry.name, found.dwFileAttributes);
  entry.type = kind.name;
  entry.icon = kind.icon;
  if (!entry.isFolder)
    entry.size = std::to_wstring((static_cast<unsigned long long>(found.nFileSizeHigh) << 32) |
                                 found.nFileSizeLow);
  entry.modified = TimeInWords(found.ftLastWriteTime);
  entry.attributes = AttributesInWords(found.dwFileAttributes);
  return entry;
}

struct Search {
  explicit Search(const std::wstring& pattern, WIN32_FIND_DATAW& found)
      : handle(FindFirstFileW(pattern.c_str(), &found)) {}
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;
  ~Search() {
    if (handle != INVALID_HANDLE_VALUE) FindClose(handle);
  }
  const HANDLE handle;
};

}  // namespace

bool ComesBefore(const FolderEntry& a, const FolderEntry& b) {
  if (a.isFolder != b.isFolder) return a.isFolder;
  return CompareNames(a.name, b.name) < 0;
}

std::vector<FolderEntry> ReadFolder(const std::wstring& folder) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAW found;
  const Search search(folder + L"\\*", found);
  if (search.handle == INVALID_HANDLE_VALUE) {
    // The root of an empty drive has not even the two entries below.
    if (GetLastError() == ERROR_FILE_NOT_FOUND) return entries;
    ThrowLastError(L"Reading " + folder);
  }
  do {
    const std::wstring_view name(found.cFileName);
    if (name != L"." && name != L"..") entries.push_back(EntryOf(found));
  } while (FindNextFileW(search.handle, &found));
  if (GetLastError() != ERROR_NO_MORE_FILES) ThrowLastError(L"Reading " + folder);
  std::sort(entries.begin(), entries.end(), ComesBefore);
  return entries;
}

}  // namespace hosts
