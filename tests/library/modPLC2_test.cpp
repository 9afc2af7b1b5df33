#include "library/modPLC2.h"

#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"
#include "support/SparseListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using modPLC2::PositionOf;

// A row with two cells, every attribute of which is set but the key, which no two rows share.
template <class List>
auto AddDressedRow(List& list, const char* text = "oak") {
  const auto item = AddRow(list, {text, "1", "2"});
  item->SetTag(u"tag");
  item->SetToolTipText(u"tip");
  item->SetIcon(std::int32_t{3});
  item->SetSmallIcon(u"small");
  item->SetBold(true);
  item->SetChecked(true);
  item->SetGhosted(true);
  item->SetForeColor(std::int32_t{128});
  for (std::int32_t j = 1; j <= 2; ++j) {
    const auto cell = item->ListSubItems()->Item(j);
    cell->SetKey(u"cell");
    cell->SetTag(u"cell tag");
    cell->SetReportIcon(std::int32_t{5});
    cell->SetToolTipText(u"cell tip");
    cell->SetForeColor(std::int32_t{64});
    cell->SetBold(true);
  }
  return item;
}

// Another value for one attribute of a row or of its second cell.
template <class Item>
void Change(Item& item, const std::string& attribute) {
  const auto cell = item.ListSubItems()->Item(2);
  const std::map<std::string, std::function<void()>> changes = {
      {"Key", [&] { item.SetKey(u"K"); }},
      {"Tag", [&] { item.SetTag(u"Tag"); }},
      {"Icon", [&] { item.SetIcon(u"3"); }},
      {"SmallIcon", [&] { item.SetSmallIcon(Value()); }},
      {"Text", [&] { item.SetText(u"Oak"); }},
      {"ToolTipText", [&] { item.SetToolTipText(u""); }},
      {"CellKey", [&] { cell->SetKey(u"Cell"); }},
      {"CellText", [&] { cell->SetText(u"2 "); }},
      {"CellTag", [&] { cell->SetTag(u""); }},
      {"CellReportIcon", [&] { cell->SetReportIcon(std::int32_t{6}); }},
      {"Bold", [&] { item.SetBold(false); }},
      {"Checked", [&] { item.SetChecked(false); }},
      {"Ghosted", [&] { item.SetGhosted(false); }},
      {"ForeColor", [&] { item.SetForeColor(std::int32_t{129}); }},
      {"CellToolTipText", [&] { cell->SetToolTipText(u""); }},
      {"CellForeColor", [&] { cell->SetForeColor(std::int32_t{65}); }},
      {"CellBold", [&] { cell->SetBold(false); }},
  };
  changes.at(attribute)();
}

// Hands `use` an empty list of each kind: one of our own, one of a foreign make, a snapshot.
template <class Use>
void WithEveryKind(const std::vector<std::string>& columns, Use use) {
  const Ref<MemoryListView> own = MakeList(columns);
  use("list", *own);
  Recorder calls;
  const auto foreign = MakeRef<RecordingListView>(MakeList(columns), calls);
  foreign->RecordNothing();
  use("foreign list", *foreign);
  const Ref<ListViewDump> dump = MakeDump(columns);
  use("snapshot", *dump);
}

// Where a row filled by `fillGiven` is found in a list filled by `fillList`, in every pair of
// kinds.
template <class FillGiven, class FillList>
void ExpectPosition(std::int32_t position, FillGiven fillGiven, FillList fillList) {
  const std::vector<std::string> columns = {"Name", "Qty", "Due"};
  WithEveryKind(columns, [&](const char* givenKind, auto& givenList) {
    const auto given = fillGiven(givenList);
    WithEveryKind(columns, [&](const char* listKind, auto& list) {
      fillList(list);
      EXPECT_EQ(PositionOf(*given, *list.ListItems()), position)
          << "row of a " << givenKind << " in a " << listKind;
    });
  });
}

const auto kDressed = [](auto& list) { return AddDressedRow(list); };

TEST(PositionOf, IsThatOfTheFirstEqualRow) {
  ExpectPosition(2, kDressed, [](auto& list) {
    AddDressedRow(list, "elm");
    for (int i = 0; i < 2; ++i) AddDressedRow(list);
  });
}

