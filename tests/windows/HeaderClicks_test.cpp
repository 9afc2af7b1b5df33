#include "DispatchCalls.h"
#include "ListViewOnAForm.h"
#include "User.h"
#include "controls/ColumnSort.h"
#include "rowsifter/ListViewObject.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListView.h"
#include "win32/UniqueBstr.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <ocidl.h>
#include <olectl.h>
#include <string>
#include <vector>

namespace sifter {

namespace {

// A list view on a form with an object around it, as a control in another module sees it.
class HeaderClicks : public testing::Test {
 protected:
  HeaderClicks() {
    CreateListViewObject(form.List(), object.Receive());
    Fill(*NativeListView(form.List()), {"name", "kind"},
         {{"oak", "tree"}, {"ant", "insect"}, {"elm", "tree"}, {"bee", "insect"}});
    form.OnNotice([this](NMHDR& notice) {
      if (notice.code == LVN_COLUMNCLICK) recorder.Line("parent");
      return LRESULT{0};
    });
  }
  ~HeaderClicks() override { form.OnNotice({}); }

  Ref<LateBoundList> Open(LateBoundList::Transfer transfer = LateBoundList::Transfer::kNever) {
    return MakeRef<LateBoundList>(object, transfer);
  }

  std::function<void(std::int32_t)> Heard(const std::string& name) {
    return
        [this, name](std::int32_t column) { recorder.Line(name + " " + std::to_string(column)); };
  }

  POINT OnHeader(int column) const {
    const HWND header = listview::Header(form.List());
    RECT place{};
    SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column),
                 reinterpret_cast<LPARAM>(&place));
    POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    ClientToScreen(header, &middle);
    return middle;
  }

  // By a column's position, from 0. Never twice in the same place, where that is a double click.
  void Click(int column) {
    POINT place = OnHeader(column);
    place.x += 20 * (clicks++ % 2);
    user.Does([this, place] { user.ClicksAt(place); });
    user.PumpUntilDone();
  }

  std::string Shown() const {
    std::string texts;
    for (const std::vector<std::string>& row : form.ShownTexts())
      texts += (texts.empty() ? "" : ", ") + row[0] + " " + row[1];
    return texts;
  }

  Recorder recorder;
  User user;
  ListViewOnAForm form;
  ComRef<IDispatch> object;
  int clicks = 0;
};

TEST_F(HeaderClicks, OfTheUserAreToldBehindTheParent) {
  const Ref<LateBoundList> list = Open();
  const Ref<Object> own = NativeListView(form.List())->WatchColumnClicks(Heard("own"));
  Ref<Object> event = list->WatchColumnClicks(Heard("event"));
  ASSERT_TRUE(event);
  Click(1);
  EXPECT_TRUE(recorder.Shows({"parent", "event 2", "own 2"}));
  recorder.Clear();
  event = nullptr;
  Click(0);
  EXPECT_TRUE(recorder.Shows({"parent", "own 1"}));
}

