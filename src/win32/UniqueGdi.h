#pragma once

#include "win32/UniqueHandle.h"

#include <windows.h>

namespace sifter {

template <class T>
struct GdiKind {
  using Handle = T;
  static void Close(T object) noexcept { DeleteObject(object); }
};

// Drawing objects that we made. They must not be selected into a device context any more when they
// end.
using UniqueFont = UniqueHandle<GdiKind<HFONT>>;
using UniqueBrush = UniqueHandle<GdiKind<HBRUSH>>;
using UniquePen = UniqueHandle<GdiKind<HPEN>>;
using UniqueBitmap = UniqueHandle<GdiKind<HBITMAP>>;

struct MemoryDcKind {
  using Handle = HDC;
  static void Close(HDC context) noexcept { DeleteDC(context); }
};

// A device context made by CreateCompatibleDC or CreateDC.
using UniqueMemoryDc = UniqueHandle<MemoryDcKind>;

// A window's device context, or the screen's (null), for the length of a block.
class WindowDc {
 public:
  explicit WindowDc(HWND window) noexcept : window_(window), context_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() {
    if (context_ != nullptr) ReleaseDC(window_, context_);
  }

  HDC Get() const noexcept { return context_; }

 private:
  HWND window_;
  HDC context_;
};

// Selects a drawing object for the length of a block.
class SelectedObject {
 public:
  SelectedObject(HDC context, HGDIOBJ object) noexcept
      : context_(context), before_(SelectObject(context, object)) {}
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;
  ~SelectedObject() {
    if (before_ != nullptr) SelectObject(context_, before_);
  }

 private:
  HDC context_;
  HGDIOBJ before_;
};

}  // namespace sifter
