#pragma once

#include "controls/TSLvwBannerFilter.h"
#include "library/ContainerForms.h"
#include "library/ControlFrame.h"
#include "library/TSLvwBannerFilterPart.h"
#include "win32/ControlTimers.h"

namespace sifter {

// The banner that filters a list view, as hosts create it.
class TSLvwBannerFilterObject final : public ControlFrame, private FramedControl {
 public:
  static ComRef<IUnknown> Create(const ControlClass& self, IUnknown* outer);

  FramedControl& Control() override { return *this; }

 private:
  TSLvwBannerFilterObject(const ControlClass& self, IUnknown* outer);
  ~TSLvwBannerFilterObject() override;

  UserControl& Shown() override { return banner_; }
  void InitProperties(const Container& container) override { banner_.InitProperties(container); }
  void ReadProperties(PropertyBag& bag, const Container& container) override {
    banner_.ReadProperties(bag, container);
  }
  void WriteProperties(PropertyBag& bag, Saving saving) const override {
    banner_.WriteProperties(bag, saving);
  }
  void Open() override { banner_.Revive(); }
  void Close() override { banner_.Terminate(); }

  void RaiseEvents();
  void OutliveWork(const std::function<void()>& work);

  ContainerFormHost forms_{*this};
  ContainerPrompts prompts_;
  TSLvwBannerFilter banner_;
  TSLvwBannerFilterPart dispatch_;
  ControlTimers timers_;
};

}  // namespace sifter
