// One program is one source here; the textbook's and the case maker's come in whole.
#include "../tests/matching/CaseMaker.cpp"
#include "../tests/matching/Textbook.cpp"
#include "../tests/matching/TextbookNumber.cpp"
#include "base/Conversions.h"
#include "listmodel/MemoryListView.h"
#include "listmodel/RowStore.h"
#include "matching/ColumnCache.h"
#include "matching/RowMatcher.h"
#include "support/ClockFake.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

using namespace sifter;

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// Every row has a tag of its own, so the tags tell which rows are left, and their texts whether
// they were left alone.
std::vector<Text> Left(HostListView& list) {
  std::vector<Text> left;
  const Ref<ListItemCollection> items = list.ListItems();
  for (std::int32_t i = 1; i <= items->Count(); ++i) {
    const Ref<ListItem> item = items->Item(i);
    left.push_back(ValueToText(item->Tag()));
    left.push_back(ValueToText(item->Text()));
    for (std::int32_t j = 1; j <= item->ListSubItems()->Count(); ++j)
      left.push_back(ValueToText(item->SubItems(j)));
  }
  return left;
}

// A list that shows its rows to nobody: the engine has to go member by member.
class ForeignList final : public HostListView {
 public:
  explicit ForeignList(Ref<MemoryListView> list) : list_(std::move(list)) {}
  Ref<ColumnHeaderCollection> ColumnHeaders() override { return list_->ColumnHeaders(); }
  Ref<ListItemCollection> ListItems() override { return list_->ListItems(); }
  std::int32_t hWnd() const override { return 0; }
  Value Sorted() const override { return list_->Sorted(); }
  Value SortKey() const override { return list_->SortKey(); }
  Value SortOrder() const override { return list_->SortOrder(); }
  void SetSorted(const Value& sorted) override { list_->SetSorted(sorted); }
  void SetSortKey(const Value& column) override { list_->SetSortKey(column); }
  void SetSortOrder(const Value& order) override { list_->SetSortOrder(order); }

 private:
  Ref<MemoryListView> list_;
};

class Trial {
 public:
  explicit Trial(Choices& choices) : choices_(choices), maker_(choices), full_(maker_.EmptyList()) {
    for (std::uint32_t rows = choices_.Below(16); rows > 0; --rows) maker_.AddRow(*full_);
  }

  void Run(const Conversions& conversions) {
    if (choices_.OneIn(2)) maker_.Edit(*full_);
    const std::vector<FilterCriterion> criteria = maker_.Criteria(*full_);
    const bool matchCase = choices_.OneIn(2);
    const Ref<MemoryListView> book = Copy();
    textbook::Engine(*book, criteria, matchCase, conversions).ApplyCriteria();
    const std::vector<Text> expected = Left(*book);

    const Ref<MemoryListView> own = Copy();
    RowMatcher(own, criteria, matchCase, conversions, cache_).ApplyCriteria();
    Require(Left(*own) == expected);

    const Ref<MemoryListView> foreign = Copy();
    RowMatcher(MakeRef<ForeignList>(foreign), criteria, matchCase, conversions, cache_)
        .ApplyCriteria();
    Require(Left(*foreign) == expected);
  }

 private:
  Ref<MemoryListView> Copy() const {
    const Ref<MemoryListView> list = maker_.EmptyList();
    const RowStore& rows = full_->Shared()->Rows();
    for (std::int32_t i = 1; i <= rows.Count(); ++i) list->Shared()->AppendShared(rows.At(i));
    return list;
  }

  Choices& choices_;
  CaseMaker maker_;
  Ref<MemoryListView> full_;
  ColumnCache cache_;
};

}  // namespace

// The bytes are the choices: of the columns and rows, and then of one filtering after another.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ClockFake clock;
  static const EnUsConversions conversions(clock);
  constexpr int kMostRuns = 8;
  ByteChoices choices(std::span(data, size));
  Trial trial(choices);
  int runs = 0;
  do {
    trial.Run(conversions);
  } while (!choices.AtEnd() && ++runs < kMostRuns);
  return 0;
}
