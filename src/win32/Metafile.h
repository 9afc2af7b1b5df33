#pragma once

#include <functional>
#include <string>
#include <windows.h>

namespace sifter {

// Drawing that comes out in a metafile as well. A metafile keeps steps and not what they result in:
// it knows nothing of what has been drawn before, and can't measure text.

bool IsMetafile(HDC dc) noexcept;

// Draws a part whose look depends on what is under it: `draw` gets a context of its own, covered
// with `background` from 0, 0 to the size of `box`, and the result is put into `box`.
void DrawOpaque(HDC dc, const RECT& box, COLORREF background,
                const std::function<void(HDC, const RECT&)>& draw);

// Draws a text of one line, as the system does with `format` (DT_CENTER, DT_NOPREFIX; it stands in
// the middle of the height), and ends it in an ellipsis where the room is short.
void DrawLine(HDC dc, HFONT font, const std::wstring& text, const RECT& box, UINT format);

}  // namespace sifter
