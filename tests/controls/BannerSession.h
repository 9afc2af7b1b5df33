#pragma once

#include "BannerOperations.h"
#include "RowLedger.h"
#include "support/BannerWorld.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace sifter {

// Plays operations on a banner over a list in memory and keeps the host's ledger beside it.
//
// There are flows in which a banner gives rows up or brings rows back that the host has taken out.
// A plain session leaves them out; another one plays them and counts how often each really did.
class BannerSession {
 public:
  enum class Flows { kPlain, kAll };

  // A list of our own shares its rows with the banner; one of a foreign make is read row by row.
  enum class Make { kOwn, kForeign };

  struct Counts {
    int operations = 0;
    int resets = 0;           // of a list with a filter in force
    int deactivations = 0;    // that gave hidden rows up
    int modelessGivenUp = 0;  // filters of a modeless dialog, whose hidden rows were given up
    int cutOff = 0;           // copies that ended at a key of a hidden row, used again
    int twinsGone = 0;        // rows of which an exact copy was added under a filter, and lost
    int oldForms = 0;         // rows that were edited under a filter, and are as before
    int rowsBack = 0;         // rows that were there before the list was cleared under a filter

    void Add(const Counts& other);
  };

  BannerSession(Flows flows, Make make);
  ~BannerSession();

  // What went wrong first, a line for each row; nothing when nothing did.
  std::vector<std::string> Play(const Operations& operations);
  Counts Counted() const;

 private:
  using Row = RowLedger::Row;
  using Rows = RowLedger::Rows;

  bool Plain() const { return flows_ == Flows::kPlain; }
  bool Filtered() { return world_->Dialog().blnFilterActive; }
  bool Active() const { return world_->control->Active(); }
  bool InForce() { return Active() || Filtered(); }
  // Nobody but the host knows of any row.
  bool Idle() { return !showing_ && !InForce() && !world_->Dialog().Visible(); }
  bool Watched() const { return attached_ && !showing_ && !modeless_; }

  template <class T>
  static const T& OneOf(const std::vector<T>& all, int number) {
    return all[static_cast<std::size_t>(number) % all.size()];
  }

  void Next();
  void Meanwhile(int acts);
  void Do(const Operation& operation);

  Rows Shown();
  Ref<ListItem> RowAt(int number);
  Row Read(ListItem& item) const;
  void Add(int where, const std::string& tag, const std::string& key,
           const std::vector<std::string>& texts);

  void Insert(int where, int what);
  void InsertTwin(int which);
  void ReuseKey(int which);
  void Delete(int which);
  void Clear();
  void Edit(int which);
  void Check(int which);
  void Tick();
  void AddColumn();
  void Deactivate(const std::function<void()>& deactivate);
  void Detach(int way, int acts);
  void ChangeOtherList(int how);

  bool DialogWillOpen();
  void BeforeShowing();
  void Showing(int leaving, int acts, const std::function<void()>& show);
  void ShowModeless(int leaving);
  void Leave(int leaving);
  void ChooseCriteria(int number);
  void Apply();
  void Reset();
  void ApplyText(int number);

  void CheckShown();
  void CheckAll();
  void Note(std::vector<std::string> wrong);

  const Flows flows_;
  std::unique_ptr<BannerWorld> world_;
  Ref<HostListView> listview_;  // what the banner gets
  RowLedger ledger_;
  Counts counts_;
  std::vector<std::string> wrong_;
  const Operations* operations_ = nullptr;
  std::size_t next_ = 0;
  int rowsMade_ = 0;
  std::map<std::string, std::string> keys_;  // by tag
  bool attached_ = true;
  bool showing_ = false;
  bool modeless_ = false;  // the banner is deaf until a showing has been wound up
  bool inserted_ = false;  // while the banner listened and had its filter in force
  bool keyReused_ = false;
};

}  // namespace sifter
