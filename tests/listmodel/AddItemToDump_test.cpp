#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

void Decorate(ListItem& row) {
  row.SetTag(u"t");
  row.SetToolTipText(u"tip");
  row.SetIcon(1);
  row.SetSmallIcon(u"pic");
  row.SetBold(true);
  row.SetChecked(true);
  row.SetGhosted(true);
  row.SetForeColor(255);
  for (std::int32_t j = 1; j <= row.ListSubItems()->Count(); ++j) {
    const Ref<ListSubItem> cell = row.ListSubItems()->Item(j);
    cell->SetKey(IntegerToText(j));
    cell->SetTag(u"ct");
    cell->SetReportIcon(j);
    cell->SetToolTipText(u"ctip");
    cell->SetForeColor(16);
    cell->SetBold(true);
  }
}

class AddItemToDumpTest : public testing::Test {
 protected:
  AddItemToDumpTest() {
    AddRow(*memory, {"Oak", "3", "green"}, "k1");
    AddRow(*memory, {"Ash", "", "red"});
    Decorate(*memory->ListItems()->Item(1));
  }

  Ref<ListItem> Live(std::int32_t position) {
    const Ref<ListItem> row = list->ListItems()->Item(position);
    recorder.Clear();
    return row;
  }

  Recorder recorder;
  Ref<MemoryListView> memory = MakeList({"Name", "Qty", "Colour"});
  Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
  Ref<ListViewDump> dump = MakeDump({"Name", "Qty", "Colour"});
};

TEST_F(AddItemToDumpTest, AppendsAFullCopy) {
  dump->AddItemToDump(*Live(1));
  dump->AddItemToDump(*Live(2));
  EXPECT_EQ(DumpRows(*dump), DumpRows(*memory));
  EXPECT_EQ(dump->ListItems()->Item(u"k1")->Text(), u"Oak");
}

TEST_F(AddItemToDumpTest, ReadsEveryMemberOnceAndInItsOrder) {
  dump->AddItemToDump(*Live(1));
  EXPECT_TRUE(recorder.Shows({
      "ListItems(1).Key",
      "ListItems(1).Text",
      "ListItems(1).Icon",
      "ListItems(1).SmallIcon",
      "ListItems(1).Bold",
      "ListItems(1).Checked",
      "ListItems(1).ForeColor",
      "ListItems(1).Ghosted",
      "ListItems(1).Key",
      "ListItems(1).Tag",
      "ListItems(1).ToolTipText",
      "ListItems(1).ListSubItems",
      "ListItems(1).ListSubItems.Item(1)",
      "ListItems(1).ListSubItems(1).Tag",
      "ListItems(1).ListSubItems(1).Text",
      "ListItems(1).ListSubItems(1).ReportIcon",
      "ListItems(1).ListSubItems(1).Key",
      "ListItems(1).ListSubItems(1).ToolTipText",
      "ListItems(1).ListSubItems(1).ForeColor",
      "ListItems(1).ListSubItems(1).Bold",
      "ListItems(1).ListSubItems",
      "ListItems(1).ListSubItems.Item(2)",
      "ListItems(1).ListSubItems(2).Tag",
      "ListItems(1).ListSubItems(2).Text",
      "ListItems(1).ListSubItems(2).ReportIcon",
      "ListItems(1).ListSubItems(2).Key",
      "ListItems(1).ListSubItems(2).ToolTipText",
      "ListItems(1).ListSubItems(2).ForeColor",
      "ListItems(1).ListSubItems(2).Bold",
  }));
}

TEST_F(AddItemToDumpTest, ATakenKeyLeavesTheRowWithoutOneInTheCollection) {
  dump->AddItemToDump(*Live(1));
  memory->ListItems()->Item(1)->SetText(u"second");
  const Ref<ListItem> row = Live(1);
  list->RecordOnly({"ListItem"});
  dump->AddItemToDump(*row);
  EXPECT_EQ(FirstTexts(*dump), (Strings{"Oak", "second"}));
  EXPECT_EQ(dump->ListItems()->Item(2)->Key(), u"k1");
  EXPECT_EQ(dump->ListItems()->Item(u"k1")->Text(), u"Oak");
  EXPECT_TRUE(recorder.Shows({
      "ListItems(1).Key",
      "ListItems(1).Text",
      "ListItems(1).Icon",
      "ListItems(1).SmallIcon",
      "ListItems(1).Text",
      "ListItems(1).Icon",
      "ListItems(1).SmallIcon",
      "ListItems(1).Bold",
      "ListItems(1).Checked",
      "ListItems(1).ForeColor",
      "ListItems(1).Ghosted",
      "ListItems(1).Key",
      "ListItems(1).Tag",
      "ListItems(1).ToolTipText",
      "ListItems(1).ListSubItems",
      "ListItems(1).ListSubItems",
  }));
}

