#include "subclass/HookClass.h"
#include "support/HeadlessFormHost.h"
#include "support/Recorder.h"
#include "support/VersionInfoFake.h"
#include "win32/ScopedSubclass.h"
#include "win32/UniqueWindow.h"
#include "win32/Win32WindowSystem.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <windows.h>

// Windows of the system under the eyes of HookClass: what it hears, and that each window is its old
// self afterwards.

namespace sifter {

namespace {

std::int32_t NumberOf(HWND window) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window));
}

// A window's procedure in both ways to ask for it, and whether it takes Unicode messages: all that
// replacing a procedure changes about a window.
struct Nature {
  LONG_PTR wide;
  LONG_PTR ansi;
  bool unicode;

  explicit Nature(HWND window)
      : wide(GetWindowLongPtrW(window, GWLP_WNDPROC)),
        ansi(GetWindowLongPtrA(window, GWLP_WNDPROC)),
        unicode(IsWindowUnicode(window) != FALSE) {}
  friend bool operator==(const Nature&, const Nature&) = default;
};

class Subclassing : public testing::Test {
 protected:
  Recorder recorder;
  HeadlessFormHost forms{recorder};
  VersionInfoFake version;
  UniqueWindow owner = Window(L"STATIC", nullptr, WS_POPUP | WS_VISIBLE);
  UniqueWindow list = ListView();

  static void SetUpTestSuite() {
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
  }

  void TearDown() override {
    list.Reset();
    owner.Reset();
    EXPECT_EQ(ProcessWinProc().Count(), 0);
  }

  static UniqueWindow Window(const wchar_t* windowClass, HWND parent, DWORD style,
                             std::intptr_t identifier = 0) {
    return UniqueWindow(CreateWindowExW(0, windowClass, L"", style, 0, 0, 300, 200, parent,
                                        reinterpret_cast<HMENU>(identifier),
                                        GetModuleHandleW(nullptr), nullptr));
  }

  UniqueWindow ListView() const {
    UniqueWindow view =
        Window(WC_LISTVIEWW, owner.Get(), WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_EDITLABELS, 7);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = 100;
    SendMessageW(view.Get(), LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    return view;
  }

  // A row without a text, by the message that is observed. Gives its position.
  static LRESULT Insert(HWND view) {
    LVITEMA item = {};
    item.iItem = 0x7FFF;
    return SendMessageA(view, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
  }

  static void SetText(HWND view, int row, const wchar_t* text) {
    std::wstring copy(text);
    LVITEMW item = {};
    item.pszText = copy.data();
    SendMessageW(view, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }

  static std::wstring TextOf(HWND view, int row) {
    wchar_t text[100] = L"";
    LVITEMW item = {};
    item.pszText = text;
    item.cchTextMax = 100;
    SendMessageW(view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
  }

  static LRESULT Count(HWND view) { return SendMessageW(view, LVM_GETITEMCOUNT, 0, 0); }

  // Records "A hears 4103 0 with 3 rows", then does its work.
  struct Listener : HookClass {
    Listener(Subclassing& test, std::string name, std::function<void()> work = {})
        : HookClass(ProcessWinProc(), {test.forms, test.version}) {
      for (const std::uint32_t message : {4103u, 4104u, 4105u, 4123u, 4124u})
        SetMessages(message, true);
      WndProc = [&recorder = test.recorder, this, name = std::move(name), work = std::move(work)](
                    std::uint32_t message, std::int32_t wParam, std::int32_t, std::int32_t&) {
        const std::int32_t rows = CallWndProc(LVM_GETITEMCOUNT, 0, 0);
        recorder.Line(name + " hears " + std::to_string(message) + ' ' + std::to_string(wParam) +
                      " with " + std::to_string(rows) + " rows");
        if (work) work();
      };
    }
  };
};

TEST_F(Subclassing, AListViewsChangesAreHeardBeforeTheyHappen) {
  static_assert(LVM_INSERTITEMA == 4103 && LVM_DELETEITEM == 4104 && LVM_DELETEALLITEMS == 4105 &&
                LVM_INSERTCOLUMNA == 4123 && LVM_DELETECOLUMN == 4124);
  Listener a(*this, "A");
  a.SethWnd(NumberOf(list.Get()));
  for (int row = 0; row < 3; ++row) EXPECT_EQ(Insert(list.Get()), row);
  EXPECT_TRUE(SendMessageW(list.Get(), LVM_DELETEITEM, 1, 0));
  EXPECT_EQ(Count(list.Get()), 2);
  LVCOLUMNA column = {};
  EXPECT_EQ(SendMessageA(list.Get(), LVM_INSERTCOLUMNA, 1, reinterpret_cast<LPARAM>(&column)), 1);
  EXPECT_TRUE(SendMessageW(list.Get(), LVM_DELETECOLUMN, 1, 0));
  EXPECT_TRUE(SendMessageW(list.Get(), LVM_DELETEALLITEMS, 0, 0));
  EXPECT_EQ(Count(list.Get()), 0);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 with 0 rows",
      "A hears 4103 0 with 1 rows",
      "A hears 4103 0 with 2 rows",
      "A hears 4104 1 with 3 rows",
      "A hears 4123 1 with 2 rows",
      "A hears 4124 1 with 2 rows",
      "A hears 4105 0 with 2 rows",
  }));
}

TEST_F(Subclassing, TheUnicodeInsertMessagesAreOthers) {
  Listener a(*this, "A");
  a.SethWnd(NumberOf(list.Get()));
  LVITEMW item = {};
  EXPECT_EQ(SendMessageW(list.Get(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)), 0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Subclassing, TheLastOfTwoSubscribersPutsTheProcedureBack) {
  const Nature before(list.Get());
  EXPECT_TRUE(before.unicode);
  const LONG_PTR replacement = Win32WindowSystem().ReplacementProcedure();
  Listener a(*this, "A");
  Listener b(*this, "B");

  a.SethWnd(NumberOf(list.Get()));
  const Nature watched(list.Get());
  EXPECT_EQ(watched.ansi, replacement);
  // An ANSI window for as long as it is watched.
  EXPECT_FALSE(watched.unicode);
  b.SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(Nature(list.Get()), watched);
  Insert(list.Get());

  a.SethWnd(0);
  EXPECT_EQ(Nature(list.Get()), watched);
  Insert(list.Get());

  b.SethWnd(0);
  EXPECT_EQ(Nature(list.Get()), before);
  Insert(list.Get());
  EXPECT_EQ(Count(list.Get()), 3);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 with 0 rows",
      "B hears 4103 0 with 0 rows",
      "B hears 4103 0 with 1 rows",
  }));
}

