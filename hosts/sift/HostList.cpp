#include "sift/HostList.h"

#include "base/Value.h"

#include <cstddef>
#include <span>

namespace sifter {

namespace {

constexpr double kColumnWidth = 1440;

void AddItem(ListItemCollection& items, std::span<const Text> cells, std::int32_t record) {
  const Ref<ListItem> item = items.Add(0, Value(), cells[0], Value(), Value());
  for (std::size_t j = 1; j < cells.size(); ++j)
    if (!cells[j].IsEmpty()) item->SetSubItems(static_cast<std::int32_t>(j), cells[j]);
  item->SetTag(record);
}

}  // namespace

Ref<MemoryListView> MakeHostList(const CsvTable& table) {
  Ref<MemoryListView> list = MakeRef<MemoryListView>();
  const Ref<ColumnHeaderCollection> columns = list->ColumnHeaders();
  for (const Text& name : table.header) columns->Add(0, Value(), name, kColumnWidth, 0, Value());
  const Ref<ListItemCollection> items = list->ListItems();
  const std::size_t records = table.RecordCount();
  for (std::size_t i = 0; i < records; ++i)
    AddItem(*items, table.Record(i), static_cast<std::int32_t>(i) + 1);
  return list;
}

std::vector<std::int32_t> RecordsShown(MemoryListView& list) {
  std::vector<std::int32_t> records;
  const Ref<ListItemCollection> items = list.ListItems();
  const std::int32_t count = items->Count();
  records.reserve(static_cast<std::size_t>(count));
  for (std::int32_t i = 1; i <= count; ++i) records.push_back(ValueToInt32(items->Item(i)->Tag()));
  return records;
}

}  // namespace sifter
