#include "Folder.h"
#include "Program.h"
#include "RegisteredControl.h"
#include "demo/Resources.h"
#include "user/Banner.h"
#include "user/FilterDialog.h"
#include "user/Hands.h"
#include "user/RemoteList.h"
#include "user/Screen.h"

#include <algorithm>
#include <commctrl.h>
#include <memory>

namespace hosts {

namespace {

using Texts = std::vector<std::wstring>;

HWND ChildOfClass(HWND window, const wchar_t* windowClass) {
  for (const HWND child : ChildrenOf(window))
    if (ClassOf(child) == windowClass) return child;
  return nullptr;
}

std::wstring ClipboardText() {
  std::wstring text;
  if (!OpenClipboard(nullptr)) return text;
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (memory != nullptr) text = static_cast<const wchar_t*>(GlobalLock(memory));
  if (memory != nullptr) GlobalUnlock(memory);
  CloseClipboard();
  return text;
}

// The demo on a folder with three files and a folder in it.
class Demo : public RegisteredControl {
 protected:
  Demo() {
    folder_.Write(L"apples.txt", "1");
    folder_.Write(L"pears.txt", "22");
    folder_.Write(L"plums.log", "333");
    folder_.MakeFolder(L"more");
    program_ =
        std::make_unique<Program>(BuiltProgram(L"demo.exe") + L" \"" + folder_.Path() + L'"');
    window_ = WaitForWindow(L"RowSifterDemo");
  }
  ~Demo() override {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    EXPECT_EQ(program_->WaitForEnd().code, 0);
  }

  Texts Rows() const { return RowsOf(ChildOfClass(window_, WC_LISTVIEWW)); }
  Texts Status() const { return PartsOf(ChildOfClass(window_, STATUSCLASSNAMEW)); }
  void WaitForRows(const Texts& rows) {
    WaitUntil([&] { return Rows() == rows; }, L"for the rows");
  }
  void WaitForStatus(const Texts& parts) {
    WaitUntil([&] { return Status() == parts; }, L"for the status line");
  }
  void WaitForFocus(const wchar_t* windowClass, const wchar_t* caption) {
    WaitUntil(
        [&] {
          GUITHREADINFO info{};
          info.cbSize = sizeof info;
          return GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info) &&
                 info.hwndFocus != nullptr && ClassOf(info.hwndFocus) == windowClass &&
                 (*caption == L'\0' || CaptionOf(info.hwndFocus) == caption);
        },
        L"for the focus");
  }
  void WaitForCaption(const wchar_t* caption) { WaitForBannerCaption(window_, caption); }
  // As the menu does.
  void Choose(int command) { PostMessageW(window_, WM_COMMAND, static_cast<WPARAM>(command), 0); }
  void UseButtonControl() {
    Choose(IDM_BUTTON_CONTROL);
    WaitUntil(
        [&] {
          const auto children = ChildrenOf(window_);
          return std::none_of(children.begin(), children.end(),
                              [](HWND child) { return CaptionOf(child) == L"Banner button"; });
        },
        L"for the banner to go");
  }
  void OpenDialog() { Click(FilterButtonOf(window_)); }
  void FilterByName(const wchar_t* word, const wchar_t* text) {
    OpenDialog();
    FilterDialog dialog;
    dialog.Choose(L"Name", word, text);
    dialog.Leave(L"&Apply Criteria");
  }
  void ResetFilter() {
    OpenDialog();
    FilterDialog().Leave(L"&Reset Filter");
  }

