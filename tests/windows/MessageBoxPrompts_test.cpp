#include "win32/MessageBoxPrompts.h"

#include "win32/UniqueWindow.h"
#include "win32/WideText.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter {
namespace {

// What was seen of a message box before its button was pressed.
struct SeenBox {
  Text windowClass;
  Text title;
  Text text;
  HICON icon = nullptr;
  std::vector<Text> buttons;
  HWND owner = nullptr;
  bool ownerWasEnabled = false;
};

Text ClassOf(HWND window) {
  wchar_t name[64];
  const int length = GetClassNameW(window, name, 64);
  return FromWide(std::wstring_view(name, static_cast<std::size_t>(length)));
}

bool IsIcon(HWND window) { return (GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK) == SS_ICON; }

void Look(HWND child, SeenBox& seen) {
  if (!IsWindowVisible(child)) return;
  const Text kind = ClassOf(child);
  if (kind == u"Button") {
    seen.buttons.push_back(WindowText(child));
  } else if (IsIcon(child)) {
    seen.icon = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
  } else if (kind == u"Static") {
    seen.text = WindowText(child);
  }
}

SeenBox Look(HWND box) {
  SeenBox seen;
  seen.windowClass = ClassOf(box);
  seen.title = WindowText(box);
  seen.owner = GetWindow(box, GW_OWNER);
  seen.ownerWasEnabled = seen.owner != nullptr && IsWindowEnabled(seen.owner);
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT))
    Look(child, seen);
  return seen;
}

BOOL CALLBACK TakeBox(HWND window, LPARAM found) {
  if (ClassOf(window) != u"#32770" || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

// Stands for a user: looks at the message box that this thread shows, and presses its button.
class User {
 public:
  User() {
    current_ = this;
    timer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &OnTimer);
  }
  User(const User&) = delete;
  User& operator=(const User&) = delete;
  ~User() {
    KillTimer(nullptr, timer_);
    current_ = nullptr;
  }

  // Asked about each box before its button is pressed.
  std::function<void()> onBox;

  const std::vector<SeenBox>& Seen() const { return seen_; }

 private:
  // Comes again until there is a box.
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &TakeBox, reinterpret_cast<LPARAM>(&box));
    if (box != nullptr) current_->Answer(box);
  }

  void Answer(HWND box) {
    seen_.push_back(Look(box));
    if (onBox) onBox();
    SendMessageW(FindWindowExW(box, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
  }

  static User* current_;
  UINT_PTR timer_ = 0;
  std::vector<SeenBox> seen_;
};

User* User::current_ = nullptr;

UniqueWindow NewWindow() {
  return UniqueWindow(CreateWindowExW(0, L"STATIC", L"dialog", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                                      nullptr, nullptr, nullptr, nullptr));
}

void Activate(const UniqueWindow& window) {
  ShowWindow(window.Get(), SW_SHOW);
  SetActiveWindow(window.Get());
}

TEST(MessageBoxPrompts, ShowABoxOfTheActiveWindowWithAnOkButton) {
  const UniqueWindow dialog = NewWindow();
  Activate(dialog);
  User user;
  MessageBoxPrompts().Show(u"Error number is 9, Subscript out of range"_text, u"Error"_text,
                           PromptIcon::kExclamation);
  ASSERT_EQ(user.Seen().size(), 1u);
  const SeenBox& box = user.Seen()[0];
  EXPECT_EQ(box.windowClass, u"#32770");
  EXPECT_EQ(box.title, u"Error");
  EXPECT_EQ(box.text, u"Error number is 9, Subscript out of range");
  EXPECT_EQ(box.icon, LoadIconW(nullptr, IDI_EXCLAMATION));
  EXPECT_EQ(box.buttons, std::vector<Text>{u"OK"});
  EXPECT_EQ(box.owner, dialog.Get());
  EXPECT_FALSE(box.ownerWasEnabled);
  EXPECT_TRUE(IsWindowEnabled(dialog.Get()));
  EXPECT_EQ(GetActiveWindow(), dialog.Get());
}

TEST(MessageBoxPrompts, ShowNoIconWhenThereIsNone) {
  const UniqueWindow dialog = NewWindow();
  Activate(dialog);
  User user;
  MessageBoxPrompts().Show(u"Gr\u00F6\u00DFe \u4E2D\nsecond line"_text,
                           Text(Prompts::kDefaultTitle), PromptIcon::kNone);
  ASSERT_EQ(user.Seen().size(), 1u);
  const SeenBox& box = user.Seen()[0];
  EXPECT_EQ(box.title, u"RowSifter");
  EXPECT_EQ(box.text, u"Gr\u00F6\u00DFe \u4E2D\nsecond line");
  EXPECT_EQ(box.icon, nullptr);
  EXPECT_EQ(box.buttons, std::vector<Text>{u"OK"});
}

TEST(MessageBoxPrompts, KeepTheThreadsWindowsWaitingWhenNoneIsActive) {
  const UniqueWindow window = NewWindow();
  ShowWindow(window.Get(), SW_SHOWNOACTIVATE);
  SetActiveWindow(nullptr);
  ASSERT_EQ(GetActiveWindow(), nullptr);
  User user;
  bool wasEnabled = true;
  user.onBox = [&] { wasEnabled = IsWindowEnabled(window.Get()); };
  MessageBoxPrompts().Show(u"text"_text, u"title"_text, PromptIcon::kNone);
  ASSERT_EQ(user.Seen().size(), 1u);
  EXPECT_EQ(user.Seen()[0].owner, nullptr);
  EXPECT_FALSE(wasEnabled);
  EXPECT_TRUE(IsWindowEnabled(window.Get()));
}

}  // namespace
}  // namespace sifter
