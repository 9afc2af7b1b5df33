#include "matching/MatchPass.h"

#include "matching/CaseFolding.h"
#include "matching/CellTests.h"
#include "matching/ParameterValues.h"

#include <string>

namespace sifter {

namespace {

using Positions = std::vector<std::int32_t>;

// The positions of the rows for which `passes(i)` is false.
template <class Passes>
Positions Failing(std::size_t count, Passes passes) {
  Positions failing(count);
  std::size_t found = 0;
  for (std::size_t i = 0; i < count; ++i) {
    failing[found] = static_cast<std::int32_t>(i) + 1;
    found += passes(i) ? 0u : 1u;
  }
  failing.resize(found);
  return failing;
}

// Calls `work` with the test as a constant, so that each test gets a loop of its own.
template <auto test>
struct Constant {
  static constexpr auto value = test;
};

template <class Work>
Positions WithConstant(TextTest test, Work work) {
  switch (test) {
    case TextTest::kContains:
      return work(Constant<TextTest::kContains>());
    case TextTest::kDoesNotContain:
      return work(Constant<TextTest::kDoesNotContain>());
    case TextTest::kStartsWith:
      return work(Constant<TextTest::kStartsWith>());
    case TextTest::kEndsWith:
      return work(Constant<TextTest::kEndsWith>());
    case TextTest::kEquals:
      return work(Constant<TextTest::kEquals>());
    case TextTest::kDoesNotEqual:
      return work(Constant<TextTest::kDoesNotEqual>());
    case TextTest::kNone:
      break;
  }
  return {};
}

template <class Work>
Positions WithConstant(NumberTest test, Work work) {
  switch (test) {
    case NumberTest::kEquals:
      return work(Constant<NumberTest::kEquals>());
    case NumberTest::kDoesNotEqual:
      return work(Constant<NumberTest::kDoesNotEqual>());
    case NumberTest::kGreaterThan:
      return work(Constant<NumberTest::kGreaterThan>());
    case NumberTest::kLessThan:
      return work(Constant<NumberTest::kLessThan>());
    case NumberTest::kBetween:
      return work(Constant<NumberTest::kBetween>());
    case NumberTest::kNotBetween:
      return work(Constant<NumberTest::kNotBetween>());
    case NumberTest::kNone:
      break;
  }
  return {};
}

template <class Work>
Positions WithConstant(DateTest test, Work work) {
  switch (test) {
    case DateTest::kEquals:
      return work(Constant<DateTest::kEquals>());
    case DateTest::kDoesNotEqual:
      return work(Constant<DateTest::kDoesNotEqual>());
    case DateTest::kAfter:
      return work(Constant<DateTest::kAfter>());
    case DateTest::kBefore:
      return work(Constant<DateTest::kBefore>());
    case DateTest::kBetween:
      return work(Constant<DateTest::kBetween>());
    case DateTest::kNotBetween:
      return work(Constant<DateTest::kNotBetween>());
    case DateTest::kEmpty:
      return work(Constant<DateTest::kEmpty>());
    case DateTest::kNone:
      break;
  }
  return {};
}

// A parameter of the pass: one value for all rows, or the value of a cell of each row.
template <class T>
class Parameter {
 public:
  Parameter(const MatchPass& pass, ParameterSlot slot, ColumnDataType type)
      : control_(pass.criterion, slot, pass.rows),
        type_(static_cast<std::int16_t>(type)),
        conversions_(pass.conversions) {
    if (IsConstant()) value_ = Get([](std::int16_t) { return Text(); });
  }

  bool IsConstant() const { return control_.Reference() == 0; }
  const T& Value() const { return value_; }

  template <class Row>
  T At(const Row& row) const {
    if (IsConstant()) return value_;
    return Get([&row](std::int16_t column) { return Text(row.ColumnText(column)); });
  }

 private:
  template <class CellText>
  T Get(CellText cellText) const {
    return *GetParameterValue(control_, cellText, type_, conversions_).template As<T>();
  }

