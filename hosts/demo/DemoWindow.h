#pragma once

#include "container/HostedControl.h"
#include "container/TopWindow.h"
#include "demo/FolderList.h"
#include "demo/FolderWatch.h"
#include "demo/StatusLine.h"

#include <memory>
#include <string>
#include <windows.h>

namespace hosts {

// The program's window: the folder's name, the filter control, the folder's files, the status line.
// One of the two filter controls is at work at a time. With the banner the list follows the folder
// under a filter, too. With the button it is left alone then: that control takes a list that was
// changed under a filter for the whole.
class DemoWindow final : private TopWindow {
 public:
  explicit DemoWindow(const std::wstring& folder);
  ~DemoWindow();

  // Until the user closes the window.
  int Run(int show);

 private:
  // The list has more rows or fewer.
  static constexpr UINT kCountMessage = WM_APP;

  LRESULT Handle(UINT message, WPARAM wide, LPARAM wider) override;
  LRESULT Notified(const NMHDR& notice);
  void MakeChildren();
  void Layout();
  void Close();

  // DemoCommands.cpp
  void Command(int id);
  void OpenChosenFolder();
  void OpenFocusedFolder();
  void ToggleActive();
  void TellFilter();
  void UpdateMenu(HMENU menu) const;

  // DemoControl.cpp
  void UseControl(bool banner);
  void CallControl(const wchar_t* method, std::initializer_list<Variant> arguments = {});
  bool Filtered() const;
  void ForgetFilter();
  void ControlRaised(const std::wstring& event);
  void CopyRows();

  // DemoFolder.cpp
  void OpenFolder(const std::wstring& folder);
  void OpenParentFolder();
  void FolderChanged();
  void FollowFolder();
  void FollowSoon() { PostMessageW(Window(), WM_TIMER, 0, 0); }
  void CountChanged();
  void ShowCount();

  // DemoKeys.cpp
  bool TranslateKey(MSG& message);
  bool FocusFromControl(const MSG& key);

  HWND label_ = nullptr;
  HFONT font_ = nullptr;
  HACCEL keys_ = nullptr;
  std::wstring folder_;
  FolderWatch watch_;
  bool banner_ = true;      // which of the controls is at work
  bool activated_ = false;  // what the last event said
  int modal_ = 0;           // how many modal windows the control has open
  bool changed_ = false;    // the folder has, and the list hasn't followed
  bool behind_ = false;     // the rows that the filter holds back may not be the folder's
  bool counting_ = false;   // the count of rows is about to be shown
  std::unique_ptr<FolderList> list_;
  std::unique_ptr<StatusLine> status_;
  std::unique_ptr<ControlFrame> frame_;
  std::unique_ptr<HostedControl> control_;
};

}  // namespace hosts
