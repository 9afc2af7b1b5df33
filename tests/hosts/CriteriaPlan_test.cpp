#include "sift/CriteriaPlan.h"

#include "sift/HeadlessDialog.h"
#include "sift/UserError.h"
#include "support/ClockFake.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

namespace sifter {

void PrintTo(const RowAction& action, std::ostream* out) {
  *out << "{row " << action.row << " operator " << action.operatorIndex;
  for (const FieldInput& input : action.parameters) {
    *out << ' ' << Quoted(input.typed);
    if (input.chosen) *out << '#' << input.chosen->serial << '#';
  }
  *out << '}';
}

namespace {

FieldInput Typed(const char16_t* text) { return {text, std::nullopt}; }
FieldInput Chosen(double serial) { return {Text(), Date{serial}}; }

class CriteriaPlanTest : public testing::Test {
 protected:
  CriteriaPlanTest() {
    Form().UsersListview = MakeList({"Name", "Qty", "Due", "Paid", "Name"},
                                    {{"Oak", "3", "1/5/2020", "1/6/2020", "1"}});
    Form().SetUpForm();
  }

  frmFilter& Form() { return dialog_.Form(); }

  std::vector<RowAction> Plan(const std::vector<Where>& criteria) {
    return PlanCriteria(Form(), criteria, conversions_);
  }

  std::string ErrorOf(const Where& where) {
    try {
      Plan({where});
    } catch (const UserError& error) {
      return error.what();
    }
    return "nothing";
  }

  void PerformAll(const std::vector<Where>& criteria) {
    const std::vector<RowAction> actions = Plan(criteria);
    dialog_.ShowModal([&] {
      for (const RowAction& action : actions) Perform(Form(), action);
    });
  }

