#include "ClickableListFake.h"
#include "ComFakes.h"
#include "DispatchCalls.h"
#include "support/Lists.h"
#include "win32/ColumnClickSink.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListViewObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using Columns = std::vector<std::int32_t>;

constexpr IID kClickSource = {0x5b1f1a01, 0, 0, {1}};
constexpr IID kOtherSource = {0x5b1f1a02, 0, 0, {1}};
constexpr IID kThirdSource = {0x5b1f1a03, 0, 0, {1}};
constexpr DISPID kClick = 23;
constexpr INT kDefaultSource = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;

SourceType Clicks(IID id = kClickSource) {
  return {L"Clicks" + std::to_wstring(id.Data1),
          id,
          {{L"ItemClick", 5}, {L"ColumnClick", kClick}},
          TKIND_DISPATCH,
          kDefaultSource};
}

SourceType OtherEvents() {
  return {L"OtherEvents", kOtherSource, {{L"Click", kClick}}, TKIND_DISPATCH, kDefaultSource};
}

// Watches a fake list, whose headers are those of a list in memory.
class ColumnClickEvent : public testing::Test {
 protected:
  Ref<Object> Watch(ClickableListFake& list) {
    return MakeRef<LateBoundList>(ComRef<IDispatch>(&list))
        ->WatchColumnClicks([this](std::int32_t column) { heard.push_back(column); });
  }

  ComRef<IDispatch> Header(std::int32_t position) {
    return GetObject(GetObject(headers, L"ColumnHeaders"), L"Item", {position});
  }

  // An argument that borrows the header.
  static VARIANT Passing(const ComRef<IDispatch>& header) {
    VARIANT argument{};
    argument.vt = VT_DISPATCH;
    argument.pdispVal = header.Get();
    return argument;
  }

  // Whether the list can be watched, and if so, that it tells and is let go of again.
  bool Tells(ClickableListFake& list, std::size_t place = 0) {
    heard.clear();
    Ref<Object> watching = Watch(list);
    const bool told = static_cast<bool>(watching);
    if (told) {
      EXPECT_EQ(list.Point(place).sinks.size(), 1u);
      EXPECT_EQ(list.Raise(kClick, {Passing(header2)}, place), S_OK);
    }
    EXPECT_EQ(heard, told ? Columns{2} : Columns());
    watching = nullptr;
    EXPECT_EQ(list.Sinks(), 0u);
    EXPECT_EQ(list.References(), 0);
    return told;
  }

  Columns heard;
  ComRef<IDispatch> headers = ListViewObject(MakeList({"a", "b", "c"}));
  ComRef<IDispatch> header2 = Header(2);
};

TEST_F(ColumnClickEvent, TellsTheIndexOfTheHeaderUntilNobodyHoldsOn) {
  ClickableListFake list({Clicks()});
  Ref<Object> watching = Watch(list);
  list.Raise(kClick, {Passing(Header(3))});
  list.Raise(kClick, {Passing(Header(1))});
  EXPECT_EQ(heard, (Columns{3, 1}));
  watching = nullptr;
  EXPECT_EQ(list.Sinks(), 0u);
  EXPECT_EQ(list.References(), 0);
}

TEST_F(ColumnClickEvent, OtherEventsAreLeftAlone) {
  ClickableListFake list({Clicks()});
  const Ref<Object> watching = Watch(list);
  EXPECT_EQ(list.Raise(5, {Passing(header2)}), S_OK);
  EXPECT_EQ(list.Raise(kClick + 1, {}), S_OK);
  EXPECT_EQ(heard, Columns());
}

TEST_F(ColumnClickEvent, TheHeaderMayComeByReferenceAndAsAnyInterface) {
  ClickableListFake list({Clicks()});
  const Ref<Object> watching = Watch(list);
  IDispatch* dispatch = header2.Get();
  IUnknown* unknown = dispatch;
  VARIANT plain = Passing(header2);
  VARIANT byDispatch{};
  byDispatch.vt = VT_DISPATCH | VT_BYREF;
  byDispatch.ppdispVal = &dispatch;
  VARIANT byVariant{};
  byVariant.vt = VT_VARIANT | VT_BYREF;
  byVariant.pvarVal = &plain;
  VARIANT asUnknown{};
  asUnknown.vt = VT_UNKNOWN;
  asUnknown.punkVal = unknown;
  VARIANT byUnknown{};
  byUnknown.vt = VT_UNKNOWN | VT_BYREF;
  byUnknown.ppunkVal = &unknown;
  const ULONG before = ReferencesOf(header2.Get());
  for (const VARIANT& each : {byDispatch, byVariant, asUnknown, byUnknown})
    EXPECT_EQ(list.Raise(kClick, {each}), S_OK);
  EXPECT_EQ(heard, (Columns{2, 2, 2, 2}));
  EXPECT_EQ(ReferencesOf(header2.Get()), before);
}

