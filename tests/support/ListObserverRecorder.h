#pragma once

#include "listmodel/MemoryListView.h"
#include "support/Recorder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace sifter {

// Records the notices of a MemoryListView with the number of rows or columns that the list has
// at that moment: "InsertItem 0, 5 rows".
class ListObserverRecorder final : public ListObserver {
 public:
  // The list must outlive this object.
  ListObserverRecorder(MemoryListView& list, Recorder& recorder)
      : list_(list), recorder_(recorder) {
    list_.AddObserver(this);
  }
  ~ListObserverRecorder() override { list_.RemoveObserver(this); }
  ListObserverRecorder(const ListObserverRecorder&) = delete;
  ListObserverRecorder& operator=(const ListObserverRecorder&) = delete;

  // What a host does inside a notice, after it has been recorded.
  void During(std::function<void(ListMessage message, std::intptr_t wParam)> work) {
    work_ = std::move(work);
    onlyOnce_ = false;
  }

  // The same in the next notice only, so that the work may cause notices itself.
  void DuringTheNext(std::function<void(ListMessage message, std::intptr_t wParam)> work) {
    work_ = std::move(work);
    onlyOnce_ = true;
  }

  void OnListMessage(ListMessage message, std::intptr_t wParam, std::intptr_t) override {
    recorder_.Line(Name(message) + ' ' + std::to_string(wParam) + ", " + Count(message));
    const auto work = onlyOnce_ ? std::exchange(work_, nullptr) : work_;
    if (work) work(message, wParam);
  }

 private:
  static std::string Name(ListMessage message) {
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
    }
    return std::to_string(message);
  }

  std::string Count(ListMessage message) const {
    return message == kInsertColumn || message == kDeleteColumn
               ? std::to_string(list_.ColumnHeaders()->Count()) + " columns"
               : std::to_string(list_.ListItems()->Count()) + " rows";
  }

  MemoryListView& list_;
  Recorder& recorder_;
  std::function<void(ListMessage, std::intptr_t)> work_;
  bool onlyOnce_ = false;
};

}  // namespace sifter
