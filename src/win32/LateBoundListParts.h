#pragma once

#include "listmodel/HostListView.h"
#include "win32/LateBoundListObject.h"

namespace sifter {

// The collections of a host's list, from which its columns, rows and cells come.
Ref<ColumnHeaderCollection> LateBoundColumns(LateBoundObject columns);
Ref<ListItemCollection> LateBoundRows(LateBoundObject rows);

}  // namespace sifter
