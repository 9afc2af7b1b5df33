#include "library/HostPropertyBag.h"

#include "library/HostPicture.h"
#include "win32/Errors.h"
#include "win32/UniqueBstr.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"
#include "win32/Variants.h"
#include "win32/WideText.h"

namespace sifter {

namespace {

Value WithPicture(Value value) {
  const Ref<Object>* const held = value.As<Ref<Object>>();
  if (held == nullptr) return value;
  const auto* const object = dynamic_cast<const ComObject*>(held->Get());
  if (object == nullptr) return Value();
  const ComRef<IUnknown> identity(object->Identity());
  if (!identity.As<IPicture>(IID_IPicture)) return value;
  return Value(Ref<Object>(HostPicture::Of(*identity.Get())));
}

Value WithObject(const Value& value) {
  const Ref<Object>* const held = value.As<Ref<Object>>();
  const auto* const picture =
      held == nullptr ? nullptr : dynamic_cast<const HostPicture*>(held->Get());
  return picture == nullptr ? value : Value(Ref<Object>(ComObject::Of(picture->Dispatch())));
}

}  // namespace

Value HostPropertyBag::ReadProperty(TextView key) {
  lastRead_ = Text(key);
  // Containers look at what is in the variant: an empty one takes any type.
  UniqueVariant value;
  const HRESULT read = bag_.Read(Wide(key).c_str(), value.Receive(), errors_);
  if (read == E_INVALIDARG) return Value();  // how containers say that there is no such entry
  ThrowIfFailed(read);
  return WithPicture(ValueFromVariant(value.Get()));
}

void HostPropertyBag::WriteProperty(TextView key, const Value& value) {
  UniqueVariant written = VariantFromValue(WithObject(value));
  ThrowIfFailed(bag_.Write(Wide(key).c_str(), written.Address()));
}

void HostPropertyBag::LogLastRead(const RuntimeError& error) const {
  if (errors_ == nullptr) return;
  UniqueExcepInfo details;
  details.Address()->scode = ResultOf(error);
  details.Address()->bstrSource = UniqueBstr(TextView(u"RowSifter")).Release();
  details.Address()->bstrDescription = UniqueBstr(error.Description().View()).Release();
  errors_->AddError(Wide(lastRead_).c_str(), details.Address());
}

}  // namespace sifter
