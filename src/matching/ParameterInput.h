#pragma once

#include "base/Text.h"

#include <optional>

namespace sifter {

// What the user may put into a parameter field besides a plain value: a reference to a column,
// its header in square brackets.

// The key code of Enter, which in any of the five kinds of parameter field applies the criteria.
inline constexpr std::int16_t kEnterKey = 13;

// The field's new text after a column's header label was dropped on it, or nothing when the field
// doesn't take it: a column is only referred to from a row of the same type, and a label that
// heads no row has an empty tag.
std::optional<Text> DroppedReference(const Text& labelTag, const Text& labelCaption,
                                     const Text& rowTag);

// Whether the user's typing into the field over a date picker may lead to `text`: a reference,
// as far as it has been typed, or nothing. Dates belong into the picker.
bool IsReferenceInTheMaking(TextView text);

}  // namespace sifter
