#pragma once

#include "base/Ref.h"
#include "base/Text.h"
#include "base/Value.h"
#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Printers.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Lists to test with, and lists as texts to compare. What takes a `list` takes a live list and a
// snapshot alike. Texts are UTF-8 here, for tests to read well.

namespace sifter {

using TextRows = std::vector<std::vector<std::string>>;

template <class List>
void AddColumn(List& list, std::string_view caption, std::string_view key = "") {
  list.ColumnHeaders()->Add(0, Text::FromUtf8(key), Text::FromUtf8(caption), 1440, 0, Value());
}

// Appends a row with these texts; columns beyond them stay empty. Gives the row back.
template <class List>
auto AddRow(List& list, const std::vector<std::string>& texts, std::string_view key = "") {
  const auto row =
      list.ListItems()->Add(0, Text::FromUtf8(key), Text::FromUtf8(texts.at(0)), Value(), Value());
  for (std::size_t j = 1; j < texts.size(); ++j)
    row->SetSubItems(static_cast<std::int32_t>(j), Text::FromUtf8(texts[j]));
  return row;
}

template <class List>
void Fill(List& list, const std::vector<std::string>& columns, const TextRows& rows) {
  for (const std::string& caption : columns) AddColumn(list, caption);
  for (const std::vector<std::string>& texts : rows) AddRow(list, texts);
}

inline Ref<MemoryListView> MakeList(const std::vector<std::string>& columns,
                                    const TextRows& rows = {}) {
  const Ref<MemoryListView> list = MakeRef<MemoryListView>();
  Fill(*list, columns, rows);
  return list;
}

inline Ref<ListViewDump> MakeDump(const std::vector<std::string>& columns,
                                  const TextRows& rows = {}) {
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  Fill(*dump, columns, rows);
  return dump;
}

// The text of every row and behind it those of its cells.
template <class List>
TextRows Texts(List& list) {
  TextRows rows;
  const auto items = list.ListItems();
  for (std::int32_t i = 1; i <= items->Count(); ++i) {
    const auto item = items->Item(i);
    const auto cells = item->ListSubItems();
    std::vector<std::string> texts = {ValueToText(item->Text()).ToUtf8()};
    for (std::int32_t j = 1; j <= cells->Count(); ++j)
      texts.push_back(ValueToText(cells->Item(j)->Text()).ToUtf8());
    rows.push_back(texts);
  }
  return rows;
}

// The first column alone.
template <class List>
std::vector<std::string> FirstTexts(List& list) {
  std::vector<std::string> texts;
  for (const std::vector<std::string>& row : Texts(list)) texts.push_back(row[0]);
  return texts;
}

namespace detail {

inline std::string Field(const char* name, const Value& value) {
  return std::string(" ") + name + '=' + Shown(value);
}

}  // namespace detail

template <class Cell>
std::string DumpCell(const Cell& cell) {
  using detail::Field;
  return Field("Key", cell.Key()) + Field("Text", cell.Text()) + Field("Tag", cell.Tag()) +
         Field("ReportIcon", cell.ReportIcon()) + Field("ToolTipText", cell.ToolTipText()) +
         Field("ForeColor", cell.ForeColor()) + Field("Bold", cell.Bold());
}

// One row with all its attributes, and a line for each of its cells.
template <class Item>
std::string DumpRow(Item& item) {
  using detail::Field;
  std::string dump = Field("Key", item.Key()) + Field("Text", item.Text()) +
                     Field("Tag", item.Tag()) + Field("ToolTipText", item.ToolTipText()) +
                     Field("Icon", item.Icon()) + Field("SmallIcon", item.SmallIcon()) +
                     Field("Bold", item.Bold()) + Field("Checked", item.Checked()) +
                     Field("Ghosted", item.Ghosted()) + Field("ForeColor", item.ForeColor()) + '\n';
  const auto cells = item.ListSubItems();
  for (std::int32_t j = 1; j <= cells->Count(); ++j)
    dump += "  cell " + std::to_string(j) + ':' + DumpCell(*cells->Item(j)) + '\n';
  return dump;
}

// All rows with all attributes, the same for a live list and its snapshot.
template <class List>
std::string DumpRows(List& list) {
  std::string dump;
  const auto items = list.ListItems();
  for (std::int32_t i = 1; i <= items->Count(); ++i)
    dump += "row " + std::to_string(i) + ':' + DumpRow(*items->Item(i));
  return dump;
}

// All columns with what they have; a snapshot's column has no tag.
template <class List>
std::string DumpColumns(List& list) {
  using detail::Field;
  std::string dump;
  const auto columns = list.ColumnHeaders();
  for (std::int32_t i = 1; i <= columns->Count(); ++i) {
    const auto column = columns->Item(i);
    dump += "column " + std::to_string(i) + ':' + Field("Key", column->Key()) +
            Field("Text", column->Text()) + Field("Width", column->Width()) +
            Field("Alignment", column->Alignment()) + Field("Icon", column->Icon());
    if constexpr (requires { column->Tag(); }) dump += Field("Tag", column->Tag());
    dump += '\n';
  }
  return dump;
}

// The whole state of a list: sorting, columns and rows. EXPECT_EQ on two of these prints the
// lines that differ.
template <class List>
std::string Dump(List& list) {
  std::string dump;
  if constexpr (requires { list.Sorted(); }) {
    using detail::Field;
    dump = "list:" + Field("Sorted", list.Sorted()) + Field("SortKey", list.SortKey()) +
           Field("SortOrder", list.SortOrder()) + '\n';
  }
  return dump + DumpColumns(list) + DumpRows(list);
}

}  // namespace sifter
