#pragma once

#include "listmodel/MemoryListView.h"
#include "support/MemoryWindowSystem.h"

#include <cstdint>

namespace sifter {

// Stands in for the window of a list in memory: the list's notices become messages to a window,
// where a HookClass can see them, and the list answers with its handle.
class MemoryListWindow final : public ListObserver {
 public:
  // Opens the window. `windows` and `list` must outlive this object.
  MemoryListWindow(MemoryWindowSystem& windows, MemoryListView& list)
      : windows_(windows), list_(list), window_(windows.Open()) {
    list_.SetWindow(window_);
    list_.AddObserver(this);
  }
  // Destroys the window.
  ~MemoryListWindow() override {
    list_.RemoveObserver(this);
    list_.SetWindow(0);
    windows_.Destroy(window_);
  }
  MemoryListWindow(const MemoryListWindow&) = delete;
  MemoryListWindow& operator=(const MemoryListWindow&) = delete;

  std::int32_t Handle() const { return window_; }

  void OnListMessage(ListMessage message, std::intptr_t wParam, std::intptr_t lParam) override {
    windows_.Send(window_, message, wParam, lParam);
  }

 private:
  MemoryWindowSystem& windows_;
  MemoryListView& list_;
  std::int32_t window_;
};

}  // namespace sifter
