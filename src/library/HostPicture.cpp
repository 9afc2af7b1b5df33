#include "library/HostPicture.h"

#include "base/RuntimeError.h"
#include "library/ControlExtent.h"
#include "win32/Errors.h"
#include "win32/Pictures.h"

#include <cstdint>
#include <cstring>
#include <ocidl.h>

namespace sifter {

namespace {

constexpr int kSmallIcon = 16;  // at 96 dots to the inch

ComRef<IStream> NewStream() {
  ComRef<IStream> stream;
  ThrowIfFailed(CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive()));
  return stream;
}

void Rewind(IStream& stream) { ThrowIfFailed(stream.Seek({}, STREAM_SEEK_SET, nullptr)); }

// Stored pictures begin with a mark and the number of bytes that follow. The platform makes
// something of other bytes too, which is no picture that was stored.
bool IsStoredPicture(std::span<const std::byte> bytes) {
  constexpr std::uint32_t kMark = 0x0000746C;  // "lt"
  std::uint32_t head[2];
  if (bytes.size() < sizeof head) return false;
  std::memcpy(head, bytes.data(), sizeof head);
  return head[0] == kMark && head[1] == bytes.size() - sizeof head;
}

RuntimeError NoPicture() { return RuntimeError(321, u"Invalid file format"_text); }

}  // namespace

Ref<HostPicture> HostPicture::Of(IUnknown& object) {
  const ComRef<IUnknown> given(&object);
  auto dispatch = given.As<IPictureDisp>(IID_IPictureDisp);
  auto picture = given.As<IPicture>(IID_IPicture);
  if (!dispatch || !picture) throw RuntimeError(ErrorNumber::kTypeMismatch);
  return Ref<HostPicture>(new HostPicture(std::move(dispatch), std::move(picture)));
}

std::optional<std::vector<std::byte>> HostPicture::ToBytes() const {
  const auto storable = picture_.As<IPersistStream>(IID_IPersistStream);
  if (!storable) return std::nullopt;
  const ComRef<IStream> stream = NewStream();
  if (FAILED(storable->Save(stream.Get(), FALSE))) return std::nullopt;
  ULARGE_INTEGER end{};
  ThrowIfFailed(stream->Seek({}, STREAM_SEEK_CUR, &end));
  std::vector<std::byte> bytes(static_cast<std::size_t>(end.QuadPart));
  Rewind(*stream.Get());
  ULONG read = 0;
  ThrowIfFailed(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read));
  bytes.resize(read);
  if (!IsStoredPicture(bytes)) return std::nullopt;  // it would spoil the whole form
  return bytes;
}

Ref<HostPicture> HostPicture::FromBytes(std::span<const std::byte> bytes) {
  if (!IsStoredPicture(bytes)) throw NoPicture();
  const ComRef<IStream> stream = NewStream();
  ThrowIfFailed(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
  Rewind(*stream.Get());
  ComRef<IPictureDisp> picture;
  ThrowIfFailed(OleCreatePictureIndirect(nullptr, IID_IPictureDisp, TRUE, picture.ReceiveVoid()));
  const auto storable = picture.As<IPersistStream>(IID_IPersistStream);
  if (!storable || FAILED(storable->Load(stream.Get()))) throw NoPicture();
  return Of(*picture.Get());
}

SIZE HostPicture::Size(int dpi) const noexcept {
  SHORT type = PICTYPE_NONE;
  OLE_XSIZE_HIMETRIC width = 0;
  OLE_YSIZE_HIMETRIC height = 0;
  if (FAILED(picture_->get_Type(&type)) || type == PICTYPE_NONE || type == PICTYPE_UNINITIALIZED)
    return {};
  if (FAILED(picture_->get_Width(&width)) || FAILED(picture_->get_Height(&height))) return {};
  return {TwipsToPixels(HimetricToTwips(width), dpi), TwipsToPixels(HimetricToTwips(height), dpi)};
}

// Pictures count their own height from the bottom up.
void HostPicture::Draw(HDC dc, const RECT& box) const noexcept {
  OLE_XSIZE_HIMETRIC width = 0;
  OLE_YSIZE_HIMETRIC height = 0;
  if (FAILED(picture_->get_Width(&width)) || FAILED(picture_->get_Height(&height))) return;
  const int saved = SaveDC(dc);
  picture_->Render(dc, box.left, box.top, box.right - box.left, box.bottom - box.top, 0, height,
                   width, -height, &box);
  RestoreDC(dc, saved);
}

ComRef<IPictureDisp> OwnPictureForHosts(const Text& key) {
  const int pixels = MulDiv(kSmallIcon, DpiOf(nullptr), USER_DEFAULT_SCREEN_DPI);
  UniqueIcon icon = OwnPicture(key, pixels);
  if (!icon) return nullptr;
  PICTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_ICON;
  description.icon.hicon = icon.Get();
  ComRef<IPictureDisp> picture;
  ThrowIfFailed(
      OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, picture.ReceiveVoid()));
  static_cast<void>(icon.Release());  // the picture's from now on
  return picture;
}

}  // namespace sifter
