#include "demo/DemoWindow.h"
#include "demo/Resources.h"

#include <objbase.h>
#include <shlobj.h>

namespace hosts {

namespace {

// A folder of the user's choice; "" when the user doesn't choose.
std::wstring ChooseFolder(HWND owner) {
  BROWSEINFOW question{};
  question.hwndOwner = owner;
  question.lpszTitle = L"Show the files of";
  question.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_NONEWFOLDERBUTTON;
  const LPITEMIDLIST chosen = SHBrowseForFolderW(&question);
  if (chosen == nullptr) return L"";
  wchar_t path[MAX_PATH] = L"";
  SHGetPathFromIDListW(chosen, path);
  CoTaskMemFree(chosen);
  return path;
}

}  // namespace

void DemoWindow::Command(int id) {
  switch (id) {
    case IDM_OPEN:
      return OpenChosenFolder();
    case IDM_UP:
      return OpenParentFolder();
    case IDM_RELOAD:
      return OpenFolder(folder_);
    case IDM_EXIT:
      PostMessageW(window_, WM_CLOSE, 0, 0);
      return;
    case IDM_SHOW_FILTER:
      return CallControl(L"ShowFilter");
    case IDM_APPLY_FILTER:
      return CallControl(L"ApplyFilter", {control_->Object().Get(L"Filter")});
    case IDM_RESET_FILTER:
      return CallControl(L"ResetFilter");
    case IDM_TURN_OFF_FILTER:
      return CallControl(L"TurnOffFilter");
    case IDM_ACTIVE:
      return ToggleActive();
    default:
      return;
  }
}

void DemoWindow::OpenChosenFolder() {
  const std::wstring folder = ChooseFolder(window_);
  if (!folder.empty()) OpenFolder(folder);
}

void DemoWindow::OpenFocusedFolder() {
  const FolderEntry* const entry =
      list_->EntryAt(ListView_GetNextItem(list_->Window(), -1, LVNI_FOCUSED));
  if (entry != nullptr && entry->isFolder) OpenFolder(folder_ + L"\\" + entry->name);
}

void DemoWindow::CallControl(const wchar_t* method, std::initializer_list<Variant> arguments) {
  status_->AddEvent(method);
  control_->Object().Call(method, arguments);
}

void DemoWindow::ToggleActive() {
  const bool active = control_->Object().Get(L"Active").Truth();
  status_->AddEvent(active ? L"Active = False" : L"Active = True");
  control_->Object().Put(L"Active", Variant(!active));
}

void DemoWindow::UpdateMenu(HMENU menu) const {
  const bool active = control_->Object().Get(L"Active").Truth();
  CheckMenuItem(menu, IDM_ACTIVE, active ? MF_CHECKED : MF_UNCHECKED);
}

// Rows are not touched from inside an event: the control is still at it.
void DemoWindow::ControlRaised(const std::wstring& event) {
  status_->AddEvent(event);
  filtered_ = event == L"FilterActivated";
  ShowCount();
  if (changed_) PostMessageW(window_, WM_TIMER, 0, 0);
}

}  // namespace hosts
