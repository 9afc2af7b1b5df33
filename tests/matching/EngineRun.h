#pragma once

#include "base/Conversions.h"
#include "base/Ref.h"
#include "listmodel/HostListView.h"
#include "matching/ColumnCache.h"
#include "matching/FilterCriterion.h"
#include "support/ClockFake.h"

#include <vector>

namespace sifter {

enum class MatchCase { kOff, kOn };

// Runs of the engine with one cache, in en-US.
class EngineRun {
 public:
  EngineRun();

  void Apply(const Ref<HostListView>& list, const std::vector<FilterCriterion>& criteria,
             MatchCase matchCase = MatchCase::kOff);

  const Conversions& EnUs() const { return conversions_; }
  ColumnCache& Cache() { return cache_; }

 private:
  ClockFake clock_;
  EnUsConversions conversions_;
  ColumnCache cache_;
};

}  // namespace sifter
