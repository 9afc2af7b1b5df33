#include "AllocationSpy.h"
#include "DispatchCalls.h"
#include "Leftovers.h"
#include "ListViewOnAForm.h"
#include "filterdialog/frmFilter.h"
#include "rowsifter/ListViewObject.h"
#include "support/ClockFake.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessPrompts.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListView.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace sifter {

namespace {

struct Reached {
  const char* name;
  LateBoundList::Transfer transfer;
};

void PrintTo(const Reached& way, std::ostream* out) { *out << way.name; }

TEST(Leftovers, BlocksOfTheHeapAreCounted) {
  const int before = HeapBlocks();
  std::vector<std::unique_ptr<int>> kept;
  for (int i = 0; i < 100; ++i) kept.push_back(std::make_unique<int>(i));
  EXPECT_GE(HeapBlocks(), before + 100);
}

class ListLeaks : public testing::TestWithParam<Reached> {
 protected:
  // A list view comes, is filled, filtered and reset, and goes; everything on the way is let go.
  void Round() {
    Recorder recorder;
    HeadlessFormHost host(recorder);
    HeadlessPrompts prompts(recorder);
    const ClockFake clock;
    const EnUsConversions conversions(clock);
    ListViewOnAForm form;
    ComRef<IDispatch> object;
    ASSERT_EQ(CreateListViewObject(form.List(), object.Receive()), S_OK);
    {
      const Ref<HostListView> rows = NativeListView(form.List());
      Fill(*rows, {"Name", "Qty"}, {{"Oak", "1"}, {"Ash", "2"}, {"Oak", "3"}});
      rows->ListItems()->Item(1)->SetBold(true);
      rows->ListItems()->Item(2)->SetChecked(true);
      rows->ListItems()->Item(3)->SetIcon(u"pic");
      UpdateWindow(form.List());
    }
    {
      frmFilter dialog({host, prompts, conversions, clock});
      dialog.UsersListview = MakeRef<LateBoundList>(object, GetParam().transfer);
      dialog.SetUpForm();
      dialog.cboOperator[0].SetListIndex(1);
      dialog.cboCriteria[0].SetText(u"oak");
      dialog.cmdApply.SetValue(true);
      EXPECT_EQ(listview::ItemCount(form.List()), 2);
      dialog.cmdReset.SetValue(true);
      EXPECT_EQ(listview::ItemCount(form.List()), 3);
    }
    EXPECT_EQ(ReferencesOf(object.Get()), 1u);
    EXPECT_EQ(prompts.Boxes(), std::vector<std::string>());
  }
};

TEST_P(ListLeaks, NothingIsLeftAfterManyLists) {
  Round();
  Round();
  const int windows = WindowsOfThisThread();
  const int objects = GdiObjects();
  const int blocks = HeapBlocks();
  for (int round = 0; round < 50; ++round) Round();
  EXPECT_EQ(WindowsOfThisThread(), windows);
  EXPECT_EQ(GdiObjects(), objects);
  // The platform keeps a few for itself; one for each round would be ours.
  EXPECT_LT(HeapBlocks(), blocks + 25);
}

TEST_P(ListLeaks, NoBstrIsLeft) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can't be counted here";
  Round();
  const AllocationSpy spy;
  for (int round = 0; round < 5; ++round) Round();
  EXPECT_EQ(spy.Alive(), 0);
}

INSTANTIATE_TEST_SUITE_P(, ListLeaks,
                         testing::Values(Reached{"ByMembers", LateBoundList::Transfer::kNever},
                                         Reached{"ByTransfer",
                                                 LateBoundList::Transfer::kWhereOffered}),
                         [](const testing::TestParamInfo<Reached>& way) { return way.param.name; });

}  // namespace

}  // namespace sifter