TEST(PositionOf, IsZeroWhenNoRowIsEqual) {
  ExpectPosition(0, kDressed, [](auto&) {});
  ExpectPosition(0, kDressed, [](auto& list) {
    AddDressedRow(list, "elm");
    AddDressedRow(list, "OAK");
  });
}

class PositionOfARowPasses : public testing::TestWithParam<const char*> {};

TEST_P(PositionOfARowPasses, OneThatDiffers) {
  const auto changed = [](auto& list) {
    const auto item = AddDressedRow(list);
    Change(*item, GetParam());
    return item;
  };
  const auto changedThenSame = [&](auto& list) {
    changed(list);
    AddDressedRow(list);
  };
  ExpectPosition(2, kDressed, changedThenSame);
  ExpectPosition(1, changed, changedThenSame);
  ExpectPosition(0, kDressed, changed);
}

INSTANTIATE_TEST_SUITE_P(Attributes, PositionOfARowPasses,
                         testing::Values("Key", "Tag", "Icon", "SmallIcon", "Text", "ToolTipText",
                                         "CellKey", "CellText", "CellTag", "CellReportIcon"),
                         [](const auto& attribute) { return std::string(attribute.param); });

class PositionOfARowFinds : public testing::TestWithParam<const char*> {};

TEST_P(PositionOfARowFinds, OneThatOnlyLooksDifferent) {
  const auto changed = [](auto& list) {
    const auto item = AddDressedRow(list);
    Change(*item, GetParam());
    return item;
  };
  ExpectPosition(1, kDressed, changed);
  ExpectPosition(1, changed, kDressed);
}

INSTANTIATE_TEST_SUITE_P(Attributes, PositionOfARowFinds,
                         testing::Values("Bold", "Checked", "Ghosted", "ForeColor",
                                         "CellToolTipText", "CellForeColor", "CellBold"),
                         [](const auto& attribute) { return std::string(attribute.param); });

// The cells of the list's row count.
TEST(PositionOf, ARowWithFewerCellsThanTheListsIsAnother) {
  const Ref<MemoryListView> given = MakeList({"Name"}, {{"oak"}});
  const Ref<MemoryListView> live = MakeList({"Name", "Qty"}, {{"oak", ""}, {"elm", ""}});
  const Ref<ListViewDump> dump = MakeDump({"Name", "Qty"}, {{"oak", ""}});
  EXPECT_EQ(PositionOf(*given->ListItems()->Item(1), *live->ListItems()), 0);
  EXPECT_EQ(PositionOf(*given->ListItems()->Item(1), *dump->ListItems()), 0);
}

TEST(PositionOf, ARowWithMoreCellsThanTheListsIsTheSame) {
  const Ref<MemoryListView> given = MakeList({"Name", "Qty"}, {{"oak", "7"}});
  const Ref<MemoryListView> live = MakeList({"Name"}, {{"elm"}, {"oak"}});
  const Ref<ListViewDump> dump = MakeDump({"Name"}, {{"oak"}});
  EXPECT_EQ(PositionOf(*given->ListItems()->Item(1), *live->ListItems()), 2);
  EXPECT_EQ(PositionOf(*given->ListItems()->Item(1), *dump->ListItems()), 1);
}

TEST(PositionOf, ARowIsFoundInItsOwnList) {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"oak", "1"}, {"oak", "2"}});
  EXPECT_EQ(PositionOf(*list->ListItems()->Item(2), *list->ListItems()), 2);
}

