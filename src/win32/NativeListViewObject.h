#pragma once

#include "listmodel/HostListView.h"
#include "win32/ComRef.h"

#include <oaidl.h>

namespace sifter {

// A list as an object for hosts: its members by name (NativeListViewDispatchMembers.h), its event
// (NativeListViewEvents.h) and, for our own component in another module, its rows for transfer
// (RowTransfer.h). `list` must share its rows.
ComRef<IDispatch> ListViewObject(Ref<HostListView> list);

}  // namespace sifter
