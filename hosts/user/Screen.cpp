#include "user/Screen.h"

#include "container/Failure.h"

#include <algorithm>

namespace hosts {

namespace {

constexpr ULONGLONG kPatienceMilliseconds = 10'000;
constexpr DWORD kBetweenLooksMilliseconds = 10;

struct Search {
  const std::wstring& windowClass;
  HWND found;
};

BOOL CALLBACK IsOfClass(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (!IsWindowVisible(window) || ClassOf(window) != search.windowClass) return TRUE;
  search.found = window;
  return FALSE;
}

BOOL CALLBACK AddVisible(HWND window, LPARAM windows) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

bool WantsPaint(HWND window) { return GetUpdateRect(window, nullptr, FALSE) != FALSE; }

}  // namespace

std::wstring ClassOf(HWND window) {
  wchar_t name[256] = L"";
  GetClassNameW(window, name, 256);
  return name;
}

std::wstring CaptionOf(HWND window) {
  // Asking the window itself; GetWindowText reads no texts of controls in other programs.
  wchar_t text[1024] = L"";
  SendMessageW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
  return text;
}

void WaitUntil(const std::function<bool()>& holds, const std::wstring& what) {
  const ULONGLONG latest = GetTickCount64() + kPatienceMilliseconds;
  while (!holds()) {
    if (GetTickCount64() > latest) throw Failure(L"Waited in vain: " + what);
    Sleep(kBetweenLooksMilliseconds);
  }
}

HWND WaitForWindow(const std::wstring& windowClass) {
  Search search{windowClass, nullptr};
  WaitUntil(
      [&] {
        EnumWindows(IsOfClass, reinterpret_cast<LPARAM>(&search));
        return search.found != nullptr;
      },
      L"for a window of class " + windowClass);
  return search.found;
}

std::vector<HWND> ChildrenOf(HWND window) {
  std::vector<HWND> children;
  EnumChildWindows(window, AddVisible, reinterpret_cast<LPARAM>(&children));
  return children;
}

HWND WaitForChild(HWND window, const std::wstring& windowClass, const std::wstring& caption) {
  HWND child = nullptr;
  WaitUntil(
      [&] {
        for (const HWND candidate : ChildrenOf(window))
          if (lstrcmpiW(ClassOf(candidate).c_str(), windowClass.c_str()) == 0 &&
              CaptionOf(candidate) == caption)
            child = candidate;
        return child != nullptr;
      },
      L"for \"" + caption + L"\" in a window");
  return child;
}

void WaitUntilPainted(HWND window) {
  WaitUntil(
      [&] {
        const auto children = ChildrenOf(window);
        return !WantsPaint(window) && std::none_of(children.begin(), children.end(), WantsPaint);
      },
      L"for a window to be painted");
}

}  // namespace hosts
