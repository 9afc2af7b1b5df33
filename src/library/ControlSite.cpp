#include "library/ControlSite.h"

#include "win32/UniqueExcepInfo.h"

#include <olectl.h>

namespace sifter {

ComRef<IOleInPlaceSite> ControlSite::InPlace() const noexcept {
  return client_.As<IOleInPlaceSite>(IID_IOleInPlaceSite);
}

ComRef<IOleControlSite> ControlSite::Control() const noexcept {
  return client_.As<IOleControlSite>(IID_IOleControlSite);
}

UniqueVariant ControlSite::Ambient(DISPID id) const {
  UniqueVariant value;
  const auto form = client_.As<IDispatch>(IID_IDispatch);
  if (!form) return value;
  DISPPARAMS none{};
  UniqueExcepInfo error;
  if (FAILED(form->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                          value.Receive(), error.Address(), nullptr)))
    value.Reset();
  return value;
}

bool ControlSite::AmbientFlag(DISPID id, bool unsaid) const {
  UniqueVariant value = Ambient(id);
  if (value.Type() == VT_EMPTY) return unsaid;
  if (FAILED(VariantChangeType(value.Address(), value.Address(), 0, VT_BOOL))) return unsaid;
  return value.Get().boolVal != VARIANT_FALSE;
}

bool ControlSite::UserMode() const { return AmbientFlag(DISPID_AMBIENT_USERMODE, true); }

bool ControlSite::UiDead() const { return AmbientFlag(DISPID_AMBIENT_UIDEAD, false); }

bool ControlSite::DisplayAsDefault() const {
  return AmbientFlag(DISPID_AMBIENT_DISPLAYASDEFAULT, false);
}

LCID ControlSite::LocaleId() const {
  const UniqueVariant value = Ambient(DISPID_AMBIENT_LOCALEID);
  return value.Type() == VT_I4 ? static_cast<LCID>(value.Get().lVal) : LOCALE_USER_DEFAULT;
}

std::optional<std::int32_t> ControlSite::AmbientBackColor() const {
  UniqueVariant value = Ambient(DISPID_AMBIENT_BACKCOLOR);
  if (value.Type() == VT_EMPTY) return std::nullopt;
  // An unsigned colour of the desktop doesn't fit a signed number, but its bits do.
  if (value.Type() == VT_UI4 || value.Type() == VT_UINT) return value.Get().lVal;
  if (FAILED(VariantChangeType(value.Address(), value.Address(), 0, VT_I4))) return std::nullopt;
  return value.Get().lVal;
}

}  // namespace sifter
