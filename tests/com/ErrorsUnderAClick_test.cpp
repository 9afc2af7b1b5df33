#include "DispatchSpy.h"
#include "HostedBanner.h"

namespace sifter {

namespace {

// What goes wrong under a click of the user's has no caller to be told.
class ErrorsUnderAClick : public HostedControl, public testing::WithParamInterface<const wchar_t*> {
 protected:
  ErrorsUnderAClick() : HostedControl(GetParam()) {
    // Room for the whole of a banner.
    const RECT place{10, 10, 310, 40};
    EXPECT_EQ(container.As<IOleInPlaceObject>()->SetObjectRects(&place, &place), S_OK);
  }
};

TEST_P(ErrorsUnderAClick, AreShownInABox) {
  const std::shared_ptr<DispatchSpyLog> log = std::make_shared<DispatchSpyLog>();
  const ComRef<IDispatch> foreign = SpyOn(list, log);
  PutRef(control, L"Listview", ObjectValue(foreign.Get()));
  log->failures["Count"] = {DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A8B12), L"out of order"};
  Strings box;
  user.Does([&] {
    user.Clicks(FilterButton(GetParam(), container.ControlWindow()));
    user.WaitsFor([] { return MessageBoxWindow() != nullptr; });
    box = TextsOf(MessageBoxWindow());
    user.Presses(VK_RETURN);
    user.WaitsFor([] { return MessageBoxWindow() == nullptr; });
  });
  user.PumpUntilDone();
  EXPECT_EQ(box, (Strings{"Error", "Error number is 35602, out of order", "OK"}));
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
  FilterNames("contains", "r");
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"})) << "the next showing";
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, ErrorsUnderAClick, testing::Values(kSifter, kBanner),
                         ControlName);

}  // namespace

}  // namespace sifter
