#pragma once

#include "base/Ref.h"
#include "base/Text.h"

#include <utility>
#include <vector>

namespace sifter {

// A picture to be shown on a button: one of the library's own, told by its key, or one that a host
// has brought along, whose key is empty. Pictures are told apart by identity.
class Picture : public Object {
 public:
  explicit Picture(Text key = Text()) : key_(std::move(key)) {}

  const Text& Key() const { return key_; }

 private:
  Text key_;
};

// The pictures of a control, by key.
class ImageList {
 public:
  explicit ImageList(std::initializer_list<const char16_t*> keys) {
    for (const char16_t* key : keys) pictures_.push_back(MakeRef<Picture>(key));
  }

  // Null when there is no picture under the key.
  Ref<Picture> Item(TextView key) const {
    for (const Ref<Picture>& picture : pictures_)
      if (picture->Key() == key) return picture;
    return nullptr;
  }

 private:
  std::vector<Ref<Picture>> pictures_;
};

}  // namespace sifter
