#pragma once

#include "HostedSifter.h"

#include <string>

namespace sifter {

// A control in a container that takes it through its states one by one.
class PlacedControl : public ComTest {
 protected:
  explicit PlacedControl(const std::wstring& type) : control(Create(type)) {
    MakeRoomAbove(form.List());
  }

  RECT PlaceOf(HWND window) const {
    RECT box;
    GetWindowRect(window, &box);
    MapWindowPoints(nullptr, form.Parent(), reinterpret_cast<POINT*>(&box), 2);
    return box;
  }
  static std::string Shown(const RECT& box) {
    return std::to_string(box.left) + ' ' + std::to_string(box.top) + ' ' +
           std::to_string(box.right) + ' ' + std::to_string(box.bottom);
  }
  HWND Button() const { return GetWindow(container.ControlWindow(), GW_CHILD); }

  Recorder recorder;
  ListViewOnAForm form;
  Container container{form.Parent(), recorder};
  ComRef<IDispatch> control;
};

class PlacedSifter : public PlacedControl {
 protected:
  PlacedSifter() : PlacedControl(kSifter) {}
};

}  // namespace sifter
