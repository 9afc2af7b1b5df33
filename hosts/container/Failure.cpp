#include "container/Failure.h"

#include <cwchar>
#include <utility>

namespace hosts {

namespace {

std::wstring TextOf(HRESULT result) {
  wchar_t text[512] = L"";
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                static_cast<DWORD>(result), 0, text, 512, nullptr);
  while (length > 0 && text[length - 1] <= L' ') --length;
  wchar_t number[16];
  std::swprintf(number, 16, L"0x%08lX", static_cast<unsigned long>(result));
  if (length == 0) return number;
  return std::wstring(text, length) + L" (" + number + L")";
}

std::string ToUtf8(const std::wstring& text) {
  const int size = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
  return bytes;
}

}  // namespace

Failure::Failure(std::wstring description, HRESULT result)
    : description_(std::move(description)), narrow_(ToUtf8(description_)), result_(result) {}

void Check(HRESULT result, std::wstring_view doing) {
  if (FAILED(result)) throw Failure(std::wstring(doing) + L": " + TextOf(result), result);
}

void ThrowLastError(std::wstring_view doing) {
  const HRESULT result = HRESULT_FROM_WIN32(GetLastError());
  throw Failure(std::wstring(doing) + L": " + TextOf(result), FAILED(result) ? result : E_FAIL);
}

std::wstring DescribeCurrentFailure() {
  try {
    throw;
  } catch (const Failure& failure) {
    return failure.Description();
  } catch (const std::bad_alloc&) {
    return L"Out of memory";
  } catch (...) {
    return L"Unexpected error";
  }
}

}  // namespace hosts
