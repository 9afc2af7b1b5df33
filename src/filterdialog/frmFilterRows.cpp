#include "base/Integers.h"
#include "filterdialog/ColumnTypes.h"
#include "filterdialog/ReportErrors.h"
#include "filterdialog/ValueList.h"
#include "filterdialog/frmFilter.h"

#include <cmath>

namespace sifter {

void frmFilter::SetUpForm() {
  RunAtWork([this] {
    if (!ListView1) ListView1 = MakeRef<ListViewDump>();
    CopyListview(UsersListview, ListView1);
    columnCache_.Clear();
    BuildRows();
    LayOut();
  });
}

void frmFilter::BuildRows() {
  RemoveRows();
  columnCount_ = 0;
  if (!UsersListview) throw RuntimeError(ErrorNumber::kObjectNotSet);
  const Ref<ColumnHeaderCollection> headers = UsersListview->ColumnHeaders();
  const std::int32_t count = headers->Count();
  for (std::int32_t column = 1; column <= count; ++column) {
    const std::int32_t i = column - 1;
    const ColumnDataType type = DecideColumnType(*UsersListview, column, services_.conversions);
    Load(i);
    Build(i, ValueToText(headers->Item(column)->Text()), static_cast<std::int32_t>(type));
    WireRow(i);
    columnCount_ = ToInt16(column);
  }
}

// The frame's height is a 16-bit product: with more than 80 rows it overflows, and the layout
// stays as it was. The rows are there all the same.
void frmFilter::LayOut() {
  Run([this] {
    const std::int16_t rows = columnCount_;
    Frame1.SetHeight(ToInt16(std::int64_t{rows + 1} * kRowPitch));
    const double lastTop = lblColumnHeaderText[rows > 0 ? rows - 1 : 0].Top();
    const double top = std::nearbyint(lastTop + 1400);
    for (Control* control : std::initializer_list<Control*>{&chkCaseSensitive, &cmdApply,
                                                            &cmdHideFilter, &cmdReset, &cmdReport})
      control->SetTop(top);
    SetHeight(top + cmdApply.Height() + 400);
  });
}

void frmFilter::PopulateCriteriaComboBox(std::int16_t intColumnIndex) {
  Run([this, intColumnIndex] {
    ComboBox& box = cboCriteria[intColumnIndex];
    if (!ListView1) ListView1 = MakeRef<ListViewDump>();
    std::vector<Text> values;
    try {
      CollectDistinctValues(*ListView1, intColumnIndex, values);
    } catch (const RuntimeError&) {
      box.SetEntries(std::move(values));
      throw;
    }
    box.SetEntries(std::move(values));
  });
}

}  // namespace sifter
