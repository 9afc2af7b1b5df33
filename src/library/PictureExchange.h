#pragma once

#include "forms/Picture.h"
#include "win32/ComRef.h"

#include <olectl.h>

namespace sifter {

// A control's pictures, as they are handed over and given back. A host that gives back the object
// that stands for one of the library's own pictures has given that picture.
class PictureExchange {
 public:
  // Null for Nothing; error 13 for an object that is no picture.
  Ref<Picture> FromHost(IPictureDisp* object) const;

  // Nothing for null.
  ComRef<IPictureDisp> ForHost(const Ref<Picture>& picture);

 private:
  Ref<Picture> own_;            // the one that has been handed out
  ComRef<IPictureDisp> given_;  // the object that stands for it
};

}  // namespace sifter
