#include "common/TableGenerator.h"

#include "base/Calendar.h"
#include "base/EnUsDates.h"
#include "base/Text.h"
#include "common/Random.h"

#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string_view>

namespace sifter::bench {

namespace {

constexpr std::uint64_t kSeed = 19991230;

constexpr TextView kWords[] = {
    u"amber",  u"anchor",  u"apple",  u"arch",   u"barrel", u"basket",  u"beam",   u"bench",
    u"birch",  u"blade",   u"board",  u"bolt",   u"brass",  u"brick",   u"bridge", u"brush",
    u"cable",  u"candle",  u"carbon", u"cedar",  u"chain",  u"chisel",  u"clamp",  u"clay",
    u"copper", u"cord",    u"cotton", u"crate",  u"drill",  u"drum",    u"engine", u"felt",
    u"fibre",  u"file",    u"filter", u"frame",  u"funnel", u"gauge",   u"gear",   u"glass",
    u"globe",  u"granite", u"grip",   u"hammer", u"handle", u"harbour", u"hinge",  u"hook",
    u"iron",   u"ivory",   u"jar",    u"kettle", u"ladder", u"lamp",    u"lever",  u"linen",
    u"lock",   u"loom",    u"magnet", u"maple",  u"marble", u"mirror",  u"motor",  u"nail",
    u"needle", u"oak",     u"panel",  u"paper",  u"pine",   u"pipe",    u"plane",  u"plate",
    u"pulley", u"pump",    u"rail",   u"ribbon", u"rope",   u"rubber",  u"sand",   u"saw",
    u"screen", u"screw",   u"shelf",  u"silk",   u"slate",  u"spade",   u"spring", u"steel",
    u"stone",  u"strap",   u"switch", u"thread", u"tile",   u"timber",  u"valve",  u"velvet",
    u"walnut", u"wheel",   u"wire",   u"wool",
};

constexpr TextView kForeignWords[] = {
    u"café",    u"Größe", u"façade", u"señor", u"Ωmega", u"naïve",    u"Straße",
    u"smörgås", u"東京",  u"Łódź",   u"Ελλάς", u"crème", u"jalapeño", u"öl",
};

constexpr TextView kCategories[] = {
    u"hardware", u"garden",   u"kitchen", u"lighting", u"office", u"outdoor",
    u"paint",    u"plumbing", u"storage", u"textile",  u"tools",  u"electrical",
};

constexpr TextView kCityBeginnings[] = {
    u"Ash",  u"Black", u"Brad", u"Broad", u"Clay",  u"Cold", u"Crow", u"Dark",  u"East",
    u"Fair", u"Green", u"Hart", u"High",  u"Kings", u"Lang", u"Marl", u"North", u"Old",
    u"Red",  u"Salt",  u"Stan", u"Thorn", u"West",  u"Whit", u"Wood",
};

constexpr TextView kCityEndings[] = {
    u"bourne", u"bridge", u"bury", u"by",  u"cliff", u"combe", u"dale", u"field", u"ford", u"gate",
    u"ham",    u"haven",  u"hill", u"ley", u"mere",  u"mouth", u"port", u"stead", u"ton",  u"worth",
};

static_assert(std::size(kCityBeginnings) * std::size(kCityEndings) == 500);

template <std::size_t N>
TextView Pick(Random& random, const TextView (&texts)[N]) {
  return texts[random.Below(N)];
}

char16_t Upper(char16_t letter) {
  return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - u'a' + u'A') : letter;
}

std::u16string Capitalised(TextView word) {
  std::u16string written(word);
  written.front() = Upper(written.front());
  return written;
}

std::u16string Product(Random& random) {
  std::u16string product = Capitalised(Pick(random, kWords));
  for (std::int32_t more = random.Between(0, 2); more > 0; --more)
    product.append(u" ").append(Pick(random, kWords));
  return product;
}

std::u16string Category(Random& random) {
  std::u16string category(Pick(random, kCategories));
  const std::uint32_t way = random.Below(3);
  if (way == 0) return category;
  if (way == 1) return Capitalised(category);
  for (char16_t& letter : category) letter = Upper(letter);
  return category;
}

std::u16string City(Random& random) {
  std::u16string city(Pick(random, kCityBeginnings));
  return city.append(Pick(random, kCityEndings));
}

std::u16string NotesWord(Random& random) {
  std::u16string word(random.Percent(5) ? Pick(random, kForeignWords) : Pick(random, kWords));
  if (random.Percent(1)) return u"\"" + word + u"\"";
  if (random.Percent(4)) word += u',';
  return word;
}

std::u16string Notes(Random& random) {
  const auto length = static_cast<std::size_t>(random.Between(20, 60));
  std::u16string notes = Capitalised(NotesWord(random));
  while (notes.size() < length) notes.append(u" ").append(NotesWord(random));
  notes.resize(length);
  if (notes.back() == u' ') notes.back() = u'.';
  return notes;
}

// `thousandths` with that many of its three decimal places.
std::u16string Number(std::int32_t thousandths, int places) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%s%d.%03d", thousandths < 0 ? "-" : "",
                std::abs(thousandths) / 1000, std::abs(thousandths) % 1000);
  std::string_view written = digits;
  written.remove_suffix(places == 0 ? 4u : static_cast<std::size_t>(3 - places));
  return {written.begin(), written.end()};
}

std::u16string NumberOrEmpty(Random& random, std::uint32_t emptyPercent, std::int32_t first,
                             std::int32_t last, int places) {
  const bool empty = random.Percent(emptyPercent);
  const std::int32_t thousandths = random.Between(first, last);
  return empty ? std::u16string() : Number(thousandths, places);
}

std::u16string DateText(int day) { return std::u16string(EnUsDateText(DateAt(day, 0)).View()); }

// Appends one field, in quotes where it needs them.
void AppendField(std::u16string& line, TextView field) {
  if (!line.empty()) line += u',';
  if (field.find_first_of(u",\"\r\n") == TextView::npos) {
    line += field;
    return;
  }
  line += u'"';
  for (const char16_t unit : field) line.append(unit == u'"' ? 2 : 1, unit);
  line += u'"';
}

// Product is never empty, so the line is empty in front of the first field only.
std::u16string Line(Random& random) {
  std::u16string line;
  AppendField(line, Product(random));
  AppendField(line, Category(random));
  AppendField(line, City(random));
  AppendField(line, Notes(random));
  AppendField(line, NumberOrEmpty(random, 3, 0, 999'999, 0));
  AppendField(line, NumberOrEmpty(random, 5, 500, 999'999, 2));
  AppendField(line, NumberOrEmpty(random, 2, 1, 99'999, 3));
  AppendField(line, NumberOrEmpty(random, 8, -5'000'000, 5'000'000, 2));
  const int ordered = random.Between(DayNumber(2000, 1, 1), DayNumber(2019, 12, 31));
  const int shipped = ordered + random.Between(0, 60);
  AppendField(line, DateText(ordered));
  AppendField(line, random.Percent(20) ? std::u16string() : DateText(shipped));
  return line;
}

}  // namespace

std::string GeneratedTable(std::size_t rows) {
  Random random(kSeed);
  std::string csv = "Product,Category,City,Notes,Quantity,Price,Weight,Balance,Ordered,Shipped\n";
  for (std::size_t row = 0; row < rows; ++row) csv.append(Text(Line(random)).ToUtf8()).append("\n");
  return csv;
}

}  // namespace sifter::bench
