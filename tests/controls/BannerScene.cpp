#include "BannerScene.h"

#include "support/Lists.h"

#include <utility>

namespace sifter {

BannerScene::BannerScene(Make make) {
  Fill(*world_.list, {"Name", "Qty"}, {});
  Fill(*world_.otherList, {"Name", "Qty"}, {{"Oak", "100"}, {"Elm", "101"}});
  for (const char* name : {"Oak", "Elm", "Oak", "Ash", "Elm", "Oak", "Yew", "Elm"}) Insert(name);
  talkative_ = MakeRef<TalkativeList>(world_.list);
  listview_ = world_.list;
  if (make == Make::kForeign) listview_ = talkative_;
  Attach();
  talkative_->OnRows = [this] { Moment("rows asked for"); };
  talkative_->OnWindow = [this] { Moment("window asked for"); };
  world_.before.hears = [this](ListMessage message) {
    clearing_ += message == kDeleteAllItems ? 1 : 0;
    Moment("notice, before the banner");
  };
  world_.after.hears = [this](ListMessage message) {
    Moment("notice, after the banner");
    clearing_ -= message == kDeleteAllItems ? 1 : 0;
  };
  world_.prompts.whileUp = [this] { Moment("box"); };
  world_.user.movesFocus = [this] { Moment("focus"); };
  Banner().FilterActivated = [this] { Moment("FilterActivated"); };
  Banner().FilterDeactivated = [this] { Moment("FilterDeactivated"); };
  Banner().ExtraButtonClicked = [this](Text&) { Moment("ExtraButtonClicked"); };
  Banner().PropertyChanged = [this](TextView) { Moment("PropertyChanged"); };
  Banner().SettingChanged = [this] { Moment("SettingChanged"); };
}

BannerScene::~BannerScene() { listening_ = false; }

void BannerScene::Interfere(int moment, std::function<void()> work) {
  listening_ = true;
  moment_ = moment;
  work_ = std::move(work);
}

void BannerScene::Moment(const char* kind) {
  if (!listening_ || ++moments_ != moment_) return;
  reached_ = kind;
  listening_ = false;
  work_();
  listening_ = true;
}

void BannerScene::NoteShowing() {
  anotherShown_ |= Banner().Listview() == world_.otherList && Dialog().Visible();
}

void BannerScene::UserFilters(const char16_t* contains) {
  world_.Show([this, contains] {
    NoteShowing();
    Moment("dialog open");
    Filter(contains);
  });
}

void BannerScene::UserPresses(CommandButton frmFilter::*button) {
  world_.Show([this, button] {
    NoteShowing();
    Moment("dialog open");
    Press(button);
  });
}

void BannerScene::Filter(const char16_t* contains) {
  if (!Dialog().Visible() || Dialog().ColumnCount() == 0) return;
  Dialog().cboOperator[0].SetListIndex(1);
  Dialog().cboCriteria[0].SetText(contains);
  Press(&frmFilter::cmdApply);
}

void BannerScene::Press(CommandButton frmFilter::*button) {
  if (Dialog().Visible()) (Dialog().*button).SetValue(true);
}

void BannerScene::Insert(const std::string& name) {
  const std::string number = std::to_string(++rowsMade_);
  known_[name + ' ' + number] = clearing_ == 0;
  AddRow(*world_.list, {name + ' ' + number, number});
}

void BannerScene::Delete(int position) {
  const Ref<ListItemCollection> rows = world_.list->ListItems();
  if (position > rows->Count()) return;
  known_[ValueToText(rows->Item(position)->Text()).ToUtf8()] = false;
  rows->Remove(position);
}

void BannerScene::Clear() {
  for (const std::string& row : Shown()) known_[row] = false;
  world_.list->ListItems()->Clear();
  // Whoever has put all rows back meanwhile has put them into a list that was going.
  if (!Dialog().blnFilterActive)
    for (auto& [row, needed] : known_) needed = false;
}

void BannerScene::AddColumn() { sifter::AddColumn(*world_.list, "More"); }

std::vector<std::string> BannerScene::Shown() { return FirstTexts(*world_.list); }

}  // namespace sifter