TEST_F(Subclassing, TwoListViewsAreToldApart) {
  UniqueWindow other = ListView();
  const Nature before(other.Get());
  Listener a(*this, "A");
  Listener b(*this, "B");
  a.SethWnd(NumberOf(list.Get()));
  b.SethWnd(NumberOf(other.Get()));
  Insert(other.Get());
  Insert(list.Get());
  a.SethWnd(0);
  Insert(other.Get());
  b.SethWnd(0);
  EXPECT_EQ(Nature(other.Get()), before);
  EXPECT_TRUE(recorder.Shows({
      "B hears 4103 0 with 0 rows",
      "A hears 4103 0 with 0 rows",
      "B hears 4103 0 with 1 rows",
  }));
}

TEST_F(Subclassing, AHookThatEndsLeavesTheWindowAsItWas) {
  const Nature before(list.Get());
  {
    Listener a(*this, "A");
    a.SethWnd(NumberOf(list.Get()));
    EXPECT_NE(Nature(list.Get()), before);
  }
  EXPECT_EQ(Nature(list.Get()), before);
}

TEST_F(Subclassing, ADestroyedListIsForgotten) {
  Listener a(*this, "A");
  Listener b(*this, "B");
  a.SethWnd(NumberOf(list.Get()));
  b.SethWnd(NumberOf(list.Get()));
  Insert(list.Get());
  recorder.Clear();
  list.Reset();
  EXPECT_EQ(ProcessWinProc().Count(), 0);
  EXPECT_EQ(a.CallWndProc(LVM_GETITEMCOUNT, 0, 0), 0);
  a.SethWnd(0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Subclassing, AListGoesWithTheWindowThatItStandsOn) {
  Listener a(*this, "A");
  Listener b(*this, "B");
  a.SethWnd(NumberOf(owner.Get()));
  b.SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(ProcessWinProc().Count(), 2);
  (void)list.Release();
  owner.Reset();
  EXPECT_EQ(ProcessWinProc().Count(), 0);
}

TEST_F(Subclassing, TheEndOfAChildEndsTheWatchingIfTheChildHasNoIdentifier) {
  UniqueWindow named = Window(L"STATIC", list.Get(), WS_CHILD, 1);
  UniqueWindow nameless = Window(L"STATIC", list.Get(), WS_CHILD, 0);
  const Nature before(list.Get());
  Listener a(*this, "A");
  a.SetMessages(WM_PARENTNOTIFY, true);
  a.SethWnd(NumberOf(list.Get()));
  UniqueWindow born = Window(L"STATIC", list.Get(), WS_CHILD, 0);
  named.Reset();
  EXPECT_EQ(ProcessWinProc().Count(), 1);
  nameless.Reset();
  EXPECT_EQ(ProcessWinProc().Count(), 0);
  EXPECT_EQ(Nature(list.Get()), before);
  EXPECT_TRUE(recorder.Shows({"A hears 528 1 with 0 rows", "A hears 528 65538 with 0 rows"}));
}

// The box in which a label is edited is a child without identifier. Hosts whose users edit labels
// take the list off the control and attach it again.
TEST_F(Subclassing, EditingALabelEndsTheWatchingUntilTheListIsAttachedAnew) {
  const Nature before(list.Get());
  Listener a(*this, "A");
  a.SethWnd(NumberOf(list.Get()));
  Insert(list.Get());
  SetText(list.Get(), 0, L"before");
  SetFocus(list.Get());
  const auto edit = reinterpret_cast<HWND>(SendMessageW(list.Get(), LVM_EDITLABELW, 0, 0));
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(GetWindowLongPtrW(edit, GWLP_ID), 0);
  EXPECT_EQ(ProcessWinProc().Count(), 1);
  recorder.Clear();

  SendMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 0);
  EXPECT_FALSE(IsWindow(edit));
  EXPECT_EQ(ProcessWinProc().Count(), 0);
  EXPECT_EQ(Nature(list.Get()), before);
  EXPECT_EQ(a.hWnd(), NumberOf(list.Get()));
  a.SethWnd(NumberOf(list.Get()));
  Insert(list.Get());
  EXPECT_TRUE(recorder.Shows({}));

  a.SethWnd(0);
  a.SethWnd(NumberOf(list.Get()));
  Insert(list.Get());
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 with 2 rows"}));
}

