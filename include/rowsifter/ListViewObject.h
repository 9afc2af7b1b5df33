#pragma once

// For C++ programs that have a list view of their own and no object model around it: makes the
// object that the filter controls take as their `Listview`.
//
//   IDispatch* list = nullptr;
//   if (SUCCEEDED(CreateListViewObject(listViewWindow, &list))) {
//     ... hand it to the control, by name or as a VARIANT of type VT_DISPATCH ...
//     list->Release();
//   }
//
// Link with the static library RowSifterListView and comctl32, gdi32, ole32, oleaut32, user32,
// uuid.
//
// The object has the members of the list model, which any script can use as well. Names are found
// whatever the case of their letters; positions count from 1; arguments may be given by name:
//
//   list            ColumnHeaders, ListItems, hWnd, Sorted, SortKey, SortOrder, SetFocus,
//                   event ColumnClick(ColumnHeader)
//   ColumnHeaders   Item(Index), Count, Add([Index], [Key], [Text], [Width], [Alignment], [Icon]),
//                   Clear, For Each
//     a column      Index, Key, Text, Width, Alignment, Icon, Tag
//   ListItems       Item(Index), Count, Add([Index], [Key], [Text], [Icon], [SmallIcon]),
//                   Remove(Index), Clear, For Each
//     a row         Index, Key, Text, SubItems(Index), ListSubItems, Tag, ToolTipText, Icon,
//                   SmallIcon, Checked, Bold, Ghosted, ForeColor
//   ListSubItems    Item(Index), Count, Add([Index], [Key], [Text], [ReportIcon], [ToolTipText]),
//                   For Each
//     a cell        Key, Text, Tag, ToolTipText, ReportIcon, ForeColor, Bold
//
// - An Index may be a position or, in Item and Remove, a Key. Keys are unique among the rows and
//   among the columns, or empty, and are compared exactly.
// - A row has a cell for every column but the first; SubItems(j) is the text of cell j, which
//   stands in column j + 1.
// - Width is in twips (1440 to the inch), 1440 when it is left out. Alignment is 0 left, 1 right,
//   2 centre.
// - Icon, SmallIcon and ReportIcon are places in the window's image list, from 0, or texts, which
//   are kept and show no picture. One that was never set is empty.
// - ForeColor is a COLORREF, or 0x80000000 plus the number of a system colour; at first the
//   system's window text.
// - SortKey is the 0-based column that Sorted = True sorts by, by character code; SortOrder is 0
//   ascending, 1 descending. Rows that are added later go where they belong.
// - SetFocus gives the window the input focus. ColumnClick comes behind the parent's own handling
// of
//   LVN_COLUMNCLICK, with the column; sinks are found and connected like those of a control.
// - Errors: 5 unknown key, 9 unknown position, 13 wrong type, 457 key taken, as result codes
//   0x800A0000 + number with their descriptions.
//
// Notices: a new row is counted before the window is sent 4103 (LVM_INSERTITEMA); a row that goes,
// or a list that is cleared, is still whole when the window is sent 4104 or 4105 (which comes
// once). Columns come with 4123 and go with 4124.

#include <oaidl.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

// The object that stands for `listView`, with a reference for the caller: the same one for as long
// as somebody holds it. The window stays the caller's. When it has been destroyed the object goes
// on as a list without a window.
//
// What the window holds already is taken over: columns, and rows with their texts, pictures, check
// marks and ghosted states. The program may go on sending the window messages of its own: rows that
// it inserts, changes or deletes are followed, columns too, but a watcher of the messages is told
// of them before the object has them. The window's own sorting (LVM_SORTITEMS) is refused; use
// SortKey and Sorted. Of columns the last one may come and go this way while there are rows; when
// one in front of others does, the texts of the rows don't move with it, so make the columns first.
// A row that the filter has taken out and put back is another item of the window: keep what belongs
// to it in Tag or Key, not in the item's lParam.
//
// The window is asked for the texts when it draws: its parent, which must be the window that it
// sends its notices to, is subclassed for that until the list view is destroyed, and notices that
// carry texts come in their Unicode form. The parent's own answers to custom drawing stay in force.
//
// `listView` must be a list-view window of the calling thread that keeps its own items, on a parent
// window of the same thread.
//   E_POINTER      `object` is null
//   0x800A0005     `listView` is no such window
HRESULT STDMETHODCALLTYPE CreateListViewObject(HWND listView, IDispatch** object);

#ifdef __cplusplus
}
#endif
