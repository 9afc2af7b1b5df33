#pragma once

#include "base/Ref.h"
#include "base/Text.h"
#include "filterdialog/frmFilter.h"
#include "listmodel/HostListView.h"
#include "listmodel/ListViewDump.h"

// The calling orders in which the two controls prepare and show a dialog, without the controls.

namespace sifter {

namespace detail {

inline void EnsureSnapshots(frmFilter& dialog) {
  if (!dialog.ListView1) dialog.ListView1 = MakeRef<ListViewDump>();
  if (!dialog.lvwCopyOfFiltered) dialog.lvwCopyOfFiltered = MakeRef<ListViewDump>();
}

}  // namespace detail

// As a button does it: prepares the dialog anew when the list no longer shows what the dialog has
// left in it. Returns whether a filter is in force afterwards.
inline bool ShowLikeButton(frmFilter& dialog, const Ref<HostListView>& list) {
  if (!dialog.ListviewsAreEqual(list, dialog.lvwCopyOfFiltered)) {
    dialog.ClearCriteria();
    dialog.UsersListview = list;
    detail::EnsureSnapshots(dialog);
    dialog.ListView1->ColumnHeaders()->Clear();
    dialog.CopyListview(list, dialog.ListView1);
    dialog.lvwCopyOfFiltered->ListItems()->Clear();
    dialog.SetUpForm();
  }
  dialog.Show(ShowMode::kModal);
  return dialog.blnFilterActive;
}

// As a banner does it: prepares the dialog anew as long as no filter is in force, and takes the
// list away from it afterwards.
inline bool ShowLikeBanner(frmFilter& dialog, const Ref<HostListView>& list, bool active) {
  dialog.UsersListview = list;
  if (!active) {
    dialog.ClearCriteria();
    detail::EnsureSnapshots(dialog);
    dialog.ListView1->ColumnHeaders()->Clear();
    dialog.CopyListview(dialog.ListView1, dialog.lvwCopyOfFiltered);
    dialog.lvwCopyOfFiltered->ListItems()->Clear();
    dialog.SetUpForm();
  }
  dialog.Show(ShowMode::kModal);
  dialog.UsersListview = nullptr;
  return dialog.blnFilterActive;
}

}  // namespace sifter
