#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/NativeListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Texts beyond the ANSI code page, on windows of either kind.

namespace sifter {

namespace {

const char* const kBeyondAnsi = "\xE4\xB8\xAD\xD0\x96";

std::string AnsiTextOf(HWND window, int item) {
  char text[64] = "unanswered";
  LVITEMA read{};
  read.pszText = text;
  read.cchTextMax = 64;
  SendMessageA(window, LVM_GETITEMTEXTA, static_cast<WPARAM>(item),
               reinterpret_cast<LPARAM>(&read));
  return text;
}

TEST(NativeListViewTexts, StandOnAFormOfEitherKind) {
  for (const bool ansiParent : {false, true}) {
    ListViewOnAForm form({.ansiParent = ansiParent});
    EXPECT_EQ(IsWindowUnicode(form.Parent()) != 0, !ansiParent);
    const Ref<HostListView> list = NativeListView(form.List());
    Fill(*list, {"a", "b"}, {{kBeyondAnsi, kBeyondAnsi}});
    EXPECT_EQ(form.ShownTexts(), Texts(*list));
    EXPECT_EQ(IsWindowUnicode(form.Parent()) != 0, !ansiParent);
  }
}

TEST(NativeListViewTexts, StayWholeWhenTheWindowIsSubclassedAsAnAnsiOne) {
  ListViewOnAForm form;
  const Ref<HostListView> list = NativeListView(form.List());
  Recorder recorder;
  const ListWatcher watcher(form.List(), list, recorder);
  EXPECT_FALSE(IsWindowUnicode(form.List()));
  Fill(*list, {"a", "b"}, {{kBeyondAnsi, kBeyondAnsi}});
  list->ListItems()->Item(1)->SetText(u"\u4E2D");
  EXPECT_EQ(form.ShownTexts(), Texts(*list));
}

TEST(NativeListViewTexts, AreAnsweredInAnsiWhenTheProgramWantsThat) {
  ListViewOnAForm form({.ansiParent = true});
  const Ref<HostListView> list = NativeListView(form.List());
  listview::SetUnicodeFormat(form.List(), false);
  Fill(*list, {"a"}, {{"plain"}, {"\xC3\xA4"}, {kBeyondAnsi}});
  EXPECT_EQ(AnsiTextOf(form.List(), 0), "plain");
  EXPECT_EQ(AnsiTextOf(form.List(), 1), "\xE4");
  EXPECT_EQ(AnsiTextOf(form.List(), 2), "??");
}

}  // namespace

}  // namespace sifter
