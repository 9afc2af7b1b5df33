#pragma once

#include "base/Value.h"
#include "win32/ComRef.h"
#include "win32/DrawnPicture.h"

#include <cstddef>
#include <olectl.h>
#include <optional>
#include <span>
#include <utility>
#include <vector>
#include <windows.h>

namespace sifter {

// A picture that a host has brought along.
class HostPicture final : public DrawnPicture {
 public:
  // Error 13 for an object that is no picture.
  static Ref<HostPicture> Of(IUnknown& object);

  // The host's own object.
  IPictureDisp* Dispatch() const noexcept { return dispatch_.Get(); }

  // The picture as the platform's pictures store themselves; nothing when it is of a kind that
  // doesn't.
  std::optional<std::vector<std::byte>> ToBytes() const;

  // Such a picture again. The platform's errors come out, and error 321 for bytes that are no
  // picture.
  static Ref<HostPicture> FromBytes(std::span<const std::byte> bytes);

  SIZE Size(int dpi) const noexcept override;
  void Draw(HDC dc, const RECT& box) const noexcept override;

 private:
  HostPicture(ComRef<IPictureDisp> dispatch, ComRef<IPicture> picture)
      : dispatch_(std::move(dispatch)), picture_(std::move(picture)) {}

  ComRef<IPictureDisp> dispatch_;
  ComRef<IPicture> picture_;
};

// One of the library's own pictures as an object for hosts. Null for a key that there is no picture
// under.
ComRef<IPictureDisp> OwnPictureForHosts(const Text& key);

}  // namespace sifter
