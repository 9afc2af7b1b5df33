#include "controls/SavedProperties.h"

#include "support/Errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <vector>

namespace sifter {
namespace {

using Bytes = std::vector<std::byte>;

SavedProperties FromBytes(std::span<const std::byte> bytes) {
  const std::size_t head = SavedProperties::kHeadSize;
  const std::size_t size = SavedProperties::BodySize(bytes.first(std::min(head, bytes.size())));
  return SavedProperties::FromBody(bytes.subspan(head).first(std::min(size, bytes.size() - head)));
}

TEST(SavedProperties, ComeBackFromTheirBytes) {
  const Value values[] = {Value(),
                          Value(Value::Null()),
                          Value(true),
                          Value(false),
                          Value(std::int16_t{-3}),
                          Value(std::int32_t{-70000}),
                          Value(-1.25),
                          Value(Date{38353.5}),
                          Value(u""),
                          Value(Text(TextView(u"Zürich \xD800\0 end", 13)))};
  SavedProperties saved;
  for (std::size_t i = 0; i < std::size(values); ++i)
    saved.WriteProperty(Text(IntegerToText(static_cast<std::int64_t>(i))), values[i]);
  SavedProperties read = FromBytes(saved.ToBytes());
  for (std::size_t i = 0; i < std::size(values); ++i) {
    const Value value = read.ReadProperty(IntegerToText(static_cast<std::int64_t>(i)));
    EXPECT_EQ(value, values[i]) << i;
    EXPECT_EQ(value.Is<bool>(), values[i].Is<bool>()) << i;
    EXPECT_EQ(value.Is<Date>(), values[i].Is<Date>()) << i;
  }
}

TEST(SavedProperties, HaveNothingUnderOtherKeys) {
  SavedProperties saved;
  saved.WriteProperty(u"Filter", u"x");
  EXPECT_TRUE(saved.ReadProperty(u"filter").IsEmpty());
  EXPECT_TRUE(saved.ReadProperty(u"").IsEmpty());
}

TEST(SavedProperties, KeepTheLastValueOfAKey) {
  SavedProperties saved;
  saved.WriteProperty(u"Filter", u"x");
  saved.WriteProperty(u"Filter", u"y");
  EXPECT_EQ(FromBytes(saved.ToBytes()).ReadProperty(u"Filter"), Value(u"y"));
}

// Forms that hosts have saved must be readable for ever.
TEST(SavedProperties, HaveTheseBytes) {
  SavedProperties saved;
  saved.WriteProperty(u"A", true);
  saved.WriteProperty(u"B", u"x");
  const unsigned char expected[] = {'T', 'S', 'R', 'S', 1,   0, 0, 0, 25, 0, 0, 0,  //
                                    2,   0,   0,   0,                               //
                                    1,   0,   0,   0,   'A', 0, 2, 1,               //
                                    1,   0,   0,   0,   'B', 0, 7, 1, 0,  0, 0, 'x', 0};
  Bytes bytes;
  for (const unsigned char each : expected) bytes.push_back(static_cast<std::byte>(each));
  EXPECT_EQ(saved.ToBytes(), bytes);
}

TEST(SavedProperties, RefuseBytesThatNoControlHasSaved) {
  SavedProperties saved;
  saved.WriteProperty(u"FilterCaption", u"Suppliers");
  saved.WriteProperty(u"Active", true);
  const Bytes whole = saved.ToBytes();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_EQ(ErrorOf([&] { FromBytes(cut); }), "321: Invalid file format") << length;
  }
  Bytes unknownKind = whole;
  unknownKind[unknownKind.size() - 2] = std::byte{8};
  EXPECT_EQ(ErrorOf([&] { FromBytes(unknownKind); }), "321: Invalid file format");
}

TEST(SavedProperties, TakeNoObjects) {
  SavedProperties saved;
  saved.WriteProperty(u"Picture", Ref<Object>());
  EXPECT_EQ(ErrorOf([&] { saved.ToBytes(); }), "13: Type mismatch");
}

Bytes BytesIn(const Value& value) {
  const Ref<Object>* const object = value.As<Ref<Object>>();
  const auto* const bytes =
      object == nullptr ? nullptr : dynamic_cast<const SavedBytes*>(object->Get());
  if (bytes == nullptr) return {};
  return {bytes->Bytes().begin(), bytes->Bytes().end()};
}

Value SavedBytesOf(const Bytes& bytes) { return Value(Ref<Object>(MakeRef<SavedBytes>(bytes))); }

TEST(SavedProperties, KeepBytesAsTheyAre) {
  const Bytes picture = {std::byte{0}, std::byte{255}, std::byte{'l'}};
  SavedProperties saved;
  saved.WriteProperty(u"Picture", SavedBytesOf(picture));
  saved.WriteProperty(u"None", SavedBytesOf({}));
  saved.WriteProperty(u"Filter", u"x");
  SavedProperties read = FromBytes(saved.ToBytes());
  EXPECT_EQ(BytesIn(read.ReadProperty(u"Picture")), picture);
  EXPECT_TRUE(read.ReadProperty(u"None").Is<Ref<Object>>());
  EXPECT_EQ(BytesIn(read.ReadProperty(u"None")), Bytes());
  EXPECT_EQ(read.ReadProperty(u"Filter"), Value(u"x"));
}

TEST(SavedProperties, BytesThatEndEarlyAreRefused) {
  SavedProperties saved;
  saved.WriteProperty(u"Picture", SavedBytesOf({std::byte{1}, std::byte{2}}));
  const Bytes whole = saved.ToBytes();
  for (std::size_t size = SavedProperties::kHeadSize; size < whole.size(); ++size)
    EXPECT_EQ(ErrorOf([&] { FromBytes(std::span(whole).first(size)); }), "321: Invalid file format")
        << size;
}

TEST(SavedProperties, MoreThanAControlCanHaveAreRefused) {
  SavedProperties most;
  for (std::int64_t i = 0; i < 256; ++i) most.WriteProperty(IntegerToText(i), true);
  EXPECT_EQ(FromBytes(most.ToBytes()).ReadProperty(u"255"), Value(true));
  most.WriteProperty(u"256", true);
  EXPECT_EQ(ErrorOf([&] { FromBytes(most.ToBytes()); }), "321: Invalid file format");
}

TEST(SavedProperties, CanBeChangedEntryByEntry) {
  SavedProperties saved;
  saved.WriteProperty(u"a", 1);
  saved.WriteProperty(u"b", u"x");
  saved.Change([](const Value& value) { return value == Value(1) ? Value(2) : value; });
  EXPECT_EQ(saved.ReadProperty(u"a"), Value(2));
  EXPECT_EQ(saved.ReadProperty(u"b"), Value(u"x"));
}

}  // namespace
}  // namespace sifter
