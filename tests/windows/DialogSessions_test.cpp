#include "DialogOnScreen.h"
#include "support/HeadlessControls.h"

namespace sifter {

namespace {

// Whole uses of the dialog over a list that shows everything a list can show. The same session is
// led headless over a list in memory; both lists end alike.
class DialogSessions : public DialogFixture {
 protected:
  void SetUp() override {
    windows.SetOwner(form.Parent());
    for (HostListView* each : {native.Get(), static_cast<HostListView*>(memory.Get())}) {
      Fill(*each, {"Name", "Quantity", "Shipped"},
           {{"Oak", "3", "1/5/2007"},
            {"Ash", "5", "2/5/2007"},
            {"Elm", "7", "3/5/2007"},
            {"Larch", "9", "4/5/2007"}});
      Adorn(*each);
    }
    ASSERT_EQ(Dump(*native), Dump(*memory));
  }

  // Every attribute, another for each row, column and cell.
  static void Adorn(HostListView& list) {
    for (std::int32_t i = 1; i <= 3; ++i) {
      const Ref<ColumnHeader> column = list.ColumnHeaders()->Item(i);
      column->SetKey(Text(Concat({u"column", IntegerToText(i).View()})));
      column->SetTag(Text(Concat({u"of ", IntegerToText(i).View()})));
      column->SetWidth(1440 + 150 * i);
      column->SetAlignment(i - 1);
    }
    for (std::int32_t i = 1; i <= 4; ++i) {
      const Ref<ListItem> row = list.ListItems()->Item(i);
      row->SetKey(Text(Concat({u"key", IntegerToText(i).View()})));
      row->SetTag(i * 10);
      row->SetToolTipText(Text(Concat({u"tip ", IntegerToText(i).View()})));
      row->SetIcon(i);
      row->SetSmallIcon(i + 1);
      row->SetChecked(i % 2 == 0);
      row->SetBold(i % 3 == 0);
      row->SetGhosted(i % 2 == 1);
      row->SetForeColor(0x10000 * i);
      for (std::int32_t j = 1; j <= 2; ++j) {
        const Ref<ListSubItem> cell = row->ListSubItems()->Item(j);
        cell->SetKey(Text(Concat({u"cell", IntegerToText(j).View()})));
        cell->SetTag(Text(Concat({u"tag", IntegerToText(i).View()})));
        cell->SetToolTipText(Text(Concat({u"cell tip ", IntegerToText(j).View()})));
        cell->SetReportIcon(i + j);
        cell->SetForeColor(0x100 * i + j);
        cell->SetBold((i + j) % 2 == 0);
      }
    }
  }

  // One showing of both dialogs: the user's doing, and the same set as properties.
  void Showing(const std::function<void()>& byUser, const std::function<void()>& byScript) {
    user.Does([&] {
      user.WaitsFor([&] { return Window() != nullptr && IsWindowVisible(Window()) != FALSE; });
      byUser();
      EXPECT_FALSE(shown.Visible());
      shown.Hide();
    });
    ShowLikeButton(shown, native);
    user.PumpUntilDone();
    host.During(byScript);
    ShowLikeButton(dialog, memory);
    EXPECT_EQ(Dump(*native), Dump(*memory));
    EXPECT_EQ(DumpDialog(shown), DumpDialog(dialog));
    EXPECT_EQ(form.ShownTexts(), Texts(*memory));
    EXPECT_EQ(DumpRows(*shown.lvwCopyOfFiltered), DumpRows(*dialog.lvwCopyOfFiltered));
    EXPECT_EQ(DumpRows(*shown.ListView1), DumpRows(*dialog.ListView1));
  }

  HWND Window() const {
    const FormWindow* window = windows.WindowOf(shown);
    return window == nullptr ? nullptr : window->Handle();
  }
  HWND WindowOf(const Control& control) const {
    return windows.WindowOf(shown)->Find(control)->Handle();
  }

  // The user picks the entry with that number from the dropped list and types the value.
  void Picks(std::int32_t row, int entry) {
    user.MovesTo({0, 0});  // the entry under the mouse would be highlighted
    SetFocus(WindowOf(shown.cboOperator[row]));
    user.Presses(VK_F4);
    user.Presses(VK_HOME);
    while (entry-- > 0) user.Presses(VK_DOWN);
    user.Presses(VK_RETURN);
  }

