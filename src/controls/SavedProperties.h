#pragma once

#include "controls/PropertyBag.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace sifter {

// A control's settings in memory, in the order in which they were written, for containers that keep
// bytes instead of named entries. The bytes are the same on every machine.
class SavedProperties final : public PropertyBag {
 public:
  // Bytes begin with a head that tells how many follow it.
  static constexpr std::size_t kHeadSize = 12;

  Value ReadProperty(TextView key) override;
  // Another entry for a key that is there already takes its place.
  void WriteProperty(TextView key, const Value& value) override;

  // Error 13 when an entry holds an object.
  std::vector<std::byte> ToBytes() const;

  // How many bytes follow this head. Error 321 for bytes that no control has saved.
  static std::uint32_t BodySize(std::span<const std::byte> head);

  // From what follows the head. Error 321 for bytes that no control has saved.
  static SavedProperties FromBody(std::span<const std::byte> body);

 private:
  std::vector<std::pair<Text, Value>> entries_;
};

}  // namespace sifter
