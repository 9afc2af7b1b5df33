#include "filterdialog/frmFilter.h"

#include "base/AbsorbErrors.h"
#include "filterdialog/CopyListview.h"
#include "filterdialog/FilterExpression.h"
#include "filterdialog/ReportErrors.h"
#include "matching/InsertionSort.h"
#include "matching/ListComparison.h"
#include "matching/Operators.h"
#include "matching/RowMatcher.h"
#include "matching/TextFields.h"

namespace sifter {

namespace {

// A snapshot that isn't there yet is made, empty, when it is first needed.
void Ensure(Ref<ListViewDump>& snapshot) {
  if (!snapshot) snapshot = MakeRef<ListViewDump>();
}

bool HasType(std::int32_t dataType, ColumnDataType type) {
  return dataType == static_cast<std::int32_t>(type);
}

}  // namespace

frmFilter::~frmFilter() { Unload(); }

void frmFilter::Run(const std::function<void()>& procedure) {
  ReportErrors(services_.prompts, procedure);
}

void frmFilter::RunAtWork(const std::function<void()>& procedure) {
  struct Work {
    explicit Work(int& depth) : depth_(depth) { ++depth_; }
    ~Work() { --depth_; }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    int& depth_;
  } work(working_);
  Run(procedure);
}

// The arguments are mostly fields of the dialog, which a host may set anew from a notice. The lists
// must live until the copy is done.
void frmFilter::CopyListview(const Ref<HostListView>& source, const Ref<ListViewDump>& target) {
  RunAtWork([source, target] { sifter::CopyListview(source.Get(), target.Get()); });
}

void frmFilter::CopyListview(const Ref<ListViewDump>& source, const Ref<HostListView>& target) {
  RunAtWork([source, target] { sifter::CopyListview(source.Get(), target.Get()); });
}

void frmFilter::CopyListview(const Ref<ListViewDump>& source, const Ref<ListViewDump>& target) {
  RunAtWork([source, target] { sifter::CopyListview(source.Get(), target.Get()); });
}

Text frmFilter::TrimData(TextView strString, TextView strTrimWhat) {
  return sifter::TrimData(strString, strTrimWhat);
}

void frmFilter::InsertionSort(std::vector<Text>& texts) { sifter::InsertionSort(texts); }

bool frmFilter::ListviewsAreEqual(const Ref<HostListView>& first,
                                  const Ref<ListViewDump>& Listview2) {
  return sifter::ListviewsAreEqual(first.Get(), Listview2.Get());
}

// The rows are filtered before the texts are written, so a message about a parameter comes when
// the list has changed already.
void frmFilter::Apply() {
  RunAtWork([this] {
    Ensure(ListView1);
    if (!RefillAndFilter()) {
      blnFilterActive = false;
      cmdHideFilter.SetValue(true);
      return;
    }
    Ensure(lvwCopyOfFiltered);
    CopyListview(UsersListview, lvwCopyOfFiltered);
    blnFilterActive = true;
    FilterString = Text();
    FilterPlainEnglish = Text();
    for (std::int32_t i = 0; i < columnCount_; ++i)
      if (cboOperator[i].Text() != kAllWord) DescribeRow(i);
    FilterString = TrimData(FilterString, kJoin);
    FilterPlainEnglish = TrimData(FilterPlainEnglish, kJoin);
    cmdHideFilter.SetValue(true);
  });
}

// One long change for a list on the screen, which is painted once behind it. False when the full
// copy was given up meanwhile, by a host that was told of its rows: rows that are taken out of the
// list then could never come back.
bool frmFilter::RefillAndFilter() {
  const UpdateScope update(UsersListview.Get());
  if (BeforeRefill) BeforeRefill();
  const Ref<ListViewDump> full = ListView1;
  CopyListview(full, UsersListview);
  if (BeforeFiltering) BeforeFiltering();
  if (ListView1 != full) return false;
  ApplyCriteria();
  return ListView1 == full;
}

void frmFilter::ApplyCriteria() {
  AbsorbErrors([this] {
    appliedCriteria_.clear();
    for (std::int32_t i = 0; i < columnCount_; ++i) appliedCriteria_.push_back(Criterion(i));
    appliedCaseSensitive_ = caseSensitive_;
    MatchApplied(UsersListview);
  });
}

void frmFilter::MatchApplied(const Ref<HostListView>& list) {
  // A copy for this run: a notice of a removed row may lead to another apply.
  const std::vector<FilterCriterion> criteria = appliedCriteria_;
  RowMatcher(list, criteria, appliedCaseSensitive_, services_.conversions, columnCache_)
      .ApplyCriteria();
}

void frmFilter::ReapplyCriteria(const Ref<HostListView>& list) {
  RunAtWork([this, list] { AbsorbErrors([&] { MatchApplied(list); }); });
}

// A second field that can be seen makes the criterion one of two values, whatever its operator is
// by now.
void frmFilter::DescribeRow(std::int32_t i) {
  const Text column = lblColumnHeaderText[i].Caption();
  const std::int32_t dataType = DataType(i);
  const Text word = cboOperator[i].List(cboOperator[i].ListIndex());
  Text first;
  Text second;
  bool two = false;
  if (HasType(dataType, ColumnDataType::kDate)) {
    first = services_.conversions.DateToText(dtpFrom[i].Value());
    second = services_.conversions.DateToText(dtpTo[i].Value());
    two = dtpTo[i].Visible();
  } else if (HasType(dataType, ColumnDataType::kNumber)) {
    first = txtFrom[i].Text();
    second = txtTo[i].Text();
    two = txtTo[i].Visible();
  } else if (HasType(dataType, ColumnDataType::kText)) {
    first = cboCriteria[i].Text();
  }
  const auto joined = [&](TextView separator) {
    return two ? Concat({first.View(), separator, second.View()}) : first;
  };
  const Text fragment = BuildFilterFragment(column, word, joined(kParameterSeparator), dataType);
  FilterString = JoinCondition(FilterString, fragment);
  FilterPlainEnglish = JoinSentence(FilterPlainEnglish, column, word, joined(u" & "));
}

Text frmFilter::BuildFilterFragment(TextView column, TextView operatorWord, TextView parameterText,
                                    std::int32_t dataType) {
  Text fragment;
  Run([&] {
    fragment = sifter::BuildFilterFragment(column, operatorWord, parameterText, dataType,
                                           services_.conversions, services_.prompts);
  });
  return fragment;
}

void frmFilter::Reset() {
  RunAtWork([this] {
    if (!blnFilterActive) {
      cmdHideFilter.SetValue(true);
      return;
    }
    Ensure(ListView1);
    if (BeforeRefill) BeforeRefill();
    ClearCriteria();
    CopyListview(ListView1, UsersListview);
    FilterString = Text();
  });
}

// The rows that passed go together with their columns: the host may have other columns by the
// next apply, and a snapshot that has any keeps them.
void frmFilter::ClearCriteria() {
  Run([this] {
    for (std::int32_t i = 0; i < columnCount_; ++i)
      if (cboOperator[i].ListCount() > 0) cboOperator[i].SetListIndex(0);
    for (std::int32_t i = 0; i < columnCount_; ++i) HideParameters(i);
    Ensure(lvwCopyOfFiltered);
    lvwCopyOfFiltered->ListItems()->Clear();
    lvwCopyOfFiltered->ColumnHeaders()->Clear();
    ForgetCriteria();
    blnFilterActive = false;
    FilterPlainEnglish = Text();
    FilterString = Text();
    cmdHideFilter.SetValue(true);
  });
}

// Moving the focus may run code of the host's that hides the dialog, so its visibility is looked
// at again.
void frmFilter::HideFilter() {
  Run([this] {
    if (Visible()) SetFocus(cmdReset);
    if (Visible()) Hide();
  });
}

}  // namespace sifter