  ClockFake clock_;
  EnUsConversions conversions_{clock_};
  HeadlessDialog dialog_{conversions_, clock_};
};

TEST_F(CriteriaPlanTest, TypeOfRowReadsWhatTheDialogDecided) {
  const std::vector<ColumnDataType> types = {TypeOfRow(Form(), 0), TypeOfRow(Form(), 1),
                                             TypeOfRow(Form(), 2), TypeOfRow(Form(), 4)};
  EXPECT_EQ(types, (std::vector<ColumnDataType>{ColumnDataType::kText, ColumnDataType::kNumber,
                                                ColumnDataType::kDate, ColumnDataType::kNumber}));
}

struct PlanCase {
  const char* name;
  Where where;
  RowAction action;
};

TEST_F(CriteriaPlanTest, FindsRowOperatorAndInput) {
  const PlanCase cases[] = {
      {"text", {"Name", "starts with", {"5"}}, {0, 6, {Typed(u"5")}}},
      {"first of two columns of a name", {"Name", "All", {}}, {0, 0, {}}},
      {"number, whatever is typed", {"Qty", "equals", {"many"}}, {1, 2, {Typed(u"many")}}},
      {"number range", {"Qty", "is between", {"1", ""}}, {1, 3, {Typed(u"1"), Typed(u"")}}},
      {"date", {"Due", "is after", {"1/5/2020"}}, {2, 3, {Chosen(43835)}}},
      {"date with a time", {"Due", "equals", {"1/5/2020 12:00"}}, {2, 2, {Chosen(43835.5)}}},
      {"date of the current year", {"Due", "equals", {"1/5"}}, {2, 2, {Chosen(39087)}}},
      {"reference", {"Due", "is before", {"[Paid]"}}, {2, 4, {Typed(u"[Paid]")}}},
      {"reference begun", {"Due", "is before", {"["}}, {2, 4, {Typed(u"[")}}},
      {"reference and date",
       {"Due", "is not between", {"[Paid]", "1/5/2020"}},
       {2, 6, {Typed(u"[Paid]"), Chosen(43835)}}},
      {"no parameter", {"Paid", "is empty", {}}, {3, 7, {}}},
  };
  for (const PlanCase& c : cases)
    EXPECT_EQ(Plan({c.where}), std::vector<RowAction>{c.action}) << c.name;
}

TEST_F(CriteriaPlanTest, SaysWhatTheTableOffers) {
  constexpr const char* kNoColumn =
      "; the columns are \"Name\", \"Qty\", \"Due\", \"Paid\", \"Name\"";
  constexpr const char* kTextWords =
      " but \"All\", \"contains\", \"does not contain\", \"does not equal\", \"ends with\", "
      "\"equals\", \"starts with\"";
  constexpr const char* kNumberWords =
      " but \"All\", \"does not equal\", \"equals\", \"is between\", \"is greater than\", "
      "\"is less than\", \"is not between\"";
  constexpr const char* kDateWords =
      " but \"All\", \"does not equal\", \"equals\", \"is after\", \"is before\", \"is between\", "
      "\"is not between\", \"is empty\"";
  constexpr const char* kNoDate =
      " is no date; a date such as 12/31/2024 or a column in square brackets was expected";
  EXPECT_EQ(ErrorOf({"Nam", "equals", {"a"}}),
            std::string("there is no column \"Nam\"") + kNoColumn);
  EXPECT_EQ(ErrorOf({"name", "equals", {"a"}}),
            std::string("there is no column \"name\"") + kNoColumn);
  EXPECT_EQ(ErrorOf({"", "equals", {"a"}}), std::string("there is no column \"\"") + kNoColumn);
  EXPECT_EQ(
      ErrorOf({"Name", "is empty", {}}),
      std::string("\"Name\" is a text column, which does not offer \"is empty\"") + kTextWords);
  EXPECT_EQ(ErrorOf({"Name", "Equals", {"a"}}),
            std::string("\"Name\" is a text column, which does not offer \"Equals\"") + kTextWords);
  EXPECT_EQ(
      ErrorOf({"Qty", "contains", {"1"}}),
      std::string("\"Qty\" is a number column, which does not offer \"contains\"") + kNumberWords);
  EXPECT_EQ(ErrorOf({"Due", "like", {}}),
            std::string("\"Due\" is a date column, which does not offer \"like\"") + kDateWords);
  EXPECT_EQ(ErrorOf({"Due", "equals", {"soon"}}),
            std::string("\"Due\" is a date column, but \"soon\"") + kNoDate);
  EXPECT_EQ(ErrorOf({"Due", "equals", {""}}),
            std::string("\"Due\" is a date column, but \"\"") + kNoDate);
  EXPECT_EQ(ErrorOf({"Due", "is between", {"1/5/2020", "2020"}}),
            std::string("\"Due\" is a date column, but \"2020\"") + kNoDate);
}

TEST_F(CriteriaPlanTest, PutsTextsNumbersAndDatesIntoTheirFields) {
  PerformAll({{"Name", "contains", {"a"}},
              {"Qty", "is between", {"1", "5"}},
              {"Due", "is between", {"1/5/2020", "1/9/2020"}}});
  frmFilter& form = Form();
  EXPECT_EQ(form.cboOperator[0].Text(), u"contains");
  EXPECT_EQ(form.cboCriteria[0].Text(), u"a");
  EXPECT_EQ(form.cboOperator[1].Text(), u"is between");
  EXPECT_EQ(form.txtFrom[1].Text(), u"1");
  EXPECT_EQ(form.txtTo[1].Text(), u"5");
  EXPECT_EQ(form.cboOperator[2].Text(), u"is between");
  EXPECT_EQ(form.dtpFrom[2].Value(), Date{43835});
  EXPECT_EQ(form.dtpTo[2].Value(), Date{43839});
  EXPECT_EQ(form.txtFrom[2].Text(), u"");
}

// What a user sees, too: the picker keeps its date under the reference.
TEST_F(CriteriaPlanTest, TypesReferencesOverThePickers) {
  PerformAll({{"Due", "is between", {"[Paid]", "1/9/2020"}}});
  EXPECT_EQ(Form().txtFrom[2].Text(), u"[Paid]");
  EXPECT_EQ(Form().dtpFrom[2].Value(), clock_.Today());
  EXPECT_EQ(Form().txtTo[2].Text(), u"");
  EXPECT_EQ(Form().dtpTo[2].Value(), Date{43839});
}

TEST_F(CriteriaPlanTest, ActsOnOneRowAsOftenAsItIsTold) {
  PerformAll({{"Qty", "is between", {"1", "5"}}, {"Qty", "equals", {"3"}}});
  EXPECT_EQ(Form().cboOperator[1].Text(), u"equals");
  EXPECT_EQ(Form().txtFrom[1].Text(), u"3");
  EXPECT_TRUE(Form().txtTo[1].Visible());
  PerformAll({{"Qty", "All", {}}});
  EXPECT_EQ(Form().cboOperator[1].Text(), u"All");
  EXPECT_FALSE(Form().txtTo[1].Visible());
}

TEST_F(CriteriaPlanTest, FindsReferencesThatNameNoColumn) {
  PerformAll({{"Due", "is between", {"[Piad]", "["}}, {"Paid", "equals", {"[Due]"}}});
  EXPECT_EQ(UnresolvedReferences(Form()), (std::vector<Text>{u"[Piad]", u"["}));
  PerformAll({{"Due", "is after", {"1/5/2020"}}});
  EXPECT_EQ(UnresolvedReferences(Form()), std::vector<Text>{u"[Piad]"});
  PerformAll({{"Due", "is empty", {}}});
  EXPECT_EQ(UnresolvedReferences(Form()), std::vector<Text>());
}

}  // namespace
}  // namespace sifter
