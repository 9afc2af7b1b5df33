#include "library/TSLvwBannerFilterObject.h"

#include "library/LibraryServices.h"

#include <RowSifter.h>

namespace sifter {

namespace {

constexpr DISPID kFilterActivated = 1;
constexpr DISPID kFilterDeactivated = 2;
constexpr DISPID kExtraButtonClicked = 3;

}  // namespace

ComRef<IUnknown> TSLvwBannerFilterObject::Create(const ControlClass& self, IUnknown* outer) {
  return ComRef<IUnknown>::Adopt((new TSLvwBannerFilterObject(self, outer))->Own());
}

TSLvwBannerFilterObject::TSLvwBannerFilterObject(const ControlClass& self, IUnknown* outer)
    : ControlFrame(self, outer),
      prompts_(*this, LibraryServices::Get().prompts),
      banner_(LibraryServices::ForControl(forms_, prompts_)),
      dispatch_(banner_, Identity()),
      timers_(banner_, [this](const std::function<void()>& work) { OutliveWork(work); }) {
  Offer(IID_IDispatch, dispatch_);
  Offer(__uuidof(_TSLvwBannerFilter), dispatch_);
  RaiseEvents();
  banner_.RunNotice = [this](const std::function<void()>& work) { OutliveWork(work); };
  banner_.SettingChanged = [this] { SetDirty(true); };
  banner_.PropertyChanged = [this](TextView name) { PropertyChanged(dispatch_.IdOf(name)); };
  Begin();
}

TSLvwBannerFilterObject::~TSLvwBannerFilterObject() {
  banner_.Terminate();
  End();
}

void TSLvwBannerFilterObject::RaiseEvents() {
  banner_.FilterActivated = [this] { Events().Raise(kFilterActivated); };
  banner_.FilterDeactivated = [this] { Events().Raise(kFilterDeactivated); };
  banner_.ExtraButtonClicked = [this](Text& parameter) {
    Events().Raise(kExtraButtonClicked, parameter);
  };
}

// A handler of an event that comes of it may drop the last reference.
void TSLvwBannerFilterObject::OutliveWork(const std::function<void()>& work) {
  const ComRef<IUnknown> alive(&Identity());
  work();
}

}  // namespace sifter
