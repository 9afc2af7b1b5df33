#pragma once

#include "win32/UniqueHandle.h"

#include <commctrl.h>
#include <windows.h>

namespace sifter {

struct ImageListKind {
  using Handle = HIMAGELIST;
  static void Close(HIMAGELIST images) noexcept { ImageList_Destroy(images); }
};

// An image list that we made. A list view with LVS_SHAREIMAGELISTS leaves it to us; without, the
// window destroys it, and then it must be released here.
using UniqueImageList = UniqueHandle<ImageListKind>;

}  // namespace sifter
