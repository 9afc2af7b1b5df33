#include "container/Failure.h"
#include "demo/DemoWindow.h"

#include <utility>

namespace hosts {

namespace {

constexpr UINT_PTR kFollowTimer = 1;
// Files often come in numbers; the folder is read when it has been still for so long.
constexpr UINT kQuietMilliseconds = 150;

std::wstring FullPath(const std::wstring& folder) {
  wchar_t path[MAX_PATH];
  const DWORD length = GetFullPathNameW(folder.c_str(), MAX_PATH, path, nullptr);
  if (length == 0 || length >= MAX_PATH) throw Failure(L"There is no folder " + folder);
  std::wstring full(path, length);
  while (full.ends_with(L'\\')) full.pop_back();
  return full;
}

std::wstring ForDisplay(const std::wstring& folder) {
  return folder.ends_with(L':') ? folder + L'\\' : folder;
}

}  // namespace

void DemoWindow::OpenFolder(const std::wstring& folder) {
  const std::wstring full = FullPath(folder);
  FolderWatch watch(full + L'\\');
  std::vector<FolderEntry> entries = ReadFolder(full);
  folder_ = full;
  watch_ = std::move(watch);
  changed_ = false;
  behind_ = false;
  ForgetFilter();
  list_->Fill(std::move(entries));
  list_->FocusFirstRow();
  SetWindowTextW(label_, ForDisplay(folder_).c_str());
  SetWindowTextW(Window(), (ForDisplay(folder_) + L" - Files").c_str());
  status_->ShowNote(L"");
  ShowCount();
}

void DemoWindow::OpenParentFolder() {
  const std::size_t end = folder_.rfind(L'\\');
  if (end != std::wstring::npos) OpenFolder(folder_.substr(0, end + 1));
}

void DemoWindow::FolderChanged() {
  watch_.Rearm();
  changed_ = true;
  SetTimer(Window(), kFollowTimer, kQuietMilliseconds, nullptr);
}

// Not while the dialog is open, and with the button control not under its filter.
void DemoWindow::FollowFolder() {
  KillTimer(Window(), kFollowTimer);
  const bool filtered = Filtered();
  const bool again = behind_ && !filtered;
  if (!changed_ && !again) return;
  if (modal_ > 0 || (filtered && !banner_)) {
    status_->ShowNote(L"The folder has changed: filter is on");
    return;
  }
  changed_ = false;
  behind_ = filtered;
  try {
    std::vector<FolderEntry> entries = ReadFolder(folder_);
    if (again)
      list_->Fill(std::move(entries));
    else
      list_->Follow(std::move(entries), filtered);
    status_->ShowNote(L"");
  } catch (const Failure& failure) {
    status_->ShowNote(failure.Description());
  }
}

// The list tells of each row, and before it goes; the count is right when it has done.
void DemoWindow::CountChanged() {
  if (!std::exchange(counting_, true)) PostMessageW(Window(), kCountMessage, 0, 0);
}

void DemoWindow::ShowCount() {
  counting_ = false;
  status_->ShowCount(list_->Shown(), list_->Total());
}

}  // namespace hosts
