#include "library/SupportErrorInfoPart.h"

#include "library/ControlFrame.h"

namespace sifter {

HRESULT SupportErrorInfoPart::InterfaceSupportsErrorInfo(REFIID id) {
  return id == *Frame().Class().interfaceId ? S_OK : S_FALSE;
}

}  // namespace sifter
