#pragma once

#include "container/Automation.h"
#include "container/EventSink.h"
#include "container/InPlaceFrame.h"
#include "container/SiteState.h"

#include <memory>
#include <string>

namespace hosts {

// The top-level window around a program's controls. `onModal` is told when a control begins
// (false) and ends (true) a dialog of its own.
class ControlFrame {
 public:
  explicit ControlFrame(HWND window, std::function<void(bool modeless)> onModal = {});
  ControlFrame(const ControlFrame&) = delete;
  ControlFrame& operator=(const ControlFrame&) = delete;
  // Controls may keep the frame longer; by then it has nothing to say.
  ~ControlFrame();

  ComRef<IOleInPlaceFrame> Frame() const { return frame_; }
  const std::shared_ptr<FrameState>& State() const { return state_; }

 private:
  std::shared_ptr<FrameState> state_;
  ComRef<IOleInPlaceFrame> frame_;
};

// A control that is shown in a window of ours. Closed when this goes.
class HostedControl {
 public:
  // `onKey` is asked about keys that the control passes on: Tab, for one.
  HostedControl(const ControlFrame& frame, HWND window, const std::wstring& progId,
                const RECT& place, std::function<bool(const MSG& key)> onKey = {});
  HostedControl(const HostedControl&) = delete;
  HostedControl& operator=(const HostedControl&) = delete;
  ~HostedControl();

  const Automation& Object() const { return object_; }
  void Listen(EventHandler handler);

  void Place(const RECT& place);
  void TakeFocus();
  bool HasFocus() const;

  // For the message loop, before anything else looks at a key: whether the control has used it.
  bool TranslateKey(MSG& key);

 private:
  void Load();
  void Activate(LONG verb);
  void SetExtent();
  bool TranslateMnemonic(MSG& key);

  Automation object_;
  ComRef<IOleObject> ole_;
  std::shared_ptr<SiteState> state_;
  std::shared_ptr<FrameState> frame_;
  ComRef<IOleClientSite> site_;
  std::unique_ptr<EventSink> sink_;
};

}  // namespace hosts
