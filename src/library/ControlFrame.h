#pragma once

#include "library/ClassInfoPart.h"
#include "library/ComWhole.h"
#include "library/ConnectionPointsPart.h"
#include "library/ControlClass.h"
#include "library/ControlExtent.h"
#include "library/ControlNotices.h"
#include "library/ControlSite.h"
#include "library/DataObjectPart.h"
#include "library/EventSource.h"
#include "library/FramedControl.h"
#include "library/InPlaceActivation.h"
#include "library/InPlaceActiveObjectPart.h"
#include "library/InPlaceObjectPart.h"
#include "library/OleControlPart.h"
#include "library/OleObjectPart.h"
#include "library/PersistPropertyBagPart.h"
#include "library/PersistStoragePart.h"
#include "library/PersistStreamPart.h"
#include "library/QuickActivatePart.h"
#include "library/SupportErrorInfoPart.h"
#include "library/ViewObjectPart.h"

#include <windows.h>

namespace sifter {

// Makes a control of the portable kind one that hosts can place on their forms: all the interfaces
// around it, whatever the control does. The class of the control adds its own dispatch interface.
class ControlFrame : public ComWhole {
 public:
  const ControlClass& Class() const noexcept { return class_; }
  virtual FramedControl& Control() = 0;
  const FramedControl& Control() const { return const_cast<ControlFrame*>(this)->Control(); }

  ControlSite& Site() noexcept { return site_; }
  ControlNotices& Notices() noexcept { return notices_; }
  InPlaceActivation& InPlace() noexcept { return inPlace_; }
  ConnectionPointsPart& Connections() noexcept { return connections_; }
  EventSource& Events() noexcept { return events_; }

  IOleObject& OleObject() noexcept { return oleObject_; }
  IOleControl& OleControl() noexcept { return oleControl_; }
  IOleInPlaceActiveObject& ActiveObject() noexcept { return activeObject_; }
  IViewObject2& ViewObject() noexcept { return viewObject_; }

  void SetSite(IOleClientSite* site);

  // The form is run or designed.
  void TakeUserMode();

  const SIZEL& Extent() const noexcept { return extent_; }
  void SetExtent(const SIZEL& extent);

  // Something that is saved differs from what was loaded or saved last.
  bool IsDirty() const noexcept { return dirty_; }
  void SetDirty(bool dirty) noexcept { dirty_ = dirty; }

  void InitProperties();
  void ReadProperties(PropertyBag& bag);

  // A setting has been changed from outside: the control is dirty, and whoever shows its settings
  // is told.
  void PropertyChanged(DISPID property);

  // How many modal windows of the control are on the screen.
  int& ModalDepth() noexcept { return modalDepth_; }

  // Ends everything that the control shows, until the host opens it again: by a site or by a window
  // for it.
  void Close();
  void Open();

 protected:
  ControlFrame(const ControlClass& self, IUnknown* outer);
  ~ControlFrame() override;

  // To be called by the most derived class's constructor, when the control is whole, and by its
  // destructor, while it still is.
  void Begin();
  void End();

 private:
  void TakeWantedSize();

  const ControlClass& class_;
  ControlSite site_;
  SIZEL extent_ = kFirstExtent;
  bool dirty_ = false;
  int modalDepth_ = 0;

  ClassInfoPart classInfo_;
  ConnectionPointsPart connections_;
  DataObjectPart dataObject_;
  InPlaceActiveObjectPart activeObject_;
  InPlaceObjectPart inPlaceObject_;
  OleControlPart oleControl_;
  OleObjectPart oleObject_;
  PersistPropertyBagPart persistPropertyBag_;
  PersistStoragePart persistStorage_;
  PersistStreamPart persistStream_;
  QuickActivatePart quickActivate_;
  SupportErrorInfoPart supportErrorInfo_;
  ViewObjectPart viewObject_;

  ControlNotices notices_{dataObject_};
  EventSource events_{connections_.Events(), site_};
  InPlaceActivation inPlace_{*this};
};

}  // namespace sifter
