#pragma once

#include "base/Text.h"
#include "filterdialog/frmFilter.h"
#include "listmodel/HostListView.h"
#include "support/HeadlessDialog.h"
#include "support/Lists.h"
#include "support/Recorder.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace sifter {

// A dialog before a user who knows nothing of how it is shown: once it is a script that sets
// properties, once it is windows, keys and a mouse. What happens goes into the recorder: the calls
// of the form host, the message boxes, the notices of the host's list.
class DialogStage {
 public:
  virtual ~DialogStage() = default;

  virtual frmFilter& Dialog() = 0;
  virtual Ref<HostListView> List() = 0;
  virtual Recorder& Recording() = 0;

  // Shows the dialog as a button does it; meanwhile the user does this, and leaves it hidden.
  virtual void Showing(const std::function<void()>& script) = 0;

  // The user's doings.
  virtual void Picks(std::int32_t row, TextView operatorWord) = 0;
  virtual void Types(ComboBox& box, TextView text) = 0;
  virtual void Types(TextBox& box, TextView text) = 0;
  virtual void TurnsMonth(DatePicker& picker, int months) = 0;
  virtual void Drags(Label& label, Control& field) = 0;
  virtual void Ticks(CheckBox& box) = 0;
  virtual void Presses(CommandButton& button) = 0;
  virtual void PressesEnterIn(Control& field) = 0;
};

struct DialogScenario {
  const char* name;
  std::vector<std::string> columns;
  TextRows rows;
  void (*play)(DialogStage& stage);
  std::vector<std::string> recording;  // and the state in the end
};

inline void PrintTo(const DialogScenario& scenario, std::ostream* out) { *out << scenario.name; }

// Plays a scenario on a stage whose list is empty.
inline void Play(const DialogScenario& scenario, DialogStage& stage) {
  Fill(*stage.List(), scenario.columns, scenario.rows);
  stage.Dialog().ExtraButtonClicked = [&stage](Text& parameter) {
    stage.Recording().Line("extra button " + Quoted(parameter));
  };
  stage.Recording().Clear();
  scenario.play(stage);
  std::istringstream state(DumpDialog(stage.Dialog()));
  for (std::string line; std::getline(state, line);) stage.Recording().Line(line);
  for (const std::vector<std::string>& row : Texts(*stage.List())) {
    std::string line = "row";
    for (const std::string& text : row) line += ' ' + Quoted(Text::FromUtf8(text));
    stage.Recording().Line(line);
  }
}

namespace detail {

inline const std::vector<std::string> kTreeColumns = {"Name", "Quantity", "Shipped", "Due"};
inline const TextRows kTrees = {{"Oak", "3", "1/5/2007", "1/9/2007"},
                                {"Ash", "5", "6/15/2007", "2/4/2007"},
                                {"oak", "7", "3/5/2007", "4/1/2007"}};

}  // namespace detail