TEST_F(HeaderClicks, ClicksOnRowsAreNone) {
  const Ref<Object> event = Open()->WatchColumnClicks(Heard("event"));
  user.Does([this] {
    RECT row{};
    SendMessageW(form.List(), LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    POINT middle{row.left + 10, (row.top + row.bottom) / 2};
    ClientToScreen(form.List(), &middle);
    user.ClicksAt(middle);
  });
  user.PumpUntilDone();
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(HeaderClicks, SortTheRowsOnTheScreen) {
  for (const auto transfer :
       {LateBoundList::Transfer::kNever, LateBoundList::Transfer::kWhereOffered}) {
    const Ref<LateBoundList> list = Open(transfer);
    ColumnSort sort;
    const Ref<Object> event =
        list->WatchColumnClicks([&](std::int32_t column) { sort.Click(*list, column); });
    Click(0);
    EXPECT_EQ(Shown(), "ant insect, bee insect, elm tree, oak tree");
    Click(0);
    EXPECT_EQ(Shown(), "oak tree, elm tree, bee insect, ant insect");
    Click(1);
    EXPECT_EQ(Shown(), "oak tree, elm tree, bee insect, ant insect");
    Click(1);
    EXPECT_EQ(Shown(), "bee insect, ant insect, oak tree, elm tree");
    EXPECT_EQ(Get(object, L"SortKey"), Value(1));
    Put(object, L"Sorted", false);
    Put(object, L"SortOrder", 0);
    Put(object, L"SortKey", 0);
  }
}

TEST_F(HeaderClicks, TheObjectIsHeldByTheConnectionAlone) {
  const ULONG before = ReferencesOf(object.Get());
  {
    const Ref<LateBoundList> list = Open();
    const Ref<Object> event = list->WatchColumnClicks(Heard("event"));
    EXPECT_EQ(ReferencesOf(object.Get()), before + 2);
  }
  EXPECT_EQ(ReferencesOf(object.Get()), before);
}

TEST_F(HeaderClicks, AWatcherMayOutliveTheWindowAndTheObject) {
  Ref<Object> event = Open()->WatchColumnClicks(Heard("event"));
  form.Destroy();
  object.Reset();
  event = nullptr;
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(HeaderClicks, AWatcherMayDestroyTheWindowAndLetGoOfEverything) {
  Ref<Object> event;
  event = Open()->WatchColumnClicks([&](std::int32_t column) {
    Heard("event")(column);
    event = nullptr;
    object.Reset();
    form.Destroy();
  });
  NMLISTVIEW click{};
  click.hdr = {form.List(), 1, LVN_COLUMNCLICK};
  click.iItem = -1;
  click.iSubItem = 1;
  SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&click));
  EXPECT_TRUE(recorder.Shows({"parent", "event 2"}));
  EXPECT_FALSE(form.List());
}

// What programs in other languages look for.
TEST_F(HeaderClicks, TheEventIsDescribedAsTheDefaultSourceOfAClass) {
  const auto source = object.As<IProvideClassInfo2>(IID_IProvideClassInfo2);
  ASSERT_TRUE(source);
  ComRef<ITypeInfo> type;
  ASSERT_EQ(source->GetClassInfo(type.Receive()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(type->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
  EXPECT_EQ(attributes->cImplTypes, 1);
  type->ReleaseTypeAttr(attributes);
  INT flags = 0;
  EXPECT_EQ(type->GetImplTypeFlags(0, &flags), S_OK);
  EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE);

  HREFTYPE reference = 0;
  ComRef<ITypeInfo> events;
  ASSERT_EQ(type->GetRefTypeOfImplType(0, &reference), S_OK);
  ASSERT_EQ(type->GetRefTypeInfo(reference, events.Receive()), S_OK);
  ASSERT_EQ(events->GetTypeAttr(&attributes), S_OK);
  EXPECT_EQ(attributes->typekind, TKIND_DISPATCH);
  const UINT functions = attributes->cFuncs;
  IID id{};
  EXPECT_EQ(source->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &id), S_OK);
  EXPECT_EQ(id, attributes->guid);
  events->ReleaseTypeAttr(attributes);

  // Behind those of IDispatch itself.
  FUNCDESC* click = nullptr;
  ASSERT_EQ(events->GetFuncDesc(functions - 1, &click), S_OK);
  EXPECT_EQ(click->cParams, 1);
  EXPECT_EQ(click->lprgelemdescParam[0].tdesc.vt, VT_DISPATCH);
  BSTR names[2] = {};
  UINT count = 0;
  EXPECT_EQ(events->GetNames(click->memid, names, 2, &count), S_OK);
  EXPECT_EQ(count, 2u);
  const UniqueBstr event(names[0]);
  const UniqueBstr header(names[1]);
  EXPECT_EQ(event.View(), u"ColumnClick");
  EXPECT_EQ(header.View(), u"ColumnHeader");
  events->ReleaseFuncDesc(click);
}

TEST_F(HeaderClicks, TheObjectHasOnePointForItsEvent) {
  const auto points = object.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
  ASSERT_TRUE(points);
  IID id{};
  object.As<IProvideClassInfo2>(IID_IProvideClassInfo2)
      ->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &id);
  ComRef<IConnectionPoint> found;
  ASSERT_EQ(points->FindConnectionPoint(id, found.Receive()), S_OK);
  ComRef<IConnectionPoint> other;
  EXPECT_EQ(points->FindConnectionPoint(IID_IPropertyNotifySink, other.Receive()),
            CONNECT_E_NOCONNECTION);
  ComRef<IEnumConnectionPoints> all;
  ASSERT_EQ(points->EnumConnectionPoints(all.Receive()), S_OK);
  IConnectionPoint* each[2] = {};
  ULONG count = 0;
  EXPECT_EQ(all->Next(2, each, &count), S_FALSE);
  EXPECT_EQ(count, 1u);
  const auto first = ComRef<IConnectionPoint>::Adopt(each[0]);
  EXPECT_EQ(first.Get(), found.Get());
}

TEST_F(HeaderClicks, SetFocusGivesTheWindowTheFocus) {
  SetFocus(form.Parent());
  Open()->SetFocus();
  EXPECT_EQ(GetFocus(), form.List());
  SetFocus(form.Parent());
  NativeListView(form.List())->SetFocus();
  EXPECT_EQ(GetFocus(), form.List());
  SetFocus(form.Parent());
  Call(object, L"setfocus");
  EXPECT_EQ(GetFocus(), form.List());
}

TEST_F(HeaderClicks, SetFocusWithoutAWindowDoesNothing) {
  const Ref<HostListView> list = NativeListView(form.List());
  form.Destroy();
  EXPECT_EQ(ErrorOf([&] { list->SetFocus(); }), "nothing");
  EXPECT_EQ(ErrorOf([&] { Call(object, L"SetFocus"); }), "nothing");
}

}  // namespace

}  // namespace sifter
