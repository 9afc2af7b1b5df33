#pragma once

#include "base/Ref.h"
#include "base/Value.h"
#include "listmodel/HostListView.h"
#include "support/CallLog.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

// The parts of a RecordingListView. Each hands its calls on to the part of the list behind it.
// What is handed out goes under the position that it was asked for by or, when it was asked for by
// key or has been added, under the position that it had then.

namespace sifter {

class RecordingColumnHeader final : public ColumnHeader, private RecordedPart {
 public:
  RecordingColumnHeader(std::shared_ptr<CallLog> log, std::string path, Ref<ColumnHeader> column)
      : RecordedPart(std::move(log), "ColumnHeader", std::move(path)), column_(std::move(column)) {}

  Value Index() const override { return Read("Index", column_, &ColumnHeader::Index); }
  Value Key() const override { return Read("Key", column_, &ColumnHeader::Key); }
  Value Text() const override { return Read("Text", column_, &ColumnHeader::Text); }
  Value Width() const override { return Read("Width", column_, &ColumnHeader::Width); }
  Value Alignment() const override { return Read("Alignment", column_, &ColumnHeader::Alignment); }
  Value Icon() const override { return Read("Icon", column_, &ColumnHeader::Icon); }
  Value Tag() const override { return Read("Tag", column_, &ColumnHeader::Tag); }
  void SetKey(const Value& key) override { Write("SetKey", column_, &ColumnHeader::SetKey, key); }
  void SetText(const Value& text) override {
    Write("SetText", column_, &ColumnHeader::SetText, text);
  }
  void SetWidth(const Value& width) override {
    Write("SetWidth", column_, &ColumnHeader::SetWidth, width);
  }
  void SetAlignment(const Value& alignment) override {
    Write("SetAlignment", column_, &ColumnHeader::SetAlignment, alignment);
  }
  void SetIcon(const Value& icon) override {
    Write("SetIcon", column_, &ColumnHeader::SetIcon, icon);
  }
  void SetTag(const Value& tag) override { Write("SetTag", column_, &ColumnHeader::SetTag, tag); }

 private:
  Ref<ColumnHeader> column_;
};

class RecordingColumnHeaders final : public ColumnHeaderCollection, private RecordedPart {
 public:
  RecordingColumnHeaders(std::shared_ptr<CallLog> log, Ref<ColumnHeaderCollection> columns)
      : RecordedPart(std::move(log), "ColumnHeaders", "ColumnHeaders"),
        columns_(std::move(columns)) {}

  std::int32_t Count() const override {
    return Invoke("Count", [&] { return columns_->Count(); });
  }
  Ref<ColumnHeader> Item(const Value& positionOrKey) override {
    return Invoke(
        "Item", [&] { return Recorded(columns_->Item(positionOrKey)); }, positionOrKey);
  }
  void Clear() override {
    Invoke("Clear", [&] { columns_->Clear(); });
  }
  Ref<ColumnHeader> Add(std::int32_t index, const Value& key, const Value& text, const Value& width,
                        const Value& alignment, const Value& icon) override {
    return Invoke(
        "Add", [&] { return Recorded(columns_->Add(index, key, text, width, alignment, icon)); },
        index, key, text, width, alignment, icon);
  }

 private:
  Ref<ColumnHeader> Recorded(Ref<ColumnHeader> column) const {
    std::string path = PathOfItem(Shown(column->Index()));
    return MakeRef<RecordingColumnHeader>(Log(), std::move(path), std::move(column));
  }

  Ref<ColumnHeaderCollection> columns_;
};

class RecordingSubItem final : public ListSubItem, private RecordedPart {
 public:
  RecordingSubItem(std::shared_ptr<CallLog> log, std::string path, Ref<ListSubItem> cell)
      : RecordedPart(std::move(log), "ListSubItem", std::move(path)), cell_(std::move(cell)) {}

  Value Key() const override { return Read("Key", cell_, &ListSubItem::Key); }
  Value Text() const override { return Read("Text", cell_, &ListSubItem::Text); }
  Value Tag() const override { return Read("Tag", cell_, &ListSubItem::Tag); }
  Value ReportIcon() const override { return Read("ReportIcon", cell_, &ListSubItem::ReportIcon); }
  Value ToolTipText() const override {
    return Read("ToolTipText", cell_, &ListSubItem::ToolTipText);
  }
  Value ForeColor() const override { return Read("ForeColor", cell_, &ListSubItem::ForeColor); }
  Value Bold() const override { return Read("Bold", cell_, &ListSubItem::Bold); }
  void SetKey(const Value& key) override { Write("SetKey", cell_, &ListSubItem::SetKey, key); }
  void SetText(const Value& text) override { Write("SetText", cell_, &ListSubItem::SetText, text); }
  void SetTag(const Value& tag) override { Write("SetTag", cell_, &ListSubItem::SetTag, tag); }
  void SetReportIcon(const Value& icon) override {
    Write("SetReportIcon", cell_, &ListSubItem::SetReportIcon, icon);
  }
  void SetToolTipText(const Value& text) override {
    Write("SetToolTipText", cell_, &ListSubItem::SetToolTipText, text);
  }
  void SetForeColor(const Value& color) override {
    Write("SetForeColor", cell_, &ListSubItem::SetForeColor, color);
  }
  void SetBold(const Value& bold) override { Write("SetBold", cell_, &ListSubItem::SetBold, bold); }

 private:
  Ref<ListSubItem> cell_;
};

class RecordingSubItems final : public ListSubItemCollection, private RecordedPart {
 public:
  RecordingSubItems(std::shared_ptr<CallLog> log, std::string path,
                    Ref<ListSubItemCollection> cells)
      : RecordedPart(std::move(log), "ListSubItems", std::move(path)), cells_(std::move(cells)) {}

