#include "matching/ParameterInput.h"

namespace sifter {

std::optional<Text> DroppedReference(const Text& labelTag, const Text& labelCaption,
                                     const Text& rowTag) {
  if (labelTag.IsEmpty() || labelTag != rowTag) return std::nullopt;
  return Concat({u"[", labelCaption.View(), u"]"});
}

bool IsReferenceInTheMaking(TextView text) { return text.empty() || text.front() == u'['; }

}  // namespace sifter
