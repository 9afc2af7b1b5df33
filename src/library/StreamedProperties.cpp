#include "library/StreamedProperties.h"

#include "base/RuntimeError.h"
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

}  // namespace

SavedProperties ReadStream(IStream& stream) {
  const std::uint32_t size =
      SavedProperties::BodySize(ReadBytes(stream, SavedProperties::kHeadSize));
  return SavedProperties::FromBody(ReadBytes(stream, size));
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
