#include "win32/ComboBoxWindow.h"

#include "win32/ControlHost.h"
#include "win32/WideText.h"

namespace sifter {

namespace {

DWORD StyleOf(const ComboBox& box) {
  const DWORD kind = box.Style() == ComboStyle::kDropDown ? CBS_DROPDOWN : CBS_DROPDOWNLIST;
  return kind | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP;
}

constexpr int kEntriesShown = 10;

}  // namespace

ComboBoxWindow::ComboBoxWindow(ControlHost& host, ComboBox& box)
    : ControlWindow(host, box, L"COMBOBOX", StyleOf(box)), box_(box) {}

void ComboBoxWindow::Mirror() { FillList(); }

// The system's box forgets its text together with its entries, and where the user is in it.
void ComboBoxWindow::FillList() {
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(Handle(), CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start),
               reinterpret_cast<LPARAM>(&end));
  SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
  for (const Text& entry : box_.Entries())
    SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry).c_str()));
  Update(ControlProperty::kListIndex);
  SendMessageW(Handle(), CB_SETEDITSEL, 0, MAKELPARAM(start, end));
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ComboBoxWindow::Update(ControlProperty property) {
  switch (property) {
    case ControlProperty::kList:
      FillList();
      break;
    case ControlProperty::kListIndex:
    case ControlProperty::kText:
      // What the user types is there already, and must not be taken from under the caret.
      if (typing_) break;
      SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()), 0);
      if (box_.Style() == ComboStyle::kDropDown) ShowText(box_.Text());
      break;
    default:
      break;
  }
}

// While the list is down the arrow keys only move through it. What counts is the entry with which
// it closes, and nothing when the user leaves it without choosing.
void ComboBoxWindow::OnCommand(WORD code) {
  switch (code) {
    case CBN_SELCHANGE:
      if (!IsDroppedDown()) TakeSelection();
      break;
    case CBN_SELENDOK:
    case CBN_SELENDCANCEL:
      chosen_ = code == CBN_SELENDOK;
      break;
    case CBN_CLOSEUP:
      if (chosen_)
        TakeSelection();
      else
        Update(ControlProperty::kListIndex);
      break;
    case CBN_EDITCHANGE:
      typing_ = true;
      box_.SetText(WindowText(Handle()));
      typing_ = false;
      break;
    default:
      break;
  }
}

void ComboBoxWindow::TakeSelection() {
  const LRESULT index = SendMessageW(Handle(), CB_GETCURSEL, 0, 0);
  if (index != CB_ERR) box_.SetListIndex(static_cast<std::int32_t>(index));
}

bool ComboBoxWindow::IsDroppedDown() const {
  return SendMessageW(Handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

// With the list down, Enter takes the highlighted entry before anything else comes of it.
bool ComboBoxWindow::OnKey(WPARAM key) {
  if (key == VK_RETURN && IsDroppedDown()) {
    TakeSelection();
    SendMessageW(Handle(), CB_SHOWDROPDOWN, FALSE, 0);
  }
  return ControlWindow::OnKey(key);
}

// The window's height is that of its field and its list together.
void ComboBoxWindow::Place(const RECT& box) {
  const int height = box.bottom - box.top;
  SendMessageW(Handle(), CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - 6);
  const auto entry = static_cast<int>(SendMessageW(Handle(), CB_GETITEMHEIGHT, 0, 0));
  SetWindowPos(Handle(), nullptr, box.left, box.top, box.right - box.left,
               height + kEntriesShown * entry + 2, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace sifter
