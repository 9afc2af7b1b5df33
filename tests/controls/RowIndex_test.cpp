#include "controls/RowIndex.h"

#include "library/modPLC2.h"
#include "listmodel/RowStore.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace sifter {

namespace {

const RowData& RowAt(ListViewDump& dump, std::int32_t position) {
  return dump.Shared()->Rows().At(position);
}

// Every row differs from the others in few places or in none.
class FewRows {
 public:
  explicit FewRows(std::uint32_t seed) : random_(seed) {}

  std::uint32_t Below(std::uint32_t end) { return static_cast<std::uint32_t>(random_()) % end; }

  void AddTo(ListViewDump& dump) {
    const auto row = AddRow(dump, {Below(2) == 0 ? "oak" : "ash"});
    if (Below(3) == 0) row->SetKey(u"k");
    if (Below(3) == 0) row->SetTag(u"t");
    if (Below(3) == 0) row->SetToolTipText(u"tip");
    if (Below(3) == 0) row->SetIcon(Icon());
    if (Below(3) == 0) row->SetSmallIcon(Icon());
    row->SetBold(Below(2) == 0);
    const auto cells = row->ListSubItems();
    for (std::int32_t j = 1; j <= cells->Count(); ++j) Dress(*cells->Item(j));
  }

 private:
  // The first three are equal by value, the others are not.
  Value Icon() {
    const Value icons[] = {std::int16_t{1}, std::int32_t{1}, 1.0, u"1", std::int32_t{0}, Value()};
    return icons[Below(6)];
  }

  void Dress(LVSubItemDump& cell) {
    if (Below(3) == 0) cell.SetText(u"1");
    if (Below(6) == 0) cell.SetKey(u"c");
    if (Below(6) == 0) cell.SetTag(u"t");
    if (Below(6) == 0) cell.SetReportIcon(Icon());
    if (Below(6) == 0) cell.SetToolTipText(u"tip");
  }

