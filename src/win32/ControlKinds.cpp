#include "win32/ButtonWindows.h"
#include "win32/ComboBoxWindow.h"
#include "win32/DatePickerWindow.h"
#include "win32/LabelWindow.h"
#include "win32/PictureButtonWindow.h"
#include "win32/StaticWindows.h"
#include "win32/TextBoxWindow.h"

namespace sifter {

std::unique_ptr<ControlWindow> ControlWindow::For(ControlHost& host, Control& control) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return std::make_unique<LabelWindow>(host, static_cast<Label&>(control));
    case ControlKind::kTextBox:
      return std::make_unique<TextBoxWindow>(host, static_cast<TextBox&>(control));
    case ControlKind::kComboBox:
      return std::make_unique<ComboBoxWindow>(host, static_cast<ComboBox&>(control));
    case ControlKind::kCheckBox:
      return std::make_unique<CheckBoxWindow>(host, static_cast<CheckBox&>(control));
    case ControlKind::kCommandButton:
      return std::make_unique<CommandButtonWindow>(host, static_cast<CommandButton&>(control));
    case ControlKind::kDatePicker:
      return std::make_unique<DatePickerWindow>(host, static_cast<DatePicker&>(control));
    case ControlKind::kFrame:
      return std::make_unique<FrameWindow>(host, static_cast<Frame&>(control));
    case ControlKind::kImage:
      return std::make_unique<ImageWindow>(host, static_cast<Image&>(control));
    case ControlKind::kLine:
      return std::make_unique<LineWindow>(host, static_cast<Line&>(control));
    case ControlKind::kPictureButton:
      return std::make_unique<PictureButtonWindow>(host, static_cast<PictureButton&>(control));
    case ControlKind::kTimer:
      break;  // nothing to see
  }
  return nullptr;
}

}  // namespace sifter
