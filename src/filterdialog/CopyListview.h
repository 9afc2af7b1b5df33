#pragma once

#include "base/RuntimeError.h"
#include "base/Value.h"
#include "listmodel/HostListView.h"
#include "listmodel/ListViewDump.h"
#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"

#include <algorithm>
#include <cstdint>

namespace sifter {

namespace detail {

inline HostListView* LiveList(HostListView* list) { return list; }
inline HostListView* LiveList(ListViewDump*) { return nullptr; }

template <class Source, class Target>
void CopyColumns(Source& source, Target& target) {
  const auto from = source.ColumnHeaders();
  const auto to = target.ColumnHeaders();
  const std::int32_t count = from->Count();
  for (std::int32_t i = 1; i <= count; ++i) {
    const auto header = from->Item(i);
    // Read one by one: arguments would be read in whatever order the compiler likes.
    const Value key = header->Key();
    const Value text = header->Text();
    const Value width = header->Width();
    const Value alignment = header->Alignment();
    to->Add(0, key, text, width, alignment, header->Icon());
  }
}

// The texts of the cells have travelled as SubItems already. A cell that the new row doesn't have
// has nothing to carry: a snapshot whose columns were taken away keeps its rows' cells, and its
// copy has none.
template <class SourceItem, class TargetItem>
void CopyCellAttributes(SourceItem& source, TargetItem& target) {
  const auto from = source.ListSubItems();
  const auto to = target.ListSubItems();
  const std::int32_t count = from->Count();
  const std::int32_t targetCount = count > 0 ? to->Count() : 0;
  for (std::int32_t k = 1; k <= std::min(count, targetCount); ++k) {
    const auto cell = from->Item(k);
    const auto copy = to->Item(k);
    copy->SetBold(cell->Bold());
    copy->SetForeColor(cell->ForeColor());
    copy->SetKey(cell->Key());
    copy->SetReportIcon(cell->ReportIcon());
    copy->SetTag(cell->Tag());
    copy->SetToolTipText(cell->ToolTipText());
  }
}

template <class SourceItem, class TargetItems>
void CopyItem(SourceItem& item, std::int32_t columns, TargetItems& target) {
  const Value key = item.Key();
  const Value text = item.Text();
  const Value icon = item.Icon();
  const auto copy = target.Add(0, key, text, icon, item.SmallIcon());
  copy->SetBold(item.Bold());
  copy->SetTag(item.Tag());
  copy->SetChecked(item.Checked());
  copy->SetForeColor(item.ForeColor());
  copy->SetGhosted(item.Ghosted());
  copy->SetToolTipText(item.ToolTipText());
  for (std::int32_t j = 1; j < columns; ++j) copy->SetSubItems(j, item.SubItems(j));
  CopyCellAttributes(item, *copy);
}

// Between two lists of our own with the same columns rows are shared from the first one on, for
// as long as that is the same as copying them. Returns how many were.
std::int32_t ShareRows(SharedRows* source, SharedRows* target);

template <class Source, class Target>
void CopyItems(Source& source, Target& target) {
  const auto from = source.ListItems();
  const auto to = target.ListItems();
  const std::int32_t count = from->Count();
  if (count == 0) return;
  const std::int32_t columns = source.ColumnHeaders()->Count();
  const std::int32_t shared = ShareRows(source.Shared(), target.Shared());
  for (std::int32_t i = shared + 1; i <= count; ++i) CopyItem(*from->Item(i), columns, *to);
}

}  // namespace detail

// Makes `target` hold the rows of `source`, with everything that can be seen of them. Either may
// be a live list or a snapshot.
//
// The target's rows go first. A target without columns gets the source's; one that has any keeps
// them as they are, even where they differ. A missing list is error 91 (a missing source leaves
// the target empty), too few columns in the target are error 9, a key that the target has already
// is error 457, and any error of a live list comes out as it is. The rows copied up to there stay.
template <class Source, class Target>
void CopyListview(Source* source, Target* target) {
  if (target == nullptr) throw RuntimeError(ErrorNumber::kObjectNotSet);
  const UpdateScope update(detail::LiveList(target));
  target->ListItems()->Clear();
  if (source == nullptr) throw RuntimeError(ErrorNumber::kObjectNotSet);
  if (target->ColumnHeaders()->Count() == 0) detail::CopyColumns(*source, *target);
  detail::CopyItems(*source, *target);
}

}  // namespace sifter
