#include "library/ControlFrame.h"

#include <olectl.h>

namespace sifter {

ControlFrame::ControlFrame(const ControlClass& self, IUnknown* outer)
    : ComWhole(outer),
      class_(self),
      classInfo_(*this, Identity()),
      connections_(*this, Identity()),
      dataObject_(*this, Identity()),
      activeObject_(*this, Identity()),
      inPlaceObject_(*this, Identity()),
      oleControl_(*this, Identity()),
      oleObject_(*this, Identity()),
      persistPropertyBag_(*this, Identity()),
      persistStorage_(*this, Identity()),
      persistStream_(*this, Identity()),
      quickActivate_(*this, Identity()),
      supportErrorInfo_(*this, Identity()),
      viewObject_(*this, Identity()) {
  Offer(IID_IProvideClassInfo, classInfo_);
  Offer(IID_IProvideClassInfo2, classInfo_);
  Offer(IID_IConnectionPointContainer, connections_);
  Offer(IID_IDataObject, dataObject_);
  Offer(IID_IOleInPlaceActiveObject, activeObject_);
  Offer(IID_IOleWindow, inPlaceObject_);
  Offer(IID_IOleInPlaceObject, inPlaceObject_);
  Offer(IID_IOleControl, oleControl_);
  Offer(IID_IOleObject, oleObject_);
  Offer(IID_IPersistPropertyBag, persistPropertyBag_);
  Offer(IID_IPersistStorage, persistStorage_);
  Offer(IID_IPersist, persistStream_);
  Offer(IID_IPersistStreamInit, persistStream_);
  Offer(IID_IQuickActivate, quickActivate_);
  Offer(IID_ISupportErrorInfo, supportErrorInfo_);
  Offer(IID_IViewObject, viewObject_);
  Offer(IID_IViewObject2, viewObject_);
}

ControlFrame::~ControlFrame() = default;

void ControlFrame::Begin() {
  UserControl& control = Control().Shown();
  control.SizeWanted = [this] { TakeWantedSize(); };
  control.SetSize(HimetricToTwips(extent_.cx), HimetricToTwips(extent_.cy));
}

void ControlFrame::End() {
  Control().Shown().SizeWanted = nullptr;
  events_.Close();
  inPlace_.End();
  site_.Set(nullptr);
}

void ControlFrame::SetSite(IOleClientSite* site) {
  if (site == nullptr) inPlace_.Deactivate();
  site_.Set(site);
  if (site == nullptr) return;
  Open();
  TakeUserMode();
}

void ControlFrame::Open() {
  events_.Open();
  Control().Open();
}

void ControlFrame::TakeUserMode() { Control().Shown().SetUserMode(site_.UserMode()); }

void ControlFrame::SetExtent(const SIZEL& extent) {
  if (extent.cx == extent_.cx && extent.cy == extent_.cy) return;
  extent_ = extent;
  // A control that has a window is as large as that is.
  if (!inPlace_.IsActive())
    Control().Shown().SetSize(HimetricToTwips(extent.cx), HimetricToTwips(extent.cy));
  notices_.ViewChanged();
}

void ControlFrame::TakeWantedSize() {
  const UserControl& control = Control().Shown();
  const SIZEL wanted = {TwipsToHimetric(control.Width()), TwipsToHimetric(control.Height())};
  if (wanted.cx != extent_.cx || wanted.cy != extent_.cy) {
    extent_ = wanted;
    notices_.ViewChanged();
  }
  inPlace_.AskForRoom();
}

void ControlFrame::InitProperties() {
  Control().InitProperties(site_);
  dirty_ = false;
  notices_.ViewChanged();
}

void ControlFrame::ReadProperties(PropertyBag& bag) {
  Control().ReadProperties(bag, site_);
  dirty_ = false;
  notices_.ViewChanged();
}

void ControlFrame::PropertyChanged(DISPID property) {
  dirty_ = true;
  for (const ComRef<IUnknown>& sink : connections_.PropertyNotices().Sinks())
    static_cast<IPropertyNotifySink*>(sink.Get())->OnChanged(property);
}

void ControlFrame::Close() {
  events_.Close();
  Control().Close();
  inPlace_.Deactivate();
  notices_.Closed();
}

}  // namespace sifter
