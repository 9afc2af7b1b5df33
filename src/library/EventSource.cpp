#include "library/EventSource.h"

#include "win32/UniqueBstr.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"

#include <utility>

namespace sifter {

void EventSource::Raise(DISPID event) {
  if (closed_) return;
  if (freezes_ > 0) {
    kept_.push_back({event, std::nullopt});
    return;
  }
  DISPPARAMS none{};
  Tell(event, none);
}

void EventSource::Raise(DISPID event, Text& argument) {
  if (closed_) return;
  if (freezes_ > 0)
    kept_.push_back({event, argument});
  else
    Tell(event, argument);
}

void EventSource::Thaw() {
  if (freezes_ == 0 || --freezes_ > 0) return;
  for (Kept& kept : std::exchange(kept_, {})) {
    if (kept.argument)
      Raise(kept.event, *kept.argument);
    else
      Raise(kept.event);
  }
}

void EventSource::Close() {
  closed_ = true;
  kept_.clear();
}

void EventSource::Tell(DISPID event, Text& argument) const {
  UniqueBstr text(argument.View());
  VARIANTARG place{};
  place.vt = VT_BYREF | VT_BSTR;
  place.pbstrVal = text.Address();
  DISPPARAMS arguments{&place, nullptr, 1, 0};
  Tell(event, arguments);
  argument = Text(text.View());
}

void EventSource::Tell(DISPID event, DISPPARAMS& arguments) const {
  const LCID locale = site_.LocaleId();
  for (const ComRef<IUnknown>& sink : point_.Sinks()) {
    // Connected through the events' own interface; its IDispatch may be another one.
    auto* const listener = static_cast<IDispatch*>(sink.Get());
    UniqueVariant result;
    UniqueExcepInfo error;
    listener->Invoke(event, IID_NULL, locale, DISPATCH_METHOD, &arguments, result.Receive(),
                     error.Address(), nullptr);
  }
}

}  // namespace sifter
