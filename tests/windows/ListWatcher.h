#pragma once

#include "listmodel/HostListView.h"
#include "listmodel/ListMessages.h"
#include "support/Recorder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <windows.h>

namespace sifter {

// Watches the messages of a list's window the way the filter controls do, by standing in the place
// of its (ANSI) window procedure, and records those of rows and columns with the number of rows or
// columns that the list has at that moment: "InsertItem 0, 5 rows". Other messages are recorded by
// their number when asked for. One at a time.
class ListWatcher {
 public:
  ListWatcher(HWND window, Ref<HostListView> list, Recorder& recorder)
      : window_(window), list_(std::move(list)), recorder_(recorder) {
    watching_ = this;
    original_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
  }
  ~ListWatcher() {
    if (IsWindow(window_))
      SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
    watching_ = nullptr;
  }
  ListWatcher(const ListWatcher&) = delete;
  ListWatcher& operator=(const ListWatcher&) = delete;

  // What happens inside the next notice, after it has been recorded.
  void DuringTheNext(std::function<void()> work) { work_ = std::move(work); }

  // A message that is to be recorded too, as this name and its wParam.
  void RecordToo(UINT message, std::string name) {
    other_ = message;
    otherName_ = std::move(name);
  }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    watching_->See(message, wParam);
    return CallWindowProcA(watching_->original_, window, message, wParam, lParam);
  }

  void See(UINT message, WPARAM wParam) {
    if (message == other_) recorder_.Line(otherName_ + ' ' + std::to_string(wParam));
    const std::string name = Name(message);
    if (name.empty()) return;
    const bool columns = message == kInsertColumn || message == kDeleteColumn;
    const std::int32_t count =
        columns ? list_->ColumnHeaders()->Count() : list_->ListItems()->Count();
    recorder_.Line(name + ' ' + std::to_string(wParam) + ", " + std::to_string(count) +
                   (columns ? " columns" : " rows"));
    if (const auto work = std::exchange(work_, nullptr)) work();
  }

  static std::string Name(UINT message) {
    switch (message) {
      case kInsertItem:
        return "InsertItem";
      case kDeleteItem:
        return "DeleteItem";
      case kDeleteAllItems:
        return "DeleteAllItems";
      case kInsertColumn:
        return "InsertColumn";
      case kDeleteColumn:
        return "DeleteColumn";
      case 4173:
        return "InsertItemW";
      case 4193:
        return "InsertColumnW";
      default:
        return {};
    }
  }

  static inline ListWatcher* watching_ = nullptr;

  HWND window_;
  Ref<HostListView> list_;
  Recorder& recorder_;
  WNDPROC original_ = nullptr;
  std::function<void()> work_;
  UINT other_ = 0;
  std::string otherName_;
};

}  // namespace sifter
