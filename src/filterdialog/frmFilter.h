#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"
#include "base/Ref.h"
#include "base/Text.h"
#include "filterdialog/CriterionRows.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/Prompts.h"
#include "listmodel/HostListView.h"
#include "listmodel/ListViewDump.h"
#include "matching/ColumnCache.h"
#include "matching/FilterCriterion.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace sifter {

// What the dialog needs of the world. All of it is borrowed and must outlive the dialog.
struct DialogServices {
  FormHost& forms;
  Prompts& prompts;
  const Conversions& conversions;
  const Clock& clock;
};

// The dialog in which the user says which rows of a list to keep: one row of controls for every
// column. It filters the host's list in place and keeps a full copy, from which every apply and
// every reset starts.
//
// It is made once and hidden between uses, with its rows, operators and values as they are. An
// error inside one of its procedures ends the innermost one that traps errors, with the error box
// "Error number is N, description"; what had been done stays, and the procedure that called it
// goes on. No error comes out of a public member.
//
// The calling order of a control that shows it: title and prompt; ListviewsAreEqual of the host's
// list and lvwCopyOfFiltered; if they differ, ClearCriteria, UsersListview, CopyListview into
// ListView1, SetUpForm; then Show, and after it blnFilterActive.
class frmFilter final : public Form, private DialogFrame, private CriterionRows {
 public:
  explicit frmFilter(const DialogServices& services);
  ~frmFilter() override;

  Ref<HostListView> UsersListview;      // the host's list; null until one is handed over
  Ref<ListViewDump> lvwCopyOfFiltered;  // the rows that passed the last apply; null at first
  Ref<ListViewDump> ListView1;          // all rows of the host's list; null at first
  bool blnFilterActive = false;
  Text gstrListviewCode;    // kept for the controls
  Text FilterString;        // the last apply's criteria as a condition, "" before
  Text FilterPlainEnglish;  // and as a sentence

  using CriterionRows::cboCriteria;
  using CriterionRows::cboOperator;
  using CriterionRows::dtpFrom;
  using CriterionRows::dtpTo;
  using CriterionRows::lblAnd;
  using CriterionRows::lblColumnHeaderText;
  using CriterionRows::txtFrom;
  using CriterionRows::txtTo;
  using DialogFrame::Frame1;
  using DialogFrame::lblCaption;
  CheckBox chkCaseSensitive;
  CommandButton cmdApply;
  CommandButton cmdReset;
  CommandButton cmdHideFilter;
  CommandButton cmdReport;  // the host's own; hidden until a control gives it a caption

  // The extra button was pressed; the text starts empty and is the handler's to change.
  std::function<void(Text& parameter)> ExtraButtonClicked;

  // The apply and the reset replace the host's rows by those of ListView1. These are called before
  // that, with the host's list as it is by now, and on an apply again before the rows that fail
  // are taken out: whoever showed the dialog can take over into ListView1 what the host has done
  // to its list meanwhile.
  std::function<void()> BeforeRefill;
  std::function<void()> BeforeFiltering;

  // Fills the value list of a row (0-based) with the distinct values of its column in ListView1.
  // What the user has typed stays.
  void PopulateCriteriaComboBox(std::int16_t intColumnIndex);

  // Copies UsersListview into ListView1 and builds a row for each of its columns.
  void SetUpForm();

  // As the free function, with the error box. Neither argument is ever replaced by another list.
  void CopyListview(const Ref<HostListView>& source, const Ref<ListViewDump>& target);
  void CopyListview(const Ref<ListViewDump>& source, const Ref<HostListView>& target);
  void CopyListview(const Ref<ListViewDump>& source, const Ref<ListViewDump>& target);

  // Every row back to "All", no filter in force, lvwCopyOfFiltered empty, the dialog hidden.
  // ListView1, "Match Case" and the values in the hidden fields stay.
  void ClearCriteria();

  static Text TrimData(TextView strString, TextView strTrimWhat);
  static void InsertionSort(std::vector<Text>& texts);

  // Whether a host's list still shows just what `Listview2` holds. Never raises: False then.
  static bool ListviewsAreEqual(const Ref<HostListView>& first, const Ref<ListViewDump>& Listview2);

  // How many rows have been built.
  std::int16_t ColumnCount() const { return columnCount_; }

  // True while a procedure is at work on the lists. Notices and timers that arrive then, from
  // inside a message box say, find half-copied lists and have to wait.
  bool InWork() const { return working_ > 0; }

  // The rows' criteria as they were at the last apply, whatever the user has changed since. None
  // after ClearCriteria.
  const std::vector<FilterCriterion>& AppliedCriteria() const { return appliedCriteria_; }

  // Takes the rows out of `list` that fail the criteria as last applied. Nothing else changes, and
  // nothing is raised or shown.
  void ReapplyCriteria(const Ref<HostListView>& list);

  // There are no criteria any more that ReapplyCriteria could apply.
  void ForgetCriteria() { appliedCriteria_.clear(); }

 private:
  // Runs a procedure of the dialog: with its trap, and marked as work on the lists if it is any.
  void Run(const std::function<void()>& procedure);
  void RunAtWork(const std::function<void()>& procedure);

  void WireButtons();
  void WireRow(std::int32_t i);
  void PressApplyOnEnter(Control& field);
  void TakeReferences(Control& field, std::int32_t i, std::function<void(Text)> write);
  void BuildRows();
  void LayOut();

  void Apply();
  bool RefillAndFilter();
  void ApplyCriteria();
  void MatchApplied(const Ref<HostListView>& list);
  void DescribeRow(std::int32_t i);
  Text BuildFilterFragment(TextView column, TextView operatorWord, TextView parameterText,
                           std::int32_t dataType);
  void Reset();
  void HideFilter();
  void OperatorChanged(std::int32_t i);
  void ShowTextParameter(std::int32_t i);
  void ShowNumberParameters(std::int32_t i, bool range);
  void ShowDateParameters(std::int32_t i, TextView key);

  DialogServices services_;
  std::int16_t columnCount_ = 0;
  bool caseSensitive_ = false;
  int working_ = 0;
  std::vector<FilterCriterion> appliedCriteria_;
  bool appliedCaseSensitive_ = false;
  ColumnCache columnCache_;
};

}  // namespace sifter
