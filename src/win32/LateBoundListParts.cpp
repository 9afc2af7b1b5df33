#include "win32/LateBoundListParts.h"

#include "win32/Variants.h"

#include <utility>

namespace sifter {

namespace {

using Member = LateBoundMember;
using Role = LateBoundRole;

// What was never given is left out of a call, and so is an index that asks for the end.
Value IndexOrNothing(std::int32_t index) { return index < 1 ? Value() : Value(index); }

Value KeyOrNothing(const Value& key) {
  const Text* text = key.As<Text>();
  return text != nullptr && text->IsEmpty() ? Value() : key;
}

class LateBoundColumn final : public ColumnHeader {
 public:
  explicit LateBoundColumn(LateBoundObject object) : object_(std::move(object)) {}

  Value Index() const override { return object_.Read(Member::kIndex); }
  Value Key() const override { return object_.Read(Member::kKey); }
  Value Text() const override { return object_.Read(Member::kText); }
  Value Width() const override { return object_.Read(Member::kWidth); }
  Value Alignment() const override { return object_.Read(Member::kAlignment); }
  Value Icon() const override { return object_.Read(Member::kIcon); }
  Value Tag() const override { return object_.Read(Member::kTag); }
  void SetKey(const Value& key) override { object_.Write(Member::kKey, key); }
  void SetText(const Value& text) override { object_.Write(Member::kText, text); }
  void SetWidth(const Value& width) override { object_.Write(Member::kWidth, width); }
  void SetAlignment(const Value& alignment) override {
    object_.Write(Member::kAlignment, alignment);
  }
  void SetIcon(const Value& icon) override { object_.Write(Member::kIcon, icon); }
  void SetTag(const Value& tag) override { object_.Write(Member::kTag, tag); }

 private:
  LateBoundObject object_;
};

class LateBoundCell final : public ListSubItem {
 public:
  explicit LateBoundCell(LateBoundObject object) : object_(std::move(object)) {}

  Value Key() const override { return object_.Read(Member::kKey); }
  Value Text() const override { return object_.Read(Member::kText); }
  Value Tag() const override { return object_.Read(Member::kTag); }
  Value ReportIcon() const override { return object_.Read(Member::kReportIcon); }
  Value ToolTipText() const override { return object_.Read(Member::kToolTipText); }
  Value ForeColor() const override { return object_.Read(Member::kForeColor); }
  Value Bold() const override { return object_.Read(Member::kBold); }
  void SetKey(const Value& key) override { object_.Write(Member::kKey, key); }
  void SetText(const Value& text) override { object_.Write(Member::kText, text); }
  void SetTag(const Value& tag) override { object_.Write(Member::kTag, tag); }
  void SetReportIcon(const Value& icon) override { object_.Write(Member::kReportIcon, icon); }
  void SetToolTipText(const Value& text) override { object_.Write(Member::kToolTipText, text); }
  void SetForeColor(const Value& color) override { object_.Write(Member::kForeColor, color); }
  void SetBold(const Value& bold) override { object_.Write(Member::kBold, bold); }

 private:
  LateBoundObject object_;
};

// A collection's members that all collections have, over the kind of its elements.
template <class Collection, class Element, Role kRole>
class LateBoundCollection : public Collection {
 public:
  explicit LateBoundCollection(LateBoundObject object) : object_(std::move(object)) {}

  // Collections tell their number in any kind of number.
  std::int32_t Count() const override { return ValueToInt32(object_.Read(Member::kCount)); }

 protected:
  const LateBoundObject& Object() const { return object_; }

  Ref<Element> ElementAt(const Value& positionOrKey) const {
    return Made(object_.ReadObjectAt(Member::kItem, positionOrKey));
  }
  Ref<Element> Added(std::initializer_list<Value> arguments) const {
    return Made(object_.CallForObject(Member::kAdd, arguments));
  }

 private:
  Ref<Element> Made(ComRef<IDispatch> element) const {
    return MakeRef<Element>(LateBoundObject(object_.Classes(), std::move(element), kRole));
  }

