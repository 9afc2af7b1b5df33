#include "win32/PictureButtonWindow.h"

#include "win32/ButtonFace.h"
#include "win32/ControlHost.h"
#include "win32/UniqueGdi.h"

namespace sifter {

PictureButtonWindow::PictureButtonWindow(ControlHost& host, PictureButton& button)
    : ControlWindow(host, button, L"BUTTON", BS_OWNERDRAW | WS_TABSTOP), button_(button) {}

void PictureButtonWindow::Mirror() { ShowText(button_.AccessibleName()); }

void PictureButtonWindow::Update(ControlProperty property) {
  if (property == ControlProperty::kPicture) InvalidateRect(Handle(), nullptr, FALSE);
}

void PictureButtonWindow::OnCommand(WORD code) {
  if (code == BN_CLICKED) button_.SetValue(true);
}

// Enter presses the button that has the focus, as it does every other button.
bool PictureButtonWindow::OnKey(WPARAM key) {
  if (key != VK_RETURN) return ControlWindow::OnKey(key);
  button_.SetValue(true);
  return true;
}

// All at once, so that nothing flickers.
void PictureButtonWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  const RECT& box = item.rcItem;
  const UniqueMemoryDc memory(CreateCompatibleDC(item.hDC));
  const UniqueBitmap bitmap(CreateCompatibleBitmap(item.hDC, box.right, box.bottom));
  if (!memory || !bitmap) return;
  const SelectedObject selected(memory.Get(), bitmap.Get());
  const auto background = reinterpret_cast<HBRUSH>(
      SendMessageW(Host().Handle(), WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(memory.Get()),
                   reinterpret_cast<LPARAM>(Handle())));
  FillRect(memory.Get(), &box, background);
  const ButtonLook look{(item.itemState & ODS_SELECTED) != 0, (item.itemState & ODS_DISABLED) == 0,
                        (item.itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS};
  DrawPictureButton(memory.Get(), box, button_.Picture().Get(), look, Handle(),
                    Host().Measures().Dpi());
  BitBlt(item.hDC, 0, 0, box.right, box.bottom, memory.Get(), 0, 0, SRCCOPY);
}

LRESULT PictureButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // A button that is drawn here would take quick clicks for double clicks and lose every other.
  if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
  return ControlWindow::OnMessage(message, wParam, lParam);
}

}  // namespace sifter
