#pragma once

#include "controls/TSRowSifter.h"
#include "library/ContainerForms.h"
#include "library/ControlFrame.h"
#include "library/TSRowSifterPart.h"

#include <optional>

namespace sifter {

// The button that filters a list view, as hosts create it.
class TSRowSifterObject final : public ControlFrame, private FramedControl {
 public:
  static ComRef<IUnknown> Create(const ControlClass& self, IUnknown* outer);

  FramedControl& Control() override { return *this; }
  TSRowSifter& Sifter() noexcept { return sifter_; }

 private:
  TSRowSifterObject(const ControlClass& self, IUnknown* outer);
  ~TSRowSifterObject() override;

  UserControl& Shown() override { return sifter_; }
  void InitProperties(const Container& container) override { sifter_.InitProperties(container); }
  void ReadProperties(PropertyBag& bag, const Container& container) override {
    sifter_.ReadProperties(bag, container);
  }
  void WriteProperties(PropertyBag& bag, Saving saving) const override {
    sifter_.WriteProperties(bag, saving);
  }
  void Close() override;

  ContainerFormHost forms_{*this};
  ContainerPrompts prompts_;
  TSRowSifter sifter_;
  TSRowSifterPart dispatch_;
};

}  // namespace sifter
