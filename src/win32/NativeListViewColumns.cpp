#include "win32/NativeListViewColumns.h"

#include "base/RuntimeError.h"
#include "win32/Dpi.h"
#include "win32/WideText.h"
#include "win32/WindowEntry.h"
#include "win32/mListviewMacros_471.h"

#include <string>

namespace sifter {

class NativeListViewColumns::WorkScope {
 public:
  explicit WorkScope(NativeListViewColumns& columns) : columns_(columns) { ++columns_.atWork_; }
  ~WorkScope() { --columns_.atWork_; }
  WorkScope(const WorkScope&) = delete;
  WorkScope& operator=(const WorkScope&) = delete;

 private:
  NativeListViewColumns& columns_;
};

namespace {

// Left, right and centre have the same codes on both sides; anything else is left.
int FormatOf(ColumnHeader& column) {
  const std::int32_t alignment = ValueToInt32(column.Alignment());
  return alignment == LVCFMT_RIGHT || alignment == LVCFMT_CENTER ? alignment : LVCFMT_LEFT;
}

bool HasPicture(ColumnHeader& column) {
  return column.Icon().Is<std::int32_t>() || column.Icon().Is<std::int16_t>();
}

template <class Column>
Column LookOf(ColumnHeader& column) {
  Column look{};
  look.mask = LVCF_FMT;
  look.fmt = FormatOf(column);
  if (HasPicture(column)) {
    look.mask |= LVCF_IMAGE;
    look.fmt |= LVCFMT_IMAGE | LVCFMT_COL_HAS_IMAGES;
    look.iImage = ValueToInt32(column.Icon());
  }
  return look;
}

}  // namespace

void NativeListViewColumns::Insert(std::int32_t position, double width) {
  const Ref<ColumnHeader> column = window_.list.ColumnHeaders()->Item(position);
  auto look = LookOf<LVCOLUMNA>(*column);
  look.mask |= LVCF_WIDTH;
  look.cx = TwipsToPixels(width, DpiOf(window_.handle));
  const WorkScope work(*this);
  const int place =
      CallingWindows([&] { return listview::InsertColumn(window_.handle, position - 1, look); });
  if (place < 0 && window_.handle != nullptr) throw RuntimeError(ErrorNumber::kOutOfMemory);
  if (window_.handle != nullptr) Change(position);
}

void NativeListViewColumns::Remove(std::int32_t position) {
  const WorkScope work(*this);
  CallingWindows([&] { return listview::DeleteColumn(window_.handle, position - 1); });
}

void NativeListViewColumns::Change(std::int32_t position) {
  if (position > window_.list.ColumnHeaders()->Count()) return;
  const Ref<ColumnHeader> column = window_.list.ColumnHeaders()->Item(position);
  auto look = LookOf<LVCOLUMNW>(*column);
  std::wstring text = Wide(ValueToText(column->Text()));
  look.mask |= LVCF_TEXT;
  look.pszText = text.data();
  const WorkScope work(*this);
  CallingWindows([&] { listview::SetColumn(window_.handle, position - 1, look); });
}

void NativeListViewColumns::Resize(std::int32_t position, double width) {
  LVCOLUMNW look{};
  look.mask = LVCF_WIDTH;
  look.cx = TwipsToPixels(width, DpiOf(window_.handle));
  const WorkScope work(*this);
  CallingWindows([&] { listview::SetColumn(window_.handle, position - 1, look); });
}

double NativeListViewColumns::Width(std::int32_t position, double given) const {
  const int dpi = DpiOf(window_.handle);
  const int pixels = listview::ColumnWidth(window_.handle, position - 1);
  return pixels == TwipsToPixels(given, dpi) ? given : PixelsToTwips(pixels, dpi);
}

}  // namespace sifter
