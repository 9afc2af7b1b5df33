#include "library/EventSource.h"

#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"

#include <utility>

namespace sifter {

void EventSource::Raise(DISPID event) {
  if (closed_) return;
  if (freezes_ > 0)
    kept_.push_back(event);
  else
    Tell(event);
}

void EventSource::Thaw() {
  if (freezes_ == 0 || --freezes_ > 0) return;
  for (const DISPID event : std::exchange(kept_, {})) Raise(event);
}

void EventSource::Close() {
  closed_ = true;
  kept_.clear();
}

void EventSource::Tell(DISPID event) const {
  const LCID locale = site_.LocaleId();
  for (const ComRef<IUnknown>& sink : point_.Sinks()) {
    // Connected through the events' own interface; its IDispatch may be another one.
    auto* const listener = static_cast<IDispatch*>(sink.Get());
    DISPPARAMS none{};
    UniqueVariant result;
    UniqueExcepInfo error;
    listener->Invoke(event, IID_NULL, locale, DISPATCH_METHOD, &none, result.Receive(),
                     error.Address(), nullptr);
  }
}

}  // namespace sifter
