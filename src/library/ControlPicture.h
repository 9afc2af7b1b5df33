#pragma once

#include "forms/UserControl.h"

#include <objidl.h>
#include <windows.h>

namespace sifter {

// A control as a picture that can be stretched. `extent` is its size in hundredths of a millimetre.
// The platform's errors come out.

// The caller's to delete.
HENHMETAFILE EnhancedPictureOf(const UserControl& control, const SIZEL& extent);

// A METAFILEPICT in global memory; the caller's to free, with the metafile in it.
HGLOBAL PictureOf(const UserControl& control, const SIZEL& extent);

}  // namespace sifter