TEST_F(AddItemToDumpTest, CopiesAsManyCellsAsTheSnapshotHasColumns) {
  const Ref<ListViewDump> narrow = MakeDump({"Name", "Qty"});
  narrow->AddItemToDump(*Live(1));
  EXPECT_EQ(Texts(*narrow), (TextRows{{"Oak", "3"}}));
  const Ref<ListViewDump> without = MakeDump({});
  without->AddItemToDump(*Live(1));
  EXPECT_EQ(Texts(*without), (TextRows{{"Oak"}}));
  EXPECT_EQ(without->ListItems()->Item(1)->ToolTipText(), u"tip");
}

TEST_F(AddItemToDumpTest, AnItemWithTooFewCellsEndsTheCopyAndTheRowStays) {
  const Ref<ListViewDump> wide = MakeDump({"Name", "Qty", "Colour", "More", "Still more"});
  EXPECT_EQ(ErrorOf([&] { wide->AddItemToDump(*Live(1)); }), "nothing");
  EXPECT_EQ(Texts(*wide), (TextRows{{"Oak", "3", "green", "", ""}}));
  EXPECT_EQ(wide->ListItems()->Item(u"k1")->Tag(), u"t");
}

struct Failure {
  const char* member;
  int occurrence;
  std::string rows;  // what the snapshot has then
};

const char* const kRowAsAdded =
    "row 1: Key=\"k1\" Text=\"Oak\" Tag=\"\" ToolTipText=\"\" Icon=1 SmallIcon=\"pic\" ";
const std::string kPlainCells =
    R"(  cell 1: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
  cell 2: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
)";

TEST_F(AddItemToDumpTest, AnErrorEndsTheCopyWhereItStandsAndGoesNoFurther) {
  const std::string asAdded = kRowAsAdded;
  const Failure failures[] = {
      {"ListItem.Bold", 1,
       asAdded + "Bold=False Checked=False Ghosted=False ForeColor=0\n" + kPlainCells},
      {"ListItem.Checked", 1,
       asAdded + "Bold=True Checked=False Ghosted=False ForeColor=0\n" + kPlainCells},
      {"ListItem.ForeColor", 1,
       asAdded + "Bold=True Checked=True Ghosted=False ForeColor=0\n" + kPlainCells},
      {"ListItem.Ghosted", 1,
       asAdded + "Bold=True Checked=True Ghosted=False ForeColor=255\n" + kPlainCells},
      {"ListItem.Key", 2,
       asAdded + "Bold=True Checked=True Ghosted=True ForeColor=255\n" + kPlainCells},
      {"ListItem.Tag", 1,
       asAdded + "Bold=True Checked=True Ghosted=True ForeColor=255\n" + kPlainCells},
      {"ListItem.ToolTipText", 1,
       R"(row 1: Key="k1" Text="Oak" Tag="t" ToolTipText="" Icon=1 SmallIcon="pic" )"
       "Bold=True Checked=True Ghosted=True ForeColor=255\n" +
           kPlainCells},
      {"ListSubItem.ForeColor", 1,
       R"(row 1: Key="k1" Text="Oak" Tag="t" ToolTipText="tip" Icon=1 SmallIcon="pic" )"
       R"(Bold=True Checked=True Ghosted=True ForeColor=255
  cell 1: Key="1" Text="3" Tag="ct" ReportIcon=1 ToolTipText="ctip" ForeColor=0 Bold=False
  cell 2: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
)"},
      {"ListSubItem.Tag", 2,
       R"(row 1: Key="k1" Text="Oak" Tag="t" ToolTipText="tip" Icon=1 SmallIcon="pic" )"
       R"(Bold=True Checked=True Ghosted=True ForeColor=255
  cell 1: Key="1" Text="3" Tag="ct" ReportIcon=1 ToolTipText="ctip" ForeColor=16 Bold=True
  cell 2: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
)"},
  };
  for (const Failure& failure : failures) {
    SCOPED_TRACE(failure.member);
    const Ref<ListViewDump> fresh = MakeDump({"Name", "Qty", "Colour"});
    const Ref<ListItem> row = Live(1);
    list->FailOn(failure.member, failure.occurrence, RuntimeError(35600, u"no"));
    EXPECT_EQ(ErrorOf([&] { fresh->AddItemToDump(*row); }), "nothing");
    EXPECT_EQ(DumpRows(*fresh), failure.rows);
  }
}

