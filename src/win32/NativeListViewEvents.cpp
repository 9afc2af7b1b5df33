#include "win32/NativeListViewEvents.h"

#include "win32/ComEnum.h"
#include "win32/ComResult.h"
#include "win32/NativeListViewDispatchMembers.h"
#include "win32/NativeListViewTypes.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"

#include <olectl.h>

namespace sifter {

NativeListViewEvents::NativeListViewEvents(IUnknown& owner, HostListView& list)
    : owner_(owner),
      list_(list),
      point_(owner, *this, kListViewEventsId, true),
      clicks_(list.WatchColumnClicks([this](std::int32_t column) { Raise(column); })) {}

void* NativeListViewEvents::Interface(REFIID id) {
  if (id == IID_IConnectionPointContainer) return static_cast<IConnectionPointContainer*>(this);
  if (id == IID_IProvideClassInfo || id == IID_IProvideClassInfo2)
    return static_cast<IProvideClassInfo2*>(this);
  return nullptr;
}

HRESULT NativeListViewEvents::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  return ComResult([&] {
    using Points =
        ComEnum<IEnumConnectionPoints, IConnectionPoint*, ReferenceItems<IConnectionPoint>>;
    *points = Points::Make({ComRef<IConnectionPoint>(&point_)});
  });
}

HRESULT NativeListViewEvents::FindConnectionPoint(REFIID id, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  if (id != point_.Id()) return CONNECT_E_NOCONNECTION;
  *point = ComRef<IConnectionPoint>(&point_).Release();
  return S_OK;
}

HRESULT NativeListViewEvents::GetClassInfo(ITypeInfo** information) {
  if (information == nullptr) return E_POINTER;
  *information = nullptr;
  return ComResult([&] { *information = ListViewClassType().Release(); });
}

HRESULT NativeListViewEvents::GetGUID(DWORD kind, GUID* id) {
  if (id == nullptr) return E_POINTER;
  *id = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *id = point_.Id();
  return S_OK;
}

// What a sink answers is its own affair, and one may let go of the list.
void NativeListViewEvents::Raise(std::int32_t column) {
  const std::vector<ComRef<IUnknown>> sinks = point_.Sinks();
  if (sinks.empty()) return;
  const ComRef<IUnknown> alive(&owner_);
  const ComRef<IDispatch> header = DispatchOf(list_.ColumnHeaders()->Item(column));
  VARIANT argument{};  // borrows the header
  argument.vt = VT_DISPATCH;
  argument.pdispVal = header.Get();
  for (const ComRef<IUnknown>& sink : sinks) {
    // Connected through the events' own interface; its IDispatch may be another one.
    auto* const listener = static_cast<IDispatch*>(sink.Get());
    DISPPARAMS arguments{&argument, nullptr, 1, 0};
    UniqueVariant result;
    UniqueExcepInfo error;
    listener->Invoke(kColumnClickEvent, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments,
                     result.Receive(), error.Address(), nullptr);
  }
}

}  // namespace sifter
