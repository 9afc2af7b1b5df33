#include "library/OleControlPart.h"

#include "controls/Mnemonics.h"
#include "library/ControlFrame.h"

#include <olectl.h>

namespace sifter {

namespace {

WORD UpperKey(WPARAM unit) {
  const auto upper = reinterpret_cast<ULONG_PTR>(
      CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(unit & 0xFFFF))));
  return static_cast<WORD>(upper);
}

ACCEL AltAnd(char16_t unit, std::size_t command) {
  ACCEL key{};
  key.fVirt = FALT | FVIRTKEY;
  key.key = static_cast<WORD>(VkKeyScanW(static_cast<WCHAR>(unit)) & 0xFF);
  key.cmd = static_cast<WORD>(command);
  return key;
}

}  // namespace

HRESULT OleControlPart::GetControlInfo(CONTROLINFO* information) {
  if (information == nullptr) return E_POINTER;
  return Answer([&] {
    std::vector<ACCEL> keys;
    for (const Mnemonic& mnemonic : MnemonicsOf(Frame().Control().Shown()))
      keys.push_back(AltAnd(mnemonic.unit, keys.size() + 1));
    keys_.Reset(keys.empty() ? nullptr
                             : CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
    information->cb = sizeof *information;
    information->hAccel = keys_.Get();
    information->cAccel = static_cast<USHORT>(keys.size());
    information->dwFlags = CTRLINFO_EATS_RETURN;  // Enter presses the button that has the focus
    return S_OK;
  });
}

HRESULT OleControlPart::OnMnemonic(LPMSG message) {
  if (message == nullptr) return E_POINTER;
  return Answer([&]() -> HRESULT {
    const WORD pressed = UpperKey(message->wParam);
    for (const Mnemonic& mnemonic : MnemonicsOf(Frame().Control().Shown())) {
      if (UpperKey(mnemonic.unit) != pressed) continue;
      CommandButton* const button = mnemonic.button;
      Frame().InPlace().FromUser([button] { button->SetValue(true); });
      return S_OK;
    }
    return S_FALSE;
  });
}

// The background follows the form's only when the control is placed or loaded. The others are
// asked for when they are needed.
HRESULT OleControlPart::OnAmbientPropertyChange(DISPID property) {
  return Answer([&] {
    const bool any = property == DISPID_UNKNOWN;
    if (any || property == DISPID_AMBIENT_USERMODE) Frame().TakeUserMode();
    if (any || property == DISPID_AMBIENT_DISPLAYASDEFAULT) Frame().InPlace().ShowAsDefault();
    return S_OK;
  });
}

HRESULT OleControlPart::FreezeEvents(BOOL freeze) {
  return Answer([&] {
    if (freeze)
      Frame().Events().Freeze();
    else
      Frame().Events().Thaw();
    return S_OK;
  });
}

}  // namespace sifter
