#include "AllocationSpy.h"
#include "HostedSifter.h"
#include "Leftovers.h"

#include <algorithm>

namespace sifter {

namespace {

// Of all heaps, that of the component's own allocations among them.
SIZE_T HeapBytes() {
  HANDLE heaps[64];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  SIZE_T bytes = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry))
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
    HeapUnlock(heaps[i]);
  }
  return bytes;
}

// A host that makes and drops controls all day, each on a form of its own with a list of its own.
class Rounds : public ComTest, public testing::WithParamInterface<const wchar_t*> {
 protected:
  void Round() {
    Recorder recorder;
    ListViewOnAForm form;
    const Ref<HostListView> rows = NativeListView(form.List());
    Fill(*rows, {"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}});
    ComRef<IDispatch> list;
    ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
    Container container(form.Parent(), recorder);
    const IID eventsId = Library::Built().IdOf((std::wstring(L"__") + GetParam()).c_str());
    EventSink events(eventsId, recorder);
    ComRef<IDispatch> control = Create(GetParam());
    const Connection connection(control.Get(), eventsId, &events);
    container.Place(control);
    container.Activate();
    PutRef(control, L"Listview", ObjectValue(list.Get()));
    user.Does([&] {
      dialog.Appears();
      dialog.FiltersByMessages(0, "contains", "a");
      dialog.Goes();
    });
    ShowModally(GetParam(), control);
    user.PumpUntilDone();
    ASSERT_EQ(FirstTexts(*rows), (Strings{"Oak", "Ash"}));
    ASSERT_EQ(recorder.Lines().back(), "event 1");
    control.Reset();
  }

  User user;
  CriteriaDialog dialog{user};
};

TEST_P(Rounds, LeaveNothingBehind) {
  constexpr int kWarmUp = 20;
  // A banner takes longer to make and to show than the other control.
  const int rounds = GetParam() == kBanner ? 200 : 1000;
  for (int i = 0; i < kWarmUp && !HasFailure(); ++i) Round();
  const int windows = WindowsOfThisThread();
  const int gdiObjects = GdiObjects();
  const SIZE_T heapBytes = HeapBytes();
  for (int i = 0; i < rounds && !HasFailure(); ++i) Round();
  EXPECT_EQ(WindowsOfThisThread(), windows);
  EXPECT_EQ(GdiObjects(), gdiObjects);
  RecordProperty("heapGrowth", std::to_string(static_cast<long long>(HeapBytes()) -
                                              static_cast<long long>(heapBytes)));
  // A leak of one small block in each round would be more than this.
  EXPECT_LE(HeapBytes(), heapBytes + static_cast<SIZE_T>(rounds) * 8);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

TEST_P(Rounds, LeaveNoTextBehind) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can't be counted here";
  for (int i = 0; i < 3; ++i) Round();
  const AllocationSpy spy;
  for (int i = 0; i < 10 && !HasFailure(); ++i) Round();
  EXPECT_EQ(spy.Alive(), 0);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, Rounds, testing::Values(kSifter, kBanner), ControlName);

}  // namespace

}  // namespace sifter
