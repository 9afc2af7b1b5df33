#include "CriteriaDialog.h"

#include "win32/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace sifter {

namespace {

std::wstring ClassOf(HWND window) {
  wchar_t name[100] = L"";
  GetClassNameW(window, name, 100);
  return name;
}

struct Search {
  std::wstring windowClass;
  HWND found = nullptr;
};

BOOL CALLBACK TakeIfItIs(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (!IsWindowVisible(window) || ClassOf(window) != search.windowClass) return TRUE;
  search.found = window;
  return FALSE;
}

HWND VisibleTopWindow(const wchar_t* windowClass) {
  Search search{windowClass};
  EnumThreadWindows(GetCurrentThreadId(), TakeIfItIs, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

BOOL CALLBACK Collect(HWND window, LPARAM parameter) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
  return TRUE;
}

RECT BoxOf(HWND window) {
  RECT box;
  GetWindowRect(window, &box);
  return box;
}

// As one reads; what stands in one line differs by less than half of its height.
std::vector<HWND> VisibleChildren(HWND parent) {
  std::vector<HWND> children;
  EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&children));
  std::erase_if(children, [&](HWND child) { return GetParent(child) != parent; });
  std::stable_sort(children.begin(), children.end(), [](HWND a, HWND b) {
    const RECT first = BoxOf(a);
    const RECT second = BoxOf(b);
    return std::tuple((first.top + 4) / 12, first.left) <
           std::tuple((second.top + 4) / 12, second.left);
  });
  return children;
}

bool IsOperator(HWND window) {
  const LONG style = GetWindowLongW(window, GWL_STYLE);
  return ClassOf(window) == L"ComboBox" && (style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
}

std::string Shown(HWND window) { return WindowText(window).ToUtf8(); }

// The fields of a row that can be seen.
std::vector<HWND> FieldsOf(HWND dialog, int row) {
  std::vector<HWND> fields;
  int seen = -1;
  for (const HWND child : VisibleChildren(dialog)) {
    if (IsOperator(child)) ++seen;
    const std::wstring kind = ClassOf(child);
    const bool field = kind == L"ComboBox" || kind == L"Edit" || kind == L"SysDateTimePick32";
    if (seen == row && field) fields.push_back(child);
  }
  return fields;
}

HWND FieldOf(HWND dialog, int row, int place) {
  const std::vector<HWND> fields = FieldsOf(dialog, row);
  return static_cast<std::size_t>(place) < fields.size() ? fields[static_cast<std::size_t>(place)]
                                                         : nullptr;
}

HWND ButtonOf(HWND dialog, const std::string& caption) {
  for (const HWND child : VisibleChildren(dialog))
    if (ClassOf(child) == L"Button" && Shown(child) == caption) return child;
  ADD_FAILURE() << "no button " << caption;
  return nullptr;
}

// What a control says to the window that it stands on.
WPARAM Notice(HWND control, WORD code) {
  return MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(control)), code);
}

void Tell(HWND control, WORD code) {
  SendMessageW(GetParent(control), WM_COMMAND, Notice(control, code),
               reinterpret_cast<LPARAM>(control));
}

// Posted, so that what comes of it happens in the dialog's own loop.
void Press(HWND dialog, const std::string& caption) {
  const HWND button = ButtonOf(dialog, caption);
  PostMessageW(GetParent(button), WM_COMMAND, Notice(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
}

}  // namespace

HWND CriteriaDialog::Window() { return VisibleTopWindow(L"RowSifterForm"); }

void CriteriaDialog::Appears() {
  user_.WaitsFor([] { return Window() != nullptr; });
}

void CriteriaDialog::Goes() {
  user_.WaitsFor([] { return Window() == nullptr; });
}

std::string CriteriaDialog::Title() const { return Shown(Window()); }

std::vector<std::string> CriteriaDialog::Texts() const {
  std::vector<std::string> texts;
  for (const HWND child : VisibleChildren(Window()))
    if (const std::string text = Shown(child); !text.empty()) texts.push_back(text);
  return texts;
}

int CriteriaDialog::Rows() const {
  const std::vector<HWND> children = VisibleChildren(Window());
  return static_cast<int>(std::count_if(children.begin(), children.end(), IsOperator));
}

std::vector<HWND> CriteriaDialog::Row(int row) const { return FieldsOf(Window(), row); }

HWND CriteriaDialog::Operator(int row) const { return Value(row, 0); }

HWND CriteriaDialog::Value(int row, int place) const { return FieldOf(Window(), row, place); }

HWND CriteriaDialog::Button(const std::string& caption) const {
  return ButtonOf(Window(), caption);
}

std::string CriteriaDialog::TextOf(HWND field) const { return Shown(field); }

std::string CriteriaDialog::Operators(int row) const {
  const HWND box = Operator(row);
  std::string words;
  const LRESULT count = SendMessageW(box, CB_GETCOUNT, 0, 0);
  for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
    wchar_t word[100] = L"";
    SendMessageW(box, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(word));
    words += (i == 0 ? "" : "|") + FromWide(word).ToUtf8();
  }
  return words;
}

void CriteriaDialog::Picks(int row, const std::string& word) {
  const HWND box = Operator(row);
  const LRESULT place = SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(Wide(Text::FromUtf8(word)).c_str()));
  if (place < 0) {
    ADD_FAILURE() << "row " << row << " doesn't offer " << word;
    return;
  }
  SetFocus(box);
  user_.Presses({VK_F4});
  user_.Presses({VK_HOME});
  for (LRESULT i = 0; i < place; ++i) user_.Presses(VK_DOWN);
  user_.Presses(VK_RETURN);
  EXPECT_EQ(Shown(box), word);
}

void CriteriaDialog::Fills(int row, int place, const std::string& text) {
  SetFocus(Value(row, place));
  user_.Rests();
  user_.Types(Text::FromUtf8(text));
}

void CriteriaDialog::Clicks(const std::string& button) { user_.Clicks(Button(button)); }

void CriteriaDialog::FiltersByMessages(int row, const std::string& word, const std::string& text) {
  FilterByMessages(Window(), row, word, text);
  user_.Rests();
}

void CriteriaDialog::PressesByMessage(const std::string& caption) {
  Press(Window(), caption);
  user_.Rests();
}

void FilterByMessages(HWND dialog, int row, const std::string& word, const std::string& text) {
  const HWND box = FieldOf(dialog, row, 0);
  const LRESULT chosen = SendMessageW(box, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                                      reinterpret_cast<LPARAM>(Wide(Text::FromUtf8(word)).c_str()));
  EXPECT_GE(chosen, 0) << word;
  Tell(box, CBN_SELCHANGE);
  const HWND value = FieldOf(dialog, row, 1);
  SendMessageW(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(Text::FromUtf8(text)).c_str()));
  Tell(value, CBN_EDITCHANGE);
  Press(dialog, "&Apply Criteria");
}

HWND MessageBoxWindow() { return VisibleTopWindow(L"#32770"); }

std::vector<std::string> TextsOf(HWND messageBox) {
  std::vector<std::string> texts = {Shown(messageBox)};
  for (const HWND child : VisibleChildren(messageBox))
    if (const std::string text = Shown(child); !text.empty()) texts.push_back(text);
  return texts;
}

}  // namespace sifter
