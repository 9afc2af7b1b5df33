#include "script/ScriptFile.h"

#include "container/Failure.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

namespace hosts {

namespace {

std::string ReadBytes(const std::wstring& file) {
  std::ifstream stream(std::filesystem::path(file), std::ios::binary);
  if (!stream) throw Failure(L"Can't read " + file);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::wstring FromUtf16(std::string_view bytes) {
  std::wstring text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    text += static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) |
                                 static_cast<unsigned char>(bytes[i + 1]) << 8);
  return text;
}

// "" for bytes that are no text of the code page.
std::wstring FromCodePage(std::string_view bytes, UINT codePage, DWORD flags) {
  const int size = static_cast<int>(bytes.size());
  const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(codePage, flags, bytes.data(), size, text.data(), length);
  return text;
}

}  // namespace

std::wstring ReadScript(const std::wstring& file) {
  const std::string bytes = ReadBytes(file);
  const std::string_view view(bytes);
  if (view.starts_with("\xFF\xFE")) return FromUtf16(view.substr(2));
  if (view.starts_with("\xEF\xBB\xBF")) return FromCodePage(view.substr(3), CP_UTF8, 0);
  const std::wstring text = FromCodePage(view, CP_UTF8, MB_ERR_INVALID_CHARS);
  return text.empty() ? FromCodePage(view, CP_ACP, 0) : text;
}

}  // namespace hosts
