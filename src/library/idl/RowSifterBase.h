#pragma once

// The header made of RowSifter.idl includes this one under the name of the base it imports.
#include <oaidl.h>
#include <ocidl.h>