  std::mt19937 random_;
};

// Rows of none to two cells, as a snapshot has them whose columns were changed in between.
Ref<ListViewDump> RaggedRows(FewRows& rows, int count) {
  const Ref<ListViewDump> kinds[] = {MakeDump({"a"}), MakeDump({"a", "b"}),
                                     MakeDump({"a", "b", "c"})};
  const auto dump = MakeRef<ListViewDump>();
  for (int i = 0; i < count; ++i) {
    ListViewDump& kind = *kinds[rows.Below(3)];
    rows.AddTo(kind);
    dump->Shared()->AppendShared(RowAt(kind, kind.ListItems()->Count()));
  }
  return dump;
}

std::int32_t WalkedPosition(ListViewDump& given, std::int32_t i, ListViewDump& dump) {
  return modPLC2::PositionOf(*given.ListItems()->Item(i), *dump.ListItems());
}

TEST(RowIndex, FindsWhatAWalkOverAllRowsFinds) {
  int found = 0, missing = 0;
  for (std::uint32_t seed = 1; seed <= 400; ++seed) {
    FewRows rows(seed);
    const Ref<ListViewDump> dump = RaggedRows(rows, 30);
    const Ref<ListViewDump> given = RaggedRows(rows, 30);
    RowIndex index(*dump);
    for (std::int32_t i = 1; i <= 30; ++i) {
      const std::int32_t expected = WalkedPosition(*given, i, *dump);
      ++(expected == 0 ? missing : found);
      ASSERT_EQ(index.PositionOf(RowAt(*given, i)), expected)
          << "seed " << seed << ", given" << DumpRow(*given->ListItems()->Item(i)) << "among\n"
          << DumpRows(*dump);
    }
  }
  EXPECT_GT(found, 1000);
  EXPECT_GT(missing, 1000);
}

TEST(RowIndex, PassesOverRowsThatWereTakenAsIfTheyHadGone) {
  for (std::uint32_t seed = 1; seed <= 200; ++seed) {
    FewRows rows(seed);
    const Ref<ListViewDump> dump = RaggedRows(rows, 30);
    const Ref<ListViewDump> given = RaggedRows(rows, 30);
    RowIndex index(*dump);
    const auto rest = MakeRef<ListViewDump>();
    std::vector<std::int32_t> places(30);  // where the rows of `rest` stand in `dump`
    for (std::int32_t i = 1; i <= 30; ++i) {
      rest->Shared()->AppendShared(RowAt(*dump, i));
      places[static_cast<std::size_t>(i) - 1] = i;
    }
    for (std::int32_t i = 1; i <= 30; ++i) {
      const std::int32_t left = WalkedPosition(*given, i, *rest);
      const std::int32_t position = index.PositionOf(RowAt(*given, i));
      ASSERT_EQ(position, left == 0 ? 0 : places[static_cast<std::size_t>(left) - 1])
          << "seed " << seed << ", row " << i;
      if (left == 0) continue;
      index.Take(position);
      rest->ListItems()->Remove(left);
      places.erase(places.begin() + left - 1);
    }
  }
}

TEST(RowIndex, FindsAppendedRowsAfterItWasTold) {
  const Ref<ListViewDump> dump = MakeDump({"Name", "Qty"}, {{"oak", "1"}});
  const Ref<ListViewDump> given = MakeDump({"Name", "Qty"}, {{"ash", "2"}});
  RowIndex index(*dump);
  EXPECT_EQ(index.PositionOf(RowAt(*given, 1)), 0);
  AddRow(*dump, {"elm", "1"});
  AddRow(*dump, {"ash", "2"});
  AddRow(*dump, {"ash", "2"});
  index.Update();
  EXPECT_EQ(index.PositionOf(RowAt(*given, 1)), 3);
  index.Take(3);
  EXPECT_EQ(index.PositionOf(RowAt(*given, 1)), 4);
}

TEST(RowIndex, TheFirstRowWinsWhicheverNumberOfCellsItHas) {
  const Ref<ListViewDump> narrow = MakeDump({"Name"}, {{"oak"}});
  const Ref<ListViewDump> wide = MakeDump({"Name", "Qty"}, {{"oak"}});
  const auto dump = MakeRef<ListViewDump>();
  for (const Ref<ListViewDump>& kind : {wide, narrow, wide})
    dump->Shared()->AppendShared(RowAt(*kind, 1));
  RowIndex index(*dump);
  EXPECT_EQ(index.PositionOf(RowAt(*wide, 1)), 1);
  EXPECT_EQ(index.PositionOf(RowAt(*narrow, 1)), 2);
  index.Take(1);
  EXPECT_EQ(index.PositionOf(RowAt(*wide, 1)), 2);
  index.Take(2);
  EXPECT_EQ(index.PositionOf(RowAt(*wide, 1)), 3);
  EXPECT_EQ(index.PositionOf(RowAt(*narrow, 1)), 0);
}

TEST(SameRow, TheListedRowsCellsCount) {
  const Ref<ListViewDump> one = MakeDump({"Name", "Qty"}, {{"oak", "1"}});
  const Ref<ListViewDump> two = MakeDump({"Name", "Qty", "Due"}, {{"oak", "1", "x"}});
  EXPECT_TRUE(SameRow(RowAt(*two, 1), RowAt(*one, 1)));
  EXPECT_FALSE(SameRow(RowAt(*one, 1), RowAt(*two, 1)));
}

TEST(SameRow, HowARowLooksPlaysNoPart) {
  const Ref<ListViewDump> plain = MakeDump({"Name", "Qty"}, {{"oak", "1"}});
  const Ref<ListViewDump> coloured = MakeDump({"Name", "Qty"}, {{"oak", "1"}});
  const auto row = coloured->ListItems()->Item(1);
  row->SetBold(true);
  row->SetChecked(true);
  row->SetGhosted(true);
  row->SetForeColor(255);
  const auto cell = row->ListSubItems()->Item(1);
  cell->SetBold(true);
  cell->SetForeColor(255);
  cell->SetToolTipText(u"tip");
  EXPECT_TRUE(SameRow(RowAt(*plain, 1), RowAt(*coloured, 1)));
  EXPECT_TRUE(SameRow(RowAt(*coloured, 1), RowAt(*plain, 1)));
}

}  // namespace

}  // namespace sifter
