#pragma once

#include "win32/ComEnum.h"
#include "win32/ComRef.h"
#include "win32/UniqueVariant.h"

#include <map>
#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

namespace sifter {

// A source of events as a type library describes it.
struct SourceType {
  std::wstring name;
  IID id;
  std::vector<std::pair<std::wstring, DISPID>> events;
  TYPEKIND kind = TKIND_DISPATCH;
  INT flags = IMPLTYPEFLAG_FSOURCE;  // in the class that has them all
};

// The class that has these sources. Its library holds a description of each.
ComRef<ITypeInfo> MakeClassType(const std::vector<SourceType>& sources);

// Where sinks are connected to a fake. The test counts its references, which are those of its list.
class PointFake final : public IConnectionPoint {
 public:
  PointFake(IUnknown& list, IID id) : list_(list), id_(id) {}

  HRESULT adviseResult = S_OK;
  HRESULT unadviseResult = S_OK;
  HRESULT interfaceResult = S_OK;
  std::map<DWORD, ComRef<IDispatch>> sinks;
  DWORD lastCookie = 0;

  const IID& Id() const { return id_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return list_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return list_.Release(); }
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) override;
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

 private:
  IUnknown& list_;
  IID id_;
};

// A host's list with events and nothing else. It lives on the test's stack: the count of its
// references goes down to 0 without ending it.
class ClickableListFake final : public IDispatch,
                                public IConnectionPointContainer,
                                public IProvideClassInfo2 {
 public:
  // With a point for each of them.
  explicit ClickableListFake(const std::vector<SourceType>& sources);

  // What it has and does not have.
  bool hasPoints = true;
  bool tellsClass = true;       // IProvideClassInfo
  bool tellsDefault = true;     // IProvideClassInfo2
  bool enumerates = true;       // its points
  bool findsPoints = true;      // by their identifier
  ComRef<ITypeInfo> classType;  // null: it fails to say
  ComRef<ITypeInfo> ownType;    // of its own members; null: none
  IID defaultId = GUID_NULL;    // null: it fails to say

  PointFake& Point(std::size_t place = 0) { return points_[place]; }
  int References() const { return references_; }
  std::size_t Sinks() const;

  // Raises an event with these arguments, the first one first, at every sink of a point. What the
  // first sink answers.
  HRESULT Raise(DISPID event, std::vector<VARIANT> arguments, std::size_t place = 0);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return DISP_E_MEMBERNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) override;

 private:
  std::vector<PointFake> points_;
  int references_ = 0;
};

}  // namespace sifter
