#pragma once

#include "base/Ref.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Value.h"

#include <cstdint>
#include <functional>

namespace sifter {

class SharedRows;

// The list model: what the system reads and writes on a host's report-style list view, under the
// member names of the host's own object model. The snapshot classes offer the same names, so that
// one routine serves a live list and a snapshot.
//
// All positions are 1-based. Members are read as values, whatever type the host keeps them in;
// a member that was never set reads as empty. Writing takes a value and converts it as the member
// demands. A list may raise any RuntimeError from any member: 438 where it lacks the member, or a
// number and text of its own.
//
// Adding: an Index below 1, an empty Key and an icon that was never set are left out of the call,
// so that the new entry reads back as if they had never been given.

// A column.
class ColumnHeader : public Object {
 public:
  virtual Value Index() const = 0;
  virtual Value Key() const = 0;
  virtual Value Text() const = 0;
  virtual Value Width() const = 0;  // in the units of the host's container
  virtual Value Alignment() const = 0;
  virtual Value Icon() const = 0;
  virtual Value Tag() const = 0;
  virtual void SetKey(const Value& key) = 0;
  virtual void SetText(const Value& text) = 0;
  virtual void SetWidth(const Value& width) = 0;
  virtual void SetAlignment(const Value& alignment) = 0;
  virtual void SetIcon(const Value& icon) = 0;
  virtual void SetTag(const Value& tag) = 0;
};

class ColumnHeaderCollection : public Object {
 public:
  virtual std::int32_t Count() const = 0;
  virtual Ref<ColumnHeader> Item(const Value& positionOrKey) = 0;
  virtual void Clear() = 0;
  virtual Ref<ColumnHeader> Add(std::int32_t index, const Value& key, const Value& text,
                                const Value& width, const Value& alignment, const Value& icon) = 0;
};

// A cell of columns 2..n.
class ListSubItem : public Object {
 public:
  virtual Value Key() const = 0;
  virtual Value Text() const = 0;
  virtual Value Tag() const = 0;
  virtual Value ReportIcon() const = 0;
  virtual Value ToolTipText() const = 0;
  virtual Value ForeColor() const = 0;
  virtual Value Bold() const = 0;
  virtual void SetKey(const Value& key) = 0;
  virtual void SetText(const Value& text) = 0;
  virtual void SetTag(const Value& tag) = 0;
  virtual void SetReportIcon(const Value& icon) = 0;
  virtual void SetToolTipText(const Value& text) = 0;
  virtual void SetForeColor(const Value& color) = 0;
  virtual void SetBold(const Value& bold) = 0;
};

class ListSubItemCollection : public Object {
 public:
  virtual std::int32_t Count() const = 0;
  virtual Ref<ListSubItem> Item(const Value& positionOrKey) = 0;
  virtual Ref<ListSubItem> Add(std::int32_t index, const Value& key, const Value& text,
                               const Value& reportIcon, const Value& toolTipText) = 0;
};

// A row.
class ListItem : public Object {
 public:
  virtual Value Index() const = 0;
  virtual Value Key() const = 0;
  virtual Value Text() const = 0;
  virtual Value Tag() const = 0;
  virtual Value Icon() const = 0;
  virtual Value SmallIcon() const = 0;
  virtual Value ToolTipText() const = 0;
  virtual Value Checked() const = 0;
  virtual Value Bold() const = 0;
  virtual Value ForeColor() const = 0;
  virtual Value Ghosted() const = 0;
  virtual void SetKey(const Value& key) = 0;
  virtual void SetText(const Value& text) = 0;
  virtual void SetTag(const Value& tag) = 0;
  virtual void SetIcon(const Value& icon) = 0;
  virtual void SetSmallIcon(const Value& icon) = 0;
  virtual void SetToolTipText(const Value& text) = 0;
  virtual void SetChecked(const Value& checked) = 0;
  virtual void SetBold(const Value& bold) = 0;
  virtual void SetForeColor(const Value& color) = 0;
  virtual void SetGhosted(const Value& ghosted) = 0;

  virtual Ref<ListSubItemCollection> ListSubItems() = 0;

  // The text of sub-item j.
  virtual Value SubItems(std::int32_t j) const = 0;
  virtual void SetSubItems(std::int32_t j, const Value& text) = 0;
};

class ListItemCollection : public Object {
 public:
  virtual std::int32_t Count() const = 0;
  virtual Ref<ListItem> Item(const Value& positionOrKey) = 0;
  virtual void Clear() = 0;
  virtual Ref<ListItem> Add(std::int32_t index, const Value& key, const Value& text,
                            const Value& icon, const Value& smallIcon) = 0;
  virtual void Remove(const Value& positionOrKey) = 0;
};

// The whole list.
class HostListView : public Object {
 public:
  virtual Ref<ColumnHeaderCollection> ColumnHeaders() = 0;
  virtual Ref<ListItemCollection> ListItems() = 0;
  virtual std::int32_t hWnd() const = 0;  // the window is the host's; 0 when there is none
  virtual Value Sorted() const = 0;
  virtual Value SortKey() const = 0;    // 0-based column number
  virtual Value SortOrder() const = 0;  // 0 ascending, 1 descending
  virtual void SetSorted(const Value& sorted) = 0;
  virtual void SetSortKey(const Value& column) = 0;
  virtual void SetSortOrder(const Value& order) = 0;

  // Tells this list from others: two objects that stand for the same list have the same identity.
  virtual const void* Identity() const { return this; }

  // Gives the list the input focus. A list that has no such member raises error 438.
  virtual void SetFocus() { throw RuntimeError(ErrorNumber::kMemberNotSupported); }

  // Has `clicked` told of clicks on the headers of columns (by position from 1) for as long as the
  // returned object lives. Null when the list doesn't tell.
  virtual Ref<Object> WatchColumnClicks(std::function<void(std::int32_t column)> clicked);

  // Bracket a long change, so that a list on the screen can leave out painting in between. The
  // brackets nest. Both may be called on any list and never raise.
  virtual void BeginUpdate() noexcept {}
  virtual void EndUpdate() noexcept {}

  // The rows as shareable objects where the list is one of our own, else null. What is done
  // through them gives the same state and the same notices as the members above.
  virtual SharedRows* Shared() { return nullptr; }
};

inline Ref<Object> HostListView::WatchColumnClicks(std::function<void(std::int32_t column)>) {
  return nullptr;
}

// Brackets a long change of `list`, which may be null, until the end of the scope.
class UpdateScope {
 public:
  explicit UpdateScope(HostListView* list) : list_(list) {
    if (list_) list_->BeginUpdate();
  }
  ~UpdateScope() {
    if (list_) list_->EndUpdate();
  }
  UpdateScope(const UpdateScope&) = delete;
  UpdateScope& operator=(const UpdateScope&) = delete;

 private:
  Ref<HostListView> list_;
};

}  // namespace sifter
