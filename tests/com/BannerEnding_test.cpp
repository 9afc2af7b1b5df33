#include "DispatchSpy.h"
#include "HostedBanner.h"

#include <algorithm>
#include <olectl.h>

namespace sifter {

namespace {

// A banner that ends, or loses its list, in whatever order its host takes things down. The base
// class sees to it that nothing of the component is left alive.
class BannerEnding : public HostedBanner {
 protected:
  // The list with its events, read and written by way of a spy.
  ComRef<IDispatch> SpiedList(const std::shared_ptr<DispatchSpyLog>& log) {
    log->otherInterfaces = [this](REFIID id, void** object) {
      if (id == IID_IConnectionPointContainer || id == IID_IProvideClassInfo ||
          id == IID_IProvideClassInfo2)
        return list->QueryInterface(id, object);
      *object = nullptr;
      return E_NOINTERFACE;
    };
    return SpyOn(list, log);
  }

  void ClickFirstHeader() {
    NMLISTVIEW notice{};
    notice.hdr.hwndFrom = form.List();
    notice.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(form.List()));
    notice.hdr.code = static_cast<UINT>(LVN_COLUMNCLICK);
    notice.iItem = -1;
    SendMessageW(form.Parent(), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
  }

  const LONG_PTR hooked = GetWindowLongPtrW(form.List(), GWLP_WNDPROC);

