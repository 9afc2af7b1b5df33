#include "matching/InsertionSort.h"

#include <algorithm>

namespace sifter {

void InsertionSort(std::vector<Text>& texts) {
  if (texts.size() > 2) std::stable_sort(texts.begin() + 1, texts.end());
}

}  // namespace sifter
