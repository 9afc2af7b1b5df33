#pragma once

#include "win32/NativeListViewItems.h"
#include "win32/UniqueGdi.h"

#include <windows.h>

namespace sifter {

// Draws rows and cells in their colours and in bold, by way of the window's custom drawing. What
// has neither is drawn as the window draws it anyway.
class NativeListViewLook {
 public:
  NativeListViewLook(const NativeListViewWindow& window, const NativeListViewItems& items)
      : window_(window), items_(items) {}

  // The answer to a stage of drawing, on top of what the window's parent has answered.
  LRESULT OnCustomDraw(NMLVCUSTOMDRAW& stage, LRESULT parentsAnswer);

  // The window has got another font.
  void ForgetFont() noexcept { bold_.Reset(); }

 private:
  LRESULT OnItem(const RowData& row, LRESULT parentsAnswer) const;
  LRESULT OnCell(NMLVCUSTOMDRAW& stage, const RowData& row, LRESULT parentsAnswer);
  const RowData* RowOf(const NMLVCUSTOMDRAW& stage) const;
  COLORREF PlainColor() const;
  HFONT PlainFont() const;
  HFONT BoldFont();

  const NativeListViewWindow& window_;
  const NativeListViewItems& items_;
  UniqueFont bold_;
};

}  // namespace sifter
