#pragma once

#include "forms/ComboBox.h"
#include "win32/ControlWindow.h"

namespace sifter {

// A combo box of either style.
class ComboBoxWindow final : public ControlWindow {
 public:
  ComboBoxWindow(ControlHost& host, ComboBox& box);

  void Mirror() override;
  void Update(ControlProperty property) override;
  void OnCommand(WORD code) override;
  bool OnKey(WPARAM key) override;
  void Place(const RECT& box) override;
  bool TakesWheel() const override { return IsDroppedDown(); }

 private:
  void FillList();
  void TakeSelection();
  bool IsDroppedDown() const;

  ComboBox& box_;
  bool typing_ = false;  // the control takes over what the user has typed
  bool chosen_ = false;  // the list closes because the user has chosen an entry
};

}  // namespace sifter
