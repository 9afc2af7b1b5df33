#include "listmodel/RowMembers.h"

#include "base/RuntimeError.h"

#include <utility>

namespace sifter {

namespace {

template <class T>
bool ReadsTheSame(const T& a, const T& b) {
  return a == b;
}

// Equal values may still read differently: True equals -1.
bool ReadsTheSame(const Value& a, const Value& b) { return a.IsEmpty() && b.IsEmpty(); }

// Writes one of the extras, unless it has that value already: rows that never get any stay small.
template <class T>
void Write(const RowHandle& row, T RowExtras::*member, T value) {
  if (ReadsTheSame(row.Row().Extras().*member, value)) return;
  row.Edit().EditExtras().*member = std::move(value);
}

}  // namespace

std::size_t RowMembers::CheckedCell(std::int32_t j) const {
  if (j < 1 || j > CellCount()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  return static_cast<std::size_t>(j);
}

void RowMembers::SetText(const Value& text) const {
  sifter::Text converted = ValueToText(text);
  row_.Edit().SetColumnText(0, std::move(converted));
}

void RowMembers::SetTag(const Value& tag) const { Write(row_, &RowExtras::tag, ValueToText(tag)); }

void RowMembers::SetToolTipText(const Value& text) const {
  Write(row_, &RowExtras::toolTipText, ValueToText(text));
}

void RowMembers::SetIcon(const Value& icon) const { Write(row_, &RowExtras::icon, icon); }

void RowMembers::SetSmallIcon(const Value& icon) const { Write(row_, &RowExtras::smallIcon, icon); }

void RowMembers::SetBold(const Value& bold) const {
  const bool converted = ValueToBoolean(bold);
  row_.Edit().SetBold(converted);
}

void RowMembers::SetChecked(const Value& checked) const {
  const bool converted = ValueToBoolean(checked);
  row_.Edit().SetChecked(converted);
}

void RowMembers::SetGhosted(const Value& ghosted) const {
  const bool converted = ValueToBoolean(ghosted);
  row_.Edit().SetGhosted(converted);
}

void RowMembers::SetForeColor(const Value& color) const {
  const std::int32_t converted = ValueToInt32(color);
  row_.Edit().SetForeColor(converted);
}

void RowMembers::SetSubItems(std::int32_t j, const Value& text) const {
  const std::size_t cell = CheckedCell(j);
  sifter::Text converted = ValueToText(text);
  row_.Edit().SetColumnText(cell, std::move(converted));
}

void RowMembers::RemoveCell(std::int32_t j) const {
  row_.ReplaceRow(row_.Shared().WithoutCell(CheckedCell(j)));
}

void RowMembers::InsertCell(std::int32_t j, std::int32_t foreColor) const {
  if (j < 1 || j > CellCount() + 1) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  row_.ReplaceRow(row_.Shared().WithNewCell(static_cast<std::size_t>(j), foreColor));
}

template <class T>
void CellMembers::Write(T CellExtras::*member, T value) const {
  if (ReadsTheSame(Extras().*member, value)) return;
  row_.Handle().Edit().EditCell(row_.CheckedCell(j_)).*member = std::move(value);
}

void CellMembers::SetKey(const Value& key) const { Write(&CellExtras::key, ValueToText(key)); }

void CellMembers::SetTag(const Value& tag) const { Write(&CellExtras::tag, ValueToText(tag)); }

void CellMembers::SetReportIcon(const Value& icon) const { Write(&CellExtras::reportIcon, icon); }

void CellMembers::SetToolTipText(const Value& text) const {
  Write(&CellExtras::toolTipText, ValueToText(text));
}

void CellMembers::SetForeColor(const Value& color) const {
  Write(&CellExtras::foreColor, ValueToInt32(color));
}

void CellMembers::SetBold(const Value& bold) const {
  Write(&CellExtras::bold, ValueToBoolean(bold));
}

}  // namespace sifter