TEST_F(Subclassing, ASubscriberMayLeaveInItsEvent) {
  const Nature before(list.Get());
  Listener a(*this, "A", [&] { a.SethWnd(0); });
  a.SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(Insert(list.Get()), 0);
  EXPECT_EQ(Nature(list.Get()), before);
  EXPECT_EQ(Insert(list.Get()), 1);
  EXPECT_EQ(Count(list.Get()), 2);
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 with 0 rows"}));
}

TEST_F(Subclassing, ASubscriberMayEndInItsEventAndSendTheOthersAway) {
  const Nature before(list.Get());
  auto b = std::make_unique<Listener>(*this, "B");
  std::unique_ptr<Listener> a = std::make_unique<Listener>(*this, "A", [&] {
    b.reset();
    a.reset();
  });
  a->SethWnd(NumberOf(list.Get()));
  b->SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(Insert(list.Get()), 0);
  EXPECT_EQ(Nature(list.Get()), before);
  EXPECT_EQ(Count(list.Get()), 1);
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 with 0 rows"}));
}

TEST_F(Subclassing, ASubscriberMayDestroyTheListInItsEvent) {
  for (const UINT message : {4103u, 4104u, 4105u}) {
    UniqueWindow view = ListView();
    Insert(view.Get());
    Listener a(*this, "A", [&] { view.Reset(); });
    Listener b(*this, "B");
    a.SethWnd(NumberOf(view.Get()));
    b.SethWnd(NumberOf(view.Get()));
    LVITEMA item = {};
    SendMessageA(view.Get(), message, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_FALSE(view);
    EXPECT_EQ(ProcessWinProc().Count(), 0);
  }
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 with 1 rows",
      "A hears 4104 0 with 1 rows",
      "A hears 4105 0 with 1 rows",
  }));
}

TEST_F(Subclassing, ASubscriberMayChangeTheListInItsEvent) {
  int echoes = 2;
  Listener a(*this, "A", [&] {
    if (echoes-- > 0) Insert(list.Get());
  });
  a.SethWnd(NumberOf(list.Get()));
  Insert(list.Get());
  EXPECT_EQ(Count(list.Get()), 3);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 with 0 rows",
      "A hears 4103 0 with 0 rows",
      "A hears 4103 0 with 0 rows",
  }));
}

