#include "user/FilterDialog.h"

#include "container/Failure.h"
#include "user/Hands.h"
#include "user/Screen.h"

namespace hosts {

namespace {

constexpr wchar_t kDialogClass[] = L"RowSifterForm";
constexpr int kMostOperators = 10;

RECT BoxOf(HWND window) {
  RECT box{};
  GetWindowRect(window, &box);
  return box;
}

bool Overlap(const RECT& a, const RECT& b) { return a.top < b.bottom && b.top < a.bottom; }

// With the arrow keys, which show what is chosen at every step.
void PickInList(HWND list, const std::wstring& word) {
  Click(list);
  WaitUntil([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0; },
            L"for a list to open");
  for (int step = 0; step < kMostOperators && CaptionOf(list) != word; ++step) {
    const LRESULT before = SendMessageW(list, CB_GETCURSEL, 0, 0);
    Press(VK_DOWN);
    WaitUntil([&] { return SendMessageW(list, CB_GETCURSEL, 0, 0) != before; },
              L"for the next operator");
  }
  if (CaptionOf(list) != word) throw Failure(L"There is no operator " + word);
  Press(VK_RETURN);
  WaitUntil([&] { return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) == 0; },
            L"for a list to close");
}

}  // namespace

FilterDialog::FilterDialog() : window_(WaitForWindow(kDialogClass)) {
  WaitUntil([&] { return GetForegroundWindow() == window_; },
            L"for the dialog to come to the front");
  WaitUntilPainted(window_);
}

HWND FilterDialog::InLine(const std::wstring& column, const std::wstring& windowClass, LONG left) {
  const RECT line = BoxOf(WaitForChild(window_, L"Static", column));
  HWND nearest = nullptr;
  WaitUntil(
      [&] {
        for (const HWND child : ChildrenOf(window_)) {
          const RECT box = BoxOf(child);
          if (lstrcmpiW(ClassOf(child).c_str(), windowClass.c_str()) != 0 || !Overlap(box, line) ||
              box.left < left)
            continue;
          if (nearest == nullptr || box.left < BoxOf(nearest).left) nearest = child;
        }
        return nearest != nullptr;
      },
      L"for a field in the line of " + column);
  return nearest;
}

void FilterDialog::Choose(const std::wstring& column, const std::wstring& word,
                          const std::wstring& text) {
  const HWND words = InLine(column, L"ComboBox", 0);
  PickInList(words, word);
  const HWND field = InLine(column, L"ComboBox", BoxOf(words).right);
  Click(field);
  Type(text);
  WaitUntil([&] { return CaptionOf(field) == text; }, L"for the text to arrive");
}

void FilterDialog::Leave(const std::wstring& button) {
  Click(WaitForChild(window_, L"Button", button));
  WaitUntil([&] { return !IsWindowVisible(window_); }, L"for the dialog to go");
}

}  // namespace hosts
