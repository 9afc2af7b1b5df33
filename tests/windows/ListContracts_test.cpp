#include "ListViewOnAForm.h"
#include "support/HostListViewContract.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListView.h"
#include "win32/NativeListViewObject.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// What every list must do, of every list that has to do with windows.

namespace sifter {

namespace {

// On the form of the test that is running.
Ref<HostListView> MakeNativeList() {
  static std::unique_ptr<ListViewOnAForm> form;
  form = std::make_unique<ListViewOnAForm>();
  return NativeListView(form->List());
}

Ref<HostListView> MakeLateBound(LateBoundList::Transfer transfer) {
  return MakeRef<LateBoundList>(ListViewObject(MakeNativeList()), transfer);
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(
    Windows, HostListViewContract,
    testing::Values(ListKind{"Native", MakeNativeList},
                    ListKind{"LateBoundByMembers",
                             [] { return MakeLateBound(LateBoundList::Transfer::kNever); }},
                    ListKind{"LateBoundWithTransfer",
                             [] { return MakeLateBound(LateBoundList::Transfer::kWhereOffered); }}),
    ListKindName);

}  // namespace sifter
