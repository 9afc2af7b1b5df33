#pragma once

#include "controls/Container.h"
#include "controls/PropertyBag.h"
#include "controls/PropertyTable.h"
#include "forms/UserControl.h"

namespace sifter {

// What the frame around a control asks of it.
class FramedControl {
 public:
  virtual ~FramedControl() = default;

  virtual UserControl& Shown() = 0;

  // Its first placement, loading and saving. Errors come out.
  virtual void InitProperties(const Container& container) = 0;
  virtual void ReadProperties(PropertyBag& bag, const Container& container) = 0;
  virtual void WriteProperties(PropertyBag& bag, Saving saving) const = 0;

  // The host has placed or activated the control, for the first time or after it had closed it.
  virtual void Open() {}

  // The host closes the control, perhaps from inside one of its calls: windows of its own go.
  virtual void Close() = 0;
};

}  // namespace sifter
