#pragma once

#include "win32/ComRef.h"

#include <unknwn.h>
#include <windows.h>

namespace sifter {

// What is fixed about a class of controls that hosts can create.
struct ControlClass {
  const GUID* classId;
  const IID* interfaceId;  // its default interface
  const IID* eventsId;     // its default source of events
  const wchar_t* name;     // what hosts create it by: "RowSifter." + name
  DWORD miscStatus;        // OLEMISC_...
  UINT toolboxBitmap;      // the number of its picture in the module's resources

  // A new control, through its own IUnknown; `outer` is the object that it is to be part of, or
  // null. Errors come out.
  ComRef<IUnknown> (*create)(const ControlClass& self, IUnknown* outer);
};

// The classes that this module creates and registers.
struct ControlClasses {
  const ControlClass* first;
  const ControlClass* last;
  const ControlClass* begin() const { return first; }
  const ControlClass* end() const { return last; }
};
ControlClasses CreatableClasses();

}  // namespace sifter
