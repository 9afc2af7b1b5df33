#pragma once

#include "base/Text.h"

namespace sifter {

// The name under which HookClass is known inside the library. It is registered nowhere: no host
// can make one by it.
inline constexpr TextView kHookClassName = u"RowSifter.HookClass";

struct MemberDescription {
  TextView member;
  TextView description;
};

// What a design tool shows beside the members of HookClass that have a description.
inline constexpr MemberDescription kHookClassMembers[] = {
    {u"Messages", u"Specifies which messages are passed to the WndProc event"},
    {u"hWnd", u"Specifies the handle of the window to be subclassed"},
    {u"CallWndProc", u"Invokes the original window procedure for the subclassed window"},
};

}  // namespace sifter
