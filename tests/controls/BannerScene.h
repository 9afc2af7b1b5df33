#pragma once

#include "TalkativeList.h"
#include "support/BannerWorld.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace sifter {

// A banner over a list of eight trees, and a host that does something of its own in one of the
// moments in which its code runs: when its list sends a notice, before the banner hears of it and
// after, when its list is asked for its rows or its window, in an event, while a message box is up,
// while the focus moves, while the dialog is open.
class BannerScene {
 public:
  enum class Make { kOwn, kForeign };

  explicit BannerScene(Make make);
  ~BannerScene();

  // From now on the moments are counted, and in the moment of this number `work` is done.
  void Interfere(int moment, std::function<void()> work);
  void LeaveAlone() { listening_ = false; }
  // What the moment was, "" when it hasn't come.
  const std::string& Reached() const { return reached_; }

  TSLvwBannerFilter& Banner() { return *world_.control; }
  frmFilter& Dialog() { return world_.Dialog(); }
  HostListView& List() { return *world_.list; }
  void Attach() { Banner().SetListview(listview_); }
  void AttachAnother() { Banner().SetListview(world_.otherList); }
  void Tick() { world_.Tick(); }

  // The dialog has been made ready for another list: what it hid of this one is given up.
  bool AnotherShown() const { return anotherShown_; }

  // The user, in a modal showing. He can press only what is on the screen.
  void UserFilters(const char16_t* contains);
  void UserPresses(CommandButton frmFilter::*button);
  // The same in a dialog that is open.
  void Filter(const char16_t* contains);
  void Press(CommandButton frmFilter::*button);

  // The host. A row that is put into a list while that is clearing itself goes with the others.
  void Insert(const std::string& name);
  void Delete(int position);
  void Clear();
  void AddColumn();

  // Rows by their first texts, which are all different.
  std::vector<std::string> Shown();
  // All rows that the host has ever added, and whether it still has them. One that was taken out
  // under a filter, or while the banner was putting rows back, may be back.
  const std::map<std::string, bool>& Known() const { return known_; }

 private:
  void Moment(const char* kind);
  void NoteShowing();

  BannerWorld world_;
  Ref<TalkativeList> talkative_;
  Ref<HostListView> listview_;
  bool listening_ = false;
  bool anotherShown_ = false;
  int clearing_ = 0;
  int moments_ = 0;
  int moment_ = 0;
  std::string reached_;
  std::function<void()> work_;
  int rowsMade_ = 0;
  std::map<std::string, bool> known_;
};

}  // namespace sifter