  ParameterControl control_;
  std::int16_t type_;
  const Conversions& conversions_;
  T value_{};
};

template <class Rows>
Positions ReadTexts(const MatchPass& pass, TextTest test, const Rows& rows) {
  const CaseFolding folding(pass.caseSensitive, pass.conversions);
  const Parameter<Text> parameter(pass, ParameterSlot::kFirst, ColumnDataType::kText);
  std::u16string cellUnits;
  std::u16string parameterUnits;
  return WithConstant(test, [&](auto constant) {
    return Failing(rows.Count(), [&](std::size_t i) {
      const auto& row = rows.At(i);
      const Text cell(row.ColumnText(pass.column));
      const Text value = parameter.At(row);
      return PassesText<constant.value>(folding.Fold(cell, cellUnits),
                                        folding.Fold(value, parameterUnits));
    });
  });
}

constexpr bool IsRange(NumberTest test) {
  return test == NumberTest::kBetween || test == NumberTest::kNotBetween;
}

constexpr bool IsRange(DateTest test) {
  return test == DateTest::kBetween || test == DateTest::kNotBetween;
}

template <class Rows>
Positions ReadNumbers(const MatchPass& pass, NumberTest test, const Rows& rows) {
  const Parameter<double> first(pass, ParameterSlot::kFirst, ColumnDataType::kNumber);
  const Parameter<double> second(pass, ParameterSlot::kSecond, ColumnDataType::kNumber);
  return WithConstant(test, [&](auto constant) {
    return Failing(rows.Count(), [&](std::size_t i) {
      const auto& row = rows.At(i);
      const Text cell(row.ColumnText(pass.column));
      return PassesNumber<constant.value>(cell.IsEmpty(), LeadingNumber(cell), first.At(row),
                                          IsRange(constant.value) ? second.At(row) : 0);
    });
  });
}

// The parameters come before the cell: a reference to a cell that is no date ends the pass even
// where the row's own cell is empty. "is empty" asks for neither a parameter nor a date.
template <class Rows>
Positions ReadDates(const MatchPass& pass, DateTest test, const Rows& rows) {
  const Parameter<Date> first(pass, ParameterSlot::kFirst, ColumnDataType::kDate);
  const Parameter<Date> second(pass, ParameterSlot::kSecond, ColumnDataType::kDate);
  return WithConstant(test, [&](auto constant) {
    constexpr DateTest kTest = decltype(constant)::value;
    return Failing(rows.Count(), [&](std::size_t i) {
      const auto& row = rows.At(i);
      const Text cell(row.ColumnText(pass.column));
      if constexpr (kTest == DateTest::kEmpty) {
        return cell.IsEmpty();
      } else {
        const double a = MomentOf(first.At(row));
        const double b = IsRange(kTest) ? MomentOf(second.At(row)) : 0;
        const double own = cell.IsEmpty() ? 0 : MomentOf(CellDate(cell, pass.conversions));
        return PassesDate<kTest>(cell.IsEmpty(), own, a, b);
      }
    });
  });
}

std::size_t CacheColumn(const MatchPass& pass) { return static_cast<std::size_t>(pass.column - 1); }

Positions TestTexts(const MatchPass& pass, TextTest test, const CachedRows& cached,
                    const Text& value) {
  const CaseFolding folding(pass.caseSensitive, pass.conversions);
  const TextColumn& cells = cached.cache.Texts(CacheColumn(pass), folding);
  std::u16string buffer;
  const TextView parameter = folding.Fold(value, buffer);
  return WithConstant(test, [&](auto constant) {
    return Failing(cached.places.size(), [&](std::size_t i) {
      return PassesText<constant.value>(cells[cached.places[i]], parameter);
    });
  });
}

Positions TestNumbers(const MatchPass& pass, NumberTest test, const CachedRows& cached,
                      double first, double second) {
  const NumberColumn& cells = cached.cache.Numbers(CacheColumn(pass));
  return WithConstant(test, [&](auto constant) {
    return Failing(cached.places.size(), [&](std::size_t i) {
      const std::uint32_t place = cached.places[i];
      return PassesNumber<constant.value>(cells.empty[place] != 0, cells.numbers[place], first,
                                          second);
    });
  });
}

Positions TestDates(const MatchPass& pass, DateTest test, const CachedRows& cached, Date first,
                    Date second) {
  const DateColumn& cells = cached.cache.Dates(CacheColumn(pass), pass.conversions);
  unsigned bad = 0;
  for (const std::uint32_t place : cached.places) bad |= cells.bad[place];
  if (bad != 0 && test != DateTest::kEmpty) throw RuntimeError(ErrorNumber::kTypeMismatch);
  const double from = MomentOf(first);
  const double to = MomentOf(second);
  return WithConstant(test, [&](auto constant) {
    return Failing(cached.places.size(), [&](std::size_t i) {
      const std::uint32_t place = cached.places[i];
      return PassesDate<constant.value>(cells.empty[place] != 0, cells.moments[place], from, to);
    });
  });
}

}  // namespace

std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test, const LiveRows& rows) {
  return ReadTexts(pass, test, rows);
}

std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test,
                                      const LiveRows& rows) {
  return ReadNumbers(pass, test, rows);
}

std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test, const LiveRows& rows) {
  return ReadDates(pass, test, rows);
}

std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test, const OwnRows& rows,
                                      const CachedRows* cached) {
  const Parameter<Text> parameter(pass, ParameterSlot::kFirst, ColumnDataType::kText);
  if (cached == nullptr || !parameter.IsConstant()) return ReadTexts(pass, test, rows);
  return TestTexts(pass, test, *cached, parameter.Value());
}

std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test, const OwnRows& rows,
                                      const CachedRows* cached) {
  const Parameter<double> first(pass, ParameterSlot::kFirst, ColumnDataType::kNumber);
  const Parameter<double> second(pass, ParameterSlot::kSecond, ColumnDataType::kNumber);
  const bool constant = first.IsConstant() && (!IsRange(test) || second.IsConstant());
  if (cached == nullptr || !constant) return ReadNumbers(pass, test, rows);
  return TestNumbers(pass, test, *cached, first.Value(), second.Value());
}

std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test, const OwnRows& rows,
                                      const CachedRows* cached) {
  const Parameter<Date> first(pass, ParameterSlot::kFirst, ColumnDataType::kDate);
  const Parameter<Date> second(pass, ParameterSlot::kSecond, ColumnDataType::kDate);
  const bool constant =
      test == DateTest::kEmpty || (first.IsConstant() && (!IsRange(test) || second.IsConstant()));
  if (cached == nullptr || !constant) return ReadDates(pass, test, rows);
  return TestDates(pass, test, *cached, first.Value(), second.Value());
}

}  // namespace sifter
