#pragma once

#include "script/Script.h"
#include "script/ScriptWindow.h"

#include <string>

namespace hosts {

// The script's `WScript`, as the system's own script hosts have it, as far as it goes:
//   Echo(...), Quit([ExitCode]), CreateObject(ProgID), ScriptName, ScriptFullName
ComRef<IDispatch> MakeWScriptObject(const std::wstring& file);

// The script's window, `Form`:
//   Caption, hWnd, List (the list view's object), Show, Close,
//   AddControl(ProgID, Name, [Width], [Height])   twips; Width 0 is all that is left
// A control is known to the script by its name, and its events go to the procedures Name_Event.
ComRef<IDispatch> MakeFormObject(ScriptWindow& window, Script& script);

}  // namespace hosts
