#include "BannerSession.h"

#include "TalkativeList.h"
#include "support/Lists.h"

#include <algorithm>
#include <utility>

namespace sifter {

void BannerSession::Counts::Add(const Counts& other) {
  operations += other.operations;
  resets += other.resets;
  deactivations += other.deactivations;
  modelessGivenUp += other.modelessGivenUp;
  cutOff += other.cutOff;
  twinsGone += other.twinsGone;
  oldForms += other.oldForms;
  rowsBack += other.rowsBack;
}

BannerSession::BannerSession(Flows flows, Make make)
    : flows_(flows), world_(std::make_unique<BannerWorld>()) {
  Fill(*world_->list, {"Name", "Qty", "Due"}, {});
  Fill(*world_->otherList, {"Name", "Qty", "Due"}, {{"Oak", "1", ""}, {"Elm", "2", ""}});
  listview_ = world_->list;
  if (make == Make::kForeign) listview_ = MakeRef<TalkativeList>(listview_);
  world_->control->SetListview(listview_);
  for (int i = 0; i < 12; ++i) Insert(0, i * 37);
}

BannerSession::Counts BannerSession::Counted() const {
  Counts counts = counts_;
  const RowLedger::Excuses& excused = ledger_.Excused();
  counts.twinsGone = excused.twinsGone;
  counts.oldForms = excused.oldForms;
  counts.rowsBack = excused.rowsBack;
  return counts;
}

BannerSession::~BannerSession() = default;

std::vector<std::string> BannerSession::Play(const Operations& operations) {
  operations_ = &operations;
  next_ = 0;
  while (next_ < operations.size() && wrong_.empty()) Next();
  return wrong_;
}

void BannerSession::Next() {
  ++counts_.operations;
  Do((*operations_)[next_++]);
}

void BannerSession::Meanwhile(int acts) {
  for (; acts > 0 && next_ < operations_->size() && wrong_.empty(); --acts) Next();
}

void BannerSession::Do(const Operation& operation) {
  TSLvwBannerFilter& control = *world_->control;
  const int a = operation.a;
  switch (operation.act) {
    case Act::kInsert:
      return Insert(a, operation.b);
    case Act::kInsertTwin:
      return InsertTwin(a);
    case Act::kReuseKey:
      return ReuseKey(a);
    case Act::kDelete:
      return Delete(a);
    case Act::kClear:
      return Clear();
    case Act::kEdit:
      return Edit(a);
    case Act::kCheck:
      return Check(a);
    case Act::kTick:
      return Tick();
    case Act::kShow:
      return Showing(a, operation.b, [&] { control.ShowFilter(true); });
    case Act::kShowModeless:
      return ShowModeless(a);
    case Act::kApplyText:
      return ApplyText(a);
    case Act::kActivate:
      if (!Active()) Showing(a, operation.b, [&] { control.SetActive(true); });
      return;
    case Act::kDeactivate:
      return Deactivate([&] { control.DeactivateFilter(); });
    case Act::kSetInactive:
      if (Active()) Deactivate([&] { control.SetActive(false); });
      return;
    case Act::kDetach:
      return Detach(a, operation.b);
    case Act::kClickColumn:
      return world_->list->ClickColumn(1 + a % 3);
    case Act::kAddColumn:
      return AddColumn();
    case Act::kCount:
      return;
  }
}

BannerSession::Row BannerSession::Read(ListItem& item) const {
  const auto text = [](const Value& value) { return ValueToText(value).ToUtf8(); };
  std::string content = text(item.Key()) + '|' + text(item.Text());
  const Ref<ListSubItemCollection> cells = item.ListSubItems();
  for (std::int32_t j = 1; j <= cells->Count(); ++j) content += '|' + text(item.SubItems(j));
  // A column that was added later is empty in every row.
  while (content.ends_with('|')) content.pop_back();
  // What isn't compared when a row is looked for can be lost together with an old form of it.
  if (Plain() && ValueToBoolean(item.Checked())) content += " checked";
  return {text(item.Tag()), content};
}

BannerSession::Rows BannerSession::Shown() {
  Rows rows;
  const Ref<ListItemCollection> items = world_->list->ListItems();
  for (std::int32_t i = 1; i <= items->Count(); ++i) rows.push_back(Read(*items->Item(i)));
  return rows;
}

Ref<ListItem> BannerSession::RowAt(int number) {
  const Ref<ListItemCollection> items = world_->list->ListItems();
  return items->Count() == 0 ? nullptr : items->Item(1 + number % items->Count());
}

// What the clock and the user do

void BannerSession::Tick() {
  const bool follows = world_->control->Timer1.Enabled() && inserted_;
  world_->Tick();
  if (!follows) return;
  inserted_ = false;  // over another list as well, which isn't followed
  if (!attached_) return;
  if (Active()) ledger_.NothingReturns();
  CheckShown();
}

bool BannerSession::DialogWillOpen() {
  return attached_ && !showing_ && (world_->list->ListItems()->Count() > 0 || Active());
}

// A filter that the user has set in a modeless dialog isn't the banner's: the next showing takes
// what it has left for all rows.
void BannerSession::BeforeShowing() {
  if (!Active() && Filtered()) counts_.modelessGivenUp += ledger_.GiveUpAllBut(Shown()) > 0 ? 1 : 0;
  if (Active() && inserted_) ledger_.NothingReturns();
}

void BannerSession::Showing(int leaving, int acts, const std::function<void()>& show) {
  if (!attached_) return;
  if (showing_) {
    bool refused = false;
    try {
      show();
    } catch (const RuntimeError& error) {
      refused = error.Number() == static_cast<std::int32_t>(ErrorNumber::kFormAlreadyDisplayed);
    }
    if (!refused) Note({"a second modal showing wasn't refused"});
    return;
  }
  const bool opens = DialogWillOpen();
  if (opens) BeforeShowing();
  world_->user.acts = [&] {
    showing_ = true;
    modeless_ = false;
    Meanwhile(acts);
    if (world_->Dialog().Visible()) Leave(leaving);
  };
  show();
  world_->user.acts = nullptr;
  showing_ = false;
  if (!opens && !Filtered()) CheckAll();
}

void BannerSession::ShowModeless(int leaving) {
  if (!DialogWillOpen() || (Plain() && !Active())) return;
  BeforeShowing();
  world_->control->ShowFilter(false);
  modeless_ = true;
  if (leaving % 3 != 0) Leave(leaving);
}

void BannerSession::Leave(int leaving) {
  if (leaving % 4 == 0) return Reset();
  if (leaving % 4 == 1) return world_->Dialog().cmdHideFilter.SetValue(true);
  ChooseCriteria(leaving);
  Apply();
}

void BannerSession::ChooseCriteria(int number) {
  frmFilter& dialog = world_->Dialog();
  const int rows = dialog.ColumnCount();
  if (rows == 0) return;
  const int i = number / 4 % rows;
  ComboBox& words = dialog.cboOperator[i];
  words.SetListIndex(number / 12 % words.ListCount());
  dialog.cboCriteria[i].SetText(OneOf<Text>({u"a", u"Oak", u"E", u""}, number / 50));
  dialog.txtFrom[i].SetText(OneOf<Text>({u"3", u"1", u"6"}, number / 50));
  dialog.txtTo[i].SetText(OneOf<Text>({u"5", u"8", u""}, number / 70));
}

void BannerSession::Apply() {
  world_->Dialog().cmdApply.SetValue(true);
  CheckShown();
}

void BannerSession::Reset() {
  const bool filtered = Filtered();
  world_->Dialog().cmdReset.SetValue(true);
  if (filtered) ++counts_.resets;
  CheckAll();
}

void BannerSession::ApplyText(int number) {
  if (!attached_ && world_->control->Listview()) return;
  if (DialogWillOpen()) BeforeShowing();
  world_->control->ApplyFilter(
      OneOf<Text>({u"Name..11==a2==*?", u"Name..31==Oak2==*?Qty..11==32==*?", u"Qty..41==12==*?",
                   u"Due..31==6/1/20072==*?", u"x", u"Name..11==Oak2==", u"Nobody..11==Oak2==*?",
                   u"Name..991==Oak2==*?", u"Due..31==soon2==*?", u"Name..01==2==*?"},
                  number));
  if (attached_) modeless_ = false;
  CheckShown();
}

// What has to be there

void BannerSession::CheckShown() {
  const Rows shown = Shown();
  Note(ledger_.CheckShown(shown));
  ledger_.Believe(shown);
}

void BannerSession::CheckAll() {
  const Rows shown = Shown();
  const bool cut = keyReused_ && std::ranges::any_of(world_->prompts.boxes, [](const Text& box) {
                     return box.View().find(u"457") != TextView::npos;
                   });
  counts_.cutOff += cut ? 1 : 0;
  Note(cut ? ledger_.CheckCutOff(shown) : ledger_.CheckAll(shown));
  keyReused_ = false;
  world_->prompts.boxes.clear();
}

void BannerSession::Note(std::vector<std::string> wrong) {
  if (wrong_.empty()) wrong_ = std::move(wrong);
}

}  // namespace sifter
