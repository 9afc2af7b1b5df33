#pragma once

#include "listmodel/HostListView.h"
#include "win32/ComRef.h"
#include "win32/LateBoundListObject.h"
#include "win32/LateBoundListRows.h"
#include "win32/RedrawPause.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <oaidl.h>
#include <windows.h>

namespace sifter {

// A host's list view, reached by the names of its members, as a HostListView. Any object will do
// that has the members which are used: none is looked up or read before it is needed, and one that
// is missing is error 438 where it is. Errors of the object keep their numbers and texts.
//
// An object that has its rows to transfer (RowTransfer.h) shares them. Long changes of others keep
// the window behind hWnd from drawing; the window is asked for once for each of them.
class LateBoundList final : public HostListView {
 public:
  enum class Transfer { kWhereOffered, kNever };

  // `list` must not be null.
  explicit LateBoundList(ComRef<IDispatch> list, Transfer transfer = Transfer::kWhereOffered);

  // The host's object.
  IDispatch* Dispatch() const { return object_.Get(); }

  Ref<ColumnHeaderCollection> ColumnHeaders() override;
  Ref<ListItemCollection> ListItems() override;
  std::int32_t hWnd() const override;
  Value Sorted() const override { return object_.Read(LateBoundMember::kSorted); }
  Value SortKey() const override { return object_.Read(LateBoundMember::kSortKey); }
  Value SortOrder() const override { return object_.Read(LateBoundMember::kSortOrder); }
  void SetSorted(const Value& sorted) override { object_.Write(LateBoundMember::kSorted, sorted); }
  void SetSortKey(const Value& column) override {
    object_.Write(LateBoundMember::kSortKey, column);
  }
  void SetSortOrder(const Value& order) override {
    object_.Write(LateBoundMember::kSortOrder, order);
  }
  const void* Identity() const override { return identity_; }
  void SetFocus() override { object_.Call(LateBoundMember::kSetFocus); }
  // By the event ColumnClick that the object offers.
  Ref<Object> WatchColumnClicks(std::function<void(std::int32_t column)> clicked) override;
  void BeginUpdate() noexcept override;
  void EndUpdate() noexcept override;
  SharedRows* Shared() override { return rows_.get(); }

 private:
  LateBoundObject object_;
  const void* identity_;                     // the object's IUnknown
  std::unique_ptr<LateBoundListRows> rows_;  // null when the object has none to transfer
  RedrawPause pause_{RedrawPause::Hidden::kLeaveAlone};
};

}  // namespace sifter
