#pragma once

#include "controls/Container.h"
#include "win32/ComRef.h"
#include "win32/UniqueVariant.h"

#include <cstdint>
#include <ocidl.h>
#include <oleidl.h>
#include <optional>
#include <windows.h>

namespace sifter {

// The place on a host's form that a control has been given, and what the form tells about itself.
// There may be none: a script makes a control without any form.
//
// The form is asked each time; it says so when one of its properties has changed.
class ControlSite final : public Container {
 public:
  void Set(IOleClientSite* site) { client_ = ComRef<IOleClientSite>(site); }

  IOleClientSite* Client() const noexcept { return client_.Get(); }
  ComRef<IOleInPlaceSite> InPlace() const noexcept;
  ComRef<IOleControlSite> Control() const noexcept;

  // What a form that doesn't say stands for: it runs, answers to the user, shows no default button,
  // and has the user's locale.
  bool UserMode() const;
  bool UiDead() const;
  bool DisplayAsDefault() const;
  LCID LocaleId() const;
  std::optional<std::int32_t> AmbientBackColor() const override;

 private:
  UniqueVariant Ambient(DISPID id) const;
  bool AmbientFlag(DISPID id, bool unsaid) const;

  ComRef<IOleClientSite> client_;
};

}  // namespace sifter
