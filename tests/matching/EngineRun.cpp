#include "EngineRun.h"

#include "matching/RowMatcher.h"

namespace sifter {

EngineRun::EngineRun() : conversions_(clock_) {}

void EngineRun::Apply(const Ref<HostListView>& list, const std::vector<FilterCriterion>& criteria,
                      MatchCase matchCase) {
  RowMatcher(list, criteria, matchCase == MatchCase::kOn, conversions_, cache_).ApplyCriteria();
}

}  // namespace sifter
