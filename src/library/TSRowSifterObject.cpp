#include "library/TSRowSifterObject.h"

#include "library/LibraryServices.h"

#include <RowSifter.h>

namespace sifter {

namespace {

constexpr DISPID kFilterActivated = 1;
constexpr DISPID kFilterDeactivated = 2;

}  // namespace

ComRef<IUnknown> TSRowSifterObject::Create(const ControlClass& self, IUnknown* outer) {
  return ComRef<IUnknown>::Adopt((new TSRowSifterObject(self, outer))->Own());
}

TSRowSifterObject::TSRowSifterObject(const ControlClass& self, IUnknown* outer)
    : ControlFrame(self, outer),
      prompts_(*this, LibraryServices::Get().prompts),
      sifter_(LibraryServices::ForControl(forms_, prompts_)),
      dispatch_(sifter_, Identity()) {
  Offer(IID_IDispatch, dispatch_);
  Offer(__uuidof(_TSRowSifter), dispatch_);
  sifter_.FilterActivated = [this] { Events().Raise(kFilterActivated); };
  sifter_.FilterDeactivated = [this] { Events().Raise(kFilterDeactivated); };
  sifter_.SettingChanged = [this] { SetDirty(true); };
  sifter_.PropertyChanged = [this](TextView name) { PropertyChanged(dispatch_.IdOf(name)); };
  Begin();
}

TSRowSifterObject::~TSRowSifterObject() { End(); }

// A dialog that is on the screen ends its showing, whose events nobody hears any more.
void TSRowSifterObject::Close() { sifter_.Dialog().Hide(); }

}  // namespace sifter
