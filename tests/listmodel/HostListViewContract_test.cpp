#include "support/HostListViewContract.h"

#include "listmodel/MemoryListView.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

namespace sifter {

namespace {

Ref<HostListView> MakeRecordingList() {
  static Recorder recorder;
  const Ref<RecordingListView> list =
      MakeRef<RecordingListView>(MakeRef<MemoryListView>(), recorder);
  list->RecordNothing();
  return list;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(ListModel, HostListViewContract,
                         testing::Values(ListKind{"Memory",
                                                  [] { return MakeRef<MemoryListView>(); }},
                                         ListKind{"RecordingOverMemory", MakeRecordingList}),
                         ListKindName);

}  // namespace sifter
