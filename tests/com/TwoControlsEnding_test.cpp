#include "HostedBanner.h"

#include <algorithm>

namespace sifter {

namespace {

// Every order of the letters.
Strings OrdersOf(std::string letters) {
  Strings orders;
  std::sort(letters.begin(), letters.end());
  do orders.push_back(letters);
  while (std::next_permutation(letters.begin(), letters.end()));
  return orders;
}

// A form with both controls on one list, filtered by both: B and S end the banner and the sifter, L
// the list's window, F the form with everything that is still on it. The base class sees to it that
// nothing of the component is left alive.
class TwoControlsEnding : public HostedBanner, public testing::WithParamInterface<std::string> {
 protected:
  TwoControlsEnding() {
    other.site.position = {320, 10, 420, 40};
    other.Place(sifter);
    other.Activate();
    PutRef(sifter, L"Listview", ObjectValue(list.Get()));
    FilterNames("contains", "r");
    ShowBy([&] { Call(sifter, L"ShowFilter"); },
           [&] { dialog.FiltersByMessages(0, "starts with", "L"); });
    EXPECT_EQ(Names(), (Strings{"Larch"}));
    AddRow(*rows, {"Yew", "13"});  // the banner's timer runs
  }

  void End(char what) {
    switch (what) {
      case 'B':
        connection.Break();
        container.Remove();
        control.Reset();
        break;
      case 'S':
        other.Remove();
        sifter.Reset();
        break;
      case 'L':
        DestroyWindow(form.List());
        break;
      case 'F':
        form.Destroy();
        break;
    }
  }

  Container other{form.Parent(), recorder};
  ComRef<IDispatch> sifter = Create(kSifter);
};

TEST_P(TwoControlsEnding, InAnyOrderIsSafe) {
  for (const char what : GetParam()) {
    End(what);
    // Whatever is left goes on with its work: timers, paint, notices.
    user.Does([&] { user.Rests(); });
    user.PumpUntilDone();
    if (form.List() != nullptr && IsWindow(form.List())) AddRow(*rows, {"Fir", "1"});
  }
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Orders, TwoControlsEnding, testing::ValuesIn(OrdersOf("BSLF")),
                         [](const auto& order) { return order.param; });

// The one that is left finds the list as it was.
TEST_F(HostedBanner, GoesOnWithoutTheOtherControl) {
  const LONG_PTR alone = GetWindowLongPtrW(form.List(), GWLP_WNDPROC);
  {
    Container other(form.Parent(), recorder);
    const ComRef<IDispatch> sifter = Create(kSifter);
    other.Place(sifter);
    other.Activate();
    PutRef(sifter, L"Listview", ObjectValue(list.Get()));
    FilterNames("contains", "r");
  }
  EXPECT_EQ(GetWindowLongPtrW(form.List(), GWLP_WNDPROC), alone);
  AddRow(*rows, {"Yew", "13"});
  WaitForCaption("Displaying 2 of 6 Items");
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch", "Yew"}));
}

}  // namespace

}  // namespace sifter
