#include "listmodel/LVColHeadersDump.h"

#include "listmodel/ListViewDump.h"
#include "support/Errors.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

static_assert(std::is_same_v<decltype(LVColHeaderDump::text), Text> &&
                  std::is_same_v<decltype(LVColHeaderDump::width), std::int16_t> &&
                  std::is_same_v<decltype(LVColHeaderDump::alignment), std::int16_t> &&
                  std::is_same_v<decltype(LVColHeaderDump::icon), std::int16_t>,
              "the fields of a column");

Strings Captions(ListViewDump& dump) {
  Strings captions;
  for (const Ref<LVColHeaderDump>& column : *dump.ColumnHeaders())
    captions.push_back(column->Text().ToUtf8());
  return captions;
}

// Columns a, b, c; b under the key kb.
Ref<ListViewDump> ThreeColumns() {
  const Ref<ListViewDump> dump = MakeDump({"a"});
  AddColumn(*dump, "b", "kb");
  AddColumn(*dump, "c");
  return dump;
}

TEST(LVColHeaderDump, FieldsStandInTheirOrder) {
  LVColHeaderDump* column = new LVColHeaderDump;
  const Ref<LVColHeaderDump> owner(column);
  const void* fields[] = {&column->text, &column->width, &column->alignment, &column->icon};
  EXPECT_TRUE(std::is_sorted(std::begin(fields), std::end(fields)));
}

TEST(LVColHeadersDump, AddReturnsTheColumnAsStored) {
  const Ref<ListViewDump> dump = MakeDump({});
  const Ref<LVColHeaderDump> column = dump->ColumnHeaders()->Add(0, u"k", u"Name", 1500, 2, 7);
  EXPECT_EQ(column, dump->ColumnHeaders()->Item(1));
  EXPECT_EQ(column, dump->ColumnHeaders()->Item(u"k"));
  EXPECT_EQ(DumpColumns(*dump),
            "column 1: Key=\"k\" Text=\"Name\" Width=1500 Alignment=2 Icon=7\n");
}

TEST(LVColHeadersDump, WithoutAnIndexAColumnIsAppendedUnderItsKey) {
  const Ref<ListViewDump> dump = ThreeColumns();
  for (const std::int32_t index : {0, -1, -1000}) {
    dump->ColumnHeaders()->Add(index, Text(), u"x", 0, 0, Value());
    EXPECT_EQ(Captions(*dump).back(), "x");
  }
  EXPECT_EQ(dump->ColumnHeaders()->Item(u"kb")->Text(), u"b");
  EXPECT_EQ(dump->ColumnHeaders()->Item(u"kb")->Key(), u"kb");
  EXPECT_EQ(dump->ColumnHeaders()->Item(1)->Key(), u"");
}

TEST(LVColHeadersDump, WithAnIndexAColumnGoesBehindItAndLosesItsKey) {
  const Ref<ListViewDump> dump = ThreeColumns();
  dump->ColumnHeaders()->Add(1, u"kx", u"x", 0, 0, Value());
  EXPECT_EQ(Captions(*dump), (Strings{"a", "x", "b", "c"}));
  dump->ColumnHeaders()->Add(4, u"kb", u"y", 0, 0, Value());
  EXPECT_EQ(Captions(*dump), (Strings{"a", "x", "b", "c", "y"}));
  EXPECT_EQ(ErrorOf([&] { dump->ColumnHeaders()->Item(u"kx"); }), kBadKeyError);
  EXPECT_EQ(dump->ColumnHeaders()->Item(2)->Key(), u"");
  EXPECT_EQ(dump->ColumnHeaders()->Item(u"kb")->Text(), u"b");
}

TEST(LVColHeadersDump, AnIndexBeyondTheLastColumnIsBadAndStoresNothing) {
  const Ref<ListViewDump> dump = ThreeColumns();
  EXPECT_EQ(ErrorOf([&] { dump->ColumnHeaders()->Add(4, Text(), u"x", 0, 0, Value()); }),
            kBadPositionError);
  EXPECT_EQ(ErrorOf([&] { MakeDump({})->ColumnHeaders()->Add(1, u"", u"x", 0, 0, Value()); }),
            kBadPositionError);
  EXPECT_EQ(Captions(*dump), (Strings{"a", "b", "c"}));
}

