#include "win32/StaticWindows.h"

namespace sifter {

ImageWindow::ImageWindow(ControlHost& host, Image& image)
    : ControlWindow(host, image, L"STATIC", SS_ICON | SS_REALSIZECONTROL) {}

void ImageWindow::Mirror() {
  const HICON icon = LoadIconW(nullptr, IDI_APPLICATION);  // shared, never destroyed
  SendMessageW(Handle(), STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
}

LineWindow::LineWindow(ControlHost& host, Line& line)
    : ControlWindow(host, line, L"STATIC", SS_ETCHEDHORZ) {}

}  // namespace sifter