TEST_F(Subclassing, AnErrorInAnEventReachesNeitherTheListNorTheNextSubscriber) {
  Listener a(*this, "A", [] { throw RuntimeError(ErrorNumber::kOverflow); });
  Listener b(*this, "B", [] { throw std::runtime_error("something else"); });
  Listener c(*this, "C");
  for (Listener* listener : {&a, &b, &c}) listener->SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(Insert(list.Get()), 0);
  EXPECT_EQ(Count(list.Get()), 1);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 with 0 rows",
      "B hears 4103 0 with 0 rows",
      "C hears 4103 0 with 0 rows",
  }));
}

TEST_F(Subclassing, WhatAnEventSetsAsResultDoesNotReachTheSender) {
  HookClass hook(ProcessWinProc(), {forms, version});
  hook.SetMessages(LVM_INSERTITEMA, true);
  hook.WndProc = [](std::uint32_t, std::int32_t, std::int32_t, std::int32_t& result) {
    result = -1;
  };
  hook.SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(Insert(list.Get()), 0);
  EXPECT_EQ(Insert(list.Get()), 1);
}

// What the code page of the ANSI forms lacks.
constexpr const wchar_t* kText = L"\u0416\u6F22\u5B57 \U0001F600 \u20AC";

TEST_F(Subclassing, TextsStayIntactWhileAUnicodeListIsWatched) {
  Insert(list.Get());
  SetText(list.Get(), 0, kText);
  Listener a(*this, "A");
  a.SethWnd(NumberOf(list.Get()));
  Insert(list.Get());
  SetText(list.Get(), 1, kText);
  std::wstring text(kText);
  LVITEMW item = {};
  item.mask = LVIF_TEXT;
  item.iItem = 2;
  item.pszText = text.data();
  EXPECT_EQ(SendMessageW(list.Get(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)), 2);
  for (int row = 0; row < 3; ++row) EXPECT_EQ(TextOf(list.Get(), row), kText);
  a.SethWnd(0);
  for (int row = 0; row < 3; ++row) EXPECT_EQ(TextOf(list.Get(), row), kText);
}

// A host that keeps to the ANSI forms has put a procedure of its own over the list's.
LONG_PTR procedureBelowTheHosts = 0;
int messagesOfTheHost = 0;

LRESULT CALLBACK AnsiHost(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == LVM_INSERTITEMA) ++messagesOfTheHost;
  return CallWindowProcA(reinterpret_cast<WNDPROC>(procedureBelowTheHosts), window, message, wParam,
                         lParam);
}

TEST_F(Subclassing, AnAnsiListStaysOneAndKeepsItsTextsToo) {
  procedureBelowTheHosts =
      SetWindowLongPtrA(list.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AnsiHost));
  messagesOfTheHost = 0;
  const Nature before(list.Get());
  EXPECT_FALSE(before.unicode);
  Listener a(*this, "A");
  a.SethWnd(NumberOf(list.Get()));
  EXPECT_FALSE(Nature(list.Get()).unicode);
  EXPECT_EQ(Insert(list.Get()), 0);
  SetText(list.Get(), 0, kText);
  EXPECT_EQ(TextOf(list.Get(), 0), kText);
  EXPECT_EQ(messagesOfTheHost, 1);
  a.SethWnd(0);
  EXPECT_EQ(Nature(list.Get()), before);
  EXPECT_EQ(TextOf(list.Get(), 0), kText);
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 with 0 rows"}));
}

TEST_F(Subclassing, ASubclassOfTheHostsBelowGoesOn) {
  const auto recordInserts = [&](const char* name) {
    return [this, name](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
      if (message == LVM_INSERTITEMA) recorder.Line(name);
      return std::nullopt;
    };
  };
  const ScopedSubclass below(list.Get(), recordInserts("below"));
  Listener a(*this, "A");
  a.SethWnd(NumberOf(list.Get()));
  EXPECT_EQ(Insert(list.Get()), 0);
  a.SethWnd(0);
  EXPECT_EQ(Insert(list.Get()), 1);
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 with 0 rows", "below", "below"}));
}

TEST_F(Subclassing, WindowsThatDoNotExistDoNoHarm) {
  const std::int32_t gone = NumberOf(list.Get());
  list.Reset();
  Listener a(*this, "A");
  a.SethWnd(gone);
  EXPECT_EQ(a.CallWndProc(LVM_GETITEMCOUNT, 0, 0), 0);
  a.SethWnd(0);
  EXPECT_EQ(ProcessWinProc().Count(), 0);
}

}  // namespace

}  // namespace sifter
