#include "library/ParameterCounts.h"

#include "win32/Errors.h"

namespace sifter {

ParameterCounts::ParameterCounts(ITypeInfo& information) {
  TYPEATTR* attributes = nullptr;
  ThrowIfFailed(information.GetTypeAttr(&attributes));
  const UINT count = attributes->cFuncs;
  information.ReleaseTypeAttr(attributes);
  members_.reserve(count);
  for (UINT i = 0; i < count; ++i) {
    FUNCDESC* member = nullptr;
    ThrowIfFailed(information.GetFuncDesc(i, &member));
    members_.push_back({member->memid, member->invkind, static_cast<UINT>(member->cParams)});
    information.ReleaseFuncDesc(member);
  }
}

bool ParameterCounts::Refuses(DISPID id, WORD kinds, UINT arguments) const {
  bool known = false;
  for (const Member& member : members_) {
    if (member.id != id || (member.kind & kinds) == 0) continue;
    if (arguments <= member.parameters) return false;
    known = true;
  }
  return known;
}

}  // namespace sifter
