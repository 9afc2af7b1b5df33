#include "BannerSession.h"
#include "support/Lists.h"

#include <algorithm>
#include <string>
#include <vector>

// What the host does in a session.

namespace sifter {

void BannerSession::Add(int where, const std::string& tag, const std::string& key,
                        const std::vector<std::string>& texts) {
  const Ref<ListItemCollection> items = world_->list->ListItems();
  const Ref<ListItem> row = items->Add(where % (items->Count() + 2), Text::FromUtf8(key),
                                       Text::FromUtf8(texts[0]), Value(), Value());
  for (std::size_t j = 1; j < texts.size(); ++j)
    row->SetSubItems(static_cast<std::int32_t>(j), Text::FromUtf8(texts[j]));
  row->SetTag(Text::FromUtf8(tag));
  ledger_.Added(Read(*row));
  if (Active() && Watched()) inserted_ = true;
}

void BannerSession::Insert(int where, int what) {
  const std::string tag = "r" + std::to_string(++rowsMade_);
  const std::string key = what % 3 == 0 ? "k" + std::to_string(rowsMade_) : "";
  keys_[tag] = key;
  Add(where, tag, key,
      {OneOf<std::string>({"Oak", "Ash", "Elm", "Yew"}, what), std::to_string(what % 9),
       OneOf<std::string>({"", "1/5/2007", "6/15/2007"}, what / 3)});
}

// With a filter in force only one of a row and its exact copy is known, and comes back.
void BannerSession::InsertTwin(int which) {
  const Ref<ListItem> row = RowAt(which);
  if (!row || (Plain() && !Idle()) || ValueToBoolean(row->Checked())) return;
  const Row original = Read(*row);
  if (original.tag.empty() || !keys_[original.tag].empty() || ledger_.IsDoubtful(original.tag))
    return;
  const std::vector<std::string> texts = {ValueToText(row->Text()).ToUtf8(),
                                          ValueToText(row->SubItems(1)).ToUtf8(),
                                          ValueToText(row->SubItems(2)).ToUtf8()};
  Add(0, original.tag, "", texts);
  if (InForce()) ledger_.MayLackTwin(original);
}

// The copy that puts both into the list ends there.
void BannerSession::ReuseKey(int which) {
  if (Plain() || !Filtered()) return;
  Rows hidden = ledger_.Missing(Shown());
  std::erase_if(hidden, [this](const Row& row) { return keys_[row.tag].empty(); });
  if (hidden.empty()) return;
  const std::string key = keys_[OneOf(hidden, which).tag];
  const auto sameKey = [&key](const Row& row) { return row.content.starts_with(key + '|'); };
  if (std::ranges::any_of(Shown(), sameKey)) return;
  const std::string tag = "r" + std::to_string(++rowsMade_);
  keys_[tag] = key;
  Add(0, tag, key, {"Oak", "3", ""});
  keyReused_ = true;
}

void BannerSession::Delete(int which) {
  const Ref<ListItem> row = RowAt(which);
  if (!row) return;
  const Row gone = Read(*row);
  const bool edited = ledger_.IsDoubtful(gone.tag) && !ledger_.HasTwins(gone.tag);
  ledger_.Removed(gone);
  // Its old form is what the banner knows of.
  if (edited && InForce()) ledger_.MayReturn(gone);
  world_->list->ListItems()->Remove(row->Index());
}

void BannerSession::Clear() {
  if (Plain() && !Idle()) return;
  for (const Row& row : Shown()) {
    ledger_.Removed(row);
    if (Active() && Watched()) ledger_.MayReturn(row);
  }
  world_->list->ListItems()->Clear();
}

void BannerSession::Edit(int which) {
  const Ref<ListItem> row = RowAt(which);
  if (!row || (Plain() && !Idle())) return;
  const Row before = Read(*row);
  if (before.tag.empty() || ledger_.HasTwins(before.tag)) return;
  row->SetText(Text::FromUtf8("Elm " + std::to_string(++rowsMade_)));
  ledger_.Edited(before, Read(*row));
  if (!Idle()) ledger_.MayHaveOldForm(before);
}

void BannerSession::Check(int which) {
  const Ref<ListItem> row = RowAt(which);
  if (!row || (Plain() && !Idle())) return;
  const Row before = Read(*row);
  if (ledger_.HasTwins(before.tag)) return;
  row->SetChecked(!ValueToBoolean(row->Checked()));
  ledger_.Edited(before, Read(*row));
}

void BannerSession::AddColumn() {
  if (Plain() || showing_ || world_->Dialog().Visible() ||
      world_->list->ColumnHeaders()->Count() > 5)
    return;
  const auto add = [this] { sifter::AddColumn(*world_->list, "More"); };
  Active() && attached_ ? Deactivate(add) : add();
}

void BannerSession::Deactivate(const std::function<void()>& deactivate) {
  if (Plain() && Filtered()) return;
  const bool filtered = Filtered();
  deactivate();
  if (filtered)
    counts_.deactivations += ledger_.GiveUpAllBut(Shown()) > 0 ? 1 : 0;
  else
    CheckAll();
}

void BannerSession::Detach(int way, int acts) {
  if (!attached_) return;
  TSLvwBannerFilter& control = *world_->control;
  attached_ = false;
  switch (way % 3) {
    case 0:
      control.SetListview(nullptr);
      break;
    case 1:
      control.ReleaseListview();
      break;
    default:
      control.SetListview(world_->otherList);
      ChangeOtherList(way);
      break;
  }
  Meanwhile(acts);
  control.SetListview(listview_);
  attached_ = true;
}

void BannerSession::ChangeOtherList(int how) {
  const Ref<ListItemCollection> rows = world_->otherList->ListItems();
  if (how % 5 == 0) rows->Clear();
  if (how % 2 == 0) AddRow(*world_->otherList, {"Ash", "5", ""});
  if (how % 3 == 0 && rows->Count() > 0) rows->Remove(1);
  if (how % 7 < 3) Tick();
}

}  // namespace sifter
