#include "RowLedger.h"

#include <algorithm>
#include <utility>

namespace sifter {

namespace {

template <class Set>
bool TakeOne(Set& set, const std::string& content) {
  const auto found = set.find(content);
  if (found == set.end()) return false;
  set.erase(found);
  return true;
}

}  // namespace

// The list may show another form than the host last wrote, or a row that has come back.
void RowLedger::Removed(const Row& row) {
  Line& line = lines_[row.tag];
  if (TakeOne(line.sure, row.content)) {
    line.mayLack = std::min(line.mayLack, line.sure.size());
  } else if (!line.sure.empty()) {
    line.sure.erase(line.sure.begin());
  } else {
    CountBack(line);
  }
}

void RowLedger::CountBack(Line& line) {
  std::size_t& returning = line.mayReturn > 0 ? line.mayReturn : line.hasReturned;
  if (returning > 0) --returning;
}

void RowLedger::Edited(const Row& before, const Row& after) {
  Line& line = lines_[before.tag];
  if (!TakeOne(line.sure, before.content)) {
    if (line.sure.empty())
      CountBack(line);
    else
      line.sure.erase(line.sure.begin());
  }
  Added(after);
}

void RowLedger::MayReturn(const Row& row) {
  Line& line = lines_[row.tag];
  ++line.mayReturn;
  line.formers.insert(row.content);
}

void RowLedger::MayHaveOldForm(const Row& before) {
  lines_[before.tag].formers.insert(before.content);
}

bool RowLedger::HasTwins(const std::string& tag) const {
  const auto found = lines_.find(tag);
  return found != lines_.end() && found->second.sure.size() > 1;
}

bool RowLedger::IsDoubtful(const std::string& tag) const {
  const auto found = lines_.find(tag);
  return found != lines_.end() && (!found->second.formers.empty() || found->second.mayLack > 0);
}

void RowLedger::NothingReturns() {
  for (auto& [tag, line] : lines_) {
    line.mayReturn = 0;
    if (line.hasReturned == 0 && !line.oldFormKept) line.formers.clear();
  }
}

int RowLedger::GiveUpAllBut(const Rows& shown) {
  const auto lost = static_cast<int>(Missing(shown).size());
  lines_.clear();
  for (const Row& row : shown) Added(row);
  return lost;
}

RowLedger::Rows RowLedger::Missing(const Rows& shown) const {
  Rows missing;
  auto seen = ByTag(shown);
  for (const auto& [tag, line] : lines_)
    for (const std::string& content : line.sure)
      if (!TakeOne(seen[tag], content)) missing.push_back({tag, content});
  return missing;
}

std::map<std::string, std::multiset<std::string>> RowLedger::ByTag(const Rows& rows) {
  std::map<std::string, std::multiset<std::string>> byTag;
  for (const Row& row : rows) byTag[row.tag].insert(row.content);
  return byTag;
}

void RowLedger::CheckForms(const std::string& tag, const Line& line,
                           const std::multiset<std::string>& seen,
                           std::vector<std::string>& wrong) {
  if (seen.size() > line.sure.size() + line.mayReturn + line.hasReturned)
    wrong.push_back(tag + " is there " + std::to_string(seen.size()) + " times, not " +
                    std::to_string(line.sure.size()));
  std::multiset<std::string> sure = line.sure;
  for (const std::string& content : seen)
    if (!TakeOne(sure, content) && !line.formers.contains(content))
      wrong.push_back(tag + " was never added like this: " + content);
}

std::vector<std::string> RowLedger::CheckShown(const Rows& shown) const {
  std::vector<std::string> wrong;
  static const Line none;
  for (const auto& [tag, seen] : ByTag(shown)) {
    const auto found = lines_.find(tag);
    CheckForms(tag, found == lines_.end() ? none : found->second, seen, wrong);
  }
  return wrong;
}

std::vector<std::string> RowLedger::CheckAll(const Rows& all) {
  std::vector<std::string> wrong = CheckShown(all);
  auto seen = ByTag(all);
  for (const auto& [tag, line] : lines_) {
    const std::multiset<std::string>& forms = seen[tag];
    if (forms.size() + line.mayLack < line.sure.size())
      wrong.push_back(tag + " is there " + std::to_string(forms.size()) + " times, not " +
                      std::to_string(line.sure.size()));
    CountExcuses(line, forms);
  }
  GiveUpAllBut(all);
  return wrong;
}

void RowLedger::CountExcuses(const Line& line, const std::multiset<std::string>& seen) {
  if (seen.size() < line.sure.size()) ++excused_.twinsGone;
  if (seen.size() > line.sure.size()) ++excused_.rowsBack;
  if (seen.size() == line.sure.size() && seen != line.sure) ++excused_.oldForms;
}

std::vector<std::string> RowLedger::CheckCutOff(const Rows& some) {
  std::vector<std::string> wrong = CheckShown(some);
  GiveUpAllBut(some);
  return wrong;
}

// A form that was written over is the row's form again when the list shows it and not the new one.
// What has come back and isn't shown is behind the filter by now, where nobody looks for it.
void RowLedger::Believe(const Rows& shown) {
  for (const auto& [tag, seen] : ByTag(shown)) {
    Line& line = lines_[tag];
    std::multiset<std::string> sure = line.sure;
    for (const std::string& content : seen) {
      if (TakeOne(sure, content)) continue;
      if (sure.empty()) {
        CountBack(line);
      } else {
        line.formers.insert(*sure.begin());
        line.sure.erase(line.sure.find(*sure.begin()));
        sure.erase(sure.begin());
      }
      line.sure.insert(content);
    }
  }
  for (auto& [tag, line] : lines_) {
    line.hasReturned += std::exchange(line.mayReturn, 0);
    line.oldFormKept |= !line.formers.empty();
  }
}

}  // namespace sifter
