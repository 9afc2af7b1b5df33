#pragma once

#include "base/Ref.h"

#include <array>
#include <cstddef>
#include <deque>
#include <memory>
#include <oaidl.h>
#include <windows.h>

namespace sifter {

// The members that a host's list is spoken to by, as indexes.
enum class LateBoundMember {
  kAdd,
  kAlignment,
  kBold,
  kChecked,
  kClear,
  kColumnHeaders,
  kCount,
  kForeColor,
  kGhosted,
  kIcon,
  kIndex,
  kItem,
  kKey,
  kListItems,
  kListSubItems,
  kRemove,
  kReportIcon,
  kSetFocus,
  kSmallIcon,
  kSorted,
  kSortKey,
  kSortOrder,
  kSubItems,
  kTag,
  kText,
  kToolTipText,
  kWidth,
  kWindow,  // hWnd
};
inline constexpr std::size_t kLateBoundMembers =
    static_cast<std::size_t>(LateBoundMember::kWindow) + 1;

// What an object is to the list.
enum class LateBoundRole { kList, kColumns, kColumn, kRows, kRow, kCells, kCell };

// The numbers of an object's members, each asked for when it is first needed.
class LateBoundIds {
 public:
  // Error 438 when the object has no such member; it is not asked again.
  DISPID IdOf(LateBoundMember member, IDispatch* object);

  // How the property is read: as VBScript's and JScript's objects both want it, until an object
  // has turned out to want its functions called.
  WORD ReadFlags(LateBoundMember member) const {
    return Entry(member).isFunction ? DISPATCH_METHOD | DISPATCH_PROPERTYGET : DISPATCH_PROPERTYGET;
  }
  void NoteFunction(LateBoundMember member) { entries_[Place(member)].isFunction = true; }

 private:
  struct MemberEntry {
    HRESULT result = S_FALSE;  // of asking; S_FALSE as long as nobody has asked
    DISPID id = DISPID_UNKNOWN;
    bool isFunction = false;
  };

  static std::size_t Place(LateBoundMember member) { return static_cast<std::size_t>(member); }
  const MemberEntry& Entry(LateBoundMember member) const { return entries_[Place(member)]; }

  std::array<MemberEntry, kLateBoundMembers> entries_;
};

// Shared by all objects of one list: the numbers of members for each class of object. A class is
// told by its dispatch table and by what its objects are to the list, for there are makers whose
// objects all have the same dispatch table. Objects whose members may come and go (IDispatchEx)
// have numbers of their own each.
class LateBoundClasses final : public Object {
 public:
  // For one object. Lives as long as this does, or as `own` does.
  LateBoundIds& IdsOf(IDispatch* object, LateBoundRole role, std::unique_ptr<LateBoundIds>& own);

 private:
  struct Class {
    const void* dispatchTable;
    LateBoundRole role;
    bool differByObject;
    LateBoundIds ids;
  };

  std::deque<Class> classes_;
};

}  // namespace sifter
