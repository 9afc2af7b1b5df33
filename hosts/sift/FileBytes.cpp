#include "sift/FileBytes.h"

#include "sift/UserError.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace sifter {

namespace {

[[noreturn]] void ThrowUnreadable(const std::string& name) {
  const int error = errno;
  throw UserError("cannot read " + DisplayName(name) + ": " +
                  std::generic_category().message(error == 0 ? EIO : error));
}

std::filesystem::path PathOf(const std::string& name) {
  return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

// `read` puts up to so many bytes in a place and says how many; 0 at the end.
template <class Read>
std::string ReadInChunks(Read read) {
  constexpr std::size_t kChunk = std::size_t{1} << 20;
  std::string bytes;
  for (;;) {
    const std::size_t size = bytes.size();
    bytes.resize(size + kChunk);
    const std::size_t got = read(bytes.data() + size, kChunk);
    bytes.resize(size + got);
    if (got == 0) return bytes;
  }
}

std::string ReadStandardInput() {
  std::string bytes =
      ReadInChunks([](char* to, std::size_t most) { return std::fread(to, 1, most, stdin); });
  if (std::ferror(stdin) != 0) ThrowUnreadable(kStandardInput);
  return bytes;
}

std::string ReadFile(const std::string& name) {
  std::filebuf file;
  if (file.open(PathOf(name), std::ios::in | std::ios::binary) == nullptr) ThrowUnreadable(name);
  try {
    return ReadInChunks([&file](char* to, std::size_t most) {
      return static_cast<std::size_t>(file.sgetn(to, static_cast<std::streamsize>(most)));
    });
  } catch (const std::ios_base::failure&) {
    ThrowUnreadable(name);
  }
}

}  // namespace

std::string DisplayName(const std::string& name) {
  return name == kStandardInput ? "the standard input" : name;
}

std::string ReadAllBytes(const std::string& name) {
  errno = 0;
  return name == kStandardInput ? ReadStandardInput() : ReadFile(name);
}

}  // namespace sifter