TEST(LVColHeadersDump, ATakenKeyIsRefusedUntilItsColumnIsGone) {
  const Ref<ListViewDump> dump = ThreeColumns();
  EXPECT_EQ(ErrorOf([&] { AddColumn(*dump, "x", "kb"); }), kTakenKeyError);
  AddColumn(*dump, "x", "KB");
  dump->ColumnHeaders()->Remove(u"kb");
  AddColumn(*dump, "y", "kb");
  EXPECT_EQ(Captions(*dump), (Strings{"a", "c", "x", "y"}));
}

struct Conversion {
  Value width, alignment, icon;
  std::string result;  // "width alignment icon", or the error
};

TEST(LVColHeadersDump, MeasuresAreStoredIn16Bits) {
  const std::string typeMismatch = "13: Type mismatch";
  const Conversion conversions[] = {
      {1500.9, 0, 0, "1500 0 0"},
      {-1500.9, 0, 0, "-1500 0 0"},
      {0.99, 0, 0, "0 0 0"},
      {32767.9, 0, 0, "32767 0 0"},
      {-32768.9, 0, 0, "-32768 0 0"},
      {32768, 0, 0, kOverflowError},
      {40000, 0, 0, kOverflowError},
      {-32769, 0, 0, kOverflowError},
      {1e300, 0, 0, kOverflowError},
      {u"720.7", 0, 0, "720 0 0"},
      {Value(), Value(), Value(), "0 0 0"},
      {u"wide", 0, 0, typeMismatch},
      {0, 2, 0, "0 2 0"},
      {0, 1.5, 0, "0 2 0"},
      {0, 2.5, 0, "0 2 0"},
      {0, u"1", 0, "0 1 0"},
      {0, 40000, 0, kOverflowError},
      {0, u"left", 0, typeMismatch},
      {0, 0, 32767, "0 0 32767"},
      {0, 0, u"12", "0 0 12"},
      {0, 0, 2.5, "0 0 2"},
      {0, 0, true, "0 0 -1"},
      {0, 0, 40000, kOverflowError},
      {0, 0, u"40000", kOverflowError},
      // The key of a picture. Refusing it would end the copy of the host's list.
      {0, 0, u"pic", "0 0 0"},
      {0, 0, u"", "0 0 0"},
      {0, 0, Value::Null(), "0 0 0"},
      {0, 0, Value(Ref<Object>()), "0 0 0"},
  };
  for (const Conversion& conversion : conversions) {
    SCOPED_TRACE(Shown(conversion.width) + ' ' + Shown(conversion.alignment) + ' ' +
                 Shown(conversion.icon));
    const Ref<ListViewDump> dump = MakeDump({"a"}, {{"1"}});
    std::string result = ErrorOf([&] {
      dump->ColumnHeaders()->Add(0, Text(), u"x", conversion.width, conversion.alignment,
                                 conversion.icon);
    });
    if (result == "nothing") {
      const Ref<LVColHeaderDump> column = dump->ColumnHeaders()->Item(2);
      result = std::to_string(column->width) + ' ' + std::to_string(column->alignment) + ' ' +
               std::to_string(column->icon);
      EXPECT_EQ(Texts(*dump), (TextRows{{"1", ""}}));
    } else {
      EXPECT_EQ(Captions(*dump), (Strings{"a"}));
      EXPECT_EQ(Texts(*dump), (TextRows{{"1"}}));
    }
    EXPECT_EQ(result, conversion.result);
  }
}

TEST(LVColHeadersDump, AddingAColumnGivesEveryRowAnEmptyCellAtItsEnd) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1", "2"}, {"3", "4"}});
  dump->ListItems()->Item(1)->ListSubItems()->Item(1)->SetKey(u"k");
  dump->ColumnHeaders()->Add(1, u"", u"between", 0, 0, Value());
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "2", ""}, {"3", "4", ""}}));
  EXPECT_EQ(DumpCell(*dump->ListItems()->Item(1)->ListSubItems()->Item(2)),
            " Key=\"\" Text=\"\" Tag=\"\" ReportIcon=Empty ToolTipText=\"\" ForeColor=0 "
            "Bold=False");
}

TEST(LVColHeadersDump, TheFirstColumnNeedsNoCell) {
  const Ref<ListViewDump> dump = MakeDump({}, {{"1"}});
  AddColumn(*dump, "a");
  EXPECT_EQ(Texts(*dump), (TextRows{{"1"}}));
}

