#include "CaseMaker.h"

#include "base/Calendar.h"
#include "base/Value.h"
#include "matching/Operators.h"

#include <string>

namespace sifter {

namespace {

constexpr TextView kCaptions[] = {u"Name", u"name", u"Qty",   u"Due",  u"a]b",
                                  u"Name", u"",     u"[Qty]", u"É t é"};

constexpr TextView kTexts[] = {
    u"",       u"abc",  u"ABC",          u"aBc",     u"abc ", u" abc",     u" ",  u"a",
    u"b",      u"ab",   u"xabcx",        u"\"abc\"", u"a*c",  u"?",        u"é",  u"É",
    u"e\x301", u"ß",    u"SS",           u"ı",       u"I",    u"i",        u"ſ",  u"ａｂｃ",
    u"[Qty]",  u"aaab", u"\xD83D\xDE00", u"\xDE00",  u"12",   u"1/1/2005", u"10", u"abcabc",
};

constexpr TextView kNumbers[] = {
    u"",       u"0",     u"1",   u"1.0",  u"01",    u" 1",     u"1e0",
    u"12abc",  u"1,234", u"$5",  u"(5)",  u"5-",    u"-1",     u"+2",
    u".5",     u"5",     u"3",   u"2",    u"&H10",  u"&O17",   u"1e400",
    u"-1e400", u"abc",   u" ",   u"1e2x", u"16",    u"100",    u"1234",
    u"0.5",    u"-0",    u"\t7", u"5.",   u"1.5.5", u"1e-400", u"&HFFFFFFFFFFFFFFFFF",
};

constexpr TextView kDates[] = {
    u"",
    u"1/1/2005",
    u"1/1/2005 12:00",
    u"2005-01-01",
    u"Jan 1 2005",
    u"1/2/2005",
    u"31/12/2005",
    u"12/31/2005",
    u"1/5",
    u"2/29",
    u"12:30",
    u"1/1/2005 0:00",
    u" 1/1/2005 ",
    u"",
    u"12/31/2004",
    u"1/1/1850 6:00",
    u"1/1/1850 18:00",
    u"12/29/1899 6:00",
    u"12/30/1899 6:00",
    u"6/15/2005",
};

constexpr TextView kBadDates[] = {u" ", u"bad", u"13/32/2005", u"1/1/2005@", u"12"};

constexpr TextView kOddWords[] = {u"all",    u"ALL",       u"All ",         u"",
                                  u"is",     u"Is Empty",  u"is empty",     u"Contains",
                                  u"EQUALS", u"IS before", u"starts  with", u"nothing"};

constexpr TextView kOddReferences[] = {u"[]",    u"[",      u"]",      u"[Name",
                                       u"Name]", u"[NAME]", u"[none]", u" [Name]"};

constexpr char16_t kLetters[] = u"abABéÉ ";

ColumnDataType TypeOf(std::uint32_t number) { return static_cast<ColumnDataType>(number); }

}  // namespace

CaseMaker::CaseMaker(Choices& choices) : choices_(choices) {
  const std::uint32_t count = 1 + choices_.Below(5);
  for (std::uint32_t i = 0; i < count; ++i)
    columns_.push_back({Text(choices_.Of(kCaptions)), TypeOf(choices_.Below(3))});
}

Ref<MemoryListView> CaseMaker::EmptyList() const {
  const Ref<MemoryListView> list = MakeRef<MemoryListView>();
  for (const Column& column : columns_)
    list->ColumnHeaders()->Add(0, Text(), column.caption, 1440, 0, Value());
  return list;
}

void CaseMaker::AddRow(HostListView& list, std::int32_t index) {
  const Text tag = IntegerToText(++tags_);
  const Text key = choices_.OneIn(4) ? Concat({u"k", tag.View()}) : Text();
  const Ref<ListItem> item =
      list.ListItems()->Add(index, key, Cell(columns_[0].type), Value(), Value());
  item->SetTag(tag);
  for (std::size_t k = 1; k < columns_.size(); ++k)
    item->SetSubItems(static_cast<std::int32_t>(k), Cell(columns_[k].type));
  if (choices_.OneIn(4)) Dress(*item);
}

void CaseMaker::Dress(ListItem& item) {
  item.SetBold(choices_.OneIn(2));
  item.SetChecked(choices_.OneIn(2));
  item.SetForeColor(static_cast<std::int32_t>(choices_.Below(256)));
  item.SetSmallIcon(static_cast<std::int32_t>(choices_.Below(9)));
  item.SetToolTipText(Text(choices_.Of(kTexts)));
  if (columns_.size() > 1) item.ListSubItems()->Item(1)->SetBold(choices_.OneIn(2));
}

void CaseMaker::Edit(HostListView& list) {
  const std::int32_t position = AnyPosition(list);
  if (position == 0) {
    AddRow(list);
    return;
  }
  const Ref<ListItem> item = list.ListItems()->Item(position);
  const std::uint32_t k = choices_.Below(static_cast<std::uint32_t>(columns_.size()));
  switch (choices_.Below(8)) {
    case 0:
    case 1:
    case 2:
      if (k == 0)
        item->SetText(Cell(columns_[0].type));
      else
        item->SetSubItems(static_cast<std::int32_t>(k), Cell(columns_[k].type));
      return;
    case 3:
      return Dress(*item);
    case 4:
      return AddRow(list);
    case 5:
      return AddRow(list, position);
    case 6:
      return list.ListItems()->Remove(position);
    default:
      list.SetSortKey(static_cast<std::int32_t>(k));
      list.SetSorted(true);
      list.SetSorted(false);
  }
}

std::vector<FilterCriterion> CaseMaker::Criteria(HostListView& list) {
  std::size_t count = columns_.size();
  if (choices_.OneIn(20)) ++count;
  if (choices_.OneIn(20)) --count;
  std::vector<FilterCriterion> criteria;
  for (std::size_t k = 0; k < count; ++k) {
    criteria.push_back(CriterionFor(list, k));
    if (k == 0 || !choices_.OneIn(3)) continue;
    // The word and type of an earlier row.
    const FilterCriterion& earlier = criteria[choices_.Below(static_cast<std::uint32_t>(k))];
    criteria[k].operatorWord = earlier.operatorWord;
    criteria[k].dataType = earlier.dataType;
  }
  return criteria;
}

FilterCriterion CaseMaker::CriterionFor(HostListView& list, std::size_t k) {
  FilterCriterion criterion;
  ColumnDataType type = k < columns_.size() ? columns_[k].type : ColumnDataType::kText;
  if (choices_.OneIn(8)) type = TypeOf(choices_.Below(3));
  criterion.caption = k < columns_.size() ? columns_[k].caption : Text(choices_.Of(kCaptions));
  criterion.dataType = static_cast<std::int32_t>(type);
  if (choices_.OneIn(50)) criterion.dataType = choices_.OneIn(2) ? -1 : 3;
  criterion.operatorWord = Word(criterion.dataType);
  criterion.text = TypedValue(list, k, ColumnDataType::kText);
  if (type != ColumnDataType::kDate) {
    criterion.from = TypedValue(list, k, ColumnDataType::kNumber);
    criterion.to = TypedValue(list, k, ColumnDataType::kNumber);
  } else {
    if (choices_.OneIn(3)) criterion.from = Reference(type);
    if (choices_.OneIn(3)) criterion.to = Reference(type);
    if (choices_.OneIn(12)) criterion.from = Cell(type);
  }
  criterion.dateFrom = Picked();
  criterion.dateTo = Picked();
  return criterion;
}

Text CaseMaker::Word(std::int32_t type) {
  if (choices_.OneIn(3)) return kAllWord;
  if (choices_.OneIn(12)) return choices_.Of(kOddWords);
  const std::vector<Text> words =
      OperatorWords(choices_.OneIn(20) ? static_cast<std::int32_t>(choices_.Below(3)) : type);
  return words.empty() ? Text(choices_.Of(OperatorVocabulary()).word) : choices_.Of(words);
}

Text CaseMaker::TypedValue(HostListView& list, std::size_t k, ColumnDataType type) {
  switch (choices_.Below(6)) {
    case 0:
    case 1:
      return CellOf(list, k);
    case 2:
    case 3:
      return Part(CellOf(list, k));
    case 4:
      return Reference(type);
    default:
      return Cell(type);
  }
}

std::int32_t CaseMaker::AnyPosition(HostListView& list) {
  const std::int32_t count = list.ListItems()->Count();
  return count == 0
             ? 0
             : 1 + static_cast<std::int32_t>(choices_.Below(static_cast<std::uint32_t>(count)));
}

Text CaseMaker::CellOf(HostListView& list, std::size_t k) {
  const std::int32_t position = AnyPosition(list);
  if (position == 0 || k >= columns_.size()) return Text();
  const Ref<ListItem> item = list.ListItems()->Item(position);
  return ValueToText(k == 0 ? item->Text() : item->SubItems(static_cast<std::int32_t>(k)));
}

Text CaseMaker::Part(const Text& text) {
  if (text.IsEmpty()) return Text();
  const auto length = static_cast<std::uint32_t>(text.Length());
  const std::uint32_t begin = choices_.Below(length);
  return Text(text.View().substr(begin, 1 + choices_.Below(length)));
}

Text CaseMaker::Cell(ColumnDataType type) {
  if (choices_.OneIn(16)) return MixedText();
  if (choices_.OneIn(40)) type = TypeOf(choices_.Below(3));
  switch (type) {
    case ColumnDataType::kNumber:
      return choices_.Of(kNumbers);
    case ColumnDataType::kDate:
      return choices_.OneIn(40) ? choices_.Of(kBadDates) : choices_.Of(kDates);
    default:
      return choices_.Of(kTexts);
  }
}

Text CaseMaker::MixedText() {
  std::u16string units;
  for (std::uint32_t length = choices_.Below(8); length > 0; --length)
    units += kLetters[choices_.Below(std::size(kLetters) - 1)];
  return Text(units);
}

// To a column of the type for the most part; a date row can't do much with any other.
Text CaseMaker::Reference(ColumnDataType type) {
  if (choices_.OneIn(8)) return choices_.Of(kOddReferences);
  const Column* column = &choices_.Of(columns_);
  for (int tries = 0; tries < 3 && column->type != type; ++tries) column = &choices_.Of(columns_);
  return Concat({u"[", column->caption.View(), u"]"});
}

Date CaseMaker::Picked() {
  static const Date kPicked[] = {
      DateOf({.year = 2005, .month = 1, .day = 1}),
      DateOf({.year = 2005, .month = 1, .day = 1, .hour = 12}),
      DateOf({.year = 2005, .month = 1, .day = 2}),
      DateOf({.year = 2005, .month = 12, .day = 31}),
      DateOf({.year = 2007, .month = 1, .day = 5}),
      DateOf({.year = 2008, .month = 2, .day = 29}),
      DateOf({.year = 1850, .month = 1, .day = 1, .hour = 12}),
      Date{0},
      Date{-0.25},
  };
  return choices_.Of(kPicked);
}

}  // namespace sifter