TEST_F(ColumnClickEvent, MoreArgumentsThanTheHeaderAreNotLookedAt) {
  ClickableListFake list({Clicks()});
  const Ref<Object> watching = Watch(list);
  VARIANT button{};
  button.vt = VT_I2;
  button.iVal = 7;
  EXPECT_EQ(list.Raise(kClick, {Passing(header2), button, button}), S_OK);
  EXPECT_EQ(heard, Columns{2});
}

TEST_F(ColumnClickEvent, WithoutAHeaderTheListIsToldAnError) {
  ClickableListFake list({Clicks()});
  const Ref<Object> watching = Watch(list);
  constexpr auto kNoObject = static_cast<HRESULT>(0x800A01A8);
  constexpr auto kNoMember = static_cast<HRESULT>(0x800A01B6);
  VARIANT number{};
  number.vt = VT_I4;
  number.lVal = 2;
  ComObjectFake nothing(false);
  VARIANT notCallable{};
  notCallable.vt = VT_UNKNOWN;
  notCallable.punkVal = nothing.Identity();
  EXPECT_EQ(list.Raise(kClick, {}), kNoObject);
  EXPECT_EQ(list.Raise(kClick, {number}), kNoObject);
  EXPECT_EQ(list.Raise(kClick, {Passing(nullptr)}), kNoObject);
  EXPECT_EQ(list.Raise(kClick, {notCallable}), kNoObject);
  EXPECT_EQ(list.Raise(kClick, {Passing(headers)}), kNoMember);
  EXPECT_EQ(nothing.References(), 0);
  EXPECT_EQ(heard, Columns());
}

TEST_F(ColumnClickEvent, AnErrorOfTheWatcherStaysInsideTheCall) {
  ClickableListFake list({Clicks()});
  const Ref<Object> watching =
      WatchColumnClickEvent(&list, [](std::int32_t) { throw RuntimeError(ErrorNumber(457)); });
  EXPECT_EQ(list.Raise(kClick, {Passing(header2)}), static_cast<HRESULT>(0x800A01C9));
}

TEST_F(ColumnClickEvent, TheNameIsFoundWhateverTheCaseOfItsLetters) {
  SourceType source = Clicks();
  source.events = {{L"COLUMNclick", kClick}};
  ClickableListFake list({source});
  EXPECT_TRUE(Tells(list));
}

TEST_F(ColumnClickEvent, IsFoundByWhateverTheObjectTellsOfItself) {
  struct Way {
    const char* name;
    std::function<void(ClickableListFake&)> prepare;
  };
  const Way ways[] = {
      {"all of it", [](ClickableListFake&) {}},
      {"no default named", [](ClickableListFake& list) { list.tellsDefault = false; }},
      {"the default's name fails", [](ClickableListFake& list) { list.defaultId = GUID_NULL; }},
      {"the default isn't found", [](ClickableListFake& list) { list.findsPoints = false; }},
      {"no enumerator", [](ClickableListFake& list) { list.enumerates = false; }},
      {"a default that isn't there",
       [](ClickableListFake& list) { list.defaultId = kThirdSource; }},
      {"the members' library alone",
       [](ClickableListFake& list) {
         list.ownType = std::exchange(list.classType, nullptr);
         list.tellsClass = list.tellsDefault = false;
       }},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    ClickableListFake list({Clicks()});
    way.prepare(list);
    EXPECT_TRUE(Tells(list));
  }
}

TEST_F(ColumnClickEvent, TheDefaultSourceComesFirst) {
  ClickableListFake list({Clicks(kThirdSource), Clicks(kClickSource)});
  list.defaultId = kClickSource;
  EXPECT_TRUE(Tells(list, 1));
}

TEST_F(ColumnClickEvent, OfOtherSourcesTheFirstThatHasIt) {
  ClickableListFake list({OtherEvents(), Clicks(kThirdSource), Clicks(kClickSource)});
  EXPECT_TRUE(Tells(list, 1));
  list.Point(1).interfaceResult = E_FAIL;
  EXPECT_TRUE(Tells(list, 2));
}