TEST(LVColHeadersDump, TakingColumnsAwayLeavesTheCells) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b", "c"}, {{"1", "2", "3"}});
  dump->ColumnHeaders()->Remove(2);
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "2", "3"}}));
  dump->ColumnHeaders()->Clear();
  EXPECT_EQ(dump->ColumnHeaders()->Count(), 0);
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "2", "3"}}));
}

// The first new column asks for 0 cells of a row that has two left over: the surplus is taken out
// in the way of SetSubItemNum, which ends with an error, and the column is stored by then.
TEST(LVColHeadersDump, AddingAColumnToRowsWithTooManyCellsIsAnErrorWithTheColumnStored) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b", "c"}, {{"1", "2", "3"}, {"4", "5", "6"}});
  dump->ColumnHeaders()->Clear();
  EXPECT_EQ(ErrorOf([&] { AddColumn(*dump, "new"); }), kBadPositionError);
  EXPECT_EQ(Captions(*dump), (Strings{"new"}));
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "3"}, {"4", "5", "6"}}));
}

TEST(LVColHeadersDump, ItemAndRemoveTakeAPositionOrAKey) {
  const Ref<ListViewDump> dump = ThreeColumns();
  EXPECT_EQ(dump->ColumnHeaders()->Item(2.4)->Text(), u"b");
  EXPECT_EQ(dump->ColumnHeaders()->Item(u"kb")->Text(), u"b");
  dump->ColumnHeaders()->Remove(u"kb");
  EXPECT_EQ(Captions(*dump), (Strings{"a", "c"}));
  dump->ColumnHeaders()->Remove(1);
  EXPECT_EQ(Captions(*dump), (Strings{"c"}));
}

TEST(LVColHeadersDump, WhatIsNotThereIsAnErrorAndChangesNothing) {
  const Ref<ListViewDump> dump = ThreeColumns();
  const Ref<LVColHeadersDump> columns = dump->ColumnHeaders();
  for (const Value& position : {Value(0), Value(-1), Value(4), Value(Value())}) {
    EXPECT_EQ(ErrorOf([&] { columns->Item(position); }), kBadPositionError);
    EXPECT_EQ(ErrorOf([&] { columns->Remove(position); }), kBadPositionError);
  }
  for (const char16_t* key : {u"2", u"KB", u"", u"kb "}) {
    EXPECT_EQ(ErrorOf([&] { columns->Item(key); }), kBadKeyError);
    EXPECT_EQ(ErrorOf([&] { columns->Remove(key); }), kBadKeyError);
  }
  EXPECT_EQ(Captions(*dump), (Strings{"a", "b", "c"}));
}

TEST(LVColHeadersDump, ClearEmptiesIt) {
  const Ref<ListViewDump> dump = ThreeColumns();
  const Ref<LVColHeaderDump> held = dump->ColumnHeaders()->Item(2);
  dump->ColumnHeaders()->Clear();
  dump->ColumnHeaders()->Clear();
  EXPECT_EQ(Captions(*dump), Strings());
  EXPECT_EQ(held->Text(), u"b");
  AddColumn(*dump, "again", "kb");
  EXPECT_EQ(dump->ColumnHeaders()->Item(u"kb")->Text(), u"again");
}

TEST(LVColHeadersDump, EnumerationGivesTheColumnsThemselvesInOrder) {
  const Ref<ListViewDump> dump = ThreeColumns();
  std::int32_t position = 0;
  for (const Ref<LVColHeaderDump>& column : *dump->ColumnHeaders())
    EXPECT_EQ(column, dump->ColumnHeaders()->Item(++position));
  EXPECT_EQ(position, 3);
}

TEST(LVColHeadersDump, ColumnsMayGoDuringAnEnumeration) {
  Ref<ListViewDump> dump = ThreeColumns();
  Strings seen;
  for (const Ref<LVColHeaderDump>& column : *dump->ColumnHeaders()) {
    seen.push_back(column->Text().ToUtf8());
    dump->ColumnHeaders()->Remove(1);
  }
  EXPECT_EQ(seen, (Strings{"a", "c"}));
  for (const Ref<LVColHeaderDump>& column : *dump->ColumnHeaders()) {
    dump = nullptr;
    EXPECT_EQ(column->Text(), u"c");
  }
}

}  // namespace

}  // namespace sifter
