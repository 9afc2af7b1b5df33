#include "Folder.h"
#include "Program.h"
#include "RegisteredControl.h"
#include "user/FilterDialog.h"
#include "user/Hands.h"
#include "user/RemoteList.h"
#include "user/Screen.h"

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
  void OpenDialog() { Click(WaitForChild(window_, L"Button", L"Filter")); }
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

TEST_F(Demo, ShowsTheFilesAndFollowsThem) {
  WaitForRows({L"more", L"apples.txt", L"pears.txt", L"plums.log"});
  folder_.Write(L"melons.txt", "4444");
  WaitForRows({L"more", L"apples.txt", L"melons.txt", L"pears.txt", L"plums.log"});
  folder_.Remove(L"apples.txt");
  WaitForRows({L"more", L"melons.txt", L"pears.txt", L"plums.log"});
  WaitForStatus({L"4 items", L"", L""});
}

TEST_F(Demo, FiltersAndTellsOfTheEvents) {
  FilterByName(L"ends with", L".txt");
  WaitForRows({L"apples.txt", L"pears.txt"});
  WaitForStatus({L"2 of 4 items", L"FilterActivated", L""});
  ResetFilter();
  WaitForRows({L"more", L"apples.txt", L"pears.txt", L"plums.log"});
  WaitForStatus({L"4 items", L"FilterActivated, FilterDeactivated", L""});
}

TEST_F(Demo, TakesUpWhatChangedUnderAFilterWhenTheFilterIsOff) {
  FilterByName(L"ends with", L".txt");
  WaitForRows({L"apples.txt", L"pears.txt"});
  folder_.Write(L"melons.txt", "4444");
  WaitForStatus({L"2 of 4 items", L"FilterActivated", L"The folder has changed: filter is on"});
  EXPECT_EQ(Rows(), (Texts{L"apples.txt", L"pears.txt"}));
  ResetFilter();
  WaitForRows({L"more", L"apples.txt", L"melons.txt", L"pears.txt", L"plums.log"});
  WaitForStatus({L"5 items", L"FilterActivated, FilterDeactivated", L""});
}

TEST_F(Demo, LeavesTheListAloneWhileTheDialogIsOpen) {
  OpenDialog();
  FilterDialog dialog;
  folder_.Write(L"melons.txt", "4444");
  dialog.Choose(L"Name", L"ends with", L".txt");
  dialog.Leave(L"&Apply Criteria");
  WaitForRows({L"apples.txt", L"pears.txt"});
  ResetFilter();
  WaitForRows({L"more", L"apples.txt", L"melons.txt", L"pears.txt", L"plums.log"});
}

TEST_F(Demo, ReloadShowsEveryFileAgain) {
  FilterByName(L"contains", L"pears");
  WaitForRows({L"pears.txt"});
  Press(VK_F5);
  WaitForRows({L"more", L"apples.txt", L"pears.txt", L"plums.log"});
}

TEST_F(Demo, IsUsedByTheKeyboardAlone) {
  WaitForRows({L"more", L"apples.txt", L"pears.txt", L"plums.log"});
  WaitUntilPainted(window_);
  Press(VK_TAB);    // from the list to the button
  Press(VK_SPACE);  // which opens the dialog
  FilterDialog dialog;
  PressWithAlt('H');  // Hide Filter
  WaitUntil([&] { return !IsWindowVisible(dialog.Window()); }, L"for the dialog to go");
  WaitForStatus({L"4 items", L"FilterDeactivated", L""});
  Press(VK_TAB);     // back to the list, whose first row is a folder
  Press(VK_RETURN);  // which opens
  WaitForStatus({L"0 items", L"FilterDeactivated", L""});
  Press(VK_BACK);
  WaitForStatus({L"4 items", L"FilterDeactivated", L""});
}

}  // namespace

}  // namespace hosts
