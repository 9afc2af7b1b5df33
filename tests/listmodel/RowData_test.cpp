#include "listmodel/RowData.h"

#include "support/LifeProbe.h"
#include "support/Lists.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using detail::Field;

std::string DumpOf(const RowData& row) {
  const RowExtras& extras = row.Extras();
  std::string dump = Field("Key", extras.key) + Field("Tag", extras.tag) +
                     Field("ToolTipText", extras.toolTipText) + Field("Icon", extras.icon) +
                     Field("SmallIcon", extras.smallIcon) + Field("Bold", row.Bold()) +
                     Field("Checked", row.Checked()) + Field("Ghosted", row.Ghosted()) +
                     Field("ForeColor", row.ForeColor()) + '\n';
  for (std::size_t j = 0; j <= row.CellCount(); ++j) {
    dump += Field("Text", row.ColumnText(j));
    if (j == 0) continue;
    const CellExtras cell = row.Cell(j);
    dump += Field("Key", cell.key) + Field("Tag", cell.tag) +
            Field("ToolTipText", cell.toolTipText) + Field("ReportIcon", cell.reportIcon) +
            Field("ForeColor", cell.foreColor) + Field("Bold", cell.bold) + '\n';
  }
  return dump;
}

RowPtr PlainRow() {
  RowPtr row = RowData::Make(2, 7);
  RowData& data = row.Edit();
  data.SetColumnText(0, u"Oak");
  data.SetColumnText(1, u"3");
  data.SetColumnText(2, u"green");
  return row;
}

RowPtr FullRow() {
  RowPtr row = PlainRow();
  RowData& data = row.Edit();
  data.EditExtras() = {u"k", u"t", u"tip", 1, u"pic"};
  data.SetBold(true);
  data.SetChecked(true);
  data.SetGhosted(true);
  data.SetForeColor(255);
  data.EditCell(1) = {u"k1", u"t1", u"tip1", 5, 16, true};
  return row;
}

TEST(RowData, NewRowIsEmptyButForItsColour) {
  const RowPtr row = RowData::Make(2, 7);
  EXPECT_EQ(DumpOf(*row),
            R"( Key="" Tag="" ToolTipText="" Icon=Empty SmallIcon=Empty Bold=False Checked=False )"
            R"(Ghosted=False ForeColor=7
 Text="" Text="" Key="" Tag="" ToolTipText="" ReportIcon=Empty ForeColor=7 Bold=False
 Text="" Key="" Tag="" ToolTipText="" ReportIcon=Empty ForeColor=7 Bold=False
)");
  EXPECT_FALSE(row->HasCellExtras());
}

TEST(RowData, RowWithoutCellsHasItsOwnText) {
  RowPtr row = RowData::Make(0, 0);
  row.Edit().SetColumnText(0, u"alone");
  EXPECT_EQ(row->CellCount(), 0u);
  EXPECT_EQ(row->ColumnText(0), u"alone");
}

TEST(RowData, ColourOfTheRowIsNotThatOfItsCells) {
  RowPtr row = RowData::Make(1, 7);
  row.Edit().SetForeColor(255);
  EXPECT_EQ(row->ForeColor(), 255);
  EXPECT_EQ(row->Cell(1).foreColor, 7);
}

TEST(RowData, EditingOneCellLeavesTheOthersAsTheyWere) {
  RowPtr row = RowData::Make(3, 7);
  row.Edit().EditCell(2).bold = true;
  EXPECT_TRUE(row->HasCellExtras());
  EXPECT_EQ(row->Cell(1), (CellExtras{{}, {}, {}, {}, 7, false}));
  EXPECT_EQ(row->Cell(2), (CellExtras{{}, {}, {}, {}, 7, true}));
  EXPECT_EQ(row->Cell(3), (CellExtras{{}, {}, {}, {}, 7, false}));
}

struct Change {
  const char* name;
  std::function<void(RowData&)> make;
};

const Change kChanges[] = {
    {"text", [](RowData& row) { row.SetColumnText(0, u"new"); }},
    {"cell text", [](RowData& row) { row.SetColumnText(2, u"new"); }},
    {"key", [](RowData& row) { row.EditExtras().key = u"new"; }},
    {"tag", [](RowData& row) { row.EditExtras().tag = u"new"; }},
    {"tool tip", [](RowData& row) { row.EditExtras().toolTipText = u"new"; }},
    {"icon", [](RowData& row) { row.EditExtras().icon = 99; }},
    {"small icon", [](RowData& row) { row.EditExtras().smallIcon = 99; }},
    {"bold", [](RowData& row) { row.SetBold(!row.Bold()); }},
    {"checked", [](RowData& row) { row.SetChecked(!row.Checked()); }},
    {"ghosted", [](RowData& row) { row.SetGhosted(!row.Ghosted()); }},
    {"colour", [](RowData& row) { row.SetForeColor(99); }},
    {"cell key", [](RowData& row) { row.EditCell(1).key = u"new"; }},
    {"cell tag", [](RowData& row) { row.EditCell(2).tag = u"new"; }},
    {"cell tool tip", [](RowData& row) { row.EditCell(2).toolTipText = u"new"; }},
    {"cell icon", [](RowData& row) { row.EditCell(1).reportIcon = 99; }},
    {"cell colour", [](RowData& row) { row.EditCell(2).foreColor = 99; }},
    {"cell bold", [](RowData& row) { row.EditCell(2).bold = true; }},
};

