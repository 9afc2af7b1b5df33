#include "HostedSifter.h"

#include <memory>
#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

// How hosts find the control's events and listen to them.
class Events : public HostedControl, public testing::WithParamInterface<const wchar_t*> {
 protected:
  Events() : HostedControl(GetParam()) {}

  void Raise() {
    Show([&] { dialog.PressesByMessage("&Hide Filter"); });
  }
  ComRef<IConnectionPoint> Point(REFIID id) {
    ComRef<IConnectionPoint> point;
    EXPECT_EQ(control.As<IConnectionPointContainer>()->FindConnectionPoint(id, point.Receive()),
              S_OK);
    return point;
  }
};

TEST_P(Events, TheDefaultSourceIsToldByTheClass) {
  IID told{};
  const auto info = control.As<IProvideClassInfo2>();
  ASSERT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &told), S_OK);
  EXPECT_EQ(told, eventsId);
  EXPECT_TRUE(FAILED(info->GetGUID(99, &told)));
  ComRef<ITypeInfo> information;
  ASSERT_EQ(info->GetClassInfo(information.Receive()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(information->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->guid, Library::Built().IdOf(type.c_str()));
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  information->ReleaseTypeAttr(attributes);
}

TEST_P(Events, ConnectionPointsCanBeGoneThrough) {
  ComRef<IEnumConnectionPoints> each;
  ASSERT_EQ(control.As<IConnectionPointContainer>()->EnumConnectionPoints(each.Receive()), S_OK);
  std::vector<IID> found;
  for (;;) {
    ComRef<IConnectionPoint> point;
    if (each->Next(1, point.Receive(), nullptr) != S_OK) break;
    IID id{};
    ASSERT_EQ(point->GetConnectionInterface(&id), S_OK);
    found.push_back(id);
    ComRef<IConnectionPointContainer> source;
    ASSERT_EQ(point->GetConnectionPointContainer(source.Receive()), S_OK);
    EXPECT_TRUE(IsSameComObject(source.Get(), control.Get()));
  }
  EXPECT_EQ(found, (std::vector<IID>{eventsId, IID_IPropertyNotifySink}));
  ComRef<IEnumConnectionPoints> copy;
  EXPECT_EQ(each->Reset(), S_OK);
  EXPECT_EQ(each->Skip(1), S_OK);
  ASSERT_EQ(each->Clone(copy.Receive()), S_OK);
  IConnectionPoint* points[3] = {};
  ULONG fetched = 0;
  EXPECT_EQ(copy->Next(3, points, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 1u);
  EXPECT_EQ(points[0], Point(IID_IPropertyNotifySink).Get());
  points[0]->Release();
  EXPECT_EQ(copy->Skip(1), S_FALSE);
}

TEST_P(Events, OthersAreNotRaised) {
  ComRef<IConnectionPoint> point;
  EXPECT_EQ(control.As<IConnectionPointContainer>()->FindConnectionPoint(IID_IAdviseSink,
                                                                         point.Receive()),
            CONNECT_E_NOCONNECTION);
  EXPECT_FALSE(point);
}

TEST_P(Events, EverySinkHearsThemUntilItLeaves) {
  Recorder second;
  EventSink other(eventsId, second);
  {
    const Connection connected(control.Get(), eventsId, &other);
    Raise();
    EXPECT_TRUE(second.Shows({"event 2"}));
  }
  Raise();
  EXPECT_TRUE(second.Shows({"event 2"}));
  EXPECT_EQ(other.References(), 0);
  EXPECT_TRUE(
      recorder.Shows({"frame.EnableModeless False", "frame.EnableModeless True", "event 2",
                      "frame.EnableModeless False", "frame.EnableModeless True", "event 2"}));
}

TEST_P(Events, SinksMayComeAndGoInAHandler) {
  Recorder second;
  EventSink other(eventsId, second);
  std::unique_ptr<Connection> connected;
  events.handlers[2] = [&] {
    connection.Break();
    connected = std::make_unique<Connection>(control.Get(), eventsId, &other);
  };
  Raise();
  Raise();
  EXPECT_EQ(second.Lines().back(), "event 2");
  EXPECT_EQ(events.References(), 0);
}

TEST_P(Events, ASinkThatFailsStopsNothing) {
  Recorder second;
  EventSink other(eventsId, second);
  const Connection connected(control.Get(), eventsId, &other);
  events.answer = E_FAIL;
  FilterNames("contains", "r");
  EXPECT_TRUE(second.Shows({"event 1"}));
  EXPECT_EQ(Get(control, L"Active"), Value(true));
}

TEST_P(Events, ConnectionsCanBeCounted) {
  const ComRef<IConnectionPoint> point = Point(eventsId);
  ComRef<IEnumConnections> each;
  ASSERT_EQ(point->EnumConnections(each.Receive()), S_OK);
  CONNECTDATA data{};
  ULONG fetched = 0;
  ASSERT_EQ(each->Next(1, &data, &fetched), S_OK);
  EXPECT_TRUE(IsSameComObject(data.pUnk, &events));
  data.pUnk->Release();
  EXPECT_EQ(each->Next(1, &data, &fetched), S_FALSE);
  EXPECT_EQ(fetched, 0u);
  connection.Break();
  ComRef<IEnumConnections> none;
  ASSERT_EQ(point->EnumConnections(none.Receive()), S_OK);
  EXPECT_EQ(none->Next(1, &data, &fetched), S_FALSE);
}

TEST_P(Events, AConnectionPointRefusesWhatIsNoSink) {
  const ComRef<IConnectionPoint> point = Point(eventsId);
  PropertySink noSink(recorder);
  DWORD cookie = 5;
  EXPECT_EQ(point->Advise(&noSink, &cookie), CONNECT_E_CANNOTCONNECT);
  EXPECT_EQ(point->Advise(nullptr, &cookie), E_POINTER);
  EXPECT_EQ(point->Advise(&events, nullptr), E_POINTER);
  EXPECT_EQ(point->Unadvise(0), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->Unadvise(99), CONNECT_E_NOCONNECTION);
}

TEST_P(Events, AConnectionPointMayOutliveTheHostsInterest) {
  const ComRef<IConnectionPoint> point = Point(eventsId);
  connection.Break();
  container.Remove();
  control.Reset();
  ComRef<IConnectionPointContainer> source;
  EXPECT_EQ(point->GetConnectionPointContainer(source.Receive()), S_OK);
}

TEST_P(Events, FrozenEventsComeWhenTheLastFreezeEnds) {
  const auto oleControl = control.As<IOleControl>();
  EXPECT_EQ(oleControl->FreezeEvents(TRUE), S_OK);
  EXPECT_EQ(oleControl->FreezeEvents(TRUE), S_OK);
  FilterNames("contains", "r");
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  recorder.Clear();
  EXPECT_EQ(oleControl->FreezeEvents(FALSE), S_OK);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(oleControl->FreezeEvents(FALSE), S_OK);
  EXPECT_TRUE(recorder.Shows({"event 1", "event 2"}));
  EXPECT_EQ(oleControl->FreezeEvents(FALSE), S_OK);
  Raise();
  EXPECT_EQ(recorder.Lines().back(), "event 2");
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, Events, testing::Values(kSifter, kBanner), ControlName);

TEST_F(HostedSifter, TellsOfChangedProperties) {
  PropertySink properties(recorder);
  const Connection connected(control.Get(), IID_IPropertyNotifySink, &properties);
  Put(control, L"FilterCaption", u"Trees");
  Put(control, L"FilterMessage", u"Which trees?");
  Put(control, L"ColumnsToExclude", u"Name");
  Put(control, L"ColumnsToExclude", u"Name");
  EXPECT_TRUE(recorder.Shows({"changed 0x68030000", "changed 0x68030002", "changed 0x68030001"}));
}

}  // namespace

}  // namespace sifter
