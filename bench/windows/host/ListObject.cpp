#include "host/ListObject.h"

#include <rowsifter/ListViewObject.h>

#include <commctrl.h>
#include <cstdlib>
#include <oleauto.h>
#include <stdexcept>

namespace sifter::bench {

namespace {

struct Variant : VARIANT {
  Variant() { VariantInit(this); }
  explicit Variant(std::int32_t number) : Variant() {
    vt = VT_I4;
    lVal = number;
  }
  explicit Variant(const std::wstring& text) : Variant() {
    vt = VT_BSTR;
    bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  static Variant LeftOut() {
    Variant variant;
    variant.vt = VT_ERROR;
    variant.scode = DISP_E_PARAMNOTFOUND;
    return variant;
  }
};

// Calls a member; `arguments` in the order of the call, given up to it.
Variant Call(IDispatch* object, const wchar_t* name, WORD flags,
             std::initializer_list<Variant> arguments = {}) {
  std::wstring copy = name;
  LPOLESTR names[] = {copy.data()};
  DISPID id = 0;
  if (FAILED(object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id)))
    throw std::runtime_error("a member is missing");
  std::vector<VARIANT> reversed(std::rbegin(arguments), std::rend(arguments));
  DISPID newValue = DISPID_PROPERTYPUT;
  const bool isWrite = (flags & DISPATCH_PROPERTYPUT) != 0;
  DISPPARAMS parameters{reversed.data(), isWrite ? &newValue : nullptr,
                        static_cast<UINT>(reversed.size()), isWrite ? 1u : 0u};
  Variant result;
  const HRESULT called = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                        isWrite ? nullptr : &result, nullptr, nullptr);
  for (VARIANT& argument : reversed) VariantClear(&argument);
  if (FAILED(called)) throw std::runtime_error("a call failed");
  return result;
}

}  // namespace

ListObject::ListObject(HWND parent, const HostTable& table)
    : window_(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 780,
                              560, parent, nullptr, GetModuleHandleW(nullptr), nullptr)) {
  if (FAILED(CreateListViewObject(window_, &object_)))
    throw std::runtime_error("the list view has no object");
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  const Variant columns = Call(object_, L"ColumnHeaders", DISPATCH_PROPERTYGET);
  for (const std::wstring& caption : table.captions)
    Call(columns.pdispVal, L"Add", DISPATCH_METHOD,
         {Variant::LeftOut(), Variant::LeftOut(), Variant(caption), Variant(1050)})
        .pdispVal->Release();
  columns.pdispVal->Release();
  const Variant items = Call(object_, L"ListItems", DISPATCH_PROPERTYGET);
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    const std::vector<std::wstring>& texts = table.rows[i];
    const Variant row =
        Call(items.pdispVal, L"Add", DISPATCH_METHOD,
             {Variant::LeftOut(), Variant(L"r" + std::to_wstring(i)), Variant(texts[0])});
    for (std::size_t j = 1; j < texts.size(); ++j)
      Call(row.pdispVal, L"SubItems", DISPATCH_PROPERTYPUT,
           {Variant(static_cast<std::int32_t>(j)), Variant(texts[j])});
    row.pdispVal->Release();
  }
  items.pdispVal->Release();
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
}

ListObject::~ListObject() {
  object_->Release();
  DestroyWindow(window_);
}

std::vector<std::int32_t> ListObject::MissingRows(std::size_t rows) const {
  std::vector<bool> present(rows, false);
  const Variant items = Call(object_, L"ListItems", DISPATCH_PROPERTYGET);
  const Variant count = Call(items.pdispVal, L"Count", DISPATCH_PROPERTYGET);
  for (std::int32_t i = 1; i <= count.lVal; ++i) {
    const Variant row = Call(items.pdispVal, L"Item", DISPATCH_PROPERTYGET, {Variant(i)});
    Variant key = Call(row.pdispVal, L"Key", DISPATCH_PROPERTYGET);
    present[std::wcstoul(key.bstrVal + 1, nullptr, 10)] = true;
    VariantClear(&key);
    row.pdispVal->Release();
  }
  items.pdispVal->Release();
  std::vector<std::int32_t> missing;
  for (std::size_t i = 0; i < rows; ++i)
    if (!present[i]) missing.push_back(static_cast<std::int32_t>(i));
  return missing;
}

}  // namespace sifter::bench
