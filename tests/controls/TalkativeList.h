#pragma once

#include "base/Ref.h"
#include "listmodel/HostListView.h"

#include <functional>
#include <utility>

namespace sifter {

// A host's list that runs code of the host's whenever its window or its rows are asked for, or when
// it is given the focus.
class TalkativeList final : public HostListView {
 public:
  explicit TalkativeList(Ref<HostListView> list) : list_(std::move(list)) {}

  std::function<void()> OnWindow;
  std::function<void()> OnRows;
  std::function<void()> OnFocus;  // without it, the list can't be given the focus by name

  Ref<ColumnHeaderCollection> ColumnHeaders() override { return list_->ColumnHeaders(); }
  Ref<ListItemCollection> ListItems() override {
    Tell(OnRows);
    return list_->ListItems();
  }
  std::int32_t hWnd() const override {
    Tell(OnWindow);
    return list_->hWnd();
  }
  Value Sorted() const override { return list_->Sorted(); }
  Value SortKey() const override { return list_->SortKey(); }
  Value SortOrder() const override { return list_->SortOrder(); }
  void SetSorted(const Value& sorted) override { list_->SetSorted(sorted); }
  void SetSortKey(const Value& column) override { list_->SetSortKey(column); }
  void SetSortOrder(const Value& order) override { list_->SetSortOrder(order); }
  void SetFocus() override {
    if (!OnFocus) return list_->SetFocus();
    Tell(OnFocus);
  }

 private:
  static void Tell(const std::function<void()>& work) {
    const std::function<void()> told = work;
    if (told) told();
  }

  Ref<HostListView> list_;
};

}  // namespace sifter
