#include "library/StreamedProperties.h"

#include "base/RuntimeError.h"
#include "library/HostPicture.h"
#include "win32/Errors.h"

#include <algorithm>
#include <vector>

namespace sifter {

namespace {

// A damaged size must not make us ask for gigabytes before the stream turns out to end.
constexpr std::size_t kChunk = 65536;

std::vector<std::byte> ReadBytes(IStream& stream, std::size_t count) {
  std::vector<std::byte> bytes;
  while (bytes.size() < count) {
    const std::size_t before = bytes.size();
    const std::size_t wanted = std::min(kChunk, count - before);
    bytes.resize(before + wanted);
    ULONG read = 0;
    ThrowIfFailed(stream.Read(bytes.data() + before, static_cast<ULONG>(wanted), &read));
    if (read == 0) throw RuntimeError(321, u"Invalid file format"_text);
    bytes.resize(before + read);
  }
  return bytes;
}

template <class T>
const T* ObjectIn(const Value& value) {
  const Ref<Object>* const held = value.As<Ref<Object>>();
  return held == nullptr ? nullptr : dynamic_cast<const T*>(held->Get());
}

// Keeps pictures as bytes. One that can't be stored is left out, or nothing else of the form could
// be saved.
class WithBytes final : public PropertyBag {
 public:
  explicit WithBytes(SavedProperties& saved) : saved_(saved) {}

  Value ReadProperty(TextView key) override { return saved_.ReadProperty(key); }
  void WriteProperty(TextView key, const Value& value) override {
    const auto* const picture = ObjectIn<HostPicture>(value);
    if (picture == nullptr) return saved_.WriteProperty(key, value);
    if (const auto bytes = picture->ToBytes())
      saved_.WriteProperty(key, Value(Ref<Object>(MakeRef<SavedBytes>(*bytes))));
  }

 private:
  SavedProperties& saved_;
};

Value WithPicture(const Value& value) {
  const auto* const bytes = ObjectIn<SavedBytes>(value);
  if (bytes == nullptr) return value;
  return Value(Ref<Object>(HostPicture::FromBytes(bytes->Bytes())));
}

}  // namespace

SavedProperties StateOf(const FramedControl& control) {
  SavedProperties saved;
  WithBytes bag(saved);
  control.WriteProperties(bag, Saving::kAll);
  return saved;
}

SavedProperties ReadStream(IStream& stream) {
  const std::vector<std::byte> head = ReadBytes(stream, SavedProperties::kHeadSize);
  const std::uint32_t size = SavedProperties::BodySize(head);
  SavedProperties saved = SavedProperties::FromBody(ReadBytes(stream, size));
  saved.Change(WithPicture);
  return saved;
}

void WriteStream(IStream& stream, const SavedProperties& properties) {
  const std::vector<std::byte> bytes = properties.ToBytes();
  for (std::size_t done = 0; done < bytes.size();) {
    ULONG written = 0;
    ThrowIfFailed(
        stream.Write(bytes.data() + done, static_cast<ULONG>(bytes.size() - done), &written));
    if (written == 0) throw ErrorFromResult(STG_E_MEDIUMFULL);
    done += written;
  }
}

}  // namespace sifter