  void LetGo() {
    connection.Break();
    container.Remove();
    control.Reset();
  }
};

TEST_F(BannerEnding, ControlFirst) {
  FilterNames("contains", "r");
  LetGo();
  EXPECT_NE(GetWindowLongPtrW(form.List(), GWLP_WNDPROC), hooked);
  AddRow(*rows, {"Yew", "13"});
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch", "Yew"}));
}

TEST_F(BannerEnding, ListFirst) {
  FilterNames("contains", "r");
  DestroyWindow(form.List());
  EXPECT_EQ(Active(), Value(true));
  LetGo();
}

TEST_F(BannerEnding, FormFirst) {
  FilterNames("contains", "r");
  AddRow(*rows, {"Yew", "13"});
  form.Destroy();
  LetGo();
}

TEST_F(BannerEnding, WhileTheTimerRuns) {
  FilterNames("contains", "r");
  AddRow(*rows, {"Yew", "13"});
  LetGo();
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch", "Yew"}));
}

TEST_F(BannerEnding, InsideItsOwnEvent) {
  events.handlers[1] = [&] { LetGo(); };
  Call(control, L"ApplyFilter", {u"Name..11==r2==*?"});
  EXPECT_FALSE(control);
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
}

TEST_F(BannerEnding, InsideAnEventThatANoticeRaises) {
  FilterNames("contains", "r");
  events.handlers[2] = [&] { LetGo(); };
  AddColumn(*rows, "Colour");
  EXPECT_FALSE(control);
}

TEST_F(BannerEnding, InsideTheEventOfItsButton) {
  Put(control, L"BannerButtonVisible", true);
  events.handlers[3] = [&] { LetGo(); };
  user.Does([&] { SendMessageW(Windows().Extra(), BM_CLICK, 0, 0); });
  user.PumpUntilDone();
  EXPECT_FALSE(control);
}

TEST_F(BannerEnding, WhileItsDialogIsShownModally) {
  user.Does([&] {
    dialog.Appears();
    EXPECT_FALSE(IsWindowEnabled(form.Parent()));
    recorder.Clear();
    container.Remove();
    dialog.Goes();
  });
  const ComRef<IDispatch> caller = control;
  Call(caller, L"ShowFilter", {true});
  user.PumpUntilDone();
  // The sink is connected all the while.
  for (const std::string& line : recorder.Lines()) EXPECT_NE(line.rfind("event", 0), 0u) << line;
  EXPECT_EQ(std::count(recorder.Lines().begin(), recorder.Lines().end(), "OnInPlaceDeactivate"), 1);
  EXPECT_TRUE(IsWindowEnabled(form.Parent()));
}

TEST_F(BannerEnding, WithItsDialogBesideTheForm) {
  Call(control, L"ShowFilter");
  EXPECT_NE(CriteriaDialog::Window(), nullptr);
  LetGo();
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
}

TEST_F(BannerEnding, DetachedInsideAnEvent) {
  events.handlers[1] = [&] { PutRef(control, L"Listview", ObjectValue(nullptr)); };
  Call(control, L"ApplyFilter", {u"Name..11==r2==*?"});
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
  EXPECT_EQ(Active(), Value(true));
  EXPECT_NE(GetWindowLongPtrW(form.List(), GWLP_WNDPROC), hooked);
}

TEST_F(BannerEnding, GivesTheListsWindowItsOldProcedureAndTheListBack) {
  ListViewOnAForm second;
  const auto procedure = [&] { return GetWindowLongPtrW(second.List(), GWLP_WNDPROC); };
  ComRef<IDispatch> other;
  ASSERT_EQ(CreateListViewObject(second.List(), other.Receive()), S_OK);
  Fill(*NativeListView(second.List()), {"Name"}, {{"Oak"}, {"Ash"}});
  const LONG_PTR before = procedure();
  const ULONG references = ReferencesOf(other.Get());
  PutRef(control, L"Listview", ObjectValue(other.Get()));
  HWND window = nullptr;
  Show([&] {
    window = CriteriaDialog::Window();
    dialog.FiltersByMessages(0, "contains", "a");
  });
  EXPECT_NE(procedure(), before);
  EXPECT_TRUE(IsWindow(window));
  EXPECT_EQ(Library::Built().CanUnload(), S_FALSE);
  LetGo();
  EXPECT_EQ(procedure(), before);
  EXPECT_FALSE(IsWindow(window)) << "the dialog, hidden as it is";
  EXPECT_EQ(ReferencesOf(other.Get()), references);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

// The list asks the host for a number while the banner counts a new row.
TEST_F(BannerEnding, InsideAMemberOfTheListThatANoticeReads) {
  const auto log = std::make_shared<DispatchSpyLog>();
  PutRef(control, L"Listview", ObjectValue(SpiedList(log).Get()));
  int asked = 0;
  log->results["Count"] = [&](VARIANT&) {
    if (++asked == 1) LetGo();
  };
  AddRow(*rows, {"Yew", "13"});
  EXPECT_GE(asked, 1);
  EXPECT_FALSE(control);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
  EXPECT_EQ(rows->ListItems()->Count(), 6);
}

TEST_F(BannerEnding, InsideAMemberOfTheListThatAClickOnAHeaderReads) {
  const auto log = std::make_shared<DispatchSpyLog>();
  PutRef(control, L"Listview", ObjectValue(SpiedList(log).Get()));
  int asked = 0;
  log->results["SortKey"] = [&](VARIANT&) {
    if (++asked == 1) LetGo();
  };
  ClickFirstHeader();
  EXPECT_GE(asked, 1);
  EXPECT_FALSE(control);
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
  EXPECT_EQ(Names(), (Strings{"Ash", "Birch", "Elm", "Larch", "Oak"}));
  rows->SetSorted(false);
  ClickFirstHeader();
  EXPECT_EQ(rows->Sorted(), Value(false)) << "nobody listens any more";
}

TEST_F(BannerEnding, AControlThatIsPlacedAnewFiltersAgain) {
  FilterNames("contains", "r");
  container.Remove();
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
  recorder.Clear();
  Container second(form.Parent(), recorder);
  second.site.position = {10, 10, 310, 40};
  second.GiveSite(control);
  second.Activate();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  const auto caption = [&] {
    return WindowText(BannerWindows(second.ControlWindow()).Caption()).ToUtf8();
  };
  EXPECT_EQ(caption(), "Displaying all Items");
  recorder.Clear();
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch"}));
  FilterNames("contains", "a");
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(caption(), "Displaying 3 of 5 Items");
  Strings raised;
  for (const std::string& line : recorder.Lines())
    if (line.rfind("event", 0) == 0) raised.push_back(line);
  EXPECT_EQ(raised, (Strings{"event 2", "event 1"}));
  AddRow(*rows, {"Yew", "13"});
  user.Does([&] { user.WaitsFor([&] { return caption() == "Displaying 3 of 6 Items"; }); });
  user.PumpUntilDone();
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Larch"}));
}

}  // namespace

}  // namespace sifter
