#include "common/BannerUnderTest.h"

#include "controls/RowIndex.h"
#include "library/modPLC2.h"
#include "listmodel/RowStore.h"
#include "sift/CriteriaPlan.h"

#include <span>
#include <stdexcept>

namespace sifter::bench {

namespace {

// A text of its own for every cell.
Text Own(const Text& text) { return Text(text.View()); }

template <class List>
void AddRecord(List& list, const CsvTable& table, std::size_t number) {
  const std::span<const Text> record = table.Record(number);
  const auto row = list.ListItems()->Add(0, Value(), Own(record[0]), Value(), Value());
  for (std::size_t j = 1; j < record.size(); ++j)
    row->SetSubItems(static_cast<std::int32_t>(j), Own(record[j]));
}

template <class List>
void AddColumns(List& list, const CsvTable& table) {
  for (const Text& name : table.header)
    list.ColumnHeaders()->Add(0, Value(), name, 1440, 0, Value());
}

}  // namespace

BannerUnderTest::BannerUnderTest(const CsvTable& table, std::size_t rows)
    : table_(table), whole_(MakeRef<MemoryListView>()), equal_(MakeRef<ListViewDump>()) {
  AddColumns(*world_.list, table_);
  AddColumns(*whole_, table_);
  AddColumns(*equal_, table_);
  AddRows(rows);
  for (std::size_t i = 0; i < rows; ++i) {
    AddRecord(*whole_, table_, i);
    AddRecord(*equal_, table_, i);
  }
  world_.control->SetListview(world_.list);
}

void BannerUnderTest::Filter(const Workload& workload) {
  world_.Show([&] {
    frmFilter& dialog = world_.Dialog();
    for (const RowAction& action : PlanCriteria(dialog, workload.criteria, world_.conversions))
      Perform(dialog, action);
    dialog.cmdApply.SetValue(true);
  });
}

void BannerUnderTest::AddRows(std::size_t count) {
  for (; count > 0; --count) AddRecord(*world_.list, table_, next_++);
}

Duration BannerUnderTest::Reapply() {
  return Timed([this] { world_.Tick(); });
}

std::int32_t BannerUnderTest::Shown() { return world_.list->ListItems()->Count(); }

std::int32_t BannerUnderTest::All() { return world_.Dialog().ListView1->ListItems()->Count(); }

Duration BannerUnderTest::CompareByMembers() {
  bool same = true;
  const Duration duration = Timed([&] {
    const Ref<ListItemCollection> rows = whole_->ListItems();
    const Ref<LVItemsDump> others = equal_->ListItems();
    for (std::int32_t i = 1; i <= rows->Count(); ++i)
      same &= modPLC2::detail::SameRow(*rows->Item(i), *others->Item(i));
  });
  if (!same) throw std::logic_error("equal rows differ");
  return duration;
}

Duration BannerUnderTest::CompareTexts() {
  bool same = true;
  HostListView& whole = *whole_;
  const Duration duration = Timed([&] {
    const RowStore& rows = whole.Shared()->Rows();
    const RowStore& others = equal_->Shared()->Rows();
    for (std::int32_t i = 1; i <= rows.Count(); ++i) same &= SameRow(rows.At(i), others.At(i));
  });
  if (!same) throw std::logic_error("equal rows differ");
  return duration;
}

}  // namespace sifter::bench
