#include "container/Failure.h"
#include "user/Banner.h"
#include "user/FilterDialog.h"
#include "user/Hands.h"
#include "user/RemoteList.h"
#include "user/Screen.h"

#include <algorithm>
#include <commctrl.h>
#include <cstdio>
#include <shellapi.h>
#include <string>
#include <vector>

namespace {

using namespace hosts;

using Arguments = std::vector<std::wstring>;

constexpr char kUsage[] =
    "Somebody at the mouse and the keyboard, for trying out programs that show the filter "
    "control.\n"
    "CLASS is the class of the program's window.\n"
    "\n"
    "  user rows CLASS                        the first column of its list, as it stands there\n"
    "  user status CLASS TEXT                 waits until its status line has it; tells its parts\n"
    "  user caption CLASS TEXT                waits until the banner says so; tells what it says\n"
    "  user press CLASS BUTTON                clicks a button\n"
    "  user clipboard                         the text on the clipboard\n"
    "  user dialog CLASS                      clicks Filter and waits for the dialog\n"
    "  user choose COLUMN OPERATOR TEXT       in the dialog\n"
    "  user leave BUTTON                      clicks a button of the dialog; waits until it goes\n"
    "  user close CLASS                       closes the program's window\n";

constexpr wchar_t kDialogClass[] = L"RowSifterForm";

void Print(const std::wstring& line) {
  const int units = static_cast<int>(line.size());
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, line.c_str(), units, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, line.c_str(), units, text.data(), size, nullptr, nullptr);
  std::puts(text.c_str());
}

HWND ChildOfClass(HWND window, const std::wstring& windowClass) {
  HWND found = nullptr;
  WaitUntil(
      [&] {
        for (const HWND child : ChildrenOf(window))
          if (ClassOf(child) == windowClass) found = child;
        return found != nullptr;
      },
      L"for a " + windowClass);
  return found;
}

void Rows(const Arguments& arguments) {
  const HWND window = WaitForWindow(arguments[0]);
  for (const std::wstring& row : RowsOf(ChildOfClass(window, WC_LISTVIEWW))) Print(row);
  WaitUntilPainted(window);
}

void Status(const Arguments& arguments) {
  const HWND window = WaitForWindow(arguments[0]);
  const HWND status = ChildOfClass(window, STATUSCLASSNAMEW);
  std::vector<std::wstring> parts;
  WaitUntil(
      [&] {
        parts = PartsOf(status);
        return std::any_of(parts.begin(), parts.end(), [&](const std::wstring& part) {
          return part.find(arguments[1]) != std::wstring::npos;
        });
      },
      L"for \"" + arguments[1] + L"\" in the status line");
  for (const std::wstring& part : parts) Print(part);
  WaitUntilPainted(window);
}

void Caption(const Arguments& arguments) {
  const HWND window = WaitForWindow(arguments[0]);
  WaitForBannerCaption(window, arguments[1],
                       [](const std::wstring& caption) { Print(L"caption: " + caption); });
  WaitUntilPainted(window);
}

void Clipboard(const Arguments&) {
  if (!OpenClipboard(nullptr)) ThrowLastError(L"Opening the clipboard");
  const HANDLE text = GetClipboardData(CF_UNICODETEXT);
  if (text != nullptr) Print(static_cast<const wchar_t*>(GlobalLock(text)));
  if (text != nullptr) GlobalUnlock(text);
  CloseClipboard();
}

void PressButton(const Arguments& arguments) {
  Click(WaitForChild(WaitForWindow(arguments[0]), L"Button", arguments[1]));
}

void OpenDialog(const Arguments& arguments) {
  PressButton({arguments[0], L"Filter"});
  const FilterDialog shown;
}

void Choose(const Arguments& arguments) {
  FilterDialog dialog;
  dialog.Choose(arguments[0], arguments[1], arguments[2]);
  WaitUntilPainted(dialog.Window());
}

void Leave(const Arguments& arguments) { FilterDialog().Leave(arguments[0]); }

void CloseWindow(const Arguments& arguments) {
  const HWND window = WaitForWindow(arguments[0]);
  PostMessageW(window, WM_CLOSE, 0, 0);
  WaitUntil([&] { return !IsWindow(window); }, L"for the window to close");
}

struct Command {
  const wchar_t* name;
  std::size_t arguments;
  void (*run)(const Arguments& arguments);
};

constexpr Command kCommands[] = {
    {L"rows", 1, Rows},         {L"status", 2, Status},   {L"press", 2, PressButton},
    {L"dialog", 1, OpenDialog}, {L"choose", 3, Choose},   {L"leave", 1, Leave},
    {L"close", 1, CloseWindow}, {L"caption", 2, Caption}, {L"clipboard", 0, Clipboard},
};

Arguments CommandLine() {
  int count = 0;
  LPWSTR* const given = CommandLineToArgvW(GetCommandLineW(), &count);
  Arguments arguments(given + 1, given + count);
  LocalFree(given);
  return arguments;
}

}  // namespace

int main() {
  Arguments arguments = CommandLine();
  for (const Command& command : kCommands) {
    if (arguments.size() != command.arguments + 1 || arguments[0] != command.name) continue;
    try {
      command.run({arguments.begin() + 1, arguments.end()});
      return 0;
    } catch (...) {
      std::fprintf(stderr, "user: %ls\n", DescribeCurrentFailure().c_str());
      return 1;
    }
  }
  std::fputs(kUsage, stderr);
  return 2;
}
