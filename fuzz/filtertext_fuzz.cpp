#include "controls/FilterText.h"
#include "support/BannerWorld.h"
#include "support/Lists.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

using namespace sifter;

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// Bytes beyond ASCII stand for what filter texts are made of.
std::u16string TextOf(std::span<const std::uint8_t> bytes) {
  constexpr std::array<TextView, 16> kWords = {
      u"..", u"1==", u"2==", u"*?",  u"Name..", u"Qty..", u"Due..", u"11==",
      u"0",  u"3",   u"Oak", u"5/1", u"[Qty]",  u"@@",    u"é",     u"\xD83D"};
  std::u16string text;
  for (const std::uint8_t byte : bytes) {
    if (byte < 0x80)
      text += static_cast<char16_t>(byte);
    else
      text += kWords[byte % kWords.size()];
  }
  return text;
}

// A text that can be read has its marks where the criteria say, and nothing else in between.
void TryParsing(TextView text) {
  std::vector<TextCriterion> criteria;
  try {
    criteria = ParseFilterText(text);
  } catch (const RuntimeError& error) {
    Require(error.Number() == BadFilterText().Number());
    return;
  }
  for (const TextCriterion& c : criteria) {
    for (const Text& mark : {c.column, c.operatorNumber, c.first, c.second}) {
      const std::size_t at = text.find(mark.View());
      Require(at != TextView::npos);
      text.remove_prefix(at + mark.Length());
    }
    text.remove_prefix(text.find(u"*?") + 2);
  }
  Require(text.size() <= 1);
}

std::vector<std::string> SortedRows(BannerWorld& world) {
  std::vector<std::string> rows;
  const Ref<ListItemCollection> items = world.list->ListItems();
  for (std::int32_t i = 1; i <= items->Count(); ++i) rows.push_back(DumpRow(*items->Item(i)));
  std::sort(rows.begin(), rows.end());
  return rows;
}

void FillList(MemoryListView& list) {
  Fill(list, {"Name", "Qty", "Due"},
       {{"Oak", "1", "5/1/2007"},
        {"Elm", "3", ""},
        {"oak", "", "6/2/2007"},
        {"Ash@@", "2.5", "12/31/2006"},
        {"", "-3", "5/1/2007"}});
}

// Whatever the text is, the control deals with it: the host sees no error, no dialog is left on the
// screen, and a reset brings every row back.
void TryApplying(std::span<const std::uint8_t> options, const std::vector<Text>& texts) {
  BannerWorld world;
  FillList(*world.list);
  const std::vector<std::string> rows = SortedRows(world);
  world.control->SetListview(world.list);
  if (!options.empty() && options[0] % 2 == 1) world.control->ApplyFilter(u"Qty..21==2==*?");
  for (const Text& text : texts) {
    world.control->ApplyFilter(text);
    Require(!world.Dialog().Visible());
    Require(world.control->Active() == world.Dialog().blnFilterActive);
  }
  world.Show([&world] { world.Dialog().cmdReset.SetValue(true); });
  Require(SortedRows(world) == rows);
  Require(!world.control->Active());
}

class Bag final : public PropertyBag {
 public:
  std::map<Text, Value> entries;

  Value ReadProperty(TextView key) override { return entries[Text(key)]; }
  void WriteProperty(TextView key, const Value& value) override { entries[Text(key)] = value; }
};

class PlainContainer final : public Container {
 public:
  std::optional<std::int32_t> AmbientBackColor() const override { return std::nullopt; }
};

Value ValueOf(std::uint8_t kind, const Text& text) {
  switch (kind % 7) {
    case 0:
      return Value();
    case 1:
      return Value(kind > 100);
    case 2:
      return Value(std::int16_t{kind});
    case 3:
      return Value(kind * 1e300);
    case 4:
      return Value(Date{kind * 1.5});
    case 5:
      return Value(Ref<Object>(MakeRef<MemoryListView>()));
    default:
      return Value(text);
  }
}

// Values of any kind are read or refused with an error. What was read is written as it is, and
// comes back.
void TryLoading(std::span<const std::uint8_t> kinds, const Text& text) {
  BannerWorld world;
  Bag bag;
  std::size_t i = 0;
  for (const auto& row : TSLvwBannerFilter::Properties())
    if (i < kinds.size()) bag.entries[Text(row.readAs)] = ValueOf(kinds[i++], text);
  try {
    world.control->ReadProperties(bag, PlainContainer());
  } catch (const RuntimeError&) {
    return;
  }
  Bag first;
  world.control->WriteProperties(first, Saving::kUnlikeDefault);
  BannerWorld again;
  again.control->ReadProperties(first, PlainContainer());
  Require(again.control->FilterMessage() == world.control->FilterMessage());
  Require(again.control->Active() == world.control->Active());
}

}  // namespace

// The first byte says what has happened before, the next eight are kinds of saved values, the rest
// are texts, with line feeds between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  const std::size_t head = std::min<std::size_t>(size, 9);
  std::vector<Text> texts;
  for (auto at = bytes.begin() + static_cast<std::ptrdiff_t>(head); at != bytes.end();) {
    const auto end = std::find(at, bytes.end(), '\n');
    const std::u16string text = TextOf({at, end});
    TryParsing(text);
    texts.emplace_back(TextView(text));
    at = end == bytes.end() ? end : end + 1;
  }
  TryApplying(bytes.first(head), texts);
  TryLoading(bytes.first(head), texts.empty() ? Text() : texts[0]);
  return 0;
}
