#include "library/ControlNotices.h"

#include "win32/Errors.h"

#include <ole2.h>

namespace sifter {

IOleAdviseHolder& ControlNotices::Object() {
  if (!object_) ThrowIfFailed(CreateOleAdviseHolder(object_.Receive()));
  return *object_.Get();
}

IDataAdviseHolder& ControlNotices::Data() {
  if (!dataHolder_) ThrowIfFailed(CreateDataAdviseHolder(dataHolder_.Receive()));
  return *dataHolder_.Get();
}

void ControlNotices::SetView(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  view_ = ComRef<IAdviseSink>(sink);
  viewAspects_ = sink != nullptr ? aspects : 0;
  viewFlags_ = sink != nullptr ? flags : 0;
  if (view_ && (flags & ADVF_PRIMEFIRST) != 0) ViewChanged();
}

void ControlNotices::GetView(DWORD* aspects, DWORD* flags, IAdviseSink** sink) const {
  if (aspects != nullptr) *aspects = viewAspects_;
  if (flags != nullptr) *flags = viewFlags_;
  if (sink != nullptr) *sink = ComRef<IAdviseSink>(view_).Release();
}

void ControlNotices::ViewChanged() {
  if (const ComRef<IAdviseSink> sink = view_) {
    if ((viewFlags_ & ADVF_ONLYONCE) != 0) SetView(0, 0, nullptr);
    sink->OnViewChange(DVASPECT_CONTENT, -1);
  }
  if (const ComRef<IDataAdviseHolder> holder = dataHolder_) holder->SendOnDataChange(&data_, 0, 0);
}

void ControlNotices::Saved() {
  if (const ComRef<IOleAdviseHolder> holder = object_) holder->SendOnSave();
}

void ControlNotices::Closed() {
  if (const ComRef<IOleAdviseHolder> holder = object_) holder->SendOnClose();
}

}  // namespace sifter
