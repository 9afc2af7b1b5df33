#include "matching/RowMatcher.h"

#include "base/AbsorbErrors.h"
#include "base/RuntimeError.h"
#include "matching/MatchedRows.h"

#include <limits>
#include <string>

namespace sifter {

namespace {

bool HasType(const FilterCriterion& criterion, ColumnDataType type) {
  return criterion.dataType == static_cast<std::int32_t>(type);
}

// Positions are 16-bit. The highest one is removed first, so one that is too high ends the
// removal before it has begun.
void RequireRemovable(const std::vector<std::int32_t>& positions) {
  if (!positions.empty() && positions.back() > std::numeric_limits<std::int16_t>::max())
    throw RuntimeError(ErrorNumber::kOverflow);
}

struct Routine {
  ColumnDataType type;
  TextView key;
  void (RowMatcher::*run)();
};

constexpr ColumnDataType kText = ColumnDataType::kText;
constexpr ColumnDataType kNumber = ColumnDataType::kNumber;
constexpr ColumnDataType kDate = ColumnDataType::kDate;

constexpr Routine kRoutines[] = {
    {kText, u"CONTAINS", &RowMatcher::FilterContains},
    {kText, u"EQUALS", &RowMatcher::FilterTextEquals},
    {kText, u"DOES NOT CONTAIN", &RowMatcher::FilterDoesNotContain},
    {kText, u"DOES NOT EQUAL", &RowMatcher::FilterTextNotEqual},
    {kText, u"STARTS WITH", &RowMatcher::FilterStartsWith},
    {kText, u"ENDS WITH", &RowMatcher::FilterEndsWith},
    {kNumber, u"EQUALS", &RowMatcher::FilterNumberEquals},
    {kNumber, u"DOES NOT EQUAL", &RowMatcher::FilterNumberNotEqual},
    {kNumber, u"IS GREATER THAN", &RowMatcher::FilterGreaterThan},
    {kNumber, u"IS LESS THAN", &RowMatcher::FilterLessThan},
    {kNumber, u"IS BETWEEN", &RowMatcher::FilterNumberBetween},
    {kNumber, u"IS NOT BETWEEN", &RowMatcher::FilterNumberNotBetween},
    {kDate, u"EQUALS", &RowMatcher::FilterDateEquals},
    {kDate, u"DOES NOT EQUAL", &RowMatcher::FilterDateNotEqual},
    {kDate, u"IS AFTER", &RowMatcher::FilterDateAfter},
    {kDate, u"IS BEFORE", &RowMatcher::FilterDateBefore},
    {kDate, u"IS BETWEEN", &RowMatcher::FilterDateBetween},
    {kDate, u"IS NOT BETWEEN", &RowMatcher::FilterDateNotBetween},
    {kDate, u"IS EMPTY", &RowMatcher::FilterDateEmpty},
};

}  // namespace

RowMatcher::RowMatcher(Ref<HostListView> list, std::span<const FilterCriterion> criteria,
                       bool caseSensitive, const Conversions& conversions, ColumnCache& cache)
    : list_(std::move(list)),
      criteria_(criteria),
      caseSensitive_(caseSensitive),
      conversions_(conversions),
      applied_(criteria.size(), false) {
  for (const FilterCriterion& criterion : criteria_)
    keys_.push_back(conversions_.ToUpper(criterion.operatorWord));
  if (list_) AbsorbErrors([&] { rows_ = MatchedRows::Of(*list_, conversions_, cache); });
}

RowMatcher::~RowMatcher() = default;

void RowMatcher::ApplyCriteria() {
  const UpdateScope update(list_.Get());
  for (const FilterCriterion& criterion : criteria_)
    if (criterion.operatorWord != kAllWord) Dispatch(criterion);
}

void RowMatcher::Dispatch(const FilterCriterion& criterion) {
  const Text& key = keys_[static_cast<std::size_t>(&criterion - criteria_.data())];
  for (const Routine& routine : kRoutines)
    if (HasType(criterion, routine.type) && key == routine.key) (this->*routine.run)();
}

template <class Test>
void RowMatcher::Run(ColumnDataType type, TextView key, Test test) {
  if (rows_ == nullptr) return;
  AbsorbErrors([&] {
    for (std::size_t k = 0; k < criteria_.size(); ++k) {
      if (applied_[k] || !HasType(criteria_[k], type) || keys_[k] != key) continue;
      const MatchPass pass{criteria_[k], static_cast<std::int32_t>(k) + 1, criteria_,
                           caseSensitive_, conversions_};
      const std::vector<std::int32_t> failing = rows_->FailingRows(pass, test);
      bool onlyThese = false;
      AbsorbErrors([&] {
        RequireRemovable(failing);
        onlyThese = rows_->Remove(failing);
      });
      // A row that the host has put in meanwhile may fail what was applied before it came.
      if (onlyThese)
        applied_[k] = true;
      else
        applied_.assign(applied_.size(), false);
    }
  });
}

// clang-format off
void RowMatcher::FilterContains() { Run(kText, u"CONTAINS", TextTest::kContains); }
void RowMatcher::FilterDoesNotContain() { Run(kText, u"DOES NOT CONTAIN", TextTest::kDoesNotContain); }
void RowMatcher::FilterStartsWith() { Run(kText, u"STARTS WITH", TextTest::kStartsWith); }
void RowMatcher::FilterEndsWith() { Run(kText, u"ENDS WITH", TextTest::kEndsWith); }
void RowMatcher::FilterTextEquals() { Run(kText, u"EQUALS", TextTest::kEquals); }
void RowMatcher::FilterTextNotEqual() { Run(kText, u"DOES NOT EQUAL", TextTest::kDoesNotEqual); }
void RowMatcher::FilterNumberEquals() { Run(kNumber, u"EQUALS", NumberTest::kEquals); }
void RowMatcher::FilterNumberNotEqual() { Run(kNumber, u"DOES NOT EQUAL", NumberTest::kDoesNotEqual); }
void RowMatcher::FilterGreaterThan() { Run(kNumber, u"IS GREATER THAN", NumberTest::kGreaterThan); }
void RowMatcher::FilterLessThan() { Run(kNumber, u"IS LESS THAN", NumberTest::kLessThan); }
void RowMatcher::FilterNumberBetween() { Run(kNumber, u"IS BETWEEN", NumberTest::kBetween); }
void RowMatcher::FilterNumberNotBetween() { Run(kNumber, u"IS NOT BETWEEN", NumberTest::kNotBetween); }
void RowMatcher::FilterDateEquals() { Run(kDate, u"EQUALS", DateTest::kEquals); }
void RowMatcher::FilterDateNotEqual() { Run(kDate, u"DOES NOT EQUAL", DateTest::kDoesNotEqual); }
void RowMatcher::FilterDateBefore() { Run(kDate, u"IS BEFORE", DateTest::kBefore); }
void RowMatcher::FilterDateAfter() { Run(kDate, u"IS AFTER", DateTest::kAfter); }
void RowMatcher::FilterDateBetween() { Run(kDate, u"IS BETWEEN", DateTest::kBetween); }
void RowMatcher::FilterDateNotBetween() { Run(kDate, u"IS NOT BETWEEN", DateTest::kNotBetween); }
void RowMatcher::FilterDateEmpty() { Run(kDate, u"IS EMPTY", DateTest::kEmpty); }
// clang-format on

}  // namespace sifter
