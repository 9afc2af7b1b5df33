#pragma once

#include "base/Ref.h"
#include "listmodel/HostListView.h"

#include <initializer_list>
#include <oaidl.h>
#include <windows.h>

namespace sifter {

// Hosts' list views, as they are handed over and given back.

// The list in an argument; null for Nothing. An object that one of the `known` lists stands for is
// that list again. Error 424 for what is no object, or one that can't be called by the names of its
// members.
Ref<HostListView> ListFromVariant(const VARIANT& argument,
                                  std::initializer_list<Ref<HostListView>> known);

// The object behind a list that a host has handed over, with a reference for the caller; Nothing
// for null.
VARIANT VariantFromList(const Ref<HostListView>& list);

}  // namespace sifter
