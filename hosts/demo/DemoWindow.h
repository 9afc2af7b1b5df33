#pragma once

#include "container/HostedControl.h"
#include "demo/FolderList.h"
#include "demo/FolderWatch.h"
#include "demo/StatusLine.h"

#include <memory>
#include <string>
#include <windows.h>

namespace hosts {

// The program's window: the filter control, the folder's files below it, the status line.
//
// The control takes rows out of the list, and puts back those that it knew when its dialog opened.
// So the list is left alone while a filter is in force or the dialog is open: what changes in the
// folder meanwhile comes in when the filter is off.
class DemoWindow {
 public:
  explicit DemoWindow(const std::wstring& folder);
  DemoWindow(const DemoWindow&) = delete;
  DemoWindow& operator=(const DemoWindow&) = delete;
  ~DemoWindow();

  // Until the user closes the window.
  int Run(int show);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider);
  LRESULT Handle(UINT message, WPARAM wide, LPARAM wider);
  LRESULT Notified(const NMHDR& notice);
  void MakeWindow();
  void MakeChildren();
  void Layout();
  void Close();

  // DemoCommands.cpp
  void Command(int id);
  void OpenChosenFolder();
  void OpenFocusedFolder();
  void CallControl(const wchar_t* method, std::initializer_list<Variant> arguments = {});
  void ToggleActive();
  void UpdateMenu(HMENU menu) const;
  void ControlRaised(const std::wstring& event);

  // DemoFolder.cpp
  void OpenFolder(const std::wstring& folder);
  void OpenParentFolder();
  void FolderChanged();
  void FollowFolder();
  bool ListIsOurs() const;
  void ShowCount();

  // DemoKeys.cpp
  bool TranslateKey(MSG& message);
  bool FocusFromControl(const MSG& key);

  HWND window_ = nullptr;
  HWND label_ = nullptr;
  HFONT font_ = nullptr;
  HACCEL keys_ = nullptr;
  std::wstring folder_;
  FolderWatch watch_;
  bool filtered_ = false;
  int modal_ = 0;         // how many modal windows the control has open
  bool changed_ = false;  // the folder has, and the list hasn't followed
  std::unique_ptr<FolderList> list_;
  std::unique_ptr<StatusLine> status_;
  std::unique_ptr<ControlFrame> frame_;
  std::unique_ptr<HostedControl> control_;
};

}  // namespace hosts
