#include "library/PersistPropertyBagPart.h"

#include "library/ControlFrame.h"
#include "library/HostPropertyBag.h"

namespace sifter {

HRESULT PersistPropertyBagPart::GetClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = *Frame().Class().classId;
  return S_OK;
}

HRESULT PersistPropertyBagPart::InitNew() {
  return Answer([&] {
    Frame().InitProperties();
    return S_OK;
  });
}

HRESULT PersistPropertyBagPart::Load(IPropertyBag* bag, IErrorLog* errors) {
  if (bag == nullptr) return E_POINTER;
  return Answer([&] {
    HostPropertyBag entries(*bag, errors);
    try {
      Frame().ReadProperties(entries);
    } catch (const RuntimeError& error) {
      entries.LogLastRead(error);
      throw;
    }
    return S_OK;
  });
}

HRESULT PersistPropertyBagPart::Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) {
  if (bag == nullptr) return E_POINTER;
  return Answer([&] {
    HostPropertyBag entries(*bag);
    Frame().Control().WriteProperties(entries, saveAll ? Saving::kAll : Saving::kUnlikeDefault);
    if (clearDirty) Frame().SetDirty(false);
    return S_OK;
  });
}

}  // namespace sifter
