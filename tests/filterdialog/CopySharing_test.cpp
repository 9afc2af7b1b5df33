#include "filterdialog/CopyListview.h"
#include "support/Errors.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace sifter {

namespace {

// A copy between two lists of our own. What the host does on being told of a row or of the
// clearing sees both lists.
struct Scene {
  Ref<ListViewDump> source = MakeRef<ListViewDump>();
  Ref<MemoryListView> target = MakeRef<MemoryListView>();
};

struct SharingCase {
  const char* name;
  std::function<void(Scene&)> prepare;
  std::function<void(Scene&, ListMessage, int)> onNotice = {};  // and the how many-th notice
};

void PrintTo(const SharingCase& c, std::ostream* out) { *out << c.name; }

// Lists of our own share whole rows. Spoken to through a list that offers nothing to share, the
// same target gets the rows member by member.
std::string Outcome(const SharingCase& c, bool shared) {
  Scene scene;
  c.prepare(scene);
  Recorder notices;
  ListObserverRecorder observer(*scene.target, notices);
  int count = 0;
  bool busy = false;
  observer.During([&](ListMessage message, std::intptr_t) {
    if (busy || !c.onNotice) return;
    busy = true;
    c.onNotice(scene, message, ++count);
    busy = false;
  });
  Recorder calls;
  const Ref<RecordingListView> foreign = MakeRef<RecordingListView>(scene.target, calls);
  foreign->RecordNothing();
  const Ref<HostListView> target =
      shared ? Ref<HostListView>(scene.target) : Ref<HostListView>(foreign);
  std::string outcome =
      ErrorOf([&] { CopyListview<ListViewDump, HostListView>(scene.source.Get(), target.Get()); });
  for (const std::string& notice : notices.Lines()) outcome += '\n' + notice;
  return outcome + '\n' + Dump(*scene.target) + "from\n" + Dump(*scene.source);
}

void Plain(Scene& scene) {
  Fill(*scene.source, {"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}, {"Elm", ""}, {"Yew", "9"}});
  scene.source->ListItems()->Item(2)->ListSubItems()->Item(1)->SetTag(u"t");
  scene.source->ListItems()->Item(3)->SetBold(true);
  scene.source->ListItems()->Item(4)->SetIcon(u"pic");
}

void Keyed(Scene& scene) {
  Fill(*scene.source, {"Name", "Qty"}, {});
  for (const char* key : {"a", "", "b", "2", ""}) AddRow(*scene.source, {"x", "y"}, key);
}

SharingCase OnFirstRow(const char* name, std::function<void(Scene&)> work) {
  return {name, Plain, [work = std::move(work)](Scene& scene, ListMessage message, int) {
            if (message == kInsertItem && scene.target->ListItems()->Count() == 1) work(scene);
          }};
}

class CopySharing : public testing::TestWithParam<SharingCase> {};

TEST_P(CopySharing, GivesTheSameListsAndNoticesAsCopyingMemberByMember) {
  EXPECT_EQ(Outcome(GetParam(), true), Outcome(GetParam(), false));
}

INSTANTIATE_TEST_SUITE_P(
    QuietHosts, CopySharing,
    testing::Values(SharingCase{"plain rows", Plain}, SharingCase{"rows with keys", Keyed},
                    SharingCase{"no rows", [](Scene& s) { Fill(*s.source, {"Name"}, {}); }},
                    SharingCase{"no columns",
                                [](Scene& s) {
                                  AddRow(*s.source, {"Oak"});
                                  AddRow(*s.source, {"Ash"});
                                }},
                    SharingCase{"one column",
                                [](Scene& s) {
                                  Fill(*s.source, {"Name"}, {{"Oak"}, {"Ash"}});
                                }},
                    SharingCase{"columns taken away",
                                [](Scene& s) {
                                  Plain(s);
                                  s.source->ColumnHeaders()->Clear();
                                }},
                    SharingCase{"last column taken away",
                                [](Scene& s) {
                                  Plain(s);
                                  s.source->ColumnHeaders()->Remove(2);
                                }},
                    SharingCase{"a row with a cell too few",
                                [](Scene& s) {
                                  Plain(s);
                                  s.source->ListItems()->Item(3)->SetSubItemNum(0);
                                }},
                    SharingCase{"a row with a cell too many",
                                [](Scene& s) {
                                  Plain(s);
                                  s.source->ListItems()->Item(2)->SetSubItemNum(2);
                                }},
                    SharingCase{"target has rows and the same number of columns",
                                [](Scene& s) {
                                  Plain(s);
                                  Fill(*s.target, {"x", "y"}, {{"old", "1"}, {"older", "2"}});
                                  s.target->ListItems()->Item(1)->SetKey(u"a");
                                }},
                    SharingCase{"target has more columns",
                                [](Scene& s) {
                                  Plain(s);
                                  Fill(*s.target, {"x", "y", "z"}, {});
                                }},
                    SharingCase{"target has fewer columns",
                                [](Scene& s) {
                                  Plain(s);
                                  Fill(*s.target, {"x"}, {});
                                }},
                    SharingCase{"target is sorted",
                                [](Scene& s) {
                                  Plain(s);
                                  s.target->SetSorted(true);
                                  s.target->SetSortOrder(1);
                                }},
                    SharingCase{"two rows with one key",
                                [](Scene& s) {
                                  Keyed(s);
                                  s.source->ListItems()->Item(4)->SetKey(u"a");
                                }},
                    SharingCase{"a row whose key is not the one it was added with",
                                [](Scene& s) {
                                  Keyed(s);
                                  s.source->ListItems()->Item(1)->SetKey(u"other");
                                }},
                    SharingCase{"a row that lost its key", [](Scene& s) {
                                  Keyed(s);
                                  s.source->ListItems()->Item(3)->SetKey(u"");
                                }}));

INSTANTIATE_TEST_SUITE_P(
    BusyHosts, CopySharing,
    testing::Values(
        OnFirstRow("inserts a row in front",
                   [](Scene& s) { s.target->ListItems()->Add(1, Text(), u"mine", {}, {}); }),
        OnFirstRow("appends a row",
                   [](Scene& s) {
                     AddRow(*s.target, {"mine", "1"});
                   }),
        OnFirstRow("inserts a column",
                   [](Scene& s) { s.target->ColumnHeaders()->Add(1, {}, u"new", 1, 0, {}); }),
        OnFirstRow("changes the new row's icon",
                   [](Scene& s) { s.target->ListItems()->Item(1)->SetIcon(5); }),
        OnFirstRow("changes the new row's own text",
                   [](Scene& s) { s.target->ListItems()->Item(1)->SetText(u"mine"); }),
        OnFirstRow("gives the new row a key",
                   [](Scene& s) { s.target->ListItems()->Item(1)->SetKey(u"mine"); }),
        OnFirstRow("sorts the target", [](Scene& s) { s.target->SetSorted(true); }),
        OnFirstRow("empties the source", [](Scene& s) { s.source->ListItems()->Clear(); }),
        OnFirstRow("takes a later row out of the source",
                   [](Scene& s) { s.source->ListItems()->Remove(3); }),
        OnFirstRow("changes a later row of the source",
                   [](Scene& s) { s.source->ListItems()->Item(3)->SetTag(u"late"); }),
        OnFirstRow("puts the source's last row a cell short",
                   [](Scene& s) { s.source->ListItems()->Item(4)->SetSubItemNum(0); }),
        SharingCase{"removes every second row that comes", Plain,
                    [](Scene& s, ListMessage message, int count) {
                      if (message == kInsertItem && count % 2 == 0)
                        s.target->ListItems()->Remove(1);
                    }},
        SharingCase{"gives a later row of the source the key of the first", Keyed,
                    [](Scene& s, ListMessage message, int) {
                      if (message == kInsertItem) s.source->ListItems()->Item(5)->SetKey(u"a");
                    }},
        SharingCase{"adds a row of the same key", Keyed,
                    [](Scene& s, ListMessage message, int count) {
                      if (message == kInsertItem && count == 2) AddRow(*s.target, {"mine"}, "b");
                    }},
        SharingCase{"adds rows while the list is being cleared", Plain,
                    [](Scene& s, ListMessage message, int) {
                      if (message == kDeleteAllItems) AddRow(*s.target, {"mine"});
                    }},
        SharingCase{"clears the list on the third row", Plain,
                    [](Scene& s, ListMessage message, int) {
                      if (message == kInsertItem && s.target->ListItems()->Count() == 3)
                        s.target->ListItems()->Clear();
                    }}));

// The rows behind two lists are the same objects until one of them is written to.
TEST(SharedRowsOfACopy, ChangeOnTheirOwnAfterwards) {
  const Ref<ListViewDump> source = MakeDump({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}});
  const Ref<MemoryListView> target = MakeRef<MemoryListView>();
  CopyListview<ListViewDump, HostListView>(source.Get(), target.Get());
  ASSERT_EQ(&source->Shared()->Rows().At(1), &target->Shared()->Rows().At(1));
  const std::string before = Dump(*source);
  target->ListItems()->Item(1)->SetSubItems(1, u"new");
  target->ListItems()->Item(2)->ListSubItems()->Item(1)->SetBold(true);
  target->ListItems()->Item(2)->SetKey(u"k");
  AddColumn(*target, "Note");
  EXPECT_EQ(Dump(*source), before);
  source->ListItems()->Clear();
  EXPECT_EQ(Texts(*target), (TextRows{{"Oak", "new", ""}, {"Ash", "5", ""}}));
}

TEST(SharedRowsOfACopy, KeepTheirKeysFindable) {
  const Ref<ListViewDump> source = MakeDump({"Name"});
  for (const char* key : {"a", "b", "c"}) AddRow(*source, {key}, key);
  const Ref<MemoryListView> target = MakeRef<MemoryListView>();
  CopyListview<ListViewDump, HostListView>(source.Get(), target.Get());
  EXPECT_EQ(target->ListItems()->Item(u"b")->Index(), Value(2));
  EXPECT_EQ(ErrorOf([&] { AddRow(*target, {"x"}, "c"); }), kTakenKeyError);
  target->ListItems()->Remove(u"b");
  EXPECT_EQ(source->ListItems()->Item(u"b")->Text(), u"b");
}

// Rows, columns and a host's meddling by chance.
SharingCase RandomCase(unsigned seed) {
  const auto prepare = [seed](Scene& scene) {
    std::mt19937 random(seed);
    const auto below = [&](unsigned n) { return static_cast<std::int32_t>(random() % n); };
    for (std::int32_t n = below(4); n > 0; --n) AddColumn(*scene.source, "c");
    const std::int32_t columns = scene.source->ColumnHeaders()->Count();
    for (std::int32_t i = below(8); i > 0; --i) {
      const std::string key = below(3) == 0 ? "k" + std::to_string(i) : "";
      const Ref<LVItemDump> row = AddRow(*scene.source, {std::to_string(below(9))}, key);
      for (std::int32_t j = 1; j < columns; ++j) row->SetSubItems(j, Text::FromUtf8(key));
      if (columns > 1 && below(3) == 0) row->ListSubItems()->Item(1)->SetBold(true);
      if (below(12) == 0) ErrorOf([&] { row->SetSubItemNum(below(4)); });
      if (below(12) == 0) row->SetKey(u"k1");
      row->SetChecked(below(2) == 0);
    }
    if (below(4) == 0) scene.source->ColumnHeaders()->Clear();
    if (below(3) == 0)
      for (std::int32_t n = below(4); n > 0; --n) AddColumn(*scene.target, "t");
    if (below(6) == 0) scene.target->SetSorted(true);
  };
  const auto onNotice = [seed](Scene& scene, ListMessage message, int count) {
    std::mt19937 random(seed * 1000 + static_cast<unsigned>(count));
    const auto rows = scene.target->ListItems();
    if (seed % 3 == 0 || message != kInsertItem) return;
    switch (random() % 12) {
      case 0:
        rows->Add(1, Text(), u"first", {}, {});
        break;
      case 1:
        AddRow(*scene.target, {"last"});
        break;
      case 2:
        rows->Remove(1);
        break;
      case 3:
        rows->Item(1)->SetText(u"changed");
        break;
      case 4:
        scene.source->ListItems()->Clear();
        break;
      default:
        break;
    }
  };
  return {"random", prepare, onNotice};
}

TEST(CopySharingAtRandom, GivesTheSameListsAndNoticesAsCopyingMemberByMember) {
  for (unsigned seed = 1; seed <= 3000; ++seed) {
    const SharingCase c = RandomCase(seed);
    ASSERT_EQ(Outcome(c, true), Outcome(c, false)) << "seed " << seed;
  }
}

}  // namespace

}  // namespace sifter
