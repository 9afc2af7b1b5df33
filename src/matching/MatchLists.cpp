#include "base/AbsorbErrors.h"
#include "base/Integers.h"
#include "base/RuntimeError.h"
#include "matching/RowMatcher.h"
#include "matching/TextFields.h"

#include <algorithm>
#include <string>

namespace sifter {

Text NonMatchingIndexes(HostListView& list, TextView matchList) {
  Text result;
  AbsorbErrors([&] {
    const Text matching = Concat({u",", TrimData(matchList, u",").View(), u","});
    std::u16string others;
    const Ref<ListItemCollection> items = list.ListItems();
    const std::int32_t count = items->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
      const Text index = ValueToText(items->Item(i)->Index());
      const Text wanted = Concat({u",", index.View(), u","});
      if (matching.View().find(wanted.View()) == TextView::npos)
        others.append(index.View()).append(u",");
    }
    result = TrimData(others, u",");
  });
  return result;
}

namespace {

std::int16_t CountCommas(TextView indexes) {
  return ToInt16(std::count(indexes.begin(), indexes.end(), u','));
}

}  // namespace

void RemoveListItems(HostListView& list, TextView indexes) {
  if (indexes.empty()) return;
  AbsorbErrors([&] {
    const Ref<ListItemCollection> items = list.ListItems();
    for (std::int32_t field = CountCommas(indexes) + 1; field >= 1; --field) {
      const Text index = GetField(indexes, u",", ToInt16(field));
      items->Remove(std::int32_t{ValueToInt16(index)});
    }
  });
}

}  // namespace sifter
