#pragma once

#include "base/RuntimeError.h"
#include "controls/PropertyBag.h"
#include "win32/ComRef.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>

namespace sifter {

// The property bag of a host's container. Pictures are objects in it, and an entry that is Nothing
// counts as none.
class HostPropertyBag final : public PropertyBag {
 public:
  // `bag` is borrowed; `errors` is told of entries that can't be read, and may be null.
  explicit HostPropertyBag(IPropertyBag& bag, IErrorLog* errors = nullptr)
      : bag_(bag), errors_(errors) {}

  Value ReadProperty(TextView key) override;
  void WriteProperty(TextView key, const Value& value) override;

  // Tells the container's log that the entry read last is no good, for this reason.
  void LogLastRead(const RuntimeError& error) const;

 private:
  IPropertyBag& bag_;
  IErrorLog* errors_;
  Text lastRead_;
};

}  // namespace sifter