  std::int32_t Count() const override {
    return Invoke("Count", [&] { return cells_->Count(); });
  }
  Ref<ListSubItem> Item(const Value& positionOrKey) override {
    return Invoke(
        "Item", [&] { return Recorded(Shown(positionOrKey), cells_->Item(positionOrKey)); },
        positionOrKey);
  }
  Ref<ListSubItem> Add(std::int32_t index, const Value& key, const Value& text,
                       const Value& reportIcon, const Value& toolTipText) override {
    return Invoke(
        "Add",
        [&] {
          Ref<ListSubItem> cell = cells_->Add(index, key, text, reportIcon, toolTipText);
          return Recorded(std::to_string(index < 1 ? cells_->Count() : index), std::move(cell));
        },
        index, key, text, reportIcon, toolTipText);
  }

 private:
  Ref<ListSubItem> Recorded(const std::string& position, Ref<ListSubItem> cell) const {
    return MakeRef<RecordingSubItem>(Log(), PathOfItem(position), std::move(cell));
  }

  Ref<ListSubItemCollection> cells_;
};

class RecordingListItem final : public ListItem, private RecordedPart {
 public:
  RecordingListItem(std::shared_ptr<CallLog> log, std::string path, Ref<ListItem> item)
      : RecordedPart(std::move(log), "ListItem", std::move(path)), item_(std::move(item)) {}

  Value Index() const override { return Read("Index", item_, &ListItem::Index); }
  Value Key() const override { return Read("Key", item_, &ListItem::Key); }
  Value Text() const override { return Read("Text", item_, &ListItem::Text); }
  Value Tag() const override { return Read("Tag", item_, &ListItem::Tag); }
  Value Icon() const override { return Read("Icon", item_, &ListItem::Icon); }
  Value SmallIcon() const override { return Read("SmallIcon", item_, &ListItem::SmallIcon); }
  Value ToolTipText() const override { return Read("ToolTipText", item_, &ListItem::ToolTipText); }
  Value Checked() const override { return Read("Checked", item_, &ListItem::Checked); }
  Value Bold() const override { return Read("Bold", item_, &ListItem::Bold); }
  Value ForeColor() const override { return Read("ForeColor", item_, &ListItem::ForeColor); }
  Value Ghosted() const override { return Read("Ghosted", item_, &ListItem::Ghosted); }
  void SetKey(const Value& key) override { Write("SetKey", item_, &ListItem::SetKey, key); }
  void SetText(const Value& text) override { Write("SetText", item_, &ListItem::SetText, text); }
  void SetTag(const Value& tag) override { Write("SetTag", item_, &ListItem::SetTag, tag); }
  void SetIcon(const Value& icon) override { Write("SetIcon", item_, &ListItem::SetIcon, icon); }
  void SetSmallIcon(const Value& icon) override {
    Write("SetSmallIcon", item_, &ListItem::SetSmallIcon, icon);
  }
  void SetToolTipText(const Value& text) override {
    Write("SetToolTipText", item_, &ListItem::SetToolTipText, text);
  }
  void SetChecked(const Value& checked) override {
    Write("SetChecked", item_, &ListItem::SetChecked, checked);
  }
  void SetBold(const Value& bold) override { Write("SetBold", item_, &ListItem::SetBold, bold); }
  void SetForeColor(const Value& color) override {
    Write("SetForeColor", item_, &ListItem::SetForeColor, color);
  }
  void SetGhosted(const Value& ghosted) override {
    Write("SetGhosted", item_, &ListItem::SetGhosted, ghosted);
  }

  Ref<ListSubItemCollection> ListSubItems() override {
    return Invoke("ListSubItems", [&] {
      return MakeRef<RecordingSubItems>(Log(), Path("ListSubItems"), item_->ListSubItems());
    });
  }
  Value SubItems(std::int32_t j) const override {
    return Invoke(
        "SubItems", [&] { return item_->SubItems(j); }, j);
  }
  void SetSubItems(std::int32_t j, const Value& text) override {
    Log()->Run("ListItem", "SetSubItems",
               Path("SetSubItems") + '(' + std::to_string(j) + ") " + Shown(text),
               [&] { item_->SetSubItems(j, text); });
  }

 private:
  Ref<ListItem> item_;
};

class RecordingListItems final : public ListItemCollection, private RecordedPart {
 public:
  RecordingListItems(std::shared_ptr<CallLog> log, Ref<ListItemCollection> items)
      : RecordedPart(std::move(log), "ListItems", "ListItems"), items_(std::move(items)) {}

  std::int32_t Count() const override {
    return Invoke("Count", [&] { return items_->Count(); });
  }
  Ref<ListItem> Item(const Value& positionOrKey) override {
    return Invoke(
        "Item", [&] { return Recorded(items_->Item(positionOrKey)); }, positionOrKey);
  }
  void Clear() override {
    Invoke("Clear", [&] { items_->Clear(); });
  }
  Ref<ListItem> Add(std::int32_t index, const Value& key, const Value& text, const Value& icon,
                    const Value& smallIcon) override {
    return Invoke(
        "Add", [&] { return Recorded(items_->Add(index, key, text, icon, smallIcon)); }, index, key,
        text, icon, smallIcon);
  }
  void Remove(const Value& positionOrKey) override {
    Invoke(
        "Remove", [&] { items_->Remove(positionOrKey); }, positionOrKey);
  }

 private:
  Ref<ListItem> Recorded(Ref<ListItem> item) const {
    std::string path = PathOfItem(Shown(item->Index()));
    return MakeRef<RecordingListItem>(Log(), std::move(path), std::move(item));
  }

  Ref<ListItemCollection> items_;
};

}  // namespace sifter
