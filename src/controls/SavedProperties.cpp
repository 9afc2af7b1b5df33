#include "controls/SavedProperties.h"

#include "base/RuntimeError.h"

#include <bit>
#include <string>

namespace sifter {

namespace {

// "TSRS", the first version.
constexpr std::uint32_t kMark = 0x53525354;
constexpr std::uint32_t kVersion = 1;

// No control has as many settings.
constexpr std::uint32_t kMostEntries = 256;

enum class Kind : std::uint8_t {
  kEmpty = 0,
  kNull = 1,
  kBoolean = 2,
  kInt16 = 3,
  kInt32 = 4,
  kDouble = 5,
  kDate = 6,
  kText = 7,
  kBytes = 8,
};

[[noreturn]] void Refuse() { throw RuntimeError(321, u"Invalid file format"_text); }

class Writer {
 public:
  template <class Integer>
  void Number(Integer number) {
    auto bits = static_cast<std::uint64_t>(number);
    for (std::size_t i = 0; i < sizeof(Integer); ++i, bits >>= 8)
      bytes_.push_back(static_cast<std::byte>(bits & 0xFF));
  }
  void Double(double number) { Number(std::bit_cast<std::uint64_t>(number)); }
  void Units(TextView text) {
    Number(static_cast<std::uint32_t>(text.size()));
    for (const char16_t unit : text) Number(static_cast<std::uint16_t>(unit));
  }
  void Marked(Kind kind) { Number(static_cast<std::uint8_t>(kind)); }

  void Item(const Value& value) {
    if (value.IsEmpty()) return Marked(Kind::kEmpty);
    if (value.IsNull()) return Marked(Kind::kNull);
    if (const bool* truth = value.As<bool>()) {
      Marked(Kind::kBoolean);
      Number(static_cast<std::uint8_t>(*truth));
    } else if (const std::int16_t* narrow = value.As<std::int16_t>()) {
      Marked(Kind::kInt16);
      Number(static_cast<std::uint16_t>(*narrow));
    } else if (const std::int32_t* whole = value.As<std::int32_t>()) {
      Marked(Kind::kInt32);
      Number(static_cast<std::uint32_t>(*whole));
    } else if (const double* number = value.As<double>()) {
      Marked(Kind::kDouble);
      Double(*number);
    } else if (const Date* date = value.As<Date>()) {
      Marked(Kind::kDate);
      Double(date->serial);
    } else if (const Text* text = value.As<Text>()) {
      Marked(Kind::kText);
      Units(*text);
    } else if (const SavedBytes* bytes = BytesIn(value)) {
      Marked(Kind::kBytes);
      Number(static_cast<std::uint32_t>(bytes->Bytes().size()));
      bytes_.insert(bytes_.end(), bytes->Bytes().begin(), bytes->Bytes().end());
    } else {
      throw RuntimeError(ErrorNumber::kTypeMismatch);
    }
  }

  std::vector<std::byte> Take() { return std::move(bytes_); }

 private:
  static const SavedBytes* BytesIn(const Value& value) {
    const Ref<Object>* const object = value.As<Ref<Object>>();
    return object == nullptr ? nullptr : dynamic_cast<const SavedBytes*>(object->Get());
  }

  std::vector<std::byte> bytes_;
};

class Reader {
 public:
  explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

  template <class Integer>
  Integer Number() {
    std::uint64_t bits = 0;
    const std::span<const std::byte> taken = Take(sizeof(Integer));
    for (std::size_t i = taken.size(); i-- > 0;)
      bits = bits << 8 | std::to_integer<std::uint64_t>(taken[i]);
    return static_cast<Integer>(bits);
  }
  double Double() { return std::bit_cast<double>(Number<std::uint64_t>()); }
  Text Units() {
    const std::size_t length = Number<std::uint32_t>();
    if (length > bytes_.size() / 2) Refuse();
    std::u16string units(length, u'\0');
    for (char16_t& unit : units) unit = static_cast<char16_t>(Number<std::uint16_t>());
    return Text(units);
  }

  Value Item() {
    switch (static_cast<Kind>(Number<std::uint8_t>())) {
      case Kind::kEmpty:
        return Value();
      case Kind::kNull:
        return Value::Null();
      case Kind::kBoolean:
        return Number<std::uint8_t>() != 0;
      case Kind::kInt16:
        return Number<std::int16_t>();
      case Kind::kInt32:
        return Number<std::int32_t>();
      case Kind::kDouble:
        return Double();
      case Kind::kDate:
        return Date{Double()};
      case Kind::kText:
        return Units();
      case Kind::kBytes: {
        const std::span<const std::byte> taken = Take(Number<std::uint32_t>());
        const std::vector<std::byte> copy(taken.begin(), taken.end());
        return Value(Ref<Object>(MakeRef<SavedBytes>(copy)));
      }
    }
    Refuse();
  }

 private:
  std::span<const std::byte> Take(std::size_t count) {
    if (count > bytes_.size()) Refuse();
    const std::span<const std::byte> taken = bytes_.first(count);
    bytes_ = bytes_.subspan(count);
    return taken;
  }

  std::span<const std::byte> bytes_;
};

}  // namespace

Value SavedProperties::ReadProperty(TextView key) {
  for (const auto& [name, value] : entries_)
    if (name == key) return value;
  return Value();
}

void SavedProperties::WriteProperty(TextView key, const Value& value) {
  for (auto& [name, held] : entries_)
    if (name == key) {
      held = value;
      return;
    }
  entries_.emplace_back(key, value);
}

void SavedProperties::Change(const std::function<Value(const Value&)>& change) {
  for (auto& [name, value] : entries_) value = change(value);
}

std::vector<std::byte> SavedProperties::ToBytes() const {
  Writer body;
  body.Number(static_cast<std::uint32_t>(entries_.size()));
  for (const auto& [name, value] : entries_) {
    body.Units(name);
    body.Item(value);
  }
  const std::vector<std::byte> follows = body.Take();
  Writer head;
  head.Number(kMark);
  head.Number(kVersion);
  head.Number(static_cast<std::uint32_t>(follows.size()));
  std::vector<std::byte> bytes = head.Take();
  bytes.insert(bytes.end(), follows.begin(), follows.end());
  return bytes;
}

std::uint32_t SavedProperties::BodySize(std::span<const std::byte> head) {
  Reader reader(head);
  if (reader.Number<std::uint32_t>() != kMark) Refuse();
  if (reader.Number<std::uint32_t>() != kVersion) Refuse();
  return reader.Number<std::uint32_t>();
}

SavedProperties SavedProperties::FromBody(std::span<const std::byte> body) {
  Reader reader(body);
  SavedProperties saved;
  const auto count = reader.Number<std::uint32_t>();
  if (count > kMostEntries) Refuse();
  for (std::uint32_t left = count; left > 0; --left) {
    const Text key = reader.Units();
    saved.WriteProperty(key, reader.Item());
  }
  return saved;
}

}  // namespace sifter
