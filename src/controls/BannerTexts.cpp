#include "controls/BannerTexts.h"

#include "base/Value.h"

namespace sifter {

Text PlacedCaption(TextView itemWord) { return Concat({u"Displaying All ", itemWord}); }

Text AllCaption(TextView itemWord) { return Concat({u"Displaying all ", itemWord}); }

Text CountCaption(std::int32_t shown, std::int32_t total, TextView itemWord) {
  const Text first = ValueToText(shown);
  const Text second = ValueToText(total);
  return Concat({u"Displaying ", first.View(), u" of ", second.View(), u" ", itemWord});
}

}  // namespace sifter
