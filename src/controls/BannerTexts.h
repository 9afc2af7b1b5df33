#pragma once

#include "base/Text.h"

#include <cstdint>

namespace sifter {

// What a banner says. Hosts test for these texts, so the three beginnings that differ in the case
// of one letter stay three.
inline constexpr TextView kDesignedCaption = u"Displaying X of Y items";
inline constexpr TextView kCreatedCaption = u"Displaying all items";
inline constexpr TextView kFilteredToolTip = u"List is Filtered";
inline constexpr TextView kUnfilteredToolTip = u"List is not Filtered";

// "Displaying All Items", for a banner that has just been placed on a form.
Text PlacedCaption(TextView itemWord);

// "Displaying all Items", while nothing is known of the rows.
Text AllCaption(TextView itemWord);

// "Displaying 12 of 40 Items".
Text CountCaption(std::int32_t shown, std::int32_t total, TextView itemWord);

}  // namespace sifter
