#pragma once

#include "base/Text.h"

#include <vector>

namespace sifter {

// Sorts elements 1 to the last in place, ascending by code unit. Element 0 is not touched:
// the arrays that hosts hand over keep something else there.
void InsertionSort(std::vector<Text>& texts);

}  // namespace sifter
