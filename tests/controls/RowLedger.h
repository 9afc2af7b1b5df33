#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace sifter {

// What the host believes its list to hold: every row that it has added and not taken out again,
// whether a filter shows it or not. Rows are told apart by their tags; rows with the same tag are
// twins.
//
// Where a filter is known to give a row up or to bring one back, the host says so with one of the
// members that begin with May, for this one row; every other row has to be there, as often as it
// was added and as it was written.
class RowLedger {
 public:
  struct Row {
    std::string tag;
    std::string content;
    auto operator<=>(const Row&) const = default;
  };
  using Rows = std::vector<Row>;

  void Added(const Row& row) { lines_[row.tag].sure.insert(row.content); }
  void Removed(const Row& row);
  void Edited(const Row& before, const Row& after);

  // A filter is in force that doesn't know yet what the host has done to this row.
  void MayLackTwin(const Row& row) { ++lines_[row.tag].mayLack; }
  void MayReturn(const Row& row);
  void MayHaveOldForm(const Row& before);

  bool HasTwins(const std::string& tag) const;
  bool IsDoubtful(const std::string& tag) const;

  // The filter has learnt of everything: no row comes back any more, and no old form of one.
  void NothingReturns();

  // The rows that `shown` lacks are given up. Returns how many there were.
  int GiveUpAllBut(const Rows& shown);

  // Rows of the list that can't be explained, a line for each. Rows may be hidden.
  std::vector<std::string> CheckShown(const Rows& shown) const;
  // The same for a list without a filter: nothing may be missing either. What the list shows is
  // what the host believes from then on.
  std::vector<std::string> CheckAll(const Rows& all);
  // The same when the list is known to be cut off: what is there counts.
  std::vector<std::string> CheckCutOff(const Rows& some);

  // The filter has put its rows into the list: what has come back is there now.
  void Believe(const Rows& shown);

  Rows Missing(const Rows& shown) const;

  // What has been let pass so far because of what may happen.
  struct Excuses {
    int twinsGone = 0;
    int oldForms = 0;
    int rowsBack = 0;
  };
  const Excuses& Excused() const { return excused_; }

 private:
  struct Line {
    std::multiset<std::string> sure;
    std::set<std::string> formers;  // forms that the row has had
    bool oldFormKept = false;       // or not: an apply has come in between
    std::size_t mayLack = 0;
    std::size_t mayReturn = 0;
    std::size_t hasReturned = 0;  // or not
  };

  static void CountBack(Line& line);
  static std::map<std::string, std::multiset<std::string>> ByTag(const Rows& rows);
  static void CheckForms(const std::string& tag, const Line& line,
                         const std::multiset<std::string>& seen, std::vector<std::string>& wrong);
  void CountExcuses(const Line& line, const std::multiset<std::string>& seen);

  std::map<std::string, Line> lines_;
  Excuses excused_;
};

}  // namespace sifter
