#include "user/RemoteList.h"

#include "container/Failure.h"

#include <commctrl.h>
#include <cstddef>
#include <utility>

namespace hosts {

namespace {

constexpr int kLongestText = 1024;

// What travels: the question, and room for the answer.
struct Letter {
  LVITEMW item;
  wchar_t text[kLongestText];
};

// A letter that lies in the memory of the program that owns a window: these messages carry
// addresses, which mean something there only.
class RemoteLetter {
 public:
  explicit RemoteLetter(HWND window) : process_(ProcessOf(window)) {
    there_ = static_cast<std::byte*>(
        VirtualAllocEx(process_, nullptr, sizeof(Letter), MEM_COMMIT, PAGE_READWRITE));
    if (there_ == nullptr) {
      CloseHandle(process_);
      ThrowLastError(L"Writing to another program");
    }
  }
  RemoteLetter(const RemoteLetter&) = delete;
  RemoteLetter& operator=(const RemoteLetter&) = delete;
  ~RemoteLetter() {
    VirtualFreeEx(process_, there_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }

  LPARAM Item() const { return reinterpret_cast<LPARAM>(there_); }
  wchar_t* Text() const { return reinterpret_cast<wchar_t*>(there_ + offsetof(Letter, text)); }
  void WriteItem(const LVITEMW& item) {
    if (!WriteProcessMemory(process_, there_, &item, sizeof item, nullptr))
      ThrowLastError(L"Writing to another program");
  }
  void EmptyText() {
    const wchar_t none = L'\0';
    if (!WriteProcessMemory(process_, Text(), &none, sizeof none, nullptr))
      ThrowLastError(L"Writing to another program");
  }
  std::wstring ReadText() const {
    wchar_t text[kLongestText] = L"";
    if (!ReadProcessMemory(process_, Text(), text, sizeof text, nullptr))
      ThrowLastError(L"Reading from another program");
    text[kLongestText - 1] = L'\0';
    return text;
  }

 private:
  static HANDLE ProcessOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const HANDLE process =
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    if (process == nullptr) ThrowLastError(L"Looking into another program");
    return process;
  }

  HANDLE process_;
  std::byte* there_ = nullptr;
};

}  // namespace

std::vector<std::wstring> RowsOf(HWND listView) {
  std::vector<std::wstring> rows;
  RemoteLetter letter(listView);
  LVITEMW item{};
  item.pszText = letter.Text();
  item.cchTextMax = kLongestText;
  letter.WriteItem(item);
  const auto count = static_cast<WPARAM>(SendMessageW(listView, LVM_GETITEMCOUNT, 0, 0));
  for (WPARAM row = 0; row < count; ++row) {
    // The answer may stand elsewhere than where it was wanted; then the address comes back changed.
    letter.WriteItem(item);
    SendMessageW(listView, LVM_GETITEMTEXTW, row, letter.Item());
    rows.push_back(letter.ReadText());
  }
  return rows;
}

std::vector<std::wstring> PartsOf(HWND statusLine) {
  std::vector<std::wstring> parts;
  RemoteLetter letter(statusLine);
  const auto count = static_cast<WPARAM>(SendMessageW(statusLine, SB_GETPARTS, 0, 0));
  for (WPARAM part = 0; part < count; ++part) {
    // A part without a text may leave the letter as it was.
    letter.EmptyText();
    SendMessageW(statusLine, SB_GETTEXTW, part, reinterpret_cast<LPARAM>(letter.Text()));
    parts.push_back(letter.ReadText());
  }
  return parts;
}

}  // namespace hosts
