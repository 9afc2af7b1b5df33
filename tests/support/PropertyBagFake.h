#pragma once

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Value.h"
#include "controls/PropertyBag.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace sifter {

// A property bag in memory that records what is read and written:
//
//   write "Active" True
//   read "Filter"
class PropertyBagFake final : public PropertyBag {
 public:
  explicit PropertyBagFake(Recorder& recorder) : recorder_(recorder) {}

  std::map<Text, Value> entries;

  // From now on this entry can be neither read nor written.
  void Refuse(Text key, RuntimeError error) { refusal_.emplace(std::move(key), std::move(error)); }

  Value ReadProperty(TextView key) override {
    recorder_.Line("read " + Quoted(key));
    RaiseWhatWasAskedFor(key);
    const auto found = entries.find(Text(key));
    return found == entries.end() ? Value() : found->second;
  }

  void WriteProperty(TextView key, const Value& value) override {
    recorder_.Line("write " + Quoted(key) + ' ' + Shown(value));
    RaiseWhatWasAskedFor(key);
    entries.insert_or_assign(Text(key), value);
  }

 private:
  void RaiseWhatWasAskedFor(TextView key) const {
    if (refusal_ && refusal_->first == key) throw RuntimeError(refusal_->second);
  }

  Recorder& recorder_;
  std::optional<std::pair<Text, RuntimeError>> refusal_;
};

}  // namespace sifter
