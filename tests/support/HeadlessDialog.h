#pragma once

#include "base/Calendar.h"
#include "base/Conversions.h"
#include "base/Ref.h"
#include "base/Text.h"
#include "filterdialog/frmFilter.h"
#include "listmodel/HostListView.h"
#include "support/ClockFake.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessPrompts.h"
#include "support/HeadlessWatcher.h"
#include "support/Lists.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

inline Date Day(int year, int month, int day) {
  return DateOf({.year = year, .month = month, .day = day});
}

// The parameter controls of a row that would be on the screen, by name.
inline std::vector<std::string> ShownParameters(const frmFilter& dialog, std::int32_t i) {
  std::vector<std::string> names;
  const std::initializer_list<std::pair<const Control*, const char*>> controls = {
      {&dialog.cboCriteria[i], "cboCriteria"},
      {&dialog.txtFrom[i], "txtFrom"},
      {&dialog.txtTo[i], "txtTo"},
      {&dialog.lblAnd[i], "lblAnd"},
      {&dialog.dtpFrom[i], "dtpFrom"},
      {&dialog.dtpTo[i], "dtpTo"}};
  for (const auto& [control, name] : controls)
    if (control->Visible()) names.emplace_back(name);
  return names;
}

// What the user has set in a row, and what the row shows.
inline std::string DumpCriterion(const frmFilter& dialog, std::int32_t i) {
  std::string dump = Quoted(dialog.lblColumnHeaderText[i].Caption()) + " type " +
                     Quoted(dialog.lblColumnHeaderText[i].Tag()) + ' ' +
                     Quoted(dialog.cboOperator[i].Text()) + " text " +
                     Quoted(dialog.cboCriteria[i].Text()) + " from " +
                     Quoted(dialog.txtFrom[i].Text()) + " to " + Quoted(dialog.txtTo[i].Text()) +
                     " dates " + Shown(Value(dialog.dtpFrom[i].Value())) + ' ' +
                     Shown(Value(dialog.dtpTo[i].Value())) + " shows";
  for (const std::string& name : ShownParameters(dialog, i)) dump += ' ' + name;
  return dump + '\n';
}

// All criteria and what the dialog tells the controls.
inline std::string DumpDialog(const frmFilter& dialog) {
  std::string dump = std::string("active ") + (dialog.blnFilterActive ? "True" : "False") +
                     "\nfilter " + Quoted(dialog.FilterString) + "\nenglish " +
                     Quoted(dialog.FilterPlainEnglish) + '\n';
  for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i) dump += DumpCriterion(dialog, i);
  return dump;
}

// A dialog with all it needs: a user who is a script, message boxes that are answered at once, a
// clock that stands at noon of 15 June 2007, and one recorder that all of them write to.
class DialogFixture : public testing::Test {
 protected:
  // Hands a list over and builds the rows; the columns of an earlier list go first, as the controls
  // see to it. The recording starts behind it; the boxes are kept.
  void Prepare(const Ref<HostListView>& list) {
    dialog.UsersListview = list;
    if (dialog.ListView1) dialog.ListView1->ColumnHeaders()->Clear();
    dialog.SetUpForm();
    recorder.Clear();
  }

  // The user picks an operator, which must be one that the row offers.
  void Pick(std::int32_t row, TextView word) {
    ComboBox& box = dialog.cboOperator[row];
    const std::vector<Text>& words = box.Entries();
    const auto found = std::find(words.begin(), words.end(), word);
    ASSERT_NE(found, words.end()) << "row " << row << " doesn't offer " << Quoted(word);
    box.SetListIndex(static_cast<std::int32_t>(found - words.begin()));
  }

  // The same with the values for it.
  void PickText(std::int32_t row, TextView word, const Text& text) {
    Pick(row, word);
    dialog.cboCriteria[row].SetText(text);
  }
  void PickNumber(std::int32_t row, TextView word, const Text& from, const Text& to = Text()) {
    Pick(row, word);
    dialog.txtFrom[row].SetText(from);
    dialog.txtTo[row].SetText(to);
  }
  void PickDate(std::int32_t row, TextView word, Date from, Date to = Date()) {
    Pick(row, word);
    dialog.dtpFrom[row].SetValue(from);
    dialog.dtpTo[row].SetValue(to);
  }

  void Apply() { dialog.cmdApply.SetValue(true); }
  void Reset() { dialog.cmdReset.SetValue(true); }

  const std::vector<std::string>& Boxes() const { return prompts.Boxes(); }

  Recorder recorder;
  ClockFake clock;
  EnUsConversions conversions{clock};
  HeadlessFormHost host{recorder};
  HeadlessPrompts prompts{recorder};
  frmFilter dialog{{host, prompts, conversions, clock}};
};

}  // namespace sifter
