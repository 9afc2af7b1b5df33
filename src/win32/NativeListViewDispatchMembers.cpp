#include "win32/NativeListViewDispatchMembers.h"

#include "win32/NativeListViewDispatchEnum.h"
#include "win32/NativeListViewDispatchObject.h"
#include "win32/Variants.h"

#include <utility>

namespace sifter {

namespace {

using Names = std::span<const TextView>;

constexpr TextView kIndex[] = {u"Index"};
constexpr TextView kAddColumn[] = {u"Index", u"Key", u"Text", u"Width", u"Alignment", u"Icon"};
constexpr TextView kAddRow[] = {u"Index", u"Key", u"Text", u"Icon", u"SmallIcon"};
constexpr TextView kAddCell[] = {u"Index", u"Key", u"Text", u"ReportIcon", u"ToolTipText"};
constexpr double kUsualWidth = 1440;

void Return(VARIANT* result, const Value& value) { *result = VariantFromValue(value).Release(); }

void Return(VARIANT* result, ComRef<IDispatch> object) {
  result->vt = VT_DISPATCH;
  result->pdispVal = object.Release();
}

template <class Part>
ComRef<IDispatch> MakeDispatch(Ref<Part> part, std::span<const DispatchMember> members) {
  return ComRef<IDispatch>::Adopt(new DispatchObject(std::move(part), members));
}

// The member functions of the list model behind the names.

template <class Part, Value (Part::*Get)() const>
void Read(Object& part, const DispatchCall&, VARIANT* result) {
  Return(result, (static_cast<Part&>(part).*Get)());
}

template <class Part, void (Part::*Set)(const Value&)>
void Write(Object& part, const DispatchCall& call) {
  (static_cast<Part&>(part).*Set)(call.NewValue());
}

template <class Part>
void Count(Object& part, const DispatchCall&, VARIANT* result) {
  Return(result, static_cast<Part&>(part).Count());
}

template <class Part>
void Item(Object& part, const DispatchCall& call, VARIANT* result) {
  Return(result, DispatchOf(static_cast<Part&>(part).Item(call[0])));
}

template <class Part>
void Clear(Object& part, const DispatchCall&, VARIANT*) {
  static_cast<Part&>(part).Clear();
}

template <class Part>
void NewEnum(Object& part, const DispatchCall&, VARIANT* result) {
  const Ref<Part> collection(&static_cast<Part&>(part));
  result->punkVal = new DispatchEnum(DispatchEnum::Source{
      .count = [collection] { return collection->Count(); },
      .item = [collection](std::int32_t i) { return DispatchOf(collection->Item(i)); },
  });
  result->vt = VT_UNKNOWN;
}

void AddColumn(Object& part, const DispatchCall& call, VARIANT* result) {
  const Value width = call.Has(3) ? call[3] : Value(kUsualWidth);
  Return(result, DispatchOf(static_cast<ColumnHeaderCollection&>(part).Add(
                     call.Index(0), call[1], call[2], width, call[4], call[5])));
}

void AddRow(Object& part, const DispatchCall& call, VARIANT* result) {
  Return(result, DispatchOf(static_cast<ListItemCollection&>(part).Add(call.Index(0), call[1],
                                                                       call[2], call[3], call[4])));
}

void AddCell(Object& part, const DispatchCall& call, VARIANT* result) {
  Return(result, DispatchOf(static_cast<ListSubItemCollection&>(part).Add(
                     call.Index(0), call[1], call[2], call[3], call[4])));
}

void RemoveRow(Object& part, const DispatchCall& call, VARIANT*) {
  static_cast<ListItemCollection&>(part).Remove(call[0]);
}

void ReadSubItem(Object& part, const DispatchCall& call, VARIANT* result) {
  Return(result, static_cast<ListItem&>(part).SubItems(call.Index(0)));
}

void WriteSubItem(Object& part, const DispatchCall& call) {
  static_cast<ListItem&>(part).SetSubItems(call.Index(0), call.NewValue());
}

void ReadWindow(Object& part, const DispatchCall&, VARIANT* result) {
  Return(result, static_cast<HostListView&>(part).hWnd());
}

void GiveFocus(Object& part, const DispatchCall&, VARIANT*) {
  static_cast<HostListView&>(part).SetFocus();
}

// Tables of the members. A name's place among the others doesn't matter to hosts; its number, once
// given, may have been kept by them.

template <class Part, Value (Part::*Get)() const, void (Part::*Set)(const Value&)>
constexpr DispatchMember Property(TextView name, DISPID id) {
  return {name, id, {}, 0, &Read<Part, Get>, &Write<Part, Set>, false};
}

template <class Part, Value (Part::*Get)() const>
constexpr DispatchMember Property(TextView name, DISPID id) {
  return {name, id, {}, 0, &Read<Part, Get>, nullptr, false};
}

constexpr DispatchMember Method(TextView name, DISPID id, Names parameters, std::size_t required,
                                decltype(DispatchMember::read) call) {
  return {name, id, parameters, required, call, nullptr, false};
}

constexpr DispatchMember kColumnMembers[] = {
    Property<ColumnHeader, &ColumnHeader::Index>(u"Index", 1),
    Property<ColumnHeader, &ColumnHeader::Key, &ColumnHeader::SetKey>(u"Key", 2),
    Property<ColumnHeader, &ColumnHeader::Text, &ColumnHeader::SetText>(u"Text", 3),
    Property<ColumnHeader, &ColumnHeader::Width, &ColumnHeader::SetWidth>(u"Width", 4),
    Property<ColumnHeader, &ColumnHeader::Alignment, &ColumnHeader::SetAlignment>(u"Alignment", 5),
    Property<ColumnHeader, &ColumnHeader::Icon, &ColumnHeader::SetIcon>(u"Icon", 6),
    Property<ColumnHeader, &ColumnHeader::Tag, &ColumnHeader::SetTag>(u"Tag", 7),
};

constexpr DispatchMember kCellMembers[] = {
    Property<ListSubItem, &ListSubItem::Key, &ListSubItem::SetKey>(u"Key", 1),
    Property<ListSubItem, &ListSubItem::Text, &ListSubItem::SetText>(u"Text", 2),
    Property<ListSubItem, &ListSubItem::Tag, &ListSubItem::SetTag>(u"Tag", 3),
    Property<ListSubItem, &ListSubItem::ReportIcon, &ListSubItem::SetReportIcon>(u"ReportIcon", 4),
    Property<ListSubItem, &ListSubItem::ToolTipText, &ListSubItem::SetToolTipText>(u"ToolTipText",
                                                                                   5),
    Property<ListSubItem, &ListSubItem::ForeColor, &ListSubItem::SetForeColor>(u"ForeColor", 6),
    Property<ListSubItem, &ListSubItem::Bold, &ListSubItem::SetBold>(u"Bold", 7),
};

constexpr DispatchMember kCellsMembers[] = {
    Method(u"Item", DISPID_VALUE, kIndex, 1, &Item<ListSubItemCollection>),
    Method(u"_NewEnum", DISPID_NEWENUM, {}, 0, &NewEnum<ListSubItemCollection>),
    Method(u"Count", 1, {}, 0, &Count<ListSubItemCollection>),
    Method(u"Add", 2, kAddCell, 0, &AddCell),
};

void ReadCells(Object& part, const DispatchCall&, VARIANT* result) {
  Return(result, MakeDispatch(static_cast<ListItem&>(part).ListSubItems(), kCellsMembers));
}

constexpr DispatchMember kRowMembers[] = {
    Property<ListItem, &ListItem::Index>(u"Index", 1),
    Property<ListItem, &ListItem::Key, &ListItem::SetKey>(u"Key", 2),
    Property<ListItem, &ListItem::Text, &ListItem::SetText>(u"Text", 3),
    Property<ListItem, &ListItem::Tag, &ListItem::SetTag>(u"Tag", 4),
    Property<ListItem, &ListItem::Icon, &ListItem::SetIcon>(u"Icon", 5),
    Property<ListItem, &ListItem::SmallIcon, &ListItem::SetSmallIcon>(u"SmallIcon", 6),
    Property<ListItem, &ListItem::ToolTipText, &ListItem::SetToolTipText>(u"ToolTipText", 7),
    Property<ListItem, &ListItem::Checked, &ListItem::SetChecked>(u"Checked", 8),
    Property<ListItem, &ListItem::Bold, &ListItem::SetBold>(u"Bold", 9),
    Property<ListItem, &ListItem::ForeColor, &ListItem::SetForeColor>(u"ForeColor", 10),
    Property<ListItem, &ListItem::Ghosted, &ListItem::SetGhosted>(u"Ghosted", 11),
    {u"ListSubItems", 12, {}, 0, &ReadCells, nullptr, true},
    {u"SubItems", 13, kIndex, 1, &ReadSubItem, &WriteSubItem, false},
};

constexpr DispatchMember kColumnsMembers[] = {
    Method(u"Item", DISPID_VALUE, kIndex, 1, &Item<ColumnHeaderCollection>),
    Method(u"_NewEnum", DISPID_NEWENUM, {}, 0, &NewEnum<ColumnHeaderCollection>),
    Method(u"Count", 1, {}, 0, &Count<ColumnHeaderCollection>),
    Method(u"Add", 2, kAddColumn, 0, &AddColumn),
    Method(u"Clear", 3, {}, 0, &Clear<ColumnHeaderCollection>),
};

constexpr DispatchMember kRowsMembers[] = {
    Method(u"Item", DISPID_VALUE, kIndex, 1, &Item<ListItemCollection>),
    Method(u"_NewEnum", DISPID_NEWENUM, {}, 0, &NewEnum<ListItemCollection>),
    Method(u"Count", 1, {}, 0, &Count<ListItemCollection>),
    Method(u"Add", 2, kAddRow, 0, &AddRow),
    Method(u"Clear", 3, {}, 0, &Clear<ListItemCollection>),
    Method(u"Remove", 4, kIndex, 1, &RemoveRow),
};

void ReadColumns(Object& part, const DispatchCall&, VARIANT* result) {
  Return(result, MakeDispatch(static_cast<HostListView&>(part).ColumnHeaders(), kColumnsMembers));
}

void ReadRows(Object& part, const DispatchCall&, VARIANT* result) {
  Return(result, MakeDispatch(static_cast<HostListView&>(part).ListItems(), kRowsMembers));
}

constexpr DispatchMember kListMembers[] = {
    {u"ColumnHeaders", 1, {}, 0, &ReadColumns, nullptr, true},
    {u"ListItems", 2, {}, 0, &ReadRows, nullptr, true},
    {u"hWnd", 3, {}, 0, &ReadWindow, nullptr, false},
    Property<HostListView, &HostListView::Sorted, &HostListView::SetSorted>(u"Sorted", 4),
    Property<HostListView, &HostListView::SortKey, &HostListView::SetSortKey>(u"SortKey", 5),
    Property<HostListView, &HostListView::SortOrder, &HostListView::SetSortOrder>(u"SortOrder", 6),
    Method(u"SetFocus", 7, {}, 0, &GiveFocus),
};

}  // namespace

ComRef<IDispatch> DispatchOf(Ref<ColumnHeader> column) {
  return MakeDispatch(std::move(column), kColumnMembers);
}

ComRef<IDispatch> DispatchOf(Ref<ListItem> row) {
  return MakeDispatch(std::move(row), kRowMembers);
}

ComRef<IDispatch> DispatchOf(Ref<ListSubItem> cell) {
  return MakeDispatch(std::move(cell), kCellMembers);
}

std::span<const DispatchMember> ListViewMembers() { return kListMembers; }

}  // namespace sifter
