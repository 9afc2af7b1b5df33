#include "win32/NativeListView.h"

#include "base/RuntimeError.h"
#include "listmodel/MemoryListView.h"
#include "win32/NativeListViewDisplay.h"
#include "win32/mListviewMacros_471.h"

#include <memory>
#include <string_view>
#include <utility>

namespace sifter {

namespace {

bool HasClass(HWND window, std::wstring_view name) {
  wchar_t buffer[32]{};
  return GetClassNameW(window, buffer, static_cast<int>(std::size(buffer))) > 0 && name == buffer;
}

// Toolkits register classes of their own over the system's; those are known by their header.
bool IsListView(HWND window) {
  return HasClass(window, WC_LISTVIEWW) || HasClass(listview::Header(window), WC_HEADERW);
}

bool IsUsable(HWND window) {
  if (GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return false;
  if (!IsListView(window) || (listview::Style(window) & listview::kOwnerData) != 0) return false;
  const HWND parent = GetAncestor(window, GA_PARENT);
  return parent != nullptr && parent != GetDesktopWindow() &&
         GetWindowThreadProcessId(parent, nullptr) == GetCurrentThreadId();
}

NativeListViewDisplay& Opened(HWND window) {
  if (NativeListViewDisplay* display = NativeListViewDisplay::Of(window)) return *display;
  if (!IsUsable(window)) throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  const Ref<MemoryListView> list = MakeRef<MemoryListView>();
  auto made = std::make_unique<NativeListViewDisplay>(window, *list);
  NativeListViewDisplay& display = *made;
  list->SetDisplay(std::move(made));
  display.Open();
  return display;
}

}  // namespace

Ref<HostListView> NativeListView(HWND window) { return Ref<HostListView>(&Opened(window).List()); }

}  // namespace sifter
