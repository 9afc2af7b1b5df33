#pragma once

#include "base/Ref.h"
#include "controls/PropertyBag.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace sifter {

// A setting that only its owner can read, such as a picture in the platform's own form.
class SavedBytes final : public Object {
 public:
  explicit SavedBytes(std::vector<std::byte> bytes) : bytes_(std::move(bytes)) {}

  std::span<const std::byte> Bytes() const { return bytes_; }

 private:
  std::vector<std::byte> bytes_;
};

// A control's settings in memory, in the order in which they were written, for containers that keep
// bytes instead of named entries. The bytes are the same on every machine.
class SavedProperties final : public PropertyBag {
 public:
  // Bytes begin with a head that tells how many follow it.
  static constexpr std::size_t kHeadSize = 12;

  Value ReadProperty(TextView key) override;
  // Another entry for a key that is there already takes its place.
  void WriteProperty(TextView key, const Value& value) override;

  // Every entry becomes what `change` makes of it. An error of its comes out, with some of them
  // changed.
  void Change(const std::function<Value(const Value&)>& change);

  // Error 13 when an entry holds an object other than SavedBytes.
  std::vector<std::byte> ToBytes() const;

  // How many bytes follow this head. Error 321 for bytes that no control has saved.
  static std::uint32_t BodySize(std::span<const std::byte> head);

  // From what follows the head. Error 321 for bytes that no control has saved.
  static SavedProperties FromBody(std::span<const std::byte> body);

 private:
  std::vector<std::pair<Text, Value>> entries_;
};

}  // namespace sifter
