#include "Library.h"
#include "win32/ComRef.h"
#include "win32/UniqueBstr.h"
#include "win32/WideText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <oleauto.h>
#include <string>
#include <vector>

namespace sifter {
namespace {

std::string Narrow(BSTR text) { return Text(BstrView(text)).ToUtf8(); }

std::string Hex(DISPID id) {
  char text[16];
  std::snprintf(text, sizeof text, "%08lX", static_cast<unsigned long>(id));
  return text;
}

std::string GuidText(REFGUID id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return Text(FromWide(text)).ToUtf8();
}

std::string TypeName(ITypeInfo& owner, const TYPEDESC& type) {
  static const std::map<VARTYPE, const char*> names = {
      {VT_BOOL, "Boolean"}, {VT_BSTR, "String"},       {VT_VARIANT, "Variant"},
      {VT_VOID, "void"},    {VT_HRESULT, "HRESULT"},   {VT_DISPATCH, "Object"},
      {VT_I4, "Long"},      {VT_UNKNOWN, "IUnknown*"},
  };
  if (type.vt == VT_PTR) return TypeName(owner, *type.lptdesc) + "*";
  if (type.vt == VT_USERDEFINED) {
    ComRef<ITypeInfo> referred;
    UniqueBstr name;
    if (FAILED(owner.GetRefTypeInfo(type.hreftype, referred.Receive()))) return "unresolved";
    referred->GetDocumentation(MEMBERID_NIL, name.Receive(), nullptr, nullptr, nullptr);
    return Narrow(name.Get());
  }
  const auto found = names.find(type.vt);
  return found == names.end() ? "type " + std::to_string(type.vt) : found->second;
}

std::string ParameterText(ITypeInfo& owner, const ELEMDESC& parameter, BSTR name) {
  const USHORT flags = parameter.paramdesc.wParamFlags;
  std::string text;
  if ((flags & PARAMFLAG_FIN) != 0) text += "in ";
  if ((flags & PARAMFLAG_FOUT) != 0) text += "out ";
  if ((flags & PARAMFLAG_FRETVAL) != 0) text += "retval ";
  if ((flags & PARAMFLAG_FOPT) != 0) text += "optional ";
  text += TypeName(owner, parameter.tdesc);
  if (name != nullptr) text += " " + Narrow(name);  // the new value of a property has none
  if ((flags & PARAMFLAG_FHASDEFAULT) != 0) {
    VARIANT byDefault = parameter.paramdesc.pparamdescex->varDefaultValue;
    text += " = ";
    text += byDefault.vt == VT_BOOL ? (byDefault.boolVal != 0 ? "True" : "False")
                                    : "type " + std::to_string(byDefault.vt);
  }
  return text;
}

std::string KindText(INVOKEKIND kind) {
  switch (kind) {
    case INVOKE_FUNC:
      return "call";
    case INVOKE_PROPERTYGET:
      return "get";
    case INVOKE_PROPERTYPUT:
      return "put";
    case INVOKE_PROPERTYPUTREF:
      return "putref";
    default:
      return "?";
  }
}

std::string MemberText(ITypeInfo& type, UINT index) {
  FUNCDESC* member = nullptr;
  if (FAILED(type.GetFuncDesc(index, &member))) return "missing";
  std::vector<BSTR> names(static_cast<std::size_t>(member->cParams) + 1);
  UINT count = 0;
  type.GetNames(member->memid, names.data(), static_cast<UINT>(names.size()), &count);
  std::string text = Hex(member->memid) + " " + KindText(member->invkind) + " " + Narrow(names[0]);
  text += "(";
  for (SHORT i = 0; i < member->cParams; ++i) {
    if (i > 0) text += ", ";
    text +=
        ParameterText(type, member->lprgelemdescParam[i], names[static_cast<std::size_t>(i) + 1]);
  }
  text += ") ";
  text += TypeName(type, member->elemdescFunc.tdesc);
  if ((member->wFuncFlags & FUNCFLAG_FBINDABLE) != 0) text += " bindable";
  UniqueBstr help;
  type.GetDocumentation(member->memid, nullptr, help.Receive(), nullptr, nullptr);
  text += help.View().empty() ? " WITHOUT HELP" : "";
  for (const BSTR name : names) SysFreeString(name);
  type.ReleaseFuncDesc(member);
  return text;
}

// The members that the interface adds to the platform's, one to a line.
std::vector<std::string> MembersOf(ITypeInfo& type) {
  std::vector<std::string> members;
  TYPEATTR* attributes = nullptr;
  if (FAILED(type.GetTypeAttr(&attributes))) return {"no attributes"};
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    std::string member = MemberText(type, i);
    if (!member.starts_with("6000") && !member.starts_with("6001")) members.push_back(member);
  }
  type.ReleaseTypeAttr(attributes);
  return members;
}

std::vector<std::string> MembersOf(const wchar_t* name) {
  const ComRef<ITypeInfo> type = Library::Built().TypeOf(name);
  return type ? MembersOf(*type.Get()) : std::vector<std::string>{"no such type"};
}

using Lines = std::vector<std::string>;

TEST(TypeLibrary, HoldsBothControlsAndNothingElse) {
  ITypeLib& library = Library::Built().Types();
  Lines types;
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    UniqueBstr name;
    UniqueBstr help;
    library.GetDocumentation(static_cast<INT>(i), name.Receive(), help.Receive(), nullptr, nullptr);
    ComRef<ITypeInfo> type;
    ASSERT_EQ(library.GetTypeInfo(i, type.Receive()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
    std::string line = Narrow(name.Get()) + " " + GuidText(attributes->guid);
    line += attributes->typekind == TKIND_COCLASS ? " class" : " interface";
    if ((attributes->wTypeFlags & TYPEFLAG_FCONTROL) != 0) line += " control";
    if ((attributes->wTypeFlags & TYPEFLAG_FHIDDEN) != 0) line += " hidden";
    if ((attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0) line += " dual";
    if (help.View().empty()) line += " WITHOUT HELP";
    type->ReleaseTypeAttr(attributes);
    types.push_back(line);
  }
  EXPECT_EQ(types, (Lines{
                       "_TSRowSifter {F89947F5-0046-4809-846B-B94D0AECA64E} interface hidden dual",
                       "__TSRowSifter {5E6F693A-1AC1-4B5A-AF34-6C8552CA31CA} interface hidden",
                       "TSRowSifter {FBF76C43-511B-416B-B6CD-17FBE857CDB5} class control",
                       "_TSLvwBannerFilter {B1CB62D6-7A50-4416-8400-F32BFB99E1BD} interface hidden "
                       "dual",
                       "__TSLvwBannerFilter {45BFB0CA-7662-477A-9677-90195CEFC208} interface "
                       "hidden",
                       "TSLvwBannerFilter {691EA617-5310-4E5D-8CC2-A63ADF702018} class control",
                   }));
}

TEST(TypeLibrary, HasItsNameVersionAndHelp) {
  ITypeLib& library = Library::Built().Types();
  UniqueBstr name;
  UniqueBstr help;
  ASSERT_EQ(library.GetDocumentation(-1, name.Receive(), help.Receive(), nullptr, nullptr), S_OK);
  EXPECT_EQ(Narrow(name.Get()), "RowSifter");
  EXPECT_EQ(Narrow(help.Get()), "Tarvenn Software Row Sifter");
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library.GetLibAttr(&attributes), S_OK);
  EXPECT_EQ(GuidText(attributes->guid), "{EFFC7555-0D48-4B48-9669-DD0E1CA87F16}");
  EXPECT_EQ(attributes->wMajorVerNum, 1);
  EXPECT_EQ(attributes->wMinorVerNum, 0);
  EXPECT_EQ(attributes->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
  EXPECT_NE(attributes->wLibFlags & LIBFLAG_FCONTROL, 0);
  library.ReleaseTLibAttr(attributes);
}

TEST(TypeLibrary, DeclaresTheMembersOfTheButton) {
  EXPECT_EQ(MembersOf(L"_TSRowSifter"),
            (Lines{
                "68030005 putref Listview(in Variant) void",
                "68030005 put Listview(in Variant) void",
                "68030005 get Listview() Variant",
                "60030006 call ShowFilter() void",
                "6003000B call ApplyFilter(in String Filter) void",
                "6003000C call ResetFilter() void",
                "6003000D call TurnOffFilter() void",
                "68030004 put Active(in Boolean) void",
                "68030004 get Active() Boolean",
                "68030003 get Filter() String",
                "68030002 get FilterMessage() String bindable",
                "68030002 put FilterMessage(in String) void bindable",
                "68030001 get ColumnsToExclude() String bindable",
                "68030001 put ColumnsToExclude(in String) void bindable",
                "68030000 get FilterCaption() String bindable",
                "68030000 put FilterCaption(in String) void bindable",
            }));
}

TEST(TypeLibrary, DeclaresTheMembersOfTheBanner) {
  EXPECT_EQ(MembersOf(L"_TSLvwBannerFilter"),
            (Lines{
                "FFFFFDFE get Enabled() Boolean bindable",
                "FFFFFDFE put Enabled(in Boolean) void bindable",
                "60030001 call ReleaseListview() void",
                "68030002 putref Listview(in Variant) void",
                "68030002 put Listview(in Variant) void",
                "68030002 get Listview() Variant",
                "60030003 call ShowFilter(in optional Boolean ShowModal = False) void",
                "60030004 call DeactivateFilter() void",
                "60030005 call ApplyFilter(in String Filter) void",
                "60030006 call ResetFilter() void",
                "60030007 call TurnOffFilter() void",
                "68030008 put Active(in Boolean) void",
                "68030008 get Active() Boolean",
                "68030009 get ListOfTags() String",
                "6803000A get Filter() String",
                "6803000B get FilterInPlainEnglish() String",
                "6803000C put ItemDescription(in String) void",
                "6803000C get ItemDescription() String",
                "6803000D put FilterMessage(in String) void",
                "6803000D get FilterMessage() String",
                "6803000E put ColumnsToExclude(in String) void",
                "6803000E get ColumnsToExclude() String",
                "6803000F put FilterCaption(in String) void",
                "6803000F get FilterCaption() String",
                "68030010 get ExtraButtonVisible() Boolean bindable",
                "68030010 put ExtraButtonVisible(in Boolean) void bindable",
                "68030011 get ExtraButtonCaption() String",
                "68030011 put ExtraButtonCaption(in String) void",
                "68030012 get InitialSettings() String",
                "68030013 get BannerButtonVisible() Boolean bindable",
                "68030013 put BannerButtonVisible(in Boolean) void bindable",
                "68030014 get BannerButtonPicture() IPictureDisp* bindable",
                "68030014 putref BannerButtonPicture(in IPictureDisp*) void bindable",
            }));
}

TEST(TypeLibrary, DeclaresTheEvents) {
  EXPECT_EQ(MembersOf(L"__TSRowSifter"), (Lines{
                                             "00000001 call FilterActivated() void",
                                             "00000002 call FilterDeactivated() void",
                                         }));
  EXPECT_EQ(MembersOf(L"__TSLvwBannerFilter"),
            (Lines{
                "00000001 call FilterActivated() void",
                "00000002 call FilterDeactivated() void",
                "00000003 call ExtraButtonClicked(in out String* Parameter) void",
            }));
}

// "default _X, default source __X"
std::string InterfacesOf(const wchar_t* name) {
  const ComRef<ITypeInfo> type = Library::Built().TypeOf(name);
  TYPEATTR* attributes = nullptr;
  if (!type || FAILED(type->GetTypeAttr(&attributes))) return "no such type";
  std::string text;
  for (UINT i = 0; i < attributes->cImplTypes; ++i) {
    INT flags = 0;
    HREFTYPE reference = 0;
    ComRef<ITypeInfo> implemented;
    UniqueBstr interfaceName;
    type->GetImplTypeFlags(i, &flags);
    type->GetRefTypeOfImplType(i, &reference);
    if (FAILED(type->GetRefTypeInfo(reference, implemented.Receive()))) return "unresolved";
    implemented->GetDocumentation(MEMBERID_NIL, interfaceName.Receive(), nullptr, nullptr, nullptr);
    if (i > 0) text += ", ";
    if ((flags & IMPLTYPEFLAG_FDEFAULT) != 0) text += "default ";
    if ((flags & IMPLTYPEFLAG_FSOURCE) != 0) text += "source ";
    text += Narrow(interfaceName.Get());
  }
  type->ReleaseTypeAttr(attributes);
  return text;
}

TEST(TypeLibrary, NamesTheDefaultInterfacesOfTheClasses) {
  EXPECT_EQ(InterfacesOf(L"TSRowSifter"), "default _TSRowSifter, default source __TSRowSifter");
  EXPECT_EQ(InterfacesOf(L"TSLvwBannerFilter"),
            "default _TSLvwBannerFilter, default source __TSLvwBannerFilter");
}

// The dual interface through its table of functions: seven of the platform's come first, and every
// place is one pointer wide.
TEST(TypeLibrary, PutsTheMembersBehindThoseOfThePlatform) {
  for (const wchar_t* const name : {L"_TSRowSifter", L"_TSLvwBannerFilter"}) {
    const ComRef<ITypeInfo> late = Library::Built().TypeOf(name);
    ASSERT_TRUE(late);
    HREFTYPE reference = 0;
    ComRef<ITypeInfo> early;
    ASSERT_EQ(late->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
    ASSERT_EQ(late->GetRefTypeInfo(reference, early.Receive()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(early->GetTypeAttr(&attributes), S_OK);
    const UINT count = attributes->cFuncs;
    EXPECT_EQ(attributes->typekind, TKIND_INTERFACE);
    EXPECT_EQ(attributes->cbSizeVft, (7 + count) * sizeof(void*));
    early->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
      FUNCDESC* member = nullptr;
      ASSERT_EQ(early->GetFuncDesc(i, &member), S_OK);
      EXPECT_EQ(static_cast<std::size_t>(member->oVft), (7 + i) * sizeof(void*));
      EXPECT_EQ(member->elemdescFunc.tdesc.vt, VT_HRESULT);
      early->ReleaseFuncDesc(member);
    }
  }
}

TEST(TypeLibrary, KeepsThePrivatePartsPrivate) {
  for (const wchar_t* const name :
       {L"HookClass", L"frmFilter", L"frmAbout", L"ListViewDump", L"LVItemsDump", L"WinProc",
        L"modPLC2", L"mListviewDefs_471", L"mListviewMacros_471"})
    EXPECT_FALSE(Library::Built().TypeOf(name)) << FromWide(name).ToUtf8();
}

}  // namespace
}  // namespace sifter
