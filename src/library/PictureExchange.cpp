#include "library/PictureExchange.h"

#include "library/HostPicture.h"

namespace sifter {

Ref<Picture> PictureExchange::FromHost(IPictureDisp* object) const {
  if (object == nullptr) return nullptr;
  if (given_ && IsSameComObject(object, given_.Get())) return own_;
  return HostPicture::Of(*object);
}

ComRef<IPictureDisp> PictureExchange::ForHost(const Ref<Picture>& picture) {
  if (!picture) return nullptr;
  if (const auto* const host = dynamic_cast<const HostPicture*>(picture.Get()))
    return ComRef<IPictureDisp>(host->Dispatch());
  if (picture != own_) {
    given_ = OwnPictureForHosts(picture->Key());
    own_ = picture;
  }
  return given_;
}

}  // namespace sifter
