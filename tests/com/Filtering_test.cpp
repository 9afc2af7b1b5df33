#include "DispatchSpy.h"
#include "HostedSifter.h"
#include "listmodel/MemoryListView.h"
#include "win32/NativeListViewObject.h"

#include <algorithm>

namespace sifter {

namespace {

class Filtering : public HostedSifter {
 protected:
  bool OwnerIsEnabled() const { return IsWindowEnabled(form.Parent()) != FALSE; }

  HWND Button() const { return GetWindow(container.ControlWindow(), GW_CHILD); }

  // What a handler finds: whether the control says that it is active, and the names that are left.
  std::string Found() {
    std::string found = Shown(Get(control, L"Active"));
    for (const std::string& name : Names()) found += ' ' + name;
    return found;
  }
};

TEST_F(Filtering, AClickOnTheButtonLetsTheUserFilter) {
  user.Does([&] {
    user.Clicks(Button());
    dialog.Appears();
    EXPECT_EQ(dialog.Title(), "Tarvenn Software Row Sifter");
    EXPECT_EQ(dialog.Rows(), 2);
    dialog.Picks(0, "contains");
    dialog.Fills(0, 1, "r");
    dialog.Clicks("&Apply Criteria");
    dialog.Goes();
  });
  user.PumpUntilDone();
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_EQ(Get(control, L"Active"), Value(true));
}

TEST_F(Filtering, TitleAndPromptAreTheHosts) {
  Put(control, L"FilterCaption", u"Trees");
  Put(control, L"FilterMessage", u"Which trees?");
  Show([&] {
    EXPECT_EQ(dialog.Title(), "Trees");
    EXPECT_EQ(dialog.Texts().front(), "Which trees?");
  });
  Put(control, L"FilterCaption", u"Trees again");
  Show([&] { EXPECT_EQ(dialog.Title(), "Trees again"); });
}

TEST_F(Filtering, OperatorsGoByTheColumnsType) {
  Show([&] {
    EXPECT_EQ(dialog.Operators(0),
              "All|contains|does not contain|does not equal|ends with|equals|starts with");
    EXPECT_EQ(dialog.Operators(1),
              "All|does not equal|equals|is between|is greater than|is less than|is not between");
  });
}

TEST_F(Filtering, ExcludedColumnsAreOfferedAllTheSame) {
  Put(control, L"ColumnsToExclude", u"Name");
  Show([&] { EXPECT_EQ(dialog.Rows(), 2); });
}

TEST_F(Filtering, TheExtraButtonIsNotThere) {
  Show([&] {
    Strings buttons;
    for (const std::string& text : dialog.Texts())
      if (text[0] == '&') buttons.push_back(text);
    EXPECT_EQ(buttons, (Strings{"&Apply Criteria", "&Reset Filter", "&Hide Filter"}));
  });
}

TEST_F(Filtering, TheOneEventComesBeforeActive) {
  Strings found;
  events.handlers[1] = [&] { found.push_back("activated " + Found()); };
  events.handlers[2] = [&] { found.push_back("deactivated " + Found()); };
  FilterNames("starts with", "L");
  FilterNames("contains", "r");
  Show([&] { dialog.PressesByMessage("&Hide Filter"); });
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  Show([&] { dialog.PressesByMessage("&Hide Filter"); });
  EXPECT_EQ(found,
            (Strings{"activated False Larch", "activated True Larch Birch",
                     "activated True Larch Birch", "deactivated True Oak Ash Elm Larch Birch",
                     "deactivated False Oak Ash Elm Larch Birch"}));
  EXPECT_EQ(Get(control, L"Active"), Value(false));
}

// The rows that the filter has taken out are the dialog's to keep until the host's list is changed.
TEST_F(Filtering, AListThatComesBackFindsItsFilter) {
  FilterNames("contains", "r");
  const ListViewOnAForm otherForm;
  const Ref<HostListView> other = NativeListView(otherForm.List());
  Fill(*other, {"Name"}, {{"Yew"}});
  ComRef<IDispatch> otherList;
  ASSERT_EQ(CreateListViewObject(otherForm.List(), otherList.Receive()), S_OK);
  PutRef(control, L"Listview", ObjectValue(otherList.Get()));
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  Show([&] {
    EXPECT_EQ(dialog.TextOf(dialog.Operator(0)), "contains");
    dialog.PressesByMessage("&Reset Filter");
  });
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch"}));
  PutRef(control, L"Listview", ObjectValue(list.Get()));
}

TEST_F(Filtering, TheFrameIsToldOnceOfTheDialogAndTheBoxOnIt) {
  Show([&] {
    dialog.Picks(1, "is between");
    dialog.Fills(1, 1, "2");
    dialog.Fills(1, 2, "6");
    dialog.Clicks("&Apply Criteria");
    user.WaitsFor([] { return MessageBoxWindow() != nullptr; });
    EXPECT_TRUE(recorder.Shows({"frame.EnableModeless False"}));
    user.Presses(VK_RETURN);
    user.WaitsFor([] { return MessageBoxWindow() == nullptr; });
  });
  EXPECT_TRUE(
      recorder.Shows({"frame.EnableModeless False", "frame.EnableModeless True", "event 1"}));
}

TEST_F(Filtering, TheFramesOtherWindowsAreDisabledMeanwhile) {
  Show([&] {
    EXPECT_TRUE(recorder.Shows({"frame.EnableModeless False"}));
    EXPECT_FALSE(OwnerIsEnabled());
    EXPECT_EQ(GetWindow(CriteriaDialog::Window(), GW_OWNER), form.Parent());
    dialog.FiltersByMessages(0, "contains", "r");
  });
  EXPECT_TRUE(
      recorder.Shows({"frame.EnableModeless False", "frame.EnableModeless True", "event 1"}));
  EXPECT_TRUE(OwnerIsEnabled());
  EXPECT_EQ(GetActiveWindow(), form.Parent());
}

TEST_F(Filtering, AHandlerFindsTheHostsWindowEnabledAndActive) {
  bool enabled = false;
  HWND active = nullptr;
  HWND shown = form.Parent();
  events.handlers[1] = [&] {
    enabled = OwnerIsEnabled();
    active = GetActiveWindow();
    shown = CriteriaDialog::Window();
  };
  FilterNames("contains", "r");
  EXPECT_TRUE(enabled);
  EXPECT_EQ(active, form.Parent());
  EXPECT_EQ(shown, nullptr);
}

TEST_F(Filtering, FilteringDoesNotChangeTheFilterText) {
  FilterNames("contains", "r");
  EXPECT_EQ(FieldsOf(control),
            (Strings{"True", "\"\"", "\"\"", DefaultFields()[3], DefaultFields()[4]}));
}

TEST_F(Filtering, WritingActiveShowsTheDialogWhoseOutcomeDecides) {
  ShowBy([&] { Put(control, L"Active", true); }, [&] { dialog.PressesByMessage("&Hide Filter"); });
  EXPECT_EQ(Get(control, L"Active"), Value(false));
  ShowBy([&] { Put(control, L"Active", true); },
         [&] { dialog.FiltersByMessages(0, "contains", "r"); });
  EXPECT_EQ(Get(control, L"Active"), Value(true));
  recorder.Clear();
  Put(control, L"Active", true);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Filtering, ResetAndTurnOffAndInactiveKeepTheFilter) {
  FilterNames("contains", "r");
  recorder.Clear();
  Call(control, L"ResetFilter");
  Call(control, L"TurnOffFilter");
  Put(control, L"Active", false);
  EXPECT_EQ(Get(control, L"Active"), Value(true));
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Filtering, AListWithoutRowsIsShownOnlyWhileAFilterIsInForce) {
  FilterNames("equals", "no such tree");
  EXPECT_EQ(Names(), Strings());
  EXPECT_EQ(Get(control, L"Active"), Value(true));
  Show([&] {
    EXPECT_EQ(dialog.TextOf(dialog.Operator(0)), "equals");
    dialog.PressesByMessage("&Reset Filter");
  });
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch"}));
  rows->ListItems()->Clear();
  recorder.Clear();
  Call(control, L"ShowFilter");
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Filtering, ShowFilterFailsWhileTheDialogIsShown) {
  std::string nested;
  Show([&] { nested = ErrorOf([&] { Call(control, L"ShowFilter"); }); });
  EXPECT_EQ(nested, "400: Form already displayed; can't show modally");
  EXPECT_TRUE(
      recorder.Shows({"frame.EnableModeless False", "frame.EnableModeless True", "event 2"}));
}

TEST_F(Filtering, TheHostMayLetGoOfTheControlInAHandler) {
  events.handlers[1] = [&] {
    connection.Break();
    container.Remove();
    control.Reset();
  };
  FilterNames("contains", "r");
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

TEST_F(Filtering, TheHostMayCloseTheControlWhileTheDialogIsShown) {
  user.Does([&] {
    dialog.Appears();
    recorder.Clear();
    container.Remove();
    dialog.Goes();
  });
  Call(control, L"ShowFilter");
  user.PumpUntilDone();
  EXPECT_TRUE(OwnerIsEnabled());
  EXPECT_EQ(std::count(recorder.Lines().begin(), recorder.Lines().end(), "OnInPlaceDeactivate"), 1);
  EXPECT_EQ(std::count(recorder.Lines().begin(), recorder.Lines().end(), "event 2"), 0);
}

TEST_F(Filtering, TheHostsWindowMayGoWhileTheDialogIsShown) {
  user.Does([&] {
    dialog.Appears();
    form.Destroy();
    dialog.Goes();
  });
  Call(control, L"ShowFilter");
  user.PumpUntilDone();
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
}

TEST_F(Filtering, TheHostMayChangeTheListInAHandler) {
  events.handlers[1] = [&] { rows->ListItems()->Clear(); };
  FilterNames("contains", "r");
  EXPECT_EQ(Names(), Strings());
  EXPECT_EQ(Get(control, L"Active"), Value(true));
}

TEST_F(Filtering, TheHostMayShowTheDialogAgainInAHandler) {
  int left = 1;
  events.handlers[1] = [&] {
    if (left-- > 0) Call(control, L"ShowFilter");
  };
  user.Does([&] {
    dialog.Appears();
    dialog.FiltersByMessages(0, "contains", "r");
    dialog.Appears();
    dialog.PressesByMessage("&Reset Filter");
    dialog.Goes();
  });
  Call(control, L"ShowFilter");
  user.PumpUntilDone();
  EXPECT_TRUE(
      recorder.Shows({"frame.EnableModeless False", "frame.EnableModeless True", "event 1",
                      "frame.EnableModeless False", "frame.EnableModeless True", "event 2"}));
}

TEST_F(Filtering, AProgramThatEndsMeanwhileGetsItsDialogBack) {
  user.Does([&] {
    dialog.Appears();
    PostQuitMessage(7);
    dialog.Goes();
  });
  Call(control, L"ShowFilter");
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  EXPECT_EQ(message.wParam, 7u);
  user.PumpUntilDone();
  EXPECT_TRUE(OwnerIsEnabled());
}

TEST_F(Filtering, TheListsWindowIsItsOldSelfAfterwards) {
  ListViewOnAForm second;
  const auto procedure = [&] { return GetWindowLongPtrW(second.List(), GWLP_WNDPROC); };
  ComRef<IDispatch> other;
  ASSERT_EQ(CreateListViewObject(second.List(), other.Receive()), S_OK);
  const LONG_PTR before = procedure();
  PutRef(control, L"Listview", ObjectValue(other.Get()));
  EXPECT_NE(procedure(), before);
  EXPECT_EQ(Library::Built().CanUnload(), S_FALSE);
  connection.Break();
  container.Remove();
  control.Reset();
  EXPECT_EQ(procedure(), before);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

TEST_F(Filtering, TheDialogsWindowGoesWithTheControl) {
  HWND window = nullptr;
  Show([&] { window = CriteriaDialog::Window(); });
  EXPECT_TRUE(IsWindow(window));
  connection.Break();
  container.Remove();
  control.Reset();
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(Filtering, AForeignListIsFilteredByItsMembersAlone) {
  const Ref<MemoryListView> memory =
      MakeList({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}});
  const std::shared_ptr<DispatchSpyLog> log = std::make_shared<DispatchSpyLog>();
  PutRef(control, L"Listview", ObjectValue(SpyOn(ListViewObject(memory), log).Get()));
  FilterNames("does not equal", "Ash");
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", "3"}, {"Elm", "7"}}));
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}}));
}

TEST_F(Filtering, WorksWithoutAnySite) {
  const ComRef<IDispatch> bare = Create();
  PutRef(bare, L"Listview", ObjectValue(list.Get()));
  SetActiveWindow(form.Parent());
  ShowBy([&] { Call(bare, L"ShowFilter"); },
         [&] {
           EXPECT_EQ(GetWindow(CriteriaDialog::Window(), GW_OWNER), form.Parent());
           dialog.FiltersByMessages(0, "contains", "r");
         });
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_EQ(Get(bare, L"Active"), Value(true));
}

}  // namespace

}  // namespace sifter