inline const std::vector<DialogScenario>& DialogScenarios() {
  static const std::vector<DialogScenario> scenarios = {
      {"TextFilter",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(0, u"contains");
           stage.Types(dialog.cboCriteria[0], u"K");
           stage.Presses(dialog.cmdApply);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cboCriteria(0)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 1, 3 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"(Name like '*K*')\"",
        "english \"Name contains K\"",
        "\"Name\" type \"0\" \"contains\" text \"K\" from \"\" to \"\" dates #39248# #39248# shows "
        "cboCriteria",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Oak\" \"3\" \"1/5/2007\" \"1/9/2007\"",
        "row \"oak\" \"7\" \"3/5/2007\" \"4/1/2007\""}},
      {"MatchCaseAndEnterInTheValueList",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Ticks(dialog.chkCaseSensitive);
           stage.Picks(0, u"equals");
           stage.Types(dialog.cboCriteria[0], u"oak");
           stage.PressesEnterIn(dialog.cboCriteria[0]);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cboCriteria(0)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 1, 3 rows",
        "DeleteItem 0, 2 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"(Name = 'oak')\"",
        "english \"Name equals oak\"",
        "\"Name\" type \"0\" \"equals\" text \"oak\" from \"\" to \"\" dates #39248# #39248# shows "
        "cboCriteria",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"oak\" \"7\" \"3/5/2007\" \"4/1/2007\""}},
      {"NumberRangeWithItsMessage",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(1, u"is between");
           stage.Types(dialog.txtFrom[1], u"3");
           stage.Types(dialog.txtTo[1], u"6");
           stage.PressesEnterIn(dialog.txtTo[1]);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus txtFrom(1)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 2, 3 rows",
        "DeleteItem 0, 2 rows",
        "box \"RowSifter\" \"data type is number but parameter equals 3@\"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"()\"",
        "english \"Quantity is between 3 & 6\"",
        "\"Name\" type \"0\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Quantity\" type \"1\" \"is between\" text \"\" from \"3\" to \"6\" dates #39248# "
        "#39248# shows txtFrom txtTo lblAnd",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Ash\" \"5\" \"6/15/2007\" \"2/4/2007\""}},
      {"RangeThatBecameASingleValue",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(1, u"is between");
           stage.Types(dialog.txtTo[1], u"6");
           stage.Picks(1, u"equals");
           stage.Types(dialog.txtFrom[1], u"5");
           stage.PressesEnterIn(dialog.txtFrom[1]);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus txtFrom(1)",
        "focus txtFrom(1)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 2, 3 rows",
        "DeleteItem 0, 2 rows",
        "box \"RowSifter\" \"data type is number but parameter equals 5@\"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"()\"",
        "english \"Quantity equals 5 & 6\"",
        "\"Name\" type \"0\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Quantity\" type \"1\" \"equals\" text \"\" from \"5\" to \"6\" dates #39248# #39248# "
        "shows txtFrom txtTo lblAnd",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Ash\" \"5\" \"6/15/2007\" \"2/4/2007\""}},
      {"DateRangeWithItsErrorBox",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(2, u"is between");
           stage.TurnsMonth(dialog.dtpFrom[2], -4);
           stage.TurnsMonth(dialog.dtpTo[2], 1);
           stage.PressesEnterIn(dialog.dtpTo[2]);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus dtpFrom(2)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 0, 3 rows",
        "box \"Error\" ! \"Error number is 13, Type mismatch\"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"()\"",
        "english \"Shipped is between 2/15/2007 & 7/15/2007\"",
        "\"Name\" type \"0\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"is between\" text \"\" from \"\" to \"\" dates #39128# #39278# "
        "shows lblAnd dtpFrom dtpTo",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Ash\" \"5\" \"6/15/2007\" \"2/4/2007\"",
        "row \"oak\" \"7\" \"3/5/2007\" \"4/1/2007\""}},
      {"EmptyDates",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(3, u"is empty");
           stage.Presses(dialog.cmdApply);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cmdApply",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 2, 3 rows",
        "DeleteItem 1, 2 rows",
        "DeleteItem 0, 1 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"(Is Null Due)\"",
        "english \"Due is empty 6/15/2007\"",
        "\"Name\" type \"0\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"is empty\" text \"\" from \"\" to \"\" dates #39248# #39248# shows"}},
      {"ReferencesTypedAndDragged",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(2, u"is before");
           stage.Types(dialog.txtFrom[2], u"5");
           stage.Types(dialog.txtFrom[2], u"[Due]");
           stage.Drags(dialog.lblColumnHeaderText[1], dialog.txtFrom[2]);
           stage.Presses(dialog.cmdApply);
         });
         stage.Showing([&] {
           stage.Types(dialog.txtFrom[2], u"");
           stage.Drags(dialog.lblColumnHeaderText[3], dialog.txtFrom[2]);
           stage.Picks(2, u"is after");
           stage.Presses(dialog.cmdApply);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus dtpFrom(2)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 1, 3 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus dtpFrom(2)",
        "DeleteAllItems 0, 2 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 2, 3 rows",
        "DeleteItem 0, 2 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"(Shipped > #6/15/2007#)\"",
        "english \"Shipped is after 6/15/2007\"",
        "\"Name\" type \"0\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"is after\" text \"\" from \"[Due]\" to \"\" dates #39248# "
        "#39248# shows dtpFrom",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Ash\" \"5\" \"6/15/2007\" \"2/4/2007\""}},
      {"BadValuesInTwoRows",
       {"Quantity", "Price"},
       {{"3", "9"}, {"5", "4"}},
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(0, u"equals");
           stage.Types(dialog.txtFrom[0], u"three");
           stage.Picks(1, u"is less than");
           stage.PressesEnterIn(dialog.txtFrom[1]);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus txtFrom(0)",
        "focus txtFrom(1)",
        "DeleteAllItems 0, 2 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "DeleteItem 1, 2 rows",
        "DeleteItem 0, 1 rows",
        "box \"RowSifter\" \"data type is number but parameter equals three\"",
        "delete system menu entry 6",
        "box \"RowSifter\" \"data type is number but parameter equals \"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active True",
        "filter \"() AND ()\"",
        "english \"Quantity equals three AND Price is less than \"",
        "\"Quantity\" type \"1\" \"equals\" text \"\" from \"three\" to \"\" dates #39248# #39248# "
        "shows txtFrom",
        "\"Price\" type \"1\" \"is less than\" text \"\" from \"\" to \"\" dates #39248# #39248# "
        "shows txtFrom"}},
      {"FilterChangeAndReset",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         stage.Showing([&] {
           stage.Picks(0, u"starts with");
           stage.Types(dialog.cboCriteria[0], u"o");
           stage.Presses(dialog.cmdApply);
         });
         stage.Showing([&] {
           stage.Picks(1, u"is greater than");
           stage.Types(dialog.txtFrom[1], u"3");
           stage.Presses(dialog.cmdApply);
         });
         stage.Showing([&] { stage.Presses(dialog.cmdHideFilter); });
         stage.Showing([&] { stage.Presses(dialog.cmdReset); });
         stage.Showing([&] { stage.Presses(dialog.cmdHideFilter); });
       },
       {"show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cboCriteria(0)",
        "DeleteAllItems 0, 3 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 1, 3 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus txtFrom(1)",
        "DeleteAllItems 0, 2 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "DeleteItem 1, 3 rows",
        "DeleteItem 0, 2 rows",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "DeleteAllItems 0, 1 rows",
        "InsertItem 0, 1 rows",
        "InsertItem 0, 2 rows",
        "InsertItem 0, 3 rows",
        "modal showing ends",
        "show modal \"Tarvenn Software Row Sifter\"",
        "delete system menu entry 6",
        "focus cmdReset",
        "hide",
        "modal showing ends",
        "active False",
        "filter \"\"",
        "english \"\"",
        "\"Name\" type \"0\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Oak\" \"3\" \"1/5/2007\" \"1/9/2007\"",
        "row \"Ash\" \"5\" \"6/15/2007\" \"2/4/2007\"",
        "row \"oak\" \"7\" \"3/5/2007\" \"4/1/2007\""}},
      {"ResetWithoutAFilterAndTheExtraButton",
       detail::kTreeColumns,
       detail::kTrees,
       [](DialogStage& stage) {
         frmFilter& dialog = stage.Dialog();
         dialog.cmdReport.SetCaption(u"Report");
         dialog.cmdReport.SetVisible(true);
         stage.Showing([&] {
           stage.Picks(0, u"contains");
           stage.Types(dialog.cboCriteria[0], u"x");
           stage.Presses(dialog.cmdReport);
           stage.Presses(dialog.cmdReset);
         });
       },
       {"show modal \"Tarvenn Software Row Sifter\"", "delete system menu entry 6",
        "focus cboCriteria(0)", "extra button \"\"", "focus cmdReset", "hide", "modal showing ends",
        "active False", "filter \"\"", "english \"\"",
        "\"Name\" type \"0\" \"contains\" text \"x\" from \"\" to \"\" dates #39248# #39248# shows "
        "cboCriteria",
        "\"Quantity\" type \"1\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Shipped\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "\"Due\" type \"2\" \"All\" text \"\" from \"\" to \"\" dates #39248# #39248# shows",
        "row \"Oak\" \"3\" \"1/5/2007\" \"1/9/2007\"",
        "row \"Ash\" \"5\" \"6/15/2007\" \"2/4/2007\"",
        "row \"oak\" \"7\" \"3/5/2007\" \"4/1/2007\""}},
  };
  return scenarios;
}

}  // namespace sifter
