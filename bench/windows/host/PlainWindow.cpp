#include "host/PlainWindow.h"

#include <commctrl.h>

namespace sifter::bench {

double Milliseconds() {
  LARGE_INTEGER frequency, counter;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&counter);
  return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double ThreadMilliseconds() {
  FILETIME created, ended, kernel, user;
  GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
  const auto ticks = [](const FILETIME& time) {
    return 4294967296.0 * time.dwHighDateTime + time.dwLowDateTime;
  };
  return (ticks(kernel) + ticks(user)) / 10000;
}

PlainWindow::PlainWindow(HWND parent, const HostTable& table, TextsBy texts)
    : window_(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 780,
                              560, parent, nullptr, GetModuleHandleW(nullptr), nullptr)),
      table_(table),
      texts_(texts) {
  for (std::size_t i = 0; i < table.captions.size(); ++i) {
    std::wstring caption = table.captions[i];
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = caption.data();
    column.cx = 70;
    SendMessageW(window_, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
}

PlainWindow::~PlainWindow() { DestroyWindow(window_); }

void PlainWindow::InsertRows() {
  SendMessageW(window_, LVM_SETITEMCOUNT, table_.rows.size(), 0);
  for (std::size_t row = 0; row < table_.rows.size(); ++row) {
    const std::vector<std::wstring>& texts = table_.rows[row];
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = static_cast<int>(row);
    item.pszText = texts_ == TextsBy::kCallbacks ? LPSTR_TEXTCALLBACKW
                                                 : const_cast<wchar_t*>(texts[0].c_str());
    SendMessageW(window_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    if (texts_ == TextsBy::kCallbacks) continue;
    for (std::size_t column = 1; column < texts.size(); ++column) {
      LVITEMW cell{};
      cell.iSubItem = static_cast<int>(column);
      cell.pszText = const_cast<wchar_t*>(texts[column].c_str());
      SendMessageW(window_, LVM_SETITEMTEXTW, row, reinterpret_cast<LPARAM>(&cell));
    }
  }
}

void PlainWindow::Refill() {
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  SendMessageW(window_, LVM_DELETEALLITEMS, 0, 0);
  InsertRows();
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
}

double PlainWindow::Apply(const std::vector<std::int32_t>& failing) {
  const double before = Milliseconds();
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  SendMessageW(window_, LVM_DELETEALLITEMS, 0, 0);
  InsertRows();
  for (auto row = failing.rbegin(); row != failing.rend(); ++row)
    SendMessageW(window_, LVM_DELETEITEM, static_cast<WPARAM>(*row), 0);
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window_, nullptr, TRUE);
  return Milliseconds() - before;
}

}  // namespace sifter::bench
