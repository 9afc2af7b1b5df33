#pragma once

#include "base/Text.h"
#include "base/Value.h"
#include "controls/PropertyBag.h"

#include <optional>
#include <span>

namespace sifter {

// Whether a setting is written when it has the value that a bag without the entry gives.
enum class Saved { kAlways, kUnlikeDefault };

// How one setting of a control is kept in a property bag.
template <class Control>
struct PropertyRow {
  TextView writtenAs;
  TextView readAs;
  Saved saved;
  std::optional<Value> byDefault;  // what a bag without the entry stands for
  Value (*get)(const Control&);
  void (*set)(Control&, const Value&);
};

template <class Control>
using PropertyTable = std::span<const PropertyRow<Control>>;

// What a container wants to have written.
enum class Saving {
  kAll,
  kUnlikeDefault,  // entries that a bag without them would give as well are left out
};

// Writes the settings in the order of the table; one that is empty has nothing to write. An error
// of the bag's ends it.
template <class Control>
void WriteProperties(PropertyTable<Control> table, const Control& control, PropertyBag& bag,
                     Saving saving) {
  for (const PropertyRow<Control>& row : table) {
    const Value value = row.get(control);
    const bool leftOut = saving == Saving::kUnlikeDefault && row.saved == Saved::kUnlikeDefault &&
                         row.byDefault && value == *row.byDefault;
    if (value.IsEmpty() || leftOut) continue;
    bag.WriteProperty(row.writtenAs, value);
  }
}

// Reads the settings in the order of the table; those that the bag lacks get their default. An
// error, of the bag's or error 13 for a value that a setting can't take, ends it with the earlier
// settings read.
template <class Control>
void ReadProperties(PropertyTable<Control> table, Control& control, PropertyBag& bag) {
  for (const PropertyRow<Control>& row : table) {
    const Value value = bag.ReadProperty(row.readAs);
    row.set(control, value.IsEmpty() && row.byDefault ? *row.byDefault : value);
  }
}

// Every setting that has a default gets it.
template <class Control>
void SetDefaults(PropertyTable<Control> table, Control& control) {
  for (const PropertyRow<Control>& row : table)
    if (row.byDefault) row.set(control, *row.byDefault);
}

}  // namespace sifter
