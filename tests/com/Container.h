#pragma once

#include "Frame.h"
#include "Site.h"
#include "support/Recorder.h"
#include "win32/ComRef.h"

#include <oaidl.h>
#include <windows.h>

namespace sifter {

// A container with room for one control, at the client rectangle 10, 10, 110, 40 of a window of the
// test's. It takes the steps of the platform's own containers in their order.
class Container {
 public:
  // The container runs its form, and says so.
  Container(HWND window, Recorder& recorder);
  ~Container();
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  Frame frame;
  Site site;

  // An ambient property, before the control is placed or, with Tells, behind its back.
  void Offers(DISPID ambient, const Value& value) { site.ambients[ambient] = value; }
  // Lets the control know that the ambient has changed.
  void Tells(DISPID ambient);

  // For the first time, on the form.
  void Place(const ComRef<IDispatch>& control);
  // The control's site alone, for controls that are loaded by the test.
  void GiveSite(const ComRef<IDispatch>& control);

  HRESULT Do(LONG verb, MSG* message = nullptr);
  void Activate();

  // The control's window; null while it is not active.
  HWND ControlWindow() const;

  // The form is closed.
  void Remove();

  template <class T>
  ComRef<T> As() const {
    return control_.As<T>();
  }
  const ComRef<IDispatch>& Control() const { return control_; }

 private:
  HWND window_;
  ComRef<IDispatch> control_;
};

}  // namespace sifter
