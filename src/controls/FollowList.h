#pragma once

#include "listmodel/HostListView.h"
#include "listmodel/ListViewDump.h"

namespace sifter {

// How a filtered list's full copy learns what the host has done to the list. `passed` holds the
// rows that the last filtering left in the list, `full` all rows. The list is read first, and
// whatever a row doesn't let be read is left out of its copy; an error of the list as such comes
// out, with nothing changed. None of the host's code runs behind that.

// Whether `full` has every row of `passed`. It doesn't when the host has added rows to the list
// while it was being copied.
enum class Copies { kInStep, kDoubtful };

// Rows of the list that `full` doesn't have are appended to it, an exact duplicate of a known row
// therefore not. Rows of `passed` that the list no longer has go from `full`, unless the list has
// rows that can't be read. Of equal rows as many count as gone as there are fewer now.
void FollowList(HostListView& list, ListViewDump& passed, ListViewDump& full, Copies copies);

// Only the first half.
void AddUnknownRows(HostListView& list, ListViewDump& full);

// `full` gets the rows of a list that isn't filtered. Its columns stay; one that has none gets the
// list's.
void TakeRows(HostListView& list, ListViewDump& full);

// The host takes this row out of its list: the first equal one goes from either copy.
void ForgetRow(ListItem& row, ListViewDump& passed, ListViewDump& full);

}  // namespace sifter
