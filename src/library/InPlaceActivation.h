#pragma once

#include "win32/ComRef.h"
#include "win32/UserControlWindow.h"

#include <functional>
#include <memory>
#include <oleidl.h>
#include <windows.h>

namespace sifter {

class ControlFrame;

// The control's window in the host's form, and its place in the keyboard's order: active (it has a
// window) and active for the user (it has the focus, and the host's frame knows).
class InPlaceActivation final : private UserControlSite {
 public:
  explicit InPlaceActivation(ControlFrame& frame) : frame_(frame) {}

  bool IsActive() const noexcept { return site_.Get() != nullptr; }
  bool IsUiActive() const noexcept { return uiActive_; }

  // Null while it isn't active.
  HWND Window() const noexcept { return window_ ? window_->Handle() : nullptr; }
  UserControlWindow* Shown() const noexcept { return window_.get(); }

  // The host's frame window, told of modal dialogs; null while it isn't active.
  IOleInPlaceFrame* HostFrame() const noexcept { return hostFrame_.Get(); }

  // A window in the form of `client`, or the result code that says why not. Nothing when there is
  // one already.
  HRESULT Activate(IOleClientSite* client);
  HRESULT UiActivate(IOleClientSite* client);
  void UiDeactivate();
  void Deactivate();

  // Without asking or telling the host: the control ends.
  void End() noexcept;

  // In pixels of the host's window.
  void SetRects(const RECT& box, const RECT& visible);

  // The control wants to be as large as it says: asks the host for that much room. A host that
  // refuses isn't asked again for the same.
  void AskForRoom();

  // Shows or hides the window.
  void Show(bool visible);

  void ShowAsDefault();

  // Runs what the user has done to the control, unless the control is disabled or the form says
  // that nobody answers to the user at the moment.
  void FromUser(const std::function<void()>& work);

 private:
  void Run(const std::function<void()>& work) override { FromUser(work); }
  void Keep(const std::function<void()>& work) override;
  void FocusCame() override;
  void FocusWent() override;

  RECT WindowBox() const;
  RECT WantedBox(const RECT& box) const;
  void TellFrames(IOleInPlaceActiveObject* active, LPCOLESTR name);

  ControlFrame& frame_;
  ComRef<IOleInPlaceSite> site_;
  ComRef<IOleInPlaceFrame> hostFrame_;
  ComRef<IOleInPlaceUIWindow> hostDocument_;
  std::unique_ptr<UserControlWindow> window_;
  bool activating_ = false;  // the host is being asked; what it does meanwhile doesn't start again
  bool uiActive_ = false;
  bool asking_ = false;  // the host is being asked for room
  RECT lastAsked_{};     // what the host has refused; empty when it has not
  SIZE lastSize_{};      // of the window at that time
};

}  // namespace sifter
