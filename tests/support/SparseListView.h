#pragma once

#include "base/Ref.h"
#include "base/RuntimeError.h"
#include "base/Value.h"
#include "listmodel/HostListView.h"

#include <cstdint>
#include <map>
#include <string>

namespace sifter {

// What the members of a SparseListView read as; a member that isn't named was never set and reads
// as empty. "Tag" is the row's, "cell Tag" the cell's.
using SparseMembers = std::map<std::string, Value>;

// A foreign list of one row with one cell, to be read only.
class SparseListView final : public HostListView {
 public:
  explicit SparseListView(SparseMembers members) : members_(std::move(members)) {}

  Ref<ListItemCollection> ListItems() override { return MakeRef<Items>(members_); }
  Ref<ColumnHeaderCollection> ColumnHeaders() override { Refuse(); }
  std::int32_t hWnd() const override { return 0; }
  Value Sorted() const override { return Value(); }
  Value SortKey() const override { return Value(); }
  Value SortOrder() const override { return Value(); }
  void SetSorted(const Value&) override { Refuse(); }
  void SetSortKey(const Value&) override { Refuse(); }
  void SetSortOrder(const Value&) override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() { throw RuntimeError(ErrorNumber::kMemberNotSupported); }

  static Value Read(const SparseMembers& members, const std::string& name) {
    const auto member = members.find(name);
    return member == members.end() ? Value() : member->second;
  }

  static void RequireFirst(const Value& position) {
    if (!(position == Value(1))) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  }

  class Cell final : public ListSubItem {
   public:
    explicit Cell(const SparseMembers& members) : members_(members) {}
    Value Key() const override { return Read(members_, "cell Key"); }
    Value Text() const override { return Read(members_, "cell Text"); }
    Value Tag() const override { return Read(members_, "cell Tag"); }
    Value ReportIcon() const override { return Read(members_, "cell ReportIcon"); }
    Value ToolTipText() const override { return Read(members_, "cell ToolTipText"); }
    Value ForeColor() const override { return Read(members_, "cell ForeColor"); }
    Value Bold() const override { return Read(members_, "cell Bold"); }
    void SetKey(const Value&) override { Refuse(); }
    void SetText(const Value&) override { Refuse(); }
    void SetTag(const Value&) override { Refuse(); }
    void SetReportIcon(const Value&) override { Refuse(); }
    void SetToolTipText(const Value&) override { Refuse(); }
    void SetForeColor(const Value&) override { Refuse(); }
    void SetBold(const Value&) override { Refuse(); }

   private:
    SparseMembers members_;
  };

  class Cells final : public ListSubItemCollection {
   public:
    explicit Cells(const SparseMembers& members) : members_(members) {}
    std::int32_t Count() const override { return 1; }
    Ref<ListSubItem> Item(const Value& position) override {
      RequireFirst(position);
      return MakeRef<Cell>(members_);
    }
    Ref<ListSubItem> Add(std::int32_t, const Value&, const Value&, const Value&,
                         const Value&) override {
      Refuse();
    }

   private:
    SparseMembers members_;
  };

  class Row final : public ListItem {
   public:
    explicit Row(const SparseMembers& members) : members_(members) {}
    Value Index() const override { return 1; }
    Value Key() const override { return Read(members_, "Key"); }
    Value Text() const override { return Read(members_, "Text"); }
    Value Tag() const override { return Read(members_, "Tag"); }
    Value Icon() const override { return Read(members_, "Icon"); }
    Value SmallIcon() const override { return Read(members_, "SmallIcon"); }
    Value ToolTipText() const override { return Read(members_, "ToolTipText"); }
    Value Checked() const override { return Read(members_, "Checked"); }
    Value Bold() const override { return Read(members_, "Bold"); }
    Value ForeColor() const override { return Read(members_, "ForeColor"); }
    Value Ghosted() const override { return Read(members_, "Ghosted"); }
    void SetKey(const Value&) override { Refuse(); }
    void SetText(const Value&) override { Refuse(); }
    void SetTag(const Value&) override { Refuse(); }
    void SetIcon(const Value&) override { Refuse(); }
    void SetSmallIcon(const Value&) override { Refuse(); }
    void SetToolTipText(const Value&) override { Refuse(); }
    void SetChecked(const Value&) override { Refuse(); }
    void SetBold(const Value&) override { Refuse(); }
    void SetForeColor(const Value&) override { Refuse(); }
    void SetGhosted(const Value&) override { Refuse(); }
    Ref<ListSubItemCollection> ListSubItems() override { return MakeRef<Cells>(members_); }
    Value SubItems(std::int32_t j) const override {
      RequireFirst(j);
      return Read(members_, "cell Text");
    }
    void SetSubItems(std::int32_t, const Value&) override { Refuse(); }

   private:
    SparseMembers members_;
  };

  class Items final : public ListItemCollection {
   public:
    explicit Items(const SparseMembers& members) : members_(members) {}
    std::int32_t Count() const override { return 1; }
    Ref<ListItem> Item(const Value& position) override {
      RequireFirst(position);
      return MakeRef<Row>(members_);
    }
    void Clear() override { Refuse(); }
    Ref<ListItem> Add(std::int32_t, const Value&, const Value&, const Value&,
                      const Value&) override {
      Refuse();
    }
    void Remove(const Value&) override { Refuse(); }

   private:
    SparseMembers members_;
  };

  SparseMembers members_;
};

}  // namespace sifter