TEST(RowPtr, ASharedRowNeverChanges) {
  for (const auto& make : {PlainRow, FullRow})
    for (const Change& change : kChanges) {
      SCOPED_TRACE(change.name);
      RowPtr expected = make();
      change.make(expected.Edit());
      const RowPtr original = make();
      const std::string before = DumpOf(*original);
      RowPtr edited = original;
      change.make(edited.Edit());
      EXPECT_EQ(DumpOf(*original), before);
      EXPECT_EQ(DumpOf(*edited), DumpOf(*expected));
      EXPECT_NE(DumpOf(*edited), before);
    }
}

TEST(RowPtr, EditCopiesOnlyWhatSomebodyElseHolds) {
  RowPtr row = FullRow();
  const RowData* first = row.Get();
  EXPECT_EQ(&row.Edit(), first);
  {
    RowPtr other = row;
    EXPECT_EQ(other.Get(), first);
    EXPECT_NE(&other.Edit(), first);
    const RowData* copy = other.Get();
    EXPECT_EQ(&other.Edit(), copy);
    EXPECT_EQ(&row.Edit(), first);
  }
  RowPtr last = row;
  row = RowPtr();
  EXPECT_EQ(&last.Edit(), first);
}

TEST(RowPtr, ACopySharesItsTexts) {
  const RowPtr row = PlainRow();
  RowPtr copy = row;
  copy.Edit().SetColumnText(0, u"new");
  EXPECT_TRUE(copy->ColumnText(1).SharesWith(row->ColumnText(1)));
  EXPECT_TRUE(copy->ColumnText(2).SharesWith(row->ColumnText(2)));
}

TEST(RowPtr, ACopyOfARowThatHasOnlyTextsStaysSmall) {
  RowPtr row = PlainRow();
  row.Edit().SetForeColor(255);
  RowPtr copy = row;
  copy.Edit().SetBold(true);
  EXPECT_FALSE(copy->HasCellExtras());
  EXPECT_EQ(copy->ForeColor(), 255);
  EXPECT_EQ(copy->Cell(2).foreColor, 7);
}

TEST(RowPtr, NewCellGoesInFrontOfTheGivenOneAndHasItsColour) {
  const RowPtr row = FullRow();
  for (const std::size_t j : {1u, 2u, 3u}) {
    const RowPtr grown = row.WithNewCell(j, 99);
    ASSERT_EQ(grown->CellCount(), 3u);
    EXPECT_TRUE(grown->ColumnText(j).IsEmpty());
    EXPECT_EQ(grown->Cell(j), (CellExtras{{}, {}, {}, {}, 99, false}));
    EXPECT_EQ(DumpOf(*grown.WithoutCell(j)), DumpOf(*row));
  }
}

TEST(RowPtr, WithoutACellTheOthersMoveUp) {
  const RowPtr row = FullRow();
  const RowPtr shorter = row.WithoutCell(1);
  ASSERT_EQ(shorter->CellCount(), 1u);
  EXPECT_EQ(shorter->ColumnText(0), u"Oak");
  EXPECT_EQ(shorter->ColumnText(1), u"green");
  EXPECT_EQ(shorter->Cell(1), row->Cell(2));
  EXPECT_EQ(shorter->Extras().key, u"k");
  EXPECT_EQ(shorter.WithoutCell(1)->CellCount(), 0u);
}

TEST(RowPtr, ARowOfTextsStaysSmallWhenItGrowsInItsOwnColour) {
  EXPECT_FALSE(PlainRow().WithNewCell(3, 7)->HasCellExtras());
  EXPECT_TRUE(PlainRow().WithNewCell(3, 8)->HasCellExtras());
}

TEST(RowPtr, TheLastShareEndsTheRow) {
  int alive = 0;
  {
    RowPtr row = RowData::Make(1, 0);
    row.Edit().EditExtras().icon = Value(Ref<Object>(MakeRef<LifeProbe>(alive)));
    row.Edit().EditCell(1).reportIcon = Value(Ref<Object>(MakeRef<LifeProbe>(alive)));
    EXPECT_EQ(alive, 2);
    RowPtr share = row;
    RowPtr other = row;
    other.Edit().EditExtras().icon = Value();
    row = RowPtr();
    EXPECT_EQ(alive, 2);
    share = RowPtr();
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

TEST(RowPtr, AShareCanBeHandedOverAsAPlainPointer) {
  int alive = 0;
  RowPtr row = RowData::Make(0, 0);
  row.Edit().EditExtras().icon = Value(Ref<Object>(MakeRef<LifeProbe>(alive)));
  RowData* plain = row.Release();
  EXPECT_EQ(row.Get(), nullptr);
  {
    const RowPtr share = RowPtr::Share(plain);
    EXPECT_EQ(share.Get(), plain);
  }
  EXPECT_EQ(alive, 1);
  RowPtr::Adopt(plain);
  EXPECT_EQ(alive, 0);
}

TEST(RowPtr, AssigningARowToItselfKeepsIt) {
  RowPtr row = PlainRow();
  const RowPtr& same = row;
  row = same;
  EXPECT_EQ(row->ColumnText(0), u"Oak");
}

}  // namespace

}  // namespace sifter
