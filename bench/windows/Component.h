#pragma once

#include <oaidl.h>
#include <windows.h>

// The component's side of the measurement: the dialog over a list view in another module, worked
// without a window of its own. Plain functions, as the component shares no C++ with its host.

#ifdef __cplusplus
extern "C" {
#endif

typedef struct Component Component;

// Attaches a list and builds the dialog's rows. With `byMembers` the list's rows are not
// transferred but read and written member by member. Null after an error.
__declspec(dllexport) Component* OpenComponent(IDispatch* list, int byMembers);
__declspec(dllexport) void CloseComponent(Component* component);

// Sets a criterion for a column (from 0); the others stay. `first` and `second` are the values as a
// user types them. 0 when the column doesn't offer the operator.
__declspec(dllexport) int SetCriterion(Component* component, int column,
                                       const wchar_t* operatorWord, const wchar_t* first,
                                       const wchar_t* second);

// Presses Apply; what it takes, in milliseconds.
__declspec(dllexport) double Apply(Component* component);

// Puts all rows back; the criteria stay.
__declspec(dllexport) void Refill(Component* component);

// How many message boxes there have been.
__declspec(dllexport) int BoxCount(const Component* component);

#ifdef __cplusplus
}
#endif
