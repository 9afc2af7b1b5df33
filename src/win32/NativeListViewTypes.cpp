#include "win32/NativeListViewTypes.h"

#include "win32/Errors.h"

#include <iterator>
#include <oleauto.h>

namespace sifter {

namespace {

constexpr GUID kLibraryId = {
    0x9a491ab4, 0xb156, 0x4c97, {0xb5, 0x84, 0x15, 0x7c, 0x77, 0x06, 0xc8, 0x70}};
constexpr CLSID kClassId = {
    0x37cf915f, 0x33f1, 0x45e5, {0x86, 0xe5, 0x76, 0xba, 0xb2, 0x74, 0xee, 0x2f}};
constexpr IID kAutomationLibraryId = {
    0x00020430, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

// The platform's functions take texts that they don't change.
class Name {
 public:
  explicit Name(const wchar_t* text) : text_(text) {}
  LPOLESTR Get() const { return const_cast<LPOLESTR>(text_); }

 private:
  const wchar_t* text_;
};

// The name of the file that would be written if anybody asked for that.
ComRef<ICreateTypeLib2> NewLibrary() {
  ComRef<ICreateTypeLib2> library;
  ThrowIfFailed(CreateTypeLib2(kSystem, L"RowSifterListView.tlb", library.Receive()));
  ThrowIfFailed(library->SetGuid(kLibraryId));
  ThrowIfFailed(library->SetVersion(1, 0));
  ThrowIfFailed(library->SetName(Name(L"RowSifterListView").Get()));
  return library;
}

ComRef<ICreateTypeInfo> NewType(const ComRef<ICreateTypeLib2>& library, const wchar_t* name,
                                TYPEKIND kind, REFGUID id) {
  ComRef<ICreateTypeInfo> type;
  ThrowIfFailed(library->CreateTypeInfo(Name(name).Get(), kind, type.Receive()));
  ThrowIfFailed(type->SetGuid(id));
  return type;
}

ComRef<ITypeInfo> Readable(const ComRef<ICreateTypeInfo>& type) {
  return type.As<ITypeInfo>(IID_ITypeInfo);
}

// Interfaces of events are derived from IDispatch, as far as their readers care.
void DeriveFromDispatch(const ComRef<ICreateTypeInfo>& type) {
  ComRef<ITypeLib> automation;
  ComRef<ITypeInfo> dispatch;
  HREFTYPE reference = 0;
  ThrowIfFailed(LoadRegTypeLib(kAutomationLibraryId, 2, 0, 0, automation.Receive()));
  ThrowIfFailed(automation->GetTypeInfoOfGuid(IID_IDispatch, dispatch.Receive()));
  ThrowIfFailed(type->AddRefTypeInfo(dispatch.Get(), &reference));
  ThrowIfFailed(type->AddImplType(0, reference));
}

// void ColumnClick(IDispatch* ColumnHeader)
void AddColumnClick(const ComRef<ICreateTypeInfo>& events) {
  ELEMDESC header{};
  header.tdesc.vt = VT_DISPATCH;
  header.paramdesc.wParamFlags = PARAMFLAG_FIN;
  FUNCDESC click{};
  click.memid = kColumnClickEvent;
  click.funckind = FUNC_DISPATCH;
  click.invkind = INVOKE_FUNC;
  click.callconv = CC_STDCALL;
  click.cParams = 1;
  click.lprgelemdescParam = &header;
  click.elemdescFunc.tdesc.vt = VT_VOID;
  ThrowIfFailed(events->AddFuncDesc(0, &click));
  LPOLESTR names[] = {Name(L"ColumnClick").Get(), Name(L"ColumnHeader").Get()};
  ThrowIfFailed(events->SetFuncAndParamNames(0, names, std::size(names)));
}

}  // namespace

ComRef<ITypeInfo> ListViewClassType() {
  const ComRef<ICreateTypeLib2> library = NewLibrary();
  const auto events = NewType(library, L"ListViewEvents", TKIND_DISPATCH, kListViewEventsId);
  DeriveFromDispatch(events);
  AddColumnClick(events);
  ThrowIfFailed(events->LayOut());
  const auto list = NewType(library, L"ListView", TKIND_COCLASS, kClassId);
  HREFTYPE reference = 0;
  ThrowIfFailed(list->AddRefTypeInfo(Readable(events).Get(), &reference));
  ThrowIfFailed(list->AddImplType(0, reference));
  ThrowIfFailed(list->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE));
  ThrowIfFailed(list->LayOut());
  return Readable(list);
}

}  // namespace sifter
