#pragma once

#include "listmodel/HostListView.h"

#include <windows.h>

namespace sifter {

// A list-view window (class SysListView32) as a HostListView, for hosts that have no object model
// of their own. The same list for as long as the window lives, and with it everything that the
// window itself doesn't keep: keys, tags, tool tips, colours, bold. What the window holds already
// comes into the list; what the host's program does with plain messages later does too. When the
// window has been destroyed the list goes on as one without a window for whoever holds it.
//
// The window is borrowed. It must belong to this thread, have a parent, which must be the window
// that its notices go to, and keep its own items (no LVS_OWNERDATA): anything else is error 5. Its
// notices come in their Unicode form from then on.
//
// Those who watch clicks on the headers are told of them behind the parent. Measures of columns are
// twips. Errors and order of notices are those of MemoryListView, whose rows can be shared.
Ref<HostListView> NativeListView(HWND window);

}  // namespace sifter