  Folder folder_;
  std::unique_ptr<Program> program_;
  HWND window_ = nullptr;
};

const Texts kAll = {L"more", L"apples.txt", L"pears.txt", L"plums.log"};

TEST_F(Demo, ShowsTheFilesAndFollowsThem) {
  WaitForRows(kAll);
  WaitForCaption(L"Displaying 4 of 4 files");
  folder_.Write(L"melons.txt", "4444");
  WaitForRows({L"more", L"apples.txt", L"melons.txt", L"pears.txt", L"plums.log"});
  WaitForCaption(L"Displaying 5 of 5 files");
  folder_.Remove(L"apples.txt");
  WaitForRows({L"more", L"melons.txt", L"pears.txt", L"plums.log"});
  WaitForCaption(L"Displaying 4 of 4 files");
  WaitForStatus({L"4 items", L"", L""});
}

TEST_F(Demo, FiltersAndTellsOfTheEvents) {
  FilterByName(L"ends with", L".txt");
  WaitForRows({L"apples.txt", L"pears.txt"});
  WaitForCaption(L"Displaying 2 of 4 files");
  WaitForStatus({L"2 of 4 items", L"FilterActivated", L""});
  ResetFilter();
  WaitForRows(kAll);
  WaitForCaption(L"Displaying 4 of 4 files");
  WaitForStatus({L"4 items", L"FilterActivated, FilterDeactivated", L""});
}

TEST_F(Demo, FiltersNewFilesAsTheyCome) {
  FilterByName(L"ends with", L".txt");
  WaitForCaption(L"Displaying 2 of 4 files");
  folder_.Write(L"melons.txt", "4444");
  folder_.Write(L"cherries.log", "55555");
  WaitForCaption(L"Displaying 3 of 6 files");
  EXPECT_EQ(Rows(), (Texts{L"apples.txt", L"melons.txt", L"pears.txt"}));
  WaitForStatus({L"3 of 6 items", L"FilterActivated", L""});
  folder_.Remove(L"apples.txt");
  WaitForCaption(L"Displaying 2 of 5 files");
  WaitForRows({L"melons.txt", L"pears.txt"});
  ResetFilter();
  WaitForRows({L"more", L"cherries.log", L"melons.txt", L"pears.txt", L"plums.log"});
  WaitForCaption(L"Displaying 5 of 5 files");
}

// A row that changes is a new one to the filter, which looks at what it says now.
TEST_F(Demo, FiltersAFileThatChangesByWhatItIsNow) {
  {
    OpenDialog();
    FilterDialog dialog;
    dialog.Choose(L"Attributes", L"does not contain", L"R");
    dialog.Leave(L"&Apply Criteria");
  }
  WaitForCaption(L"Displaying 4 of 4 files");
  SetFileAttributesW(folder_.PathOf(L"pears.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  WaitForCaption(L"Displaying 3 of 4 files");
  WaitForRows({L"more", L"apples.txt", L"plums.log"});
  SetFileAttributesW(folder_.PathOf(L"pears.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
  ResetFilter();
  WaitForRows(kAll);
  WaitForCaption(L"Displaying 4 of 4 files");
}

// The list can't lose a row that isn't in it, so it learns of these when the filter goes.
TEST_F(Demo, TakesUpWhatBecameOfHiddenFilesWhenTheFilterIsOff) {
  FilterByName(L"ends with", L".txt");
  WaitForCaption(L"Displaying 2 of 4 files");
  folder_.Remove(L"plums.log");
  folder_.Write(L"melons.txt", "4444");
  WaitForCaption(L"Displaying 3 of 5 files");
  folder_.Write(L"plums.log", "of another kind");
  folder_.Remove(L"melons.txt");
  WaitForCaption(L"Displaying 2 of 4 files");
  folder_.Remove(L"plums.log");
  ResetFilter();
  WaitForRows({L"more", L"apples.txt", L"pears.txt"});
  WaitForCaption(L"Displaying 3 of 3 files");
}

TEST_F(Demo, LeavesTheListAloneWhileTheDialogIsOpen) {
  OpenDialog();
  {
    FilterDialog dialog;
    folder_.Write(L"melons.txt", "4444");
    dialog.Choose(L"Name", L"ends with", L".txt");
    EXPECT_EQ(Rows(), kAll);
    dialog.Leave(L"&Apply Criteria");
  }
  WaitForRows({L"apples.txt", L"melons.txt", L"pears.txt"});
  WaitForCaption(L"Displaying 3 of 5 files");
  ResetFilter();
  WaitForRows({L"more", L"apples.txt", L"melons.txt", L"pears.txt", L"plums.log"});
}

TEST_F(Demo, CopiesTheRowsThatAreShown) {
  FilterByName(L"ends with", L".log");
  WaitForRows({L"plums.log"});
  Click(HostButtonOf(window_));
  WaitForStatus({L"1 of 4 items", L"FilterActivated, ExtraButtonClicked", L"1 rows copied"});
  EXPECT_EQ(ClipboardText().substr(0, 14), L"plums.log\t.log");
  EXPECT_EQ(ClipboardText().substr(ClipboardText().size() - 2), L"\r\n");
}

TEST_F(Demo, ReloadShowsEveryFileAgain) {
  FilterByName(L"contains", L"pears");
  WaitForRows({L"pears.txt"});
  Press(VK_F5);
  WaitForRows(kAll);
  WaitForCaption(L"Displaying 4 of 4 files");
  FilterByName(L"contains", L"apples");
  WaitForRows({L"apples.txt"});
  WaitForCaption(L"Displaying 1 of 4 files");
}

TEST_F(Demo, FiltersByATextAndTellsItInWords) {
  folder_.Write(L"encrypted.txt", "666666");
  WaitForRows({L"more", L"apples.txt", L"encrypted.txt", L"pears.txt", L"plums.log"});
  Choose(IDM_APPLY_FILTER);
  WaitForRows({L"encrypted.txt"});
  WaitForCaption(L"Displaying 1 of 5 files");
  WaitForStatus({L"1 of 5 items", L"ApplyFilter, FilterActivated", L""});
  Choose(IDM_TELL_FILTER);
  const HWND box = WaitForWindow(L"#32770");
  WaitForChild(box, L"Static",
               L"Filter: (Name like '*crypt*')\nFilterInPlainEnglish: Name contains crypt");
  PostMessageW(box, WM_COMMAND, IDOK, 0);
  WaitUntil([&] { return !IsWindow(box); }, L"for the box to go");
}

TEST_F(Demo, BringsTheFilesBackThatAnEndedFilterGivesUp) {
  for (const int command : {IDM_DEACTIVATE_FILTER, IDM_ACTIVE}) {
    FilterByName(L"contains", L"pears");
    WaitForRows({L"pears.txt"});
    Choose(command);
    WaitForRows(kAll);
    WaitForCaption(L"Displaying 4 of 4 files");
  }
  WaitForStatus(
      {L"4 items", L"FilterActivated, DeactivateFilter, FilterActivated, Active = False", L""});
}

// The button's list is taken for the whole when it was changed under a filter.
TEST_F(Demo, LeavesTheListAloneUnderTheFilterOfTheButtonControl) {
  UseButtonControl();
  FilterByName(L"ends with", L".txt");
  WaitForRows({L"apples.txt", L"pears.txt"});
  folder_.Write(L"melons.txt", "4444");
  WaitForStatus({L"2 of 4 items", L"FilterActivated", L"The folder has changed: filter is on"});
  EXPECT_EQ(Rows(), (Texts{L"apples.txt", L"pears.txt"}));
  ResetFilter();
  WaitForRows({L"more", L"apples.txt", L"melons.txt", L"pears.txt", L"plums.log"});
  WaitForStatus({L"5 items", L"FilterActivated, FilterDeactivated", L""});
}

TEST_F(Demo, ChangesOverFromOneControlToTheOtherUnderAFilter) {
  FilterByName(L"ends with", L".txt");
  WaitForRows({L"apples.txt", L"pears.txt"});
  UseButtonControl();
  WaitForRows(kAll);
  FilterByName(L"ends with", L".log");
  WaitForRows({L"plums.log"});
  Choose(IDM_BUTTON_CONTROL);
  WaitForRows(kAll);
  WaitForCaption(L"Displaying all files");
}

TEST_F(Demo, IsUsedByTheKeyboardAlone) {
  WaitForRows(kAll);
  WaitUntilPainted(window_);
  WaitForFocus(WC_LISTVIEWW, L"");
  Press(VK_TAB);
  WaitForFocus(L"Button", L"Filter");
  Press(VK_SPACE);  // which opens the dialog
  FilterDialog dialog;
  PressWithAlt('H');  // Hide Filter
  WaitUntil([&] { return !IsWindowVisible(dialog.Window()); }, L"for the dialog to go");
  WaitForStatus({L"4 items", L"FilterDeactivated", L""});
  WaitForFocus(WC_LISTVIEWW, L"");
  Press(VK_TAB);
  WaitForFocus(L"Button", L"Filter");
  Press(VK_TAB);
  WaitForFocus(L"Button", L"Banner button");
  Press(VK_SPACE);
  WaitForStatus({L"4 items", L"FilterDeactivated, ExtraButtonClicked", L"4 rows copied"});
  Press(VK_TAB);  // back to the list, whose first row is a folder
  WaitForFocus(WC_LISTVIEWW, L"");
  Press(VK_RETURN);  // which opens
  WaitForStatus({L"0 items", L"FilterDeactivated, ExtraButtonClicked", L""});
  Press(VK_BACK);
  WaitForStatus({L"4 items", L"FilterDeactivated, ExtraButtonClicked", L""});
}

// By character code, as the list's object sorts.
TEST_F(Demo, SortsByTheColumnWhoseHeaderIsClicked) {
  WaitForRows(kAll);
  WaitUntilPainted(window_);
  RECT header{};
  GetWindowRect(ChildOfClass(window_, WC_HEADERW), &header);
  const LONG middle = (header.top + header.bottom) / 2;
  ClickAt({header.left + 30, middle});
  WaitForRows({L"apples.txt", L"more", L"pears.txt", L"plums.log"});
  ClickAt({header.left + 120, middle});  // elsewhere: this is no double click
  WaitForRows({L"plums.log", L"pears.txt", L"more", L"apples.txt"});
  folder_.Write(L"melons.txt", "4444");
  WaitForRows({L"plums.log", L"pears.txt", L"more", L"melons.txt", L"apples.txt"});
}

}  // namespace

}  // namespace hosts
