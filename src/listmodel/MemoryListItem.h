#pragma once

#include "listmodel/HostListView.h"
#include "listmodel/MemoryListView.h"
#include "listmodel/RowMembers.h"

#include <cstdint>

namespace sifter {

// A row of a MemoryListView.
class MemoryListItem final : public ListItem {
 public:
  MemoryListItem(MemoryListView* list, RowHandle row) : list_(list), row_(std::move(row)) {}

  Value Index() const override { return row_.Handle().Position(); }
  Value Key() const override { return row_.Key(); }
  Value Text() const override { return row_.Text(); }
  Value Tag() const override { return row_.Tag(); }
  Value Icon() const override { return row_.Icon(); }
  Value SmallIcon() const override { return row_.SmallIcon(); }
  Value ToolTipText() const override { return row_.ToolTipText(); }
  Value Checked() const override { return row_.Checked(); }
  Value Bold() const override { return row_.Bold(); }
  Value ForeColor() const override { return row_.ForeColor(); }
  Value Ghosted() const override { return row_.Ghosted(); }
  void SetKey(const Value& key) override { row_.Handle().SetKey(ValueToText(key), true); }
  void SetText(const Value& text) override {
    row_.SetText(text);
    Changed(RowChange::kText);
  }
  void SetTag(const Value& tag) override { row_.SetTag(tag); }
  void SetIcon(const Value& icon) override {
    row_.SetIcon(icon);
    Changed(RowChange::kIcon);
  }
  void SetSmallIcon(const Value& icon) override {
    row_.SetSmallIcon(icon);
    Changed(RowChange::kIcon);
  }
  void SetToolTipText(const Value& text) override {
    row_.SetToolTipText(text);
    Changed(RowChange::kToolTip);
  }
  void SetChecked(const Value& checked) override {
    row_.SetChecked(checked);
    Changed(RowChange::kChecked);
  }
  void SetBold(const Value& bold) override {
    row_.SetBold(bold);
    Changed(RowChange::kLook);
  }
  void SetForeColor(const Value& color) override {
    row_.SetForeColor(color);
    Changed(RowChange::kLook);
  }
  void SetGhosted(const Value& ghosted) override {
    row_.SetGhosted(ghosted);
    Changed(RowChange::kGhosted);
  }

  Ref<ListSubItemCollection> ListSubItems() override;
  Value SubItems(std::int32_t j) const override { return row_.SubItems(CheckedColumn(j)); }
  void SetSubItems(std::int32_t j, const Value& text) override {
    row_.SetSubItems(CheckedColumn(j), text);
    Changed(RowChange::kText);
  }

 private:
  // A cell whose column has been taken away is still there, but has no number any more.
  std::int32_t CheckedColumn(std::int32_t j) const;

  void Changed(RowChange change) const { list_->RowChanged(row_.Handle(), change); }

  Ref<MemoryListView> list_;
  RowMembers row_;
};

}  // namespace sifter
