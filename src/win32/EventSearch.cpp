#include "win32/EventSearch.h"

#include "win32/UniqueBstr.h"

#include <optional>
#include <utility>

namespace sifter {

namespace {

// What a type's own description says of it, handed back to the description that it came from.
class TypeAttributes {
 public:
  explicit TypeAttributes(ITypeInfo& type) : type_(type) {
    if (FAILED(type_.GetTypeAttr(&attributes_))) attributes_ = nullptr;
  }
  ~TypeAttributes() {
    if (attributes_ != nullptr) type_.ReleaseTypeAttr(attributes_);
  }
  TypeAttributes(const TypeAttributes&) = delete;
  TypeAttributes& operator=(const TypeAttributes&) = delete;

  explicit operator bool() const { return attributes_ != nullptr; }
  const TYPEATTR* operator->() const { return attributes_; }

 private:
  ITypeInfo& type_;
  TYPEATTR* attributes_ = nullptr;
};

ComRef<ITypeInfo> ClassOf(IDispatch* object) {
  ComRef<ITypeInfo> type;
  const auto source = ComRef<IDispatch>(object).As<IProvideClassInfo>(IID_IProvideClassInfo);
  if (source && FAILED(source->GetClassInfo(type.Receive()))) return nullptr;
  return type;
}

ComRef<ITypeInfo> OwnTypeOf(IDispatch* object) {
  ComRef<ITypeInfo> type;
  if (FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Receive()))) return nullptr;
  return type;
}

// The class's default source.
ComRef<ITypeInfo> DefaultSourceOf(const ComRef<ITypeInfo>& classType) {
  constexpr INT kWanted = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
  if (!classType) return nullptr;
  const TypeAttributes attributes(*classType.Get());
  for (UINT i = 0; attributes && i < attributes->cImplTypes; ++i) {
    INT flags = 0;
    HREFTYPE reference = 0;
    ComRef<ITypeInfo> source;
    if (SUCCEEDED(classType->GetImplTypeFlags(i, &flags)) && (flags & kWanted) == kWanted &&
        SUCCEEDED(classType->GetRefTypeOfImplType(i, &reference)) &&
        SUCCEEDED(classType->GetRefTypeInfo(reference, source.Receive())))
      return source;
  }
  return nullptr;
}

std::optional<IID> IdOf(const ComRef<ITypeInfo>& type) {
  if (!type) return std::nullopt;
  const TypeAttributes attributes(*type.Get());
  return attributes ? std::optional<IID>(attributes->guid) : std::nullopt;
}

ComRef<ITypeInfo> FromLibraryOf(const ComRef<ITypeInfo>& type, REFIID id) {
  ComRef<ITypeLib> library;
  ComRef<ITypeInfo> found;
  UINT place = 0;
  if (!type || FAILED(type->GetContainingTypeLib(library.Receive(), &place)) || !library)
    return nullptr;
  return SUCCEEDED(library->GetTypeInfoOfGuid(id, found.Receive())) ? found : nullptr;
}

// A source with functions to be called directly would not be served by what can be called by
// number alone.
bool IsLateBound(ITypeInfo& type) {
  const TypeAttributes attributes(type);
  return attributes && attributes->typekind == TKIND_DISPATCH &&
         (attributes->wTypeFlags & TYPEFLAG_FDUAL) == 0;
}

class EventSearch {
 public:
  EventSearch(IDispatch* object, TextView name)
      : object_(object),
        points_(
            ComRef<IDispatch>(object).As<IConnectionPointContainer>(IID_IConnectionPointContainer)),
        name_(name) {}

  FoundEvent Run() {
    if (!points_) return {};
    classType_ = ClassOf(object_);
    if (const std::optional<IID> id = DefaultId()) {
      ComRef<IConnectionPoint> point;
      if (SUCCEEDED(points_->FindConnectionPoint(*id, point.Receive())) && point)
        if (FoundEvent found = At(std::move(point), *id); found.point) return found;
    }
    return AmongAll();
  }

 private:
  std::optional<IID> DefaultId() const {
    const auto source = ComRef<IDispatch>(object_).As<IProvideClassInfo2>(IID_IProvideClassInfo2);
    IID id{};
    if (source && SUCCEEDED(source->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &id))) return id;
    return IdOf(DefaultSourceOf(classType_));
  }

  FoundEvent AmongAll() {
    ComRef<IEnumConnectionPoints> all;
    if (FAILED(points_->EnumConnectionPoints(all.Receive())) || !all) return {};
    for (;;) {
      ComRef<IConnectionPoint> point;
      ULONG fetched = 0;
      if (all->Next(1, point.Receive(), &fetched) != S_OK || !point) return {};
      IID id{};
      if (FAILED(point->GetConnectionInterface(&id))) continue;
      if (FoundEvent found = At(std::move(point), id); found.point) return found;
    }
  }

  FoundEvent At(ComRef<IConnectionPoint> point, REFIID id) {
    const ComRef<ITypeInfo> type = TypeOf(id);
    DISPID event = DISPID_UNKNOWN;
    LPOLESTR names[] = {name_.Get()};
    if (!type || !IsLateBound(*type.Get()) || FAILED(type->GetIDsOfNames(names, 1, &event)))
      return {};
    return {std::move(point), id, event};
  }

  ComRef<ITypeInfo> TypeOf(REFIID id) const {
    ComRef<ITypeInfo> type = DefaultSourceOf(classType_);
    if (IdOf(type) == std::optional<IID>(id)) return type;
    type = FromLibraryOf(classType_, id);
    return type ? type : FromLibraryOf(OwnTypeOf(object_), id);
  }

  IDispatch* object_;
  ComRef<IConnectionPointContainer> points_;
  ComRef<ITypeInfo> classType_;
  UniqueBstr name_;
};

}  // namespace

FoundEvent FindEvent(IDispatch* object, TextView name) { return EventSearch(object, name).Run(); }

}  // namespace sifter
