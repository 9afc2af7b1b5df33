#include "library/InPlaceActiveObjectPart.h"

#include "library/ControlFrame.h"

namespace sifter {

namespace {

// As IOleControlSite wants them.
constexpr DWORD kShift = 1;
constexpr DWORD kControl = 2;
constexpr DWORD kAlt = 4;

DWORD Modifiers() {
  DWORD modifiers = 0;
  if (GetKeyState(VK_SHIFT) < 0) modifiers |= kShift;
  if (GetKeyState(VK_CONTROL) < 0) modifiers |= kControl;
  if (GetKeyState(VK_MENU) < 0) modifiers |= kAlt;
  return modifiers;
}

}  // namespace

HRESULT InPlaceActiveObjectPart::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = Frame().InPlace().Window();
  return *window != nullptr ? S_OK : E_FAIL;
}

HRESULT InPlaceActiveObjectPart::ContextSensitiveHelp(BOOL) { return E_NOTIMPL; }

// What the control doesn't use itself belongs to the form: Tab and the arrows move on from it.
HRESULT InPlaceActiveObjectPart::TranslateAccelerator(LPMSG message) {
  if (message == nullptr) return E_POINTER;
  return Answer([&]() -> HRESULT {
    UserControlWindow* const window = Frame().InPlace().Shown();
    if (window == nullptr) return S_FALSE;
    if (window->TranslateKey(*message)) return S_OK;
    const auto site = Frame().Site().Control();
    if (!site) return S_FALSE;
    return site->TranslateAccelerator(message, Modifiers()) == S_OK ? S_OK : S_FALSE;
  });
}

// The document that the control is in comes to the front, or leaves it.
HRESULT InPlaceActiveObjectPart::OnDocWindowActivate(BOOL active) {
  return Answer([&] {
    IOleInPlaceFrame* const hostFrame = Frame().InPlace().HostFrame();
    if (Frame().InPlace().IsUiActive() && hostFrame != nullptr)
      hostFrame->SetActiveObject(active ? this : nullptr, active ? Frame().Class().name : nullptr);
    return S_OK;
  });
}

}  // namespace sifter
