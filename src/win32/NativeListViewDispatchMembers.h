#pragma once

#include "listmodel/HostListView.h"
#include "win32/ComRef.h"
#include "win32/NativeListViewDispatchCall.h"

#include <oaidl.h>
#include <span>

namespace sifter {

// The parts of a list as objects for hosts, each with the members of the list model under their
// names:
//
//   list            ColumnHeaders, ListItems, hWnd, Sorted, SortKey, SortOrder, SetFocus
//   collections     Item (default), Count, Add, Clear, _NewEnum, and for rows Remove
//   column          Index, Key, Text, Width, Alignment, Icon, Tag
//   row             Index, Key, Text, Tag, Icon, SmallIcon, ToolTipText, Checked, Bold, ForeColor,
//                   Ghosted, ListSubItems, SubItems(Index)
//   cell            Key, Text, Tag, ReportIcon, ToolTipText, ForeColor, Bold
//
// All parameters of Add may be left out; a column without a Width is 1440 twips wide.
ComRef<IDispatch> DispatchOf(Ref<ColumnHeader> column);
ComRef<IDispatch> DispatchOf(Ref<ListItem> row);
ComRef<IDispatch> DispatchOf(Ref<ListSubItem> cell);

// The members of the list itself, for the object that stands for it.
std::span<const DispatchMember> ListViewMembers();

}  // namespace sifter
