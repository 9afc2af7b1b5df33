#pragma once

#include "listmodel/HostListView.h"
#include "win32/ConnectionPoint.h"

#include <ocidl.h>
#include <windows.h>

namespace sifter {

// The event of a list's object: ColumnClick(ColumnHeader), when the user has clicked on a header.
// It is raised at a connection point and described for those who look for it by name.
class NativeListViewEvents final : public IConnectionPointContainer, public IProvideClassInfo2 {
 public:
  // `owner` is the list's object, which outlives this part of it.
  NativeListViewEvents(IUnknown& owner, HostListView& list);
  NativeListViewEvents(const NativeListViewEvents&) = delete;
  NativeListViewEvents& operator=(const NativeListViewEvents&) = delete;

  // An interface of this part, without a reference; null when it hasn't got that one.
  void* Interface(REFIID id);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return owner_.QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) override;

 private:
  void Raise(std::int32_t column);

  IUnknown& owner_;
  HostListView& list_;  // the owner's
  ConnectionPoint point_;
  Ref<Object> clicks_;
};

}  // namespace sifter
