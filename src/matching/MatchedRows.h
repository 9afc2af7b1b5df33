#pragma once

#include "base/Conversions.h"
#include "listmodel/HostListView.h"
#include "matching/ColumnCache.h"
#include "matching/MatchPass.h"
#include "matching/Operators.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace sifter {

// The list that a run of the engine works on: tests its rows and takes the failing ones out, by
// the quickest way that the list offers.
class MatchedRows {
 public:
  virtual ~MatchedRows() = default;

  // `conversions` and `cache` are borrowed. An error of the list comes out.
  static std::unique_ptr<MatchedRows> Of(HostListView& list, const Conversions& conversions,
                                         ColumnCache& cache);

  virtual std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test) = 0;
  virtual std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test) = 0;
  virtual std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test) = 0;

  // Removes the rows at these positions (ascending) from the last to the first. Returns true when
  // it is certain that the list then holds just the remaining ones of the rows that were tested,
  // and that they are as they were: the host has not put its hand in.
  virtual bool Remove(const std::vector<std::int32_t>& positions) = 0;
};

}  // namespace sifter
