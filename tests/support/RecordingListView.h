#pragma once

#include "base/Ref.h"
#include "base/RuntimeError.h"
#include "base/Value.h"
#include "listmodel/HostListView.h"
#include "support/CallLog.h"
#include "support/RecordingListParts.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace sifter {

// A host's list that records every call of a member and can be told to fail:
//
//   ListItems
//   ListItems.Add(0, "k1", "Oak", Empty, Empty)
//   ListItems(1).SetBold True
//   ListItems(1).ListSubItems
//   ListItems(1).ListSubItems.Item(2)
//   ListItems(1).ListSubItems(2).Tag
//   raises 438                              (the call above it)
//
// The list behind it does the work. It is spoken to member by member, as a list of a foreign make:
// it offers no rows to share.
class RecordingListView final : public HostListView, private RecordedPart {
 public:
  // The recorder must outlive the list and everything reached through it.
  RecordingListView(Ref<HostListView> list, Recorder& recorder)
      : RecordedPart(std::make_shared<CallLog>(recorder), "ListView", ""), list_(std::move(list)) {}

  // CallLog.h says how members are named.
  void RecordOnly(std::set<std::string> members) { Log()->RecordOnly(std::move(members)); }
  void RecordNothing() { RecordOnly({}); }
  void RecordAll() { Log()->RecordAll(); }
  void FailOn(const std::string& member, int occurrence, RuntimeError error) {
    Log()->FailOn(member, occurrence, std::move(error));
  }
  void Lack(const std::string& member) { Log()->Lack(member); }

  // How often hWnd has been read.
  int WindowReads() const { return windowReads_; }

  Ref<ColumnHeaderCollection> ColumnHeaders() override {
    return Invoke("ColumnHeaders",
                  [&] { return MakeRef<RecordingColumnHeaders>(Log(), list_->ColumnHeaders()); });
  }
  Ref<ListItemCollection> ListItems() override {
    return Invoke("ListItems",
                  [&] { return MakeRef<RecordingListItems>(Log(), list_->ListItems()); });
  }
  std::int32_t hWnd() const override {
    ++windowReads_;
    return Invoke("hWnd", [&] { return list_->hWnd(); });
  }
  Value Sorted() const override { return Read("Sorted", list_, &HostListView::Sorted); }
  Value SortKey() const override { return Read("SortKey", list_, &HostListView::SortKey); }
  Value SortOrder() const override { return Read("SortOrder", list_, &HostListView::SortOrder); }
  void SetSorted(const Value& sorted) override {
    Write("SetSorted", list_, &HostListView::SetSorted, sorted);
  }
  void SetSortKey(const Value& column) override {
    Write("SetSortKey", list_, &HostListView::SetSortKey, column);
  }
  void SetSortOrder(const Value& order) override {
    Write("SetSortOrder", list_, &HostListView::SetSortOrder, order);
  }
  void BeginUpdate() noexcept override {
    Invoke("BeginUpdate", [&] { list_->BeginUpdate(); });
  }
  void EndUpdate() noexcept override {
    Invoke("EndUpdate", [&] { list_->EndUpdate(); });
  }

 private:
  Ref<HostListView> list_;
  mutable int windowReads_ = 0;
};

}  // namespace sifter
