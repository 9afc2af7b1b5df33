#pragma once

#include "win32/ComRef.h"

#include <oaidl.h>
#include <windows.h>

namespace sifter {

// The events of a list's object, and the event that there is.
inline constexpr IID kListViewEventsId = {
    0xabfaab81, 0x2d91, 0x476e, {0xbe, 0xb5, 0xd4, 0x8f, 0x9a, 0x1b, 0x1c, 0x98}};
inline constexpr DISPID kColumnClickEvent = 1;

// The class of a list's object, with its events as the default source. Made anew for everyone who
// asks, which hardly anybody does: a program that links the object then needs no type library.
ComRef<ITypeInfo> ListViewClassType();

}  // namespace sifter
