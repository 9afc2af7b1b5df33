#pragma once

#include "library/ComPart.h"

#include <objidl.h>
#include <oleidl.h>
#include <windows.h>

namespace sifter {

// Who wants to hear that a control looks different, has been saved or is closed: the sinks of
// IOleObject, of IDataObject and of IViewObject.
class ControlNotices {
 public:
  // `data` is what the sinks of IDataObject ask for the new picture; borrowed.
  explicit ControlNotices(IDataObject& data) : data_(data) {}

  // The holders of sinks, made when they are first needed. Errors come out.
  IOleAdviseHolder& Object();
  IDataAdviseHolder& Data();

  // The one sink of IViewObject.
  void SetView(DWORD aspects, DWORD flags, IAdviseSink* sink);
  void GetView(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const;

  void ViewChanged();
  void Saved();
  void Closed();

 private:
  IDataObject& data_;
  ComRef<IOleAdviseHolder> object_;
  ComRef<IDataAdviseHolder> dataHolder_;
  ComRef<IAdviseSink> view_;
  DWORD viewAspects_ = 0;
  DWORD viewFlags_ = 0;
};

}  // namespace sifter