  LateBoundObject object_;
};

class LateBoundCellCollection final
    : public LateBoundCollection<ListSubItemCollection, LateBoundCell, Role::kCell> {
 public:
  using LateBoundCollection::LateBoundCollection;

  Ref<ListSubItem> Item(const Value& positionOrKey) override { return ElementAt(positionOrKey); }
  Ref<ListSubItem> Add(std::int32_t index, const Value& key, const Value& text,
                       const Value& reportIcon, const Value& toolTipText) override {
    return Added({IndexOrNothing(index), KeyOrNothing(key), text, reportIcon, toolTipText});
  }
};

class LateBoundRow final : public ListItem {
 public:
  explicit LateBoundRow(LateBoundObject object) : object_(std::move(object)) {}

  Value Index() const override { return object_.Read(Member::kIndex); }
  Value Key() const override { return object_.Read(Member::kKey); }
  Value Text() const override { return object_.Read(Member::kText); }
  Value Tag() const override { return object_.Read(Member::kTag); }
  Value Icon() const override { return object_.Read(Member::kIcon); }
  Value SmallIcon() const override { return object_.Read(Member::kSmallIcon); }
  Value ToolTipText() const override { return object_.Read(Member::kToolTipText); }
  Value Checked() const override { return object_.Read(Member::kChecked); }
  Value Bold() const override { return object_.Read(Member::kBold); }
  Value ForeColor() const override { return object_.Read(Member::kForeColor); }
  Value Ghosted() const override { return object_.Read(Member::kGhosted); }
  void SetKey(const Value& key) override { object_.Write(Member::kKey, key); }
  void SetText(const Value& text) override { object_.Write(Member::kText, text); }
  void SetTag(const Value& tag) override { object_.Write(Member::kTag, tag); }
  void SetIcon(const Value& icon) override { object_.Write(Member::kIcon, icon); }
  void SetSmallIcon(const Value& icon) override { object_.Write(Member::kSmallIcon, icon); }
  void SetToolTipText(const Value& text) override { object_.Write(Member::kToolTipText, text); }
  void SetChecked(const Value& checked) override { object_.Write(Member::kChecked, checked); }
  void SetBold(const Value& bold) override { object_.Write(Member::kBold, bold); }
  void SetForeColor(const Value& color) override { object_.Write(Member::kForeColor, color); }
  void SetGhosted(const Value& ghosted) override { object_.Write(Member::kGhosted, ghosted); }

  Ref<ListSubItemCollection> ListSubItems() override {
    return MakeRef<LateBoundCellCollection>(LateBoundObject(
        object_.Classes(), object_.ReadObject(Member::kListSubItems), Role::kCells));
  }
  Value SubItems(std::int32_t j) const override {
    return ValueFromVariant(object_.ReadAt(Member::kSubItems, j).Get());
  }
  void SetSubItems(std::int32_t j, const Value& text) override {
    object_.WriteAt(Member::kSubItems, j, text);
  }

 private:
  LateBoundObject object_;
};

class LateBoundColumnCollection final
    : public LateBoundCollection<ColumnHeaderCollection, LateBoundColumn, Role::kColumn> {
 public:
  using LateBoundCollection::LateBoundCollection;

  Ref<ColumnHeader> Item(const Value& positionOrKey) override { return ElementAt(positionOrKey); }
  void Clear() override { Object().Call(Member::kClear); }
  Ref<ColumnHeader> Add(std::int32_t index, const Value& key, const Value& text, const Value& width,
                        const Value& alignment, const Value& icon) override {
    return Added({IndexOrNothing(index), KeyOrNothing(key), text, width, alignment, icon});
  }
};

class LateBoundRowCollection final
    : public LateBoundCollection<ListItemCollection, LateBoundRow, Role::kRow> {
 public:
  using LateBoundCollection::LateBoundCollection;

  Ref<ListItem> Item(const Value& positionOrKey) override { return ElementAt(positionOrKey); }
  void Clear() override { Object().Call(Member::kClear); }
  Ref<ListItem> Add(std::int32_t index, const Value& key, const Value& text, const Value& icon,
                    const Value& smallIcon) override {
    return Added({IndexOrNothing(index), KeyOrNothing(key), text, icon, smallIcon});
  }
  void Remove(const Value& positionOrKey) override {
    Object().Call(Member::kRemove, {positionOrKey});
  }
};

}  // namespace

Ref<ColumnHeaderCollection> LateBoundColumns(LateBoundObject columns) {
  return MakeRef<LateBoundColumnCollection>(std::move(columns));
}

Ref<ListItemCollection> LateBoundRows(LateBoundObject rows) {
  return MakeRef<LateBoundRowCollection>(std::move(rows));
}

}  // namespace sifter
