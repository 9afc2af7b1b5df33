#include "ClickableListFake.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <oleauto.h>

namespace sifter {

namespace {

void Check(HRESULT result) { EXPECT_EQ(result, S_OK); }

ComRef<ICreateTypeInfo> MakeSourceType(const ComRef<ICreateTypeLib2>& library,
                                       const SourceType& source) {
  std::wstring name = source.name;
  ComRef<ICreateTypeInfo> type;
  Check(library->CreateTypeInfo(name.data(), source.kind, type.Receive()));
  Check(type->SetGuid(source.id));
  for (std::size_t i = 0; i < source.events.size(); ++i) {
    const auto& [event, id] = source.events[i];
    const auto place = static_cast<UINT>(i);
    std::wstring eventName = event;
    FUNCDESC function{};
    function.memid = id;
    function.funckind = source.kind == TKIND_DISPATCH ? FUNC_DISPATCH : FUNC_PUREVIRTUAL;
    function.invkind = INVOKE_FUNC;
    function.callconv = CC_STDCALL;
    function.elemdescFunc.tdesc.vt = VT_VOID;
    Check(type->AddFuncDesc(place, &function));
    LPOLESTR names[] = {eventName.data()};
    Check(type->SetFuncAndParamNames(place, names, 1));
  }
  Check(type->LayOut());
  return type;
}

}  // namespace

ComRef<ITypeInfo> MakeClassType(const std::vector<SourceType>& sources) {
  ComRef<ICreateTypeLib2> library;
  Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, L"ListFake.tlb",
                       library.Receive()));
  ComRef<ICreateTypeInfo> list;
  std::wstring name = L"ListFake";
  Check(library->CreateTypeInfo(name.data(), TKIND_COCLASS, list.Receive()));
  for (std::size_t i = 0; i < sources.size(); ++i) {
    const auto place = static_cast<UINT>(i);
    const auto type = MakeSourceType(library, sources[i]).As<ITypeInfo>(IID_ITypeInfo);
    HREFTYPE reference = 0;
    Check(list->AddRefTypeInfo(type.Get(), &reference));
    Check(list->AddImplType(place, reference));
    Check(list->SetImplTypeFlags(place, sources[i].flags));
  }
  Check(list->LayOut());
  return list.As<ITypeInfo>(IID_ITypeInfo);
}

HRESULT PointFake::QueryInterface(REFIID id, void** object) {
  *object = nullptr;
  if (id != IID_IUnknown && id != IID_IConnectionPoint) return E_NOINTERFACE;
  *object = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

HRESULT PointFake::GetConnectionInterface(IID* id) {
  *id = id_;
  return interfaceResult;
}

HRESULT PointFake::Advise(IUnknown* sink, DWORD* cookie) {
  if (FAILED(adviseResult)) return adviseResult;
  auto usable = ComRef<IUnknown>(sink).As<IDispatch>(id_);
  if (!usable) return CONNECT_E_CANNOTCONNECT;
  *cookie = ++lastCookie;
  sinks.emplace(*cookie, std::move(usable));
  return S_OK;
}

HRESULT PointFake::Unadvise(DWORD cookie) {
  if (FAILED(unadviseResult)) return unadviseResult;
  return sinks.erase(cookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION;
}

ClickableListFake::ClickableListFake(const std::vector<SourceType>& sources)
    : classType(MakeClassType(sources)) {
  for (const SourceType& source : sources)
    points_.emplace_back(*static_cast<IDispatch*>(this), source.id);
  if (!sources.empty()) defaultId = sources.front().id;
}

std::size_t ClickableListFake::Sinks() const {
  std::size_t sinks = 0;
  for (const PointFake& point : points_) sinks += point.sinks.size();
  return sinks;
}

HRESULT ClickableListFake::Raise(DISPID event, std::vector<VARIANT> arguments, std::size_t place) {
  std::reverse(arguments.begin(), arguments.end());
  const auto asked = points_[place].sinks;
  HRESULT first = S_FALSE;
  for (const auto& [cookie, sink] : asked) {
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    UniqueVariant result;
    const HRESULT answer = sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                        &parameters, result.Receive(), nullptr, nullptr);
    if (first == S_FALSE) first = answer;
  }
  return first;
}

HRESULT ClickableListFake::QueryInterface(REFIID id, void** object) {
  *object = nullptr;
  if (id == IID_IUnknown || id == IID_IDispatch) *object = static_cast<IDispatch*>(this);
  if (id == IID_IConnectionPointContainer && hasPoints)
    *object = static_cast<IConnectionPointContainer*>(this);
  if (id == IID_IProvideClassInfo && tellsClass) *object = static_cast<IProvideClassInfo2*>(this);
  if (id == IID_IProvideClassInfo2 && tellsDefault)
    *object = static_cast<IProvideClassInfo2*>(this);
  if (*object == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT ClickableListFake::GetTypeInfoCount(UINT* count) {
  *count = ownType ? 1 : 0;
  return S_OK;
}

HRESULT ClickableListFake::GetTypeInfo(UINT, LCID, ITypeInfo** type) {
  *type = ComRef<ITypeInfo>(ownType).Release();
  return ownType ? S_OK : E_NOTIMPL;
}

HRESULT ClickableListFake::EnumConnectionPoints(IEnumConnectionPoints** points) {
  using Points =
      ComEnum<IEnumConnectionPoints, IConnectionPoint*, ReferenceItems<IConnectionPoint>>;
  *points = nullptr;
  if (!enumerates) return E_NOTIMPL;
  std::vector<ComRef<IConnectionPoint>> all;
  for (PointFake& point : points_) all.emplace_back(&point);
  *points = Points::Make(std::move(all));
  return S_OK;
}

HRESULT ClickableListFake::FindConnectionPoint(REFIID id, IConnectionPoint** point) {
  *point = nullptr;
  for (PointFake& each : points_)
    if (findsPoints && each.Id() == id) {
      *point = ComRef<IConnectionPoint>(&each).Release();
      return S_OK;
    }
  return CONNECT_E_NOCONNECTION;
}

HRESULT ClickableListFake::GetClassInfo(ITypeInfo** type) {
  *type = ComRef<ITypeInfo>(classType).Release();
  return classType ? S_OK : E_FAIL;
}

HRESULT ClickableListFake::GetGUID(DWORD kind, GUID* id) {
  *id = defaultId;
  return kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID && defaultId != GUID_NULL ? S_OK : E_FAIL;
}

}  // namespace sifter