TEST_F(AddItemToDumpTest, AListWithoutTextsGivesNoRow) {
  list->Lack("ListItem.Text");
  EXPECT_EQ(ErrorOf([&] { dump->AddItemToDump(*Live(1)); }), "nothing");
  EXPECT_EQ(dump->ListItems()->Count(), 0);
}

TEST_F(AddItemToDumpTest, AListWithoutKeysGivesARowWithoutOne) {
  list->Lack("ListItem.Key");
  EXPECT_EQ(ErrorOf([&] { dump->AddItemToDump(*Live(1)); }), "nothing");
  EXPECT_EQ(FirstTexts(*dump), (Strings{"Oak"}));
  EXPECT_EQ(dump->ListItems()->Item(1)->Key(), u"");
  EXPECT_EQ(dump->ListItems()->Item(1)->Ghosted(), true);
  EXPECT_EQ(dump->ListItems()->Item(1)->Tag(), u"");
}

// A list of a foreign make may hand out anything.
class StrangeItem final : public ListItem {
 public:
  Value key, text, tag, bold, color;

  Value Index() const override { return 1; }
  Value Key() const override { return key; }
  Value Text() const override { return text; }
  Value Tag() const override { return tag; }
  Value Icon() const override { return {}; }
  Value SmallIcon() const override { return {}; }
  Value ToolTipText() const override { return {}; }
  Value Checked() const override { return std::int16_t{-1}; }
  Value Bold() const override { return bold; }
  Value ForeColor() const override { return color; }
  Value Ghosted() const override { return {}; }
  void SetKey(const Value&) override {}
  void SetText(const Value&) override {}
  void SetTag(const Value&) override {}
  void SetIcon(const Value&) override {}
  void SetSmallIcon(const Value&) override {}
  void SetToolTipText(const Value&) override {}
  void SetChecked(const Value&) override {}
  void SetBold(const Value&) override {}
  void SetForeColor(const Value&) override {}
  void SetGhosted(const Value&) override {}
  Ref<ListSubItemCollection> ListSubItems() override { return nullptr; }
  Value SubItems(std::int32_t) const override { return {}; }
  void SetSubItems(std::int32_t, const Value&) override {}
};

TEST(AddItemToDump, ValuesOfOtherTypesAreConverted) {
  const Ref<ListViewDump> dump = MakeDump({"Name"});
  const Ref<StrangeItem> item = MakeRef<StrangeItem>();
  item->text = 12.5;
  item->tag = 7;
  item->bold = 2;
  item->color = 254.6;
  dump->AddItemToDump(*item);
  EXPECT_EQ(DumpRows(*dump),
            "row 1: Key=\"\" Text=\"12.5\" Tag=\"7\" ToolTipText=\"\" Icon=Empty SmallIcon=Empty "
            "Bold=True Checked=True Ghosted=False ForeColor=255\n");
}

TEST(AddItemToDump, AValueThatDoesNotConvertEndsTheCopy) {
  const Ref<ListViewDump> dump = MakeDump({"Name"});
  const Ref<StrangeItem> item = MakeRef<StrangeItem>();
  item->text = u"Oak";
  item->bold = true;
  item->color = u"red";
  item->tag = u"never reached";
  EXPECT_EQ(ErrorOf([&] { dump->AddItemToDump(*item); }), "nothing");
  EXPECT_EQ(DumpRows(*dump),
            "row 1: Key=\"\" Text=\"Oak\" Tag=\"\" ToolTipText=\"\" Icon=Empty SmallIcon=Empty "
            "Bold=True Checked=True Ghosted=False ForeColor=0\n");
  item->text = Value::Null();
  EXPECT_EQ(ErrorOf([&] { dump->AddItemToDump(*item); }), "nothing");
  EXPECT_EQ(dump->ListItems()->Count(), 1);
}

}  // namespace

}  // namespace sifter
