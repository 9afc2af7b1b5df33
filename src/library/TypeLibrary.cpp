#include "library/TypeLibrary.h"

#include "library/Module.h"
#include "win32/Errors.h"

#include <oleauto.h>

namespace sifter {

ComRef<ITypeLib> OwnTypeLibrary() {
  ComRef<ITypeLib> library;
  ThrowIfFailed(LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Receive()));
  return library;
}

ComRef<ITypeInfo> OwnTypeInfo(REFGUID id) {
  ComRef<ITypeInfo> information;
  ThrowIfFailed(OwnTypeLibrary()->GetTypeInfoOfGuid(id, information.Receive()));
  return information;
}

}  // namespace sifter
