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

// The second entry of the list of operators, from 0, is "contains": Name contains "crypt".
constexpr wchar_t kSampleFilter[] = L"Name..11==crypt2==*?";

void Enable(HMENU menu, UINT item, bool enabled) {
  EnableMenuItem(menu, item, enabled ? MF_ENABLED : MF_GRAYED);
}

void CheckMark(HMENU menu, UINT item, bool checked) {
  CheckMenuItem(menu, item, checked ? MF_CHECKED : MF_UNCHECKED);
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
      PostMessageW(Window(), WM_CLOSE, 0, 0);
      return;
    case IDM_SHOW_FILTER:
      // The banner's dialog is modeless unless it is told.
      return banner_ ? CallControl(L"ShowFilter", {Variant(true)}) : CallControl(L"ShowFilter");
    case IDM_APPLY_FILTER:
      return CallControl(L"ApplyFilter", {Variant(kSampleFilter)});
    case IDM_RESET_FILTER:
      return CallControl(L"ResetFilter");
    case IDM_TURN_OFF_FILTER:
      return CallControl(L"TurnOffFilter");
    case IDM_DEACTIVATE_FILTER:
      CallControl(L"DeactivateFilter");
      return OpenFolder(folder_);
    case IDM_ACTIVE:
      return ToggleActive();
    case IDM_TELL_FILTER:
      return TellFilter();
    case IDM_BUTTON_CONTROL:
      OpenFolder(folder_);
      return UseControl(!banner_);
    default:
      return;
  }
}

void DemoWindow::OpenChosenFolder() {
  const std::wstring folder = ChooseFolder(Window());
  if (!folder.empty()) OpenFolder(folder);
}

void DemoWindow::OpenFocusedFolder() {
  const FolderEntry* const entry =
      list_->EntryAt(ListView_GetNextItem(list_->Window(), -1, LVNI_FOCUSED));
  if (entry != nullptr && entry->isFolder) OpenFolder(folder_ + L"\\" + entry->name);
}

// The banner gives up the rows that its filter took out; the folder has them still. The button
// keeps its filter.
void DemoWindow::ToggleActive() {
  const bool active = control_->Object().Get(L"Active").Truth();
  status_->AddEvent(active ? L"Active = False" : L"Active = True");
  control_->Object().Put(L"Active", Variant(!active));
  if (banner_ && active) OpenFolder(folder_);
}

void DemoWindow::TellFilter() {
  const std::wstring filter = control_->Object().Get(L"Filter").Text();
  const std::wstring words = control_->Object().Get(L"FilterInPlainEnglish").Text();
  const std::wstring text = L"Filter: " + filter + L"\nFilterInPlainEnglish: " + words;
  MessageBoxW(Window(), text.c_str(), L"Files", MB_OK);
}

void DemoWindow::UpdateMenu(HMENU menu) const {
  CheckMark(menu, IDM_ACTIVE, control_->Object().Get(L"Active").Truth());
  CheckMark(menu, IDM_BUTTON_CONTROL, !banner_);
  Enable(menu, IDM_DEACTIVATE_FILTER, banner_);
  Enable(menu, IDM_TELL_FILTER, banner_);
}

}  // namespace hosts