TEST_F(ColumnClickEvent, AListThatCantBeWatchedIsNone) {
  struct Way {
    const char* name;
    std::function<void(ClickableListFake&)> prepare;
  };
  const Way ways[] = {
      {"no points", [](ClickableListFake& list) { list.hasPoints = false; }},
      {"refused", [](ClickableListFake& list) { list.Point().adviseResult = E_FAIL; }},
      {"full", [](ClickableListFake& list) { list.Point().adviseResult = CONNECT_E_ADVISELIMIT; }},
      {"points not to be had",
       [](ClickableListFake& list) { list.findsPoints = list.enumerates = false; }},
      {"no identifiers",
       [](ClickableListFake& list) {
         list.findsPoints = false;
         list.Point().interfaceResult = E_FAIL;
       }},
      {"no descriptions", [](ClickableListFake& list) { list.tellsClass = false; }},
      {"descriptions fail", [](ClickableListFake& list) { list.classType = nullptr; }},
      {"of something else",
       [](ClickableListFake& list) { list.classType = MakeClassType({OtherEvents()}); }},
      {"no such event",
       [](ClickableListFake& list) {
         SourceType without = Clicks();
         without.events = {{L"ColumnClicked", kClick}};
         list.classType = MakeClassType({without});
       }},
      {"not late-bound",
       [](ClickableListFake& list) {
         SourceType direct = Clicks();
         direct.kind = TKIND_INTERFACE;
         list.classType = MakeClassType({direct});
       }},
  };
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    ClickableListFake list({Clicks()});
    way.prepare(list);
    EXPECT_FALSE(Tells(list));
  }
  ComObjectFake bare;
  EXPECT_FALSE(WatchColumnClickEvent(&bare, [](std::int32_t) {}));
  EXPECT_EQ(bare.References(), 0);
}

TEST_F(ColumnClickEvent, WhatIsConnectedDoesntHoldOnToTheList) {
  ClickableListFake list({Clicks()});
  const Ref<Object> watching = Watch(list);
  EXPECT_EQ(list.References(), 1);  // the point's, to disconnect from
}

TEST_F(ColumnClickEvent, ACallThatComesTooLateDoesNothing) {
  ClickableListFake list({Clicks()});
  Ref<Object> watching = Watch(list);
  const ComRef<IDispatch> sink = list.Point().sinks.begin()->second;
  list.Point().unadviseResult = CONNECT_E_NOCONNECTION;
  watching = nullptr;
  EXPECT_EQ(list.Raise(kClick, {Passing(header2)}), S_OK);
  EXPECT_EQ(heard, Columns());
  list.Point().sinks.clear();
  EXPECT_EQ(ReferencesOf(sink.Get()), 1u);
}

TEST_F(ColumnClickEvent, WhatTheWatcherHoldsGoesWithTheToken) {
  ClickableListFake list({Clicks()});
  list.Point().unadviseResult = E_FAIL;
  const auto held = std::make_shared<int>();
  Ref<Object> watching = WatchColumnClickEvent(&list, [held](std::int32_t) {});
  EXPECT_GT(held.use_count(), 1);
  watching = nullptr;
  EXPECT_EQ(held.use_count(), 1);
}

TEST_F(ColumnClickEvent, TheWatcherMayEndItselfMeanwhile) {
  ClickableListFake list({Clicks()});
  Ref<Object> watching;
  watching = WatchColumnClickEvent(&list, [&](std::int32_t column) {
    watching = nullptr;
    heard.push_back(column);
  });
  EXPECT_EQ(list.Raise(kClick, {Passing(header2)}), S_OK);
  EXPECT_EQ(list.Raise(kClick, {Passing(header2)}), S_FALSE);
  EXPECT_EQ(heard, Columns{2});
  EXPECT_EQ(list.References(), 0);
}

TEST_F(ColumnClickEvent, AClickWhoseWatcherEndsWhileTheHeaderIsAskedIsNotTold) {
  class EndingHeader final : public IDispatch {
   public:
    explicit EndingHeader(Ref<Object>& watching) : watching_(watching) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
      *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
      return *object == nullptr ? E_NOINTERFACE : S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) override {
      *id = 1;
      return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                     EXCEPINFO*, UINT*) override {
      watching_ = nullptr;
      result->vt = VT_I2;
      result->iVal = 2;
      return S_OK;
    }

   private:
    Ref<Object>& watching_;
  };
  ClickableListFake list({Clicks()});
  Ref<Object> watching = Watch(list);
  EndingHeader header(watching);
  EXPECT_EQ(list.Raise(kClick, {Passing(ComRef<IDispatch>(&header))}), S_OK);
  EXPECT_EQ(heard, Columns());
  EXPECT_EQ(list.References(), 0);
}

TEST_F(ColumnClickEvent, SeveralMayWatchOneList) {
  ClickableListFake list({Clicks()});
  const Ref<Object> first = Watch(list);
  Ref<Object> second = Watch(list);
  list.Raise(kClick, {Passing(header2)});
  second = nullptr;
  list.Raise(kClick, {Passing(Header(3))});
  EXPECT_EQ(heard, (Columns{2, 2, 3}));
}

}  // namespace

}  // namespace sifter
