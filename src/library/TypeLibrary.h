#pragma once

#include "win32/ComRef.h"

#include <oaidl.h>
#include <windows.h>

namespace sifter {

// The type library in this module's own file. The platform's errors come out.
ComRef<ITypeLib> OwnTypeLibrary();

// One class or interface of it.
ComRef<ITypeInfo> OwnTypeInfo(REFGUID id);

}  // namespace sifter
