#include "container/HostedControl.h"

#include "container/Ambients.h"
#include "container/ClientSite.h"
#include "container/ComObject.h"
#include "container/ControlSite.h"
#include "container/Failure.h"
#include "container/InPlaceSite.h"
#include "container/Measures.h"

#include <utility>

namespace hosts {

namespace {

using Site = ComObject<ClientSite, InPlaceSite, ControlSite, Ambients>;

HWND WindowOf(const ComRef<IOleInPlaceObject>& control) {
  HWND window = nullptr;
  if (control) control->GetWindow(&window);
  return window;
}

}  // namespace

ControlFrame::ControlFrame(HWND window, std::function<void(bool modeless)> onModal)
    : state_(std::make_shared<FrameState>()) {
  state_->window = window;
  state_->onModal = std::move(onModal);
  frame_ = ComRef<IOleInPlaceFrame>(ComObject<InPlaceFrame>::Make(state_).Get());
}

ControlFrame::~ControlFrame() { *state_ = FrameState(); }

HostedControl::HostedControl(const ControlFrame& frame, HWND window, const std::wstring& progId,
                             const RECT& place, std::function<bool(const MSG& key)> onKey)
    : object_(Automation::Create(progId)),
      ole_(ComRef<IDispatch>(object_.Object()).As<IOleObject>()),
      state_(std::make_shared<SiteState>()),
      frame_(frame.State()) {
  if (!ole_) throw Failure(progId + L" can't be shown in a window");
  state_->window = window;
  state_->place = place;
  state_->frame = frame.Frame();
  state_->onKey = std::move(onKey);
  site_ = ComRef<IOleClientSite>(Site::Make(state_).Get());
  Load();
  SetExtent();
  Activate(OLEIVERB_INPLACEACTIVATE);
  state_->control = ole_.As<IOleInPlaceObject>();
  Place(place);
}

HostedControl::~HostedControl() {
  sink_.reset();
  if (state_->control) state_->control->InPlaceDeactivate();
  frame_->active.Reset();
  ole_->Close(OLECLOSE_NOSAVE);
  ole_->SetClientSite(nullptr);
  *state_ = SiteState();
}

// A control says whether it wants to know its container before it gets its properties.
void HostedControl::Load() {
  DWORD misc = 0;
  ole_->GetMiscStatus(DVASPECT_CONTENT, &misc);
  const bool siteFirst = (misc & OLEMISC_SETCLIENTSITEFIRST) != 0;
  if (siteFirst) Check(ole_->SetClientSite(site_.Get()), L"Placing the control");
  if (const auto stream = ole_.As<IPersistStreamInit>())
    Check(stream->InitNew(), L"Preparing the control");
  if (!siteFirst) Check(ole_->SetClientSite(site_.Get()), L"Placing the control");
}

void HostedControl::Activate(LONG verb) {
  Check(ole_->DoVerb(verb, nullptr, site_.Get(), 0, state_->window, &state_->place),
        L"Showing the control");
}

void HostedControl::SetExtent() {
  const RECT& place = state_->place;
  SIZEL extent = ToHimetric({place.right - place.left, place.bottom - place.top}, state_->window);
  ole_->SetExtent(DVASPECT_CONTENT, &extent);
}

void HostedControl::Place(const RECT& place) {
  state_->place = place;
  SetExtent();
  if (state_->control) state_->control->SetObjectRects(&place, &place);
}

void HostedControl::Listen(EventHandler handler) {
  sink_ = std::make_unique<EventSink>(ole_.Get(), std::move(handler));
}

// To a control that counts as active already, though the focus has gone elsewhere since, activating
// it again would mean nothing.
void HostedControl::TakeFocus() {
  if (state_->control && !HasFocus()) state_->control->UIDeactivate();
  Activate(OLEIVERB_UIACTIVATE);
}

bool HostedControl::HasFocus() const {
  const HWND focus = GetFocus();
  const HWND window = WindowOf(state_->control);
  return window != nullptr && (focus == window || IsChild(window, focus));
}

bool HostedControl::TranslateKey(MSG& key) {
  if (key.message < WM_KEYFIRST || key.message > WM_KEYLAST) return false;
  if (HasFocus()) {
    const auto active = ole_.As<IOleInPlaceActiveObject>();
    if (active && active->TranslateAccelerator(&key) == S_OK) return true;
  }
  return key.message == WM_SYSKEYDOWN && TranslateMnemonic(key);
}

bool HostedControl::TranslateMnemonic(MSG& key) {
  const auto control = ole_.As<IOleControl>();
  CONTROLINFO info{};
  info.cb = sizeof info;
  if (!control || control->GetControlInfo(&info) != S_OK || info.hAccel == nullptr) return false;
  WORD command = 0;
  if (!IsAccelerator(info.hAccel, info.cAccel, &key, &command)) return false;
  Check(control->OnMnemonic(&key), L"Pressing a key of the control");
  return true;
}

}  // namespace hosts
