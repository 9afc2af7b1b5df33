#include "win32/LateBoundListObject.h"

#include "base/RuntimeError.h"
#include "win32/Errors.h"
#include "win32/Variants.h"

#include <utility>

namespace sifter {

namespace {

constexpr std::size_t kMostArguments = 6;

// The arguments of one call, in the reverse order in which they cross.
class Arguments {
 public:
  explicit Arguments(std::initializer_list<Value> values) {
    for (auto value = std::rbegin(values); value != std::rend(values); ++value)
      variants_[count_++] = value->IsEmpty() ? UniqueVariant::Omitted().Release()
                                             : VariantFromValue(*value).Release();
  }
  ~Arguments() {
    for (std::size_t i = 0; i < count_; ++i) VariantClear(&variants_[i]);
  }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;

  std::span<VARIANT> All() { return {variants_, count_}; }
  DISPPARAMS AsParameters() { return {variants_, nullptr, static_cast<UINT>(count_), 0}; }

 private:
  VARIANT variants_[kMostArguments];
  std::size_t count_ = 0;
};

ComRef<IDispatch> ObjectIn(UniqueVariant result) {
  if (result.Type() == VT_DISPATCH) {
    auto object = ComRef<IDispatch>::Adopt(result.Release().pdispVal);
    if (!object) throw RuntimeError(ErrorNumber::kObjectNotSet);
    return object;
  }
  const Value value = ValueFromVariant(result.Get());
  const Ref<Object>* held = value.As<Ref<Object>>();
  if (held == nullptr) throw RuntimeError(ErrorNumber::kObjectRequired);
  if (!*held) throw RuntimeError(ErrorNumber::kObjectNotSet);
  const auto* object = dynamic_cast<const ComObject*>(held->Get());
  if (object == nullptr || object->Dispatch() == nullptr)
    throw RuntimeError(ErrorNumber::kObjectRequired);
  return ComRef<IDispatch>(object->Dispatch());
}

bool IsObject(const VARIANT& variant) {
  return variant.vt == VT_DISPATCH || variant.vt == VT_UNKNOWN;
}

}  // namespace

LateBoundObject::LateBoundObject(Ref<LateBoundClasses> classes, ComRef<IDispatch> object,
                                 LateBoundRole role)
    : classes_(std::move(classes)),
      object_(std::move(object)),
      ids_(&classes_->IdsOf(object_.Get(), role, own_)) {}

HRESULT LateBoundObject::Try(DISPID id, WORD flags, DISPPARAMS& arguments, UniqueVariant& result,
                             UniqueExcepInfo& error) const {
  const bool isWrite = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  return object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments,
                         isWrite ? nullptr : result.Receive(), error.Address(), nullptr);
}

UniqueVariant LateBoundObject::Invoke(DISPID id, WORD flags, DISPPARAMS& arguments) const {
  UniqueVariant result;
  UniqueExcepInfo error;
  const HRESULT called = Try(id, flags, arguments, result, error);
  if (FAILED(called)) throw ErrorFromResult(called, &error.Fill());
  return result;
}

// An object that has a function where others have a property says that it has no such property.
UniqueVariant LateBoundObject::ReadVariant(LateBoundMember member) const {
  const DISPID id = ids_->IdOf(member, object_.Get());
  const WORD flags = ids_->ReadFlags(member);
  DISPPARAMS none{};
  UniqueVariant result;
  UniqueExcepInfo error;
  const HRESULT called = Try(id, flags, none, result, error);
  if (SUCCEEDED(called)) return result;
  if (called != DISP_E_MEMBERNOTFOUND || flags != DISPATCH_PROPERTYGET)
    throw ErrorFromResult(called, &error.Fill());
  UniqueVariant returned = Invoke(id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none);
  ids_->NoteFunction(member);
  return returned;
}

Value LateBoundObject::Read(LateBoundMember member) const {
  return ValueFromVariant(ReadVariant(member).Get());
}

ComRef<IDispatch> LateBoundObject::ReadObject(LateBoundMember member) const {
  return ObjectIn(ReadVariant(member));
}

UniqueVariant LateBoundObject::ReadAt(LateBoundMember member, const Value& index) const {
  Arguments arguments{index};
  DISPPARAMS parameters = arguments.AsParameters();
  return Invoke(ids_->IdOf(member, object_.Get()), DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                parameters);
}

ComRef<IDispatch> LateBoundObject::ReadObjectAt(LateBoundMember member, const Value& index) const {
  return ObjectIn(ReadAt(member, index));
}

void LateBoundObject::Write(LateBoundMember member, const Value& value) const {
  UniqueVariant given = VariantFromValue(value);
  WriteVariants(member, {given.Address(), 1});
}

void LateBoundObject::WriteAt(LateBoundMember member, const Value& index,
                              const Value& value) const {
  Arguments arguments{index};
  UniqueVariant given = VariantFromValue(value);
  VARIANT both[] = {given.Get(), arguments.All()[0]};
  WriteVariants(member, both);
}

// Objects are assigned by reference; a property that knows no such thing takes them as a value.
void LateBoundObject::WriteVariants(LateBoundMember member,
                                    std::span<VARIANT> valueAndIndex) const {
  const DISPID id = ids_->IdOf(member, object_.Get());
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{valueAndIndex.data(), &newValue, static_cast<UINT>(valueAndIndex.size()),
                        1};
  if (IsObject(valueAndIndex[0])) {
    UniqueVariant none;
    UniqueExcepInfo error;
    const HRESULT called = Try(id, DISPATCH_PROPERTYPUTREF, parameters, none, error);
    if (SUCCEEDED(called)) return;
    if (called != DISP_E_MEMBERNOTFOUND) throw ErrorFromResult(called, &error.Fill());
  }
  Invoke(id, DISPATCH_PROPERTYPUT, parameters);
}

UniqueVariant LateBoundObject::Call(LateBoundMember member,
                                    std::initializer_list<Value> arguments) const {
  Arguments given(arguments);
  DISPPARAMS parameters = given.AsParameters();
  return Invoke(ids_->IdOf(member, object_.Get()), DISPATCH_METHOD, parameters);
}

ComRef<IDispatch> LateBoundObject::CallForObject(LateBoundMember member,
                                                 std::initializer_list<Value> arguments) const {
  return ObjectIn(Call(member, arguments));
}

}  // namespace sifter
