#include "common/TextList.h"

#include "base/Value.h"

namespace sifter::bench {

namespace {

template <class CellText>
Ref<MemoryListView> MakeList(const CsvTable& table, CellText cellText) {
  const Ref<MemoryListView> list = MakeRef<MemoryListView>();
  const Ref<ColumnHeaderCollection> columns = list->ColumnHeaders();
  for (const Text& name : table.header) columns->Add(0, Value(), name, 1440.0, 0, Value());
  const Ref<ListItemCollection> items = list->ListItems();
  for (std::size_t i = 0; i < table.RecordCount(); ++i) {
    const std::span<const Text> cells = table.Record(i);
    const Ref<ListItem> item = items->Add(0, Value(), cellText(cells[0]), Value(), Value());
    for (std::size_t j = 1; j < cells.size(); ++j)
      item->SetSubItems(static_cast<std::int32_t>(j), cellText(cells[j]));
  }
  return list;
}

}  // namespace

Ref<MemoryListView> MakeTextList(const CsvTable& table) {
  return MakeList(table, [](const Text& text) { return text; });
}

Ref<MemoryListView> MakeUnsharedTextList(const CsvTable& table) {
  return MakeList(table, [](const Text& text) { return Text(text.View()); });
}

}  // namespace sifter::bench