TEST(PositionOf, LooksAtTheCellsOnlyWhenTheRowsAreTheSame) {
  const Ref<MemoryListView> given = MakeList({"Name", "Qty"}, {{"oak", "1"}});
  Recorder calls;
  const auto list = MakeRef<RecordingListView>(
      MakeList({"Name", "Qty"}, {{"elm", "1"}, {"oak", "2"}, {"oak", "1"}, {"oak", "1"}}), calls);
  const auto rows = list->ListItems();
  calls.Clear();
  EXPECT_EQ(PositionOf(*given->ListItems()->Item(1), *rows), 3);
  const auto row = [](const std::string& i) {
    const std::string path = "ListItems(" + i + ").";
    return std::vector<std::string>{
        "ListItems.Item(" + i + ")", path + "Key",  path + "Tag",        path + "Icon",
        path + "SmallIcon",          path + "Text", path + "ToolTipText"};
  };
  const auto cells = [](const std::string& i) {
    const std::string path = "ListItems(" + i + ").ListSubItems";
    return std::vector<std::string>{path, path + ".Count", path + ".Item(1)", path + "(1).Key",
                                    path + "(1).Text"};
  };
  std::vector<std::string> expected = {"ListItems.Count"};
  const auto expect = [&](std::vector<std::string> lines) {
    expected.insert(expected.end(), lines.begin(), lines.end());
  };
  expect({"ListItems.Item(1)", "ListItems(1).Key", "ListItems(1).Tag", "ListItems(1).Icon",
          "ListItems(1).SmallIcon", "ListItems(1).Text"});
  expect(row("2"));
  expect(cells("2"));
  expect(row("3"));
  expect(cells("3"));
  expect({"ListItems(3).ListSubItems(1).Tag", "ListItems(3).ListSubItems(1).ReportIcon"});
  EXPECT_TRUE(calls.Shows(expected));
}

TEST(PositionOf, PassesErrorsOfEitherListOn) {
  const Ref<MemoryListView> plain = MakeList({"Name", "Qty"}, {{"oak", "1"}});
  for (const char* member : {"ListItems.Item", "ListItem.Tag", "ListItem.ListSubItems",
                             "ListSubItems.Count", "ListSubItem.ReportIcon"}) {
    SCOPED_TRACE(member);
    Recorder calls;
    const auto foreign =
        MakeRef<RecordingListView>(MakeList({"Name", "Qty"}, {{"oak", "1"}}), calls);
    const auto rows = foreign->ListItems();
    const auto row = rows->Item(1);
    foreign->FailOn(member, 1, RuntimeError(35600, u"Index out of bounds"));
    EXPECT_EQ(ErrorOf([&] { PositionOf(*plain->ListItems()->Item(1), *rows); }),
              "35600: Index out of bounds");
    if (std::string(member) == "ListItems.Item") continue;
    foreign->FailOn(member, 1, RuntimeError(35600, u"Index out of bounds"));
    EXPECT_EQ(ErrorOf([&] { PositionOf(*row, *plain->ListItems()); }),
              "35600: Index out of bounds");
  }
}

struct ValuesCase {
  const char* name;
  const char* member;
  Value given;
  Value listed;
  std::int32_t position;
};

TEST(PositionOf, ComparesByTheRulesForValues) {
  const ValuesCase cases[] = {
      {"unset icons", "Icon", Value(), Value(), 1},
      {"unset icon and icon 0", "Icon", Value(), 0, 0},
      {"unset small icon and empty name", "SmallIcon", Value(), Text(), 0},
      {"icon numbers of two widths", "Icon", std::int16_t{5}, std::int32_t{5}, 1},
      {"icon number and its digits", "cell ReportIcon", 1, u"1", 0},
      {"null icons", "Icon", Value::Null(), Value::Null(), 0},
      {"unset text", "Text", Value(), Text(), 1},
      {"unset key", "Key", Value(), Text(), 1},
      {"unset tag and a tag", "Tag", Value(), u"x", 0},
      {"tag number and its digits", "Tag", 1, u"1", 0},
      {"tag numbers", "cell Tag", 1, 1.0, 1},
      {"null tags", "Tag", Value::Null(), Value::Null(), 0},
      {"null tag and none", "cell Tag", Value::Null(), Text(), 0},
  };
  for (const ValuesCase& c : cases) {
    const auto position = [&](const Value& given, const Value& listed) {
      const auto a = MakeRef<SparseListView>(SparseMembers{{c.member, given}});
      const auto b = MakeRef<SparseListView>(SparseMembers{{c.member, listed}});
      return PositionOf(*a->ListItems()->Item(1), *b->ListItems());
    };
    EXPECT_EQ(position(c.given, c.listed), c.position) << c.name;
    EXPECT_EQ(position(c.listed, c.given), c.position) << c.name;
  }
}

}  // namespace

}  // namespace sifter
