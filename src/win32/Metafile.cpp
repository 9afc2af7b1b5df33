#include "win32/Metafile.h"

#include "win32/UniqueGdi.h"

#include <algorithm>

namespace sifter {

namespace {

// The letter behind a single & is the one that is underlined.
std::wstring WithoutPrefixes(const std::wstring& text) {
  std::wstring shown;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == L'&' && ++at == text.size()) break;
    shown += text[at];
  }
  return shown;
}

int WidthOf(HDC dc, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

std::wstring Shortened(HDC dc, const std::wstring& text, int width) {
  if (WidthOf(dc, text) <= width) return text;
  const std::wstring dots = L"...";
  int fit = 0;
  SIZE size{};
  GetTextExtentExPointW(dc, text.c_str(), static_cast<int>(text.size()),
                        std::max(0, width - WidthOf(dc, dots)), &fit, nullptr, &size);
  return text.substr(0, static_cast<std::size_t>(fit)) + dots;
}

}  // namespace

bool IsMetafile(HDC dc) noexcept {
  const DWORD type = GetObjectType(dc);
  return type == OBJ_METADC || type == OBJ_ENHMETADC;
}

void DrawOpaque(HDC dc, const RECT& box, COLORREF background,
                const std::function<void(HDC, const RECT&)>& draw) {
  const RECT all{0, 0, box.right - box.left, box.bottom - box.top};
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = all.right;
  info.bmiHeader.biHeight = all.bottom;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biSizeImage = static_cast<DWORD>(all.right * all.bottom * 4);  // is copied by it
  void* bits = nullptr;
  const UniqueMemoryDc memory(CreateCompatibleDC(nullptr));
  const UniqueBitmap bitmap(
      CreateDIBSection(memory.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!memory || !bitmap) return;
  const SelectedObject selected(memory.Get(), bitmap.Get());
  const UniqueBrush brush(CreateSolidBrush(background));
  FillRect(memory.Get(), &all, brush.Get());
  draw(memory.Get(), all);
  GdiFlush();
  StretchDIBits(dc, box.left, box.top, all.right, all.bottom, 0, 0, all.right, all.bottom, bits,
                &info, DIB_RGB_COLORS, SRCCOPY);
}

void DrawLine(HDC dc, HFONT font, const std::wstring& text, const RECT& box, UINT format) {
  const SelectedObject selected(dc, font);
  SetBkMode(dc, TRANSPARENT);
  if (!IsMetafile(dc)) {
    RECT room = box;
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &room,
              format | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    return;
  }
  const WindowDc screen(nullptr);
  const SelectedObject measured(screen.Get(), font);
  const int width = static_cast<int>(box.right - box.left);
  const std::wstring line =
      Shortened(screen.Get(), (format & DT_NOPREFIX) != 0 ? text : WithoutPrefixes(text), width);
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen.Get(), &metrics);
  const bool centred = (format & DT_CENTER) != 0;
  const int left =
      static_cast<int>(box.left) + (centred ? (width - WidthOf(screen.Get(), line)) / 2 : 0);
  const int top = static_cast<int>(box.top + (box.bottom - box.top - metrics.tmHeight) / 2);
  ExtTextOutW(dc, left, top, ETO_CLIPPED, &box, line.c_str(), static_cast<UINT>(line.size()),
              nullptr);
}

}  // namespace sifter
