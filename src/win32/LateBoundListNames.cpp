#include "win32/LateBoundListNames.h"

#include "win32/ComRef.h"
#include "win32/Errors.h"
#include "win32/UniqueBstr.h"

#include <dispex.h>

namespace sifter {

namespace {

constexpr TextView kNames[] = {
    u"Add",       u"Alignment",   u"Bold",         u"Checked",   u"Clear",      u"ColumnHeaders",
    u"Count",     u"ForeColor",   u"Ghosted",      u"Icon",      u"Index",      u"Item",
    u"Key",       u"ListItems",   u"ListSubItems", u"Remove",    u"ReportIcon", u"SetFocus",
    u"SmallIcon", u"Sorted",      u"SortKey",      u"SortOrder", u"SubItems",   u"Tag",
    u"Text",      u"ToolTipText", u"Width",        u"hWnd",
};
static_assert(std::size(kNames) == kLateBoundMembers);

// Script objects refuse the ordinary question with E_NOTIMPL and answer through IDispatchEx alone.
HRESULT Ask(IDispatch* object, TextView name, DISPID& id) {
  const UniqueBstr asked(name);
  LPOLESTR names[] = {asked.Get()};
  const HRESULT result = object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (result != E_NOTIMPL) return result;
  const auto scriptObject = ComRef<IDispatch>(object).As<IDispatchEx>(__uuidof(IDispatchEx));
  if (!scriptObject) return result;
  return scriptObject->GetDispID(asked.Get(), fdexNameCaseInsensitive, &id);
}

const void* DispatchTableOf(IDispatch* object) {
  return *reinterpret_cast<const void* const*>(object);
}

}  // namespace

DISPID LateBoundIds::IdOf(LateBoundMember member, IDispatch* object) {
  MemberEntry& entry = entries_[Place(member)];
  if (entry.result == S_FALSE) {
    const HRESULT result = Ask(object, kNames[Place(member)], entry.id);
    entry.result = result == S_FALSE ? S_OK : result;
  }
  if (FAILED(entry.result)) throw ErrorFromResult(entry.result);
  return entry.id;
}

LateBoundIds& LateBoundClasses::IdsOf(IDispatch* object, LateBoundRole role,
                                      std::unique_ptr<LateBoundIds>& own) {
  const void* table = DispatchTableOf(object);
  Class* known = nullptr;
  for (Class& one : classes_)
    if (one.dispatchTable == table && one.role == role) known = &one;
  if (known == nullptr) {
    const bool isScriptObject =
        static_cast<bool>(ComRef<IDispatch>(object).As<IDispatchEx>(__uuidof(IDispatchEx)));
    known = &classes_.emplace_back(Class{table, role, isScriptObject, {}});
  }
  if (!known->differByObject) return known->ids;
  own = std::make_unique<LateBoundIds>();
  return *own;
}

}  // namespace sifter
