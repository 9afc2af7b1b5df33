#include "demo/Clipboard.h"

#include "container/Failure.h"

#include <cstring>

namespace hosts {

namespace {

struct OpenClipboardScope {
  explicit OpenClipboardScope(HWND owner) {
    if (!OpenClipboard(owner)) ThrowLastError(L"Opening the clipboard");
  }
  OpenClipboardScope(const OpenClipboardScope&) = delete;
  OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
  ~OpenClipboardScope() { CloseClipboard(); }
};

// In memory of the kind that the clipboard takes.
HGLOBAL MovableCopy(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory == nullptr) ThrowLastError(L"Copying");
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

void CopyToClipboard(HWND owner, const std::wstring& text) {
  const OpenClipboardScope open(owner);
  EmptyClipboard();
  const HGLOBAL memory = MovableCopy(text);
  if (SetClipboardData(CF_UNICODETEXT, memory) != nullptr) return;  // it is the system's now
  const DWORD error = GetLastError();
  GlobalFree(memory);
  SetLastError(error);
  ThrowLastError(L"Copying");
}

}  // namespace hosts
