#include "DialogOnScreen.h"
#include "WindowFacts.h"

#include <map>
#include <set>

namespace sifter {

namespace {

class DialogOrder : public DialogOnScreen {
 protected:
  static bool IsField(const Control& control) {
    return control.Kind() == ControlKind::kTextBox || control.Kind() == ControlKind::kComboBox ||
           control.Kind() == ControlKind::kDatePicker;
  }

  // What an accessibility tool calls the field: the text of the label right before it.
  std::string NameBefore(const Control& field) const {
    const HWND before = GetWindow(WindowOf(field), GW_HWNDPREV);
    if (before == nullptr) return "(nothing)";
    if (ClassOf(before) != "Static") return '(' + ClassOf(before) + ')';
    return TextOf(before);
  }

  void ExpectNamedByTheirColumns() const {
    int fields = 0;
    for (const Control* control : dialog.Controls()) {
      if (!IsField(*control)) continue;
      ++fields;
      const Text caption = dialog.lblColumnHeaderText[control->Index()].Caption();
      EXPECT_EQ(NameBefore(*control), caption.ToUtf8()) << NameOf(*control);
    }
    EXPECT_EQ(fields, 6 * dialog.ColumnCount());
  }

  std::map<std::string, int> Ids() const {
    std::map<std::string, int> ids;
    for (const Control* control : dialog.Controls())
      ids[NameOf(*control)] = GetDlgCtrlID(WindowOf(*control));
    return ids;
  }
};

TEST_F(DialogOrder, NamesEveryFieldByItsColumn) {
  Prepare({"Name", "Quantity", "Due"}, {{"Oak", "3", "1/5/2007"}});
  Show([&] { ExpectNamedByTheirColumns(); });
}

TEST_F(DialogOrder, NamesTheFieldsAnewForAnotherList) {
  Prepare({"Due", "Name", "Quantity"}, {{"1/5/2007", "Oak", "3"}});
  Show([&] { ExpectNamedByTheirColumns(); });
  Prepare({"Shipped", "Price"}, {{"1/5/2007", "7"}});
  Show([&] { ExpectNamedByTheirColumns(); });
  Prepare({"Price", "Shipped", "Size", "Paid"}, {{"7", "1/5/2007", "7", "1/5/2007"}});
  Show([&] { ExpectNamedByTheirColumns(); });
}

TEST_F(DialogOrder, NamesTheFieldsOfRowsThatAreBuiltWhileItIsShown) {
  Prepare({"Due"}, {{"1/5/2007"}});
  Show([&] {
    Prepare({"Price"}, {{"7"}});
    user.Rests();
    ExpectNamedByTheirColumns();
    Prepare({"Shipped", "Size"}, {{"1/5/2007", "7"}});
    user.Rests();
    ExpectNamedByTheirColumns();
  });
}

TEST_F(DialogOrder, NumbersEveryControlAndKeepsTheNumbers) {
  Prepare({"Name", "Quantity", "Due"}, {{"Oak", "3", "1/5/2007"}});
  std::map<std::string, int> first;
  Show([&] {
    first = Ids();
    std::set<int> numbers;
    for (const auto& [name, id] : first) {
      EXPECT_GT(id, IDCONTINUE) << name;  // none that a dialog gives a meaning to
      EXPECT_TRUE(numbers.insert(id).second) << name << " has the number of another control";
    }
    for (const Control* control : dialog.Controls()) {
      const HWND window = WindowOf(*control);
      EXPECT_EQ(GetDlgItem(GetParent(window), GetDlgCtrlID(window)), window) << NameOf(*control);
    }
  });
  Show([&] { EXPECT_EQ(Ids(), first); });
  Prepare({"Due", "Name"}, {{"1/5/2007", "Oak"}});
  Show([&] {
    for (const auto& [name, id] : Ids()) EXPECT_EQ(id, first[name]) << name;
  });
  frmFilter another({host, prompts, conversions, clock});
  another.UsersListview = list;
  another.SetUpForm();
  user.Does([&] {
    user.WaitsFor([&] { return another.Visible() && host.WindowOf(another) != nullptr; });
    for (const Control* control : another.Controls())
      EXPECT_EQ(GetDlgCtrlID(host.WindowOf(another)->Find(*control)->Handle()),
                first[NameOf(*control)])
          << NameOf(*control);
    another.Hide();
  });
  another.Show(ShowMode::kModal);
  user.PumpUntilDone();
}

TEST_F(DialogOrder, CarriesEveryTextInItsWindow) {
  Prepare({"Name", "Quantity", "Due"}, {{"Oak", "3", "1/5/2007"}});
  Show([&] {
    dialog.cboOperator[0].SetListIndex(1);
    dialog.cboCriteria[0].SetText(Text::FromUtf8("Bäume \u6728"));
    dialog.txtFrom[1].SetText(u"12");
    dialog.txtTo[2].SetText(u"[Due]");
    const std::vector<std::pair<const Control*, std::string>> texts = {
        {&dialog.lblCaption, "Please enter the criteria by which you wish to filter the listview"},
        {&dialog.lblColumnHeaderText[0], "Name"},
        {&dialog.lblColumnHeaderText[2], "Due"},
        {&dialog.cboOperator[0], "contains"},
        {&dialog.cboOperator[1], "All"},
        {&dialog.cboCriteria[0], "Bäume \u6728"},
        {&dialog.txtFrom[1], "12"},
        {&dialog.txtTo[2], "[Due]"},
        {&dialog.lblAnd[1], "and"},
        {&dialog.chkCaseSensitive, "Match Case"},
        {&dialog.cmdApply, "&Apply Criteria"},
        {&dialog.cmdReset, "&Reset Filter"},
        {&dialog.cmdHideFilter, "&Hide Filter"},
    };
    for (const auto& [control, text] : texts)
      EXPECT_EQ(TextOf(WindowOf(*control)), text) << NameOf(*control);
  });
}

TEST_F(DialogOrder, TakesAnAmpersandInAColumnForWhatItIs) {
  Prepare({"R&D", "&Zone"}, {{"Oak", "3"}});
  Show([&] {
    ExpectNamedByTheirColumns();
    EXPECT_EQ(TextOf(WindowOf(dialog.lblColumnHeaderText[0])), "R&D");
    for (const Control* field : dialog.Controls()) {
      if (!IsField(*field)) continue;
      const HWND label = GetWindow(WindowOf(*field), GW_HWNDPREV);
      EXPECT_NE(GetWindowLongPtrW(label, GWL_STYLE) & SS_NOPREFIX, 0) << NameOf(*field);
    }
    SetFocus(WindowOf(dialog.cmdReset));
    user.Presses({VK_MENU, 'Z'});
    EXPECT_EQ(Focused(), "cmdReset");
    user.Presses({VK_MENU, 'D'});
    EXPECT_EQ(Focused(), "cmdReset");
  });
}

}  // namespace

}  // namespace sifter
