#include "library/InPlaceActivation.h"

#include "base/FlagScope.h"
#include "library/ControlFrame.h"

#include <utility>

namespace sifter {

namespace {

// As many pixels as give no less than this.
int PixelsFor(double twips, int dpi) {
  const int nearest = TwipsToPixels(twips, dpi);
  return PixelsToTwips(nearest, dpi) < twips ? nearest + 1 : nearest;
}

}  // namespace

HRESULT InPlaceActivation::Activate(IOleClientSite* client) {
  if (IsActive() || activating_) return S_OK;
  const FlagScope activating(activating_);
  const auto site = ComRef<IOleClientSite>(client).As<IOleInPlaceSite>(IID_IOleInPlaceSite);
  if (!site) return OLEOBJ_S_CANNOT_DOVERB_NOW;
  if (site->CanInPlaceActivate() != S_OK) return E_FAIL;
  HWND parent = nullptr;
  if (FAILED(site->GetWindow(&parent)) || parent == nullptr) return E_FAIL;

  ComRef<IOleInPlaceFrame> hostFrame;
  ComRef<IOleInPlaceUIWindow> hostDocument;
  RECT box{};
  RECT visible{};
  OLEINPLACEFRAMEINFO keys{};
  keys.cb = sizeof keys;
  const HRESULT told = site->OnInPlaceActivate();
  if (FAILED(told)) return told;
  const HRESULT placed =
      site->GetWindowContext(hostFrame.Receive(), hostDocument.Receive(), &box, &visible, &keys);
  if (FAILED(placed)) {
    site->OnInPlaceDeactivate();
    return placed;
  }
  site_ = site;
  hostFrame_ = std::move(hostFrame);
  hostDocument_ = std::move(hostDocument);
  try {
    window_ = std::make_unique<UserControlWindow>(
        frame_.Control().Shown(), static_cast<UserControlSite&>(*this), parent, box);
    frame_.Open();  // the host may have closed the control before, and needs no new site for it
    window_->Place(box, visible);
  } catch (...) {
    Deactivate();
    throw;
  }
  ShowAsDefault();
  AskForRoom();
  return S_OK;
}

HRESULT InPlaceActivation::UiActivate(IOleClientSite* client) {
  const HRESULT active = Activate(client);
  if (active != S_OK || uiActive_ || !IsActive()) return active;
  uiActive_ = true;
  const ComRef<IOleInPlaceSite> site = site_;
  const HRESULT told = site->OnUIActivate();
  if (FAILED(told)) {
    uiActive_ = false;
    return told;
  }
  // Any of the host's own steps may have taken the control's window away again.
  if (IsActive()) TellFrames(&frame_.ActiveObject(), frame_.Class().name);
  if (window_) window_->TakeFocus();
  return S_OK;
}

// The control has no tools of its own, so the host's keep all the room.
void InPlaceActivation::TellFrames(IOleInPlaceActiveObject* active, LPCOLESTR name) {
  const ComRef<IOleInPlaceFrame> hostFrame = hostFrame_;
  const ComRef<IOleInPlaceUIWindow> hostDocument = hostDocument_;
  if (hostFrame) hostFrame->SetActiveObject(active, name);
  if (hostDocument) hostDocument->SetActiveObject(active, name);
  if (active == nullptr) return;
  if (hostFrame) hostFrame->SetBorderSpace(nullptr);
  if (hostDocument) hostDocument->SetBorderSpace(nullptr);
}

void InPlaceActivation::UiDeactivate() {
  if (!std::exchange(uiActive_, false)) return;
  const ComRef<IOleInPlaceSite> site = site_;
  TellFrames(nullptr, nullptr);
  if (site) site->OnUIDeactivate(FALSE);
}

void InPlaceActivation::Deactivate() {
  if (!IsActive()) return;
  UiDeactivate();
  window_.reset();
  hostFrame_.Reset();
  hostDocument_.Reset();
  if (const ComRef<IOleInPlaceSite> site = std::exchange(site_, nullptr))
    site->OnInPlaceDeactivate();
}

void InPlaceActivation::End() noexcept {
  uiActive_ = false;
  window_.reset();
  hostFrame_.Reset();
  hostDocument_.Reset();
  site_.Reset();
}

void InPlaceActivation::SetRects(const RECT& box, const RECT& visible) {
  if (!window_) return;
  window_->Place(box, visible);
  if (Window() == nullptr) return;
  const RECT now = WindowBox();
  const RECT wanted = WantedBox(now);
  if (EqualRect(&wanted, &now)) lastAsked_ = {};
}

RECT InPlaceActivation::WindowBox() const {
  RECT box{};
  GetWindowRect(Window(), &box);
  MapWindowPoints(nullptr, GetParent(Window()), reinterpret_cast<POINT*>(&box), 2);
  return box;
}

// The same place with as much room as the control wants.
RECT InPlaceActivation::WantedBox(const RECT& box) const {
  const UserControl& control = frame_.Control().Shown();
  const int dpi = window_->Measures().Dpi();
  return {box.left, box.top, box.left + PixelsFor(control.Width(), dpi),
          box.top + PixelsFor(control.Height(), dpi)};
}

// The host answers with SetRects, at once or never.
void InPlaceActivation::AskForRoom() {
  if (Window() == nullptr || asking_) return;
  const RECT box = WindowBox();
  const RECT wanted = WantedBox(box);
  const SIZE size = {box.right - box.left, box.bottom - box.top};
  if (EqualRect(&wanted, &box)) return;
  if (EqualRect(&wanted, &lastAsked_) && size.cx == lastSize_.cx && size.cy == lastSize_.cy) return;
  lastAsked_ = wanted;
  lastSize_ = size;
  const FlagScope asking(asking_);
  const ComRef<IOleInPlaceSite> site = site_;
  site->OnPosRectChange(&wanted);
}

void InPlaceActivation::Show(bool visible) {
  if (Window() != nullptr) ShowWindow(Window(), visible ? SW_SHOWNA : SW_HIDE);
}

void InPlaceActivation::ShowAsDefault() {
  if (window_) window_->ShowAsDefault(frame_.Site().DisplayAsDefault());
}

void InPlaceActivation::FromUser(const std::function<void()>& work) {
  const ComRef<IUnknown> alive(&frame_.Identity());
  if (frame_.Control().Shown().Enabled() && !frame_.Site().UiDead()) work();
}

void InPlaceActivation::Keep(const std::function<void()>& work) {
  const ComRef<IUnknown> alive(&frame_.Identity());
  work();
}

void InPlaceActivation::FocusCame() {
  const ComRef<IUnknown> alive(&frame_.Identity());
  const ComRef<IOleClientSite> client(frame_.Site().Client());
  if (!uiActive_ && IsActive()) UiActivate(client.Get());
  if (const auto control = frame_.Site().Control()) control->OnFocus(TRUE);
}

void InPlaceActivation::FocusWent() {
  const ComRef<IUnknown> alive(&frame_.Identity());
  if (const auto control = frame_.Site().Control()) control->OnFocus(FALSE);
}

}  // namespace sifter
