#pragma once

#include "win32/UniqueWindow.h"
#include "win32/WideText.h"
#include "win32/mListviewMacros_471.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

// A parent window with a report-style list view on it, as a host's program makes them.
class ListViewOnAForm {
 public:
  struct Options {
    DWORD style = 0;  // of the list view, beyond a visible report
    bool visible = true;
    bool ansiParent = false;
  };

  ListViewOnAForm() : ListViewOnAForm(Options()) {}
  explicit ListViewOnAForm(const Options& options)
      : parent_(MakeParent(options)), list_(MakeList(parent_.Get(), options)) {
    SetWindowLongPtrW(parent_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~ListViewOnAForm() { Destroy(); }
  ListViewOnAForm(const ListViewOnAForm&) = delete;
  ListViewOnAForm& operator=(const ListViewOnAForm&) = delete;

  HWND Parent() const { return parent_.Get(); }
  HWND List() const { return list_; }

  void Destroy() {
    parent_.Reset();
    list_ = nullptr;
  }

  // How the host's own window procedure answers notices of the list view.
  using NoticeHandler = std::function<LRESULT(NMHDR&)>;
  void OnNotice(NoticeHandler handler) { handler_ = std::move(handler); }

  // What the window shows, text by text.
  std::vector<std::vector<std::string>> ShownTexts() const {
    std::vector<std::vector<std::string>> rows;
    const int columns =
        static_cast<int>(SendMessageW(listview::Header(list_), HDM_GETITEMCOUNT, 0, 0));
    for (int item = 0; item < listview::ItemCount(list_); ++item) {
      std::vector<std::string>& row = rows.emplace_back();
      for (int column = 0; column < columns; ++column)
        row.push_back(listview::ItemText(list_, item, column).ToUtf8());
    }
    return rows;
  }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ListViewOnAForm*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NOTIFY && self != nullptr && self->handler_)
      return self->handler_(*reinterpret_cast<NMHDR*>(lParam));
    return IsWindowUnicode(window) ? DefWindowProcW(window, message, wParam, lParam)
                                   : DefWindowProcA(window, message, wParam, lParam);
  }

  static HWND MakeParent(const Options& options) {
    const DWORD style = WS_POPUP | (options.visible ? WS_VISIBLE : 0);
    const HINSTANCE module = GetModuleHandleW(nullptr);
    if (options.ansiParent) {
      WNDCLASSA kind{};
      kind.lpfnWndProc = Procedure;
      kind.hInstance = module;
      kind.lpszClassName = "AnsiFormOfATest";
      RegisterClassA(&kind);
      return CreateWindowExA(0, kind.lpszClassName, "", style, 0, 0, 600, 400, nullptr, nullptr,
                             module, nullptr);
    }
    WNDCLASSW kind{};
    kind.lpfnWndProc = Procedure;
    kind.hInstance = module;
    kind.lpszClassName = L"FormOfATest";
    RegisterClassW(&kind);
    return CreateWindowExW(0, kind.lpszClassName, L"", style, 0, 0, 600, 400, nullptr, nullptr,
                           module, nullptr);
  }

  static HWND MakeList(HWND parent, const Options& options) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    const DWORD style =
        WS_CHILD | (options.visible ? WS_VISIBLE : 0) | listview::kReportView | options.style;
    return CreateWindowExW(0, WC_LISTVIEWW, L"", style, 0, 0, 580, 380, parent,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(1)),
                           GetModuleHandleW(nullptr), nullptr);
  }

  NoticeHandler handler_;
  UniqueWindow parent_;
  HWND list_;  // its parent's
};

}  // namespace sifter