  // Filters the names by "a": Oak, Ash and Larch stay.
  void FilterByName() {
    Showing(
        [&] {
          Picks(0, 1);
          user.Types(u"a");
          user.Presses({VK_MENU, 'A'});
        },
        [&] {
          PickText(0, u"contains", u"a");
          Apply();
        });
  }

  ListViewOnAForm form;
  const Ref<HostListView> native = NativeListView(form.List());
  const Ref<MemoryListView> memory = MakeRef<MemoryListView>();
  MessageBoxPrompts boxes;
  Win32FormHost windows;
  frmFilter shown{{windows, boxes, conversions, clock}};
  User user;
};

TEST_F(DialogSessions, FilterChangeAndResetKeepEveryAttribute) {
  const std::string whole = DumpRows(*native);
  FilterByName();
  EXPECT_EQ(FirstTexts(*native), (std::vector<std::string>{"Oak", "Ash", "Larch"}));
  Showing(
      [&] {
        Picks(1, 4);
        user.Types(u"4");
        user.Presses(VK_RETURN);
      },
      [&] {
        PickNumber(1, u"is greater than", u"4");
        Apply();
      });
  EXPECT_EQ(FirstTexts(*native), (std::vector<std::string>{"Ash", "Larch"}));
  Showing([&] { user.Presses({VK_MENU, 'R'}); }, [&] { Reset(); });
  EXPECT_EQ(DumpRows(*native), whole);
  Showing([&] { user.Presses({VK_MENU, 'H'}); }, [&] { dialog.cmdHideFilter.SetValue(true); });
  EXPECT_EQ(DumpRows(*native), whole);
}

TEST_F(DialogSessions, ASortedListStaysSorted) {
  for (HostListView* each : {native.Get(), static_cast<HostListView*>(memory.Get())}) {
    each->SetSortKey(1);
    each->SetSortOrder(1);
    each->SetSorted(true);
  }
  FilterByName();
  EXPECT_EQ(FirstTexts(*native), (std::vector<std::string>{"Larch", "Ash", "Oak"}));
  Showing([&] { user.Presses({VK_MENU, 'R'}); }, [&] { Reset(); });
  EXPECT_EQ(FirstTexts(*native), (std::vector<std::string>{"Larch", "Elm", "Ash", "Oak"}));
}

TEST_F(DialogSessions, AListThatTheHostHasChangedIsTakenAnew) {
  FilterByName();
  for (HostListView* each : {native.Get(), static_cast<HostListView*>(memory.Get())}) {
    each->ListItems()->Clear();
    each->ColumnHeaders()->Clear();
    Fill(*each, {"Due", "Price"}, {{"1/5/2007", "3"}, {"2/5/2007", "5"}});
  }
  Showing(
      [&] {
        Picks(1, 5);
        user.Types(u"4");
        user.Presses(VK_RETURN);
      },
      [&] {
        PickNumber(1, u"is less than", u"4");
        Apply();
      });
  EXPECT_EQ(FirstTexts(*native), std::vector<std::string>{"1/5/2007"});
}

TEST_F(DialogSessions, CriteriaOfAllRowsAndMatchCaseStayForTheNextShowing) {
  Showing(
      [&] {
        Picks(0, 6);
        user.Types(u"l");
        user.Clicks(WindowOf(shown.chkCaseSensitive));
        Picks(2, 7);
        user.Presses({VK_MENU, 'A'});
      },
      [&] {
        PickText(0, u"starts with", u"l");
        dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
        Pick(2, u"is empty");
        Apply();
      });
  EXPECT_EQ(FirstTexts(*native), std::vector<std::string>{});
  Showing(
      [&] {
        Picks(2, 0);
        user.Clicks(WindowOf(shown.chkCaseSensitive));
        user.Presses({VK_MENU, 'A'});
      },
      [&] {
        Pick(2, u"All");
        dialog.chkCaseSensitive.SetValue(CheckValue::kUnchecked);
        Apply();
      });
  EXPECT_EQ(FirstTexts(*native), std::vector<std::string>{"Larch"});
}

}  // namespace

}  // namespace sifter
