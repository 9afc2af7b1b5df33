#include "win32/LateBoundList.h"

#include "AllocationSpy.h"
#include "ComFakes.h"
#include "DispatchCalls.h"
#include "DispatchSpy.h"
#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "filterdialog/CopyListview.h"
#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
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

using Strings = std::vector<std::string>;

// A list of a foreign make over a list in memory.
class LateBound : public testing::Test {
 protected:
  Ref<LateBoundList> Open() {
    return MakeRef<LateBoundList>(SpyOn(ListViewObject(memory), log),
                                  LateBoundList::Transfer::kNever);
  }

  // What is said to the host meanwhile.
  Strings CallsOf(const std::function<void()>& work) {
    log->calls.clear();
    work();
    return log->calls;
  }

  Ref<MemoryListView> memory = MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}});
  std::shared_ptr<DispatchSpyLog> log = std::make_shared<DispatchSpyLog>();
};

TEST_F(LateBound, NothingIsReadBeforeItIsNeeded) {
  const Ref<LateBoundList> list = Open();
  EXPECT_EQ(log->calls, Strings());
  EXPECT_EQ(log->nameQuestions, 0);
  EXPECT_EQ(CallsOf([&] { list->ListItems()->Count(); }), (Strings{"get ListItems", "get Count"}));
}

// What nothing shows refuses it.
TEST_F(LateBound, SetFocusIsCalledByName) {
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(ErrorOf([&] { Open()->SetFocus(); }), kMissingMemberError); }),
            Strings{"call SetFocus()"});
}

TEST_F(LateBound, AListWithoutSetFocusIsError438) {
  log->lacking = {"SetFocus"};
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(ErrorOf([&] { Open()->SetFocus(); }), kMissingMemberError); }),
            Strings{"no SetFocus"});
}

TEST_F(LateBound, ErrorsOfSetFocusKeepTheirNumbersAndTexts) {
  log->failures["SetFocus"] = {DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A0005), L"is hidden"};
  EXPECT_EQ(ErrorOf([&] { Open()->SetFocus(); }), "5: is hidden");
}

TEST_F(LateBound, ListsOfOneObjectHaveOneIdentity) {
  ComObjectFake one;
  ComObjectFake other;
  const auto list = MakeRef<LateBoundList>(ComRef<IDispatch>(&one));
  EXPECT_EQ(list->Identity(), one.Identity());
  EXPECT_EQ(MakeRef<LateBoundList>(ComRef<IDispatch>(&one))->Identity(), list->Identity());
  EXPECT_NE(MakeRef<LateBoundList>(ComRef<IDispatch>(&other))->Identity(), list->Identity());
  EXPECT_EQ(one.References(), 1);
  EXPECT_EQ(other.References(), 0);
}

TEST_F(LateBound, RowsAreAskedForByPositionAndByKey) {
  memory->ListItems()->Item(2)->SetKey(u"k1");
  const Ref<LateBoundList> list = Open();
  const Ref<ListItemCollection> items = list->ListItems();
  EXPECT_EQ(CallsOf([&] {
              EXPECT_EQ(items->Item(1)->Text(), Value(u"1"));
              EXPECT_EQ(items->Item(u"k1")->Text(), Value(u"2"));
            }),
            (Strings{"get or call Item(1)", "get Text", "get or call Item(\"k1\")", "get Text"}));
}

TEST_F(LateBound, EveryCallForOneRow) {
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> row = list->ListItems()->Item(1);
  EXPECT_EQ(CallsOf([&] {
              row->SetText(u"one");
              row->SetChecked(true);
              row->SetSubItems(1, u"X");
              row->SubItems(1);
              row->Key();
              row->ListSubItems()->Item(1)->SetReportIcon(3);
              list->ListItems()->Remove(2);
              list->ListItems()->Clear();
            }),
            (Strings{"put Text \"one\"", "put Checked True", "put SubItems(1) \"X\"",
                     "get or call SubItems(1)", "get Key", "get ListSubItems",
                     "get or call Item(1)", "put ReportIcon 3", "get ListItems", "call Remove(2)",
                     "get ListItems", "call Clear()"}));
}

TEST_F(LateBound, WhatWasNeverGivenIsLeftOutOfAdd) {
  const Ref<LateBoundList> list = Open();
  EXPECT_EQ(CallsOf([&] {
              list->ListItems()->Add(0, u"", u"Oak", Value(), Value());
              list->ListItems()->Add(1, u"k", u"", 0, u"pic");
              list->ListItems()->Item(1)->ListSubItems()->Add(0, Text(), u"t", Value(), u"");
              list->ColumnHeaders()->Add(0, Value(), u"c", 1440, 0, Value());
              list->ColumnHeaders()->Add(2, u"k", u"d", Value(), Value(), 3);
            }),
            (Strings{
                "get ListItems",
                "call Add(-, -, \"Oak\", -, -)",  //
                "get ListItems",
                "call Add(1, \"k\", \"\", 0, \"pic\")",  //
                "get ListItems",
                "get or call Item(1)",
                "get ListSubItems",                //
                "call Add(-, -, \"t\", -, \"\")",  //
                "get ColumnHeaders",
                "call Add(-, -, \"c\", 1440, 0, -)",  //
                "get ColumnHeaders",
                "call Add(2, \"k\", \"d\", -, -, 3)",
            }));
}

TEST_F(LateBound, NamesAreAskedForOnceForEachKindOfObject) {
  const Ref<LateBoundList> list = Open();
  const Ref<ListViewDump> small = MakeRef<ListViewDump>();
  CopyListview(list.Get(), small.Get());
  const int questions = log->nameQuestions;
  for (int i = 0; i < 50; ++i) AddRow(*memory, {"more", "cells"});
  const Ref<ListViewDump> large = MakeRef<ListViewDump>();
  CopyListview(list.Get(), large.Get());
  EXPECT_EQ(large->ListItems()->Count(), 52);
  EXPECT_EQ(log->nameQuestions, questions);
  EXPECT_EQ(DumpRows(*large), DumpRows(*memory));
  EXPECT_EQ(Strings(log->names["list.ListItems.Item"].size(), ""), Strings(12, ""))
      << "members of a row that the copy reads";
}

TEST_F(LateBound, ObjectsOfScriptsHaveNumbersOfTheirOwn) {
  log->isScript = true;
  for (int i = 0; i < 10; ++i) AddRow(*memory, {"more", "cells"}, std::to_string(i));
  const Ref<LateBoundList> list = Open();
  const Ref<ListViewDump> copy = MakeRef<ListViewDump>();
  CopyListview(list.Get(), copy.Get());
  EXPECT_EQ(DumpRows(*copy), DumpRows(*memory));
  CopyListview(copy.Get(), list.Get());
  EXPECT_EQ(DumpRows(*copy), DumpRows(*memory));
}

TEST_F(LateBound, CopiesThereAndBackAreWhole) {
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> row = memory->ListItems()->Item(1);
  row->SetKey(u"k");
  row->SetIcon(3);
  row->SetTag(u"t");
  row->SetChecked(true);
  row->ListSubItems()->Item(1)->SetToolTipText(u"tip");
  const std::string before = DumpRows(*memory);
  const Ref<ListViewDump> copy = MakeRef<ListViewDump>();
  CopyListview(list.Get(), copy.Get());
  EXPECT_EQ(DumpRows(*copy), before);
  CopyListview(copy.Get(), list.Get());
  EXPECT_EQ(DumpRows(*memory), before);
}

TEST_F(LateBound, AMissingMemberIsAnErrorWhereItIsUsedAndOnlyThere) {
  log->lacking = {"Ghosted", "SortKey"};
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> first = list->ListItems()->Item(1);
  const Ref<ListItem> second = list->ListItems()->Item(2);
  EXPECT_EQ(first->Bold(), Value(false));
  EXPECT_EQ(ErrorOf([&] { first->Ghosted(); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { second->SetGhosted(true); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { list->SortKey(); }), kMissingMemberError);
  EXPECT_EQ(log->calls.back(), "no SortKey");
}

TEST_F(LateBound, ErrorsKeepTheirNumbersAndTexts) {
  const struct {
    DispatchSpyLog::Failure failure;
    const char* error;
  } cases[] = {
      {{DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A8B10), L"Element not found"},
       "35600: Element not found"},
      {{DISP_E_EXCEPTION, static_cast<HRESULT>(0x80040001), L""}, "-2147221503: Automation error"},
      {{DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A0009), L"no such row"}, "9: no such row"},
      {{DISP_E_TYPEMISMATCH, 0, L""}, "13: Type mismatch"},
      {{DISP_E_BADINDEX, 0, L""}, "9: Subscript out of range"},
      {{DISP_E_OVERFLOW, 0, L""}, "6: Overflow"},
      {{DISP_E_BADPARAMCOUNT, 0, L""},
       "450: Wrong number of arguments or invalid property assignment"},
      {{DISP_E_PARAMNOTOPTIONAL, 0, L""}, "449: Argument not optional"},
      {{E_OUTOFMEMORY, 0, L""}, "7: Out of memory"},
      {{E_INVALIDARG, 0, L""}, "5: Invalid procedure call or argument"},
      {{E_FAIL, 0, L""}, "-2147467259: Automation error"},
  };
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> row = list->ListItems()->Item(1);
  for (const auto& one : cases) {
    log->failures["Text"] = one.failure;
    EXPECT_EQ(ErrorOf([&] { row->Text(); }), one.error);
    log->failures["Text"] = one.failure;
    EXPECT_EQ(ErrorOf([&] { row->SetText(u"x"); }), one.error);
  }
}

TEST_F(LateBound, AFunctionInTheplaceOfAPropertyIsCalled) {
  log->failures["Text"] = {DISP_E_MEMBERNOTFOUND, 0, L""};
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> row = list->ListItems()->Item(1);
  EXPECT_EQ(CallsOf([&] {
              row->Text();
              row->Text();
            }),
            (Strings{"get Text", "get or call Text()", "get or call Text()"}));
}

TEST_F(LateBound, AnErrorInsideAPropertyDoesNotCallItTwice) {
  log->failures["Text"] = {DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A01B6), L"inside"};
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> row = list->ListItems()->Item(1);
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(ErrorOf([&] { row->Text(); }), "438: inside"); }),
            (Strings{"get Text"}));
}

TEST_F(LateBound, CountMayBeAnyKindOfNumber) {
  const Ref<LateBoundList> list = Open();
  const struct {
    VARTYPE type;
    std::function<void(VARIANT&)> set;
  } kinds[] = {
      {VT_I2, [](VARIANT& v) { v.iVal = 2; }},   {VT_I4, [](VARIANT& v) { v.lVal = 2; }},
      {VT_UI4, [](VARIANT& v) { v.ulVal = 2; }}, {VT_I8, [](VARIANT& v) { v.llVal = 2; }},
      {VT_R8, [](VARIANT& v) { v.dblVal = 2; }}, {VT_UI1, [](VARIANT& v) { v.bVal = 2; }},
  };
  for (const auto& kind : kinds) {
    log->results["Count"] = [&](VARIANT& result) {
      result.vt = kind.type;
      kind.set(result);
    };
    EXPECT_EQ(list->ListItems()->Count(), 2) << kind.type;
  }
}

TEST_F(LateBound, WhatIsNoObjectWhereOneIsNeededIsAnError) {
  const Ref<LateBoundList> list = Open();
  log->results["ListItems"] = [](VARIANT& result) {
    VariantClear(&result);
    result.vt = VT_DISPATCH;
    result.pdispVal = nullptr;
  };
  EXPECT_EQ(ErrorOf([&] { list->ListItems(); }),
            "91: Object variable or With block variable not set");
  log->results["ListItems"] = [](VARIANT& result) {
    VariantClear(&result);
    result.vt = VT_I4;
    result.lVal = 5;
  };
  EXPECT_EQ(ErrorOf([&] { list->ListItems(); }), "424: Object required");
}

TEST_F(LateBound, ObjectsAreAssignedAsObjects) {
  ComObjectFake tag;
  {
    const Ref<LateBoundList> list = Open();
    const Ref<ListItem> row = list->ListItems()->Item(1);
    const Value object{Ref<Object>(ComObject::Of(tag.Identity()))};
    log->failures["Icon"] = {DISP_E_MEMBERNOTFOUND, 0, L""};
    EXPECT_EQ(CallsOf([&] { row->SetIcon(object); }),
              (Strings{"putref Icon object", "put Icon object"}));
    EXPECT_EQ(CallsOf([&] { row->SetSmallIcon(object); }), (Strings{"putref SmallIcon object"}));
    EXPECT_EQ(row->Icon(), object);
  }
  memory->ListItems()->Clear();
  EXPECT_EQ(tag.References(), 0);
}

TEST_F(LateBound, HoldsEveryObjectOnceAndLetsItGo) {
  {
    const Ref<LateBoundList> list = Open();
    EXPECT_EQ(log->alive, 1);
    EXPECT_EQ(ReferencesOf(list->Dispatch()), 1u);
    const Ref<ListItemCollection> items = list->ListItems();
    EXPECT_EQ(log->alive, 2);
    const Ref<ListItem> row = items->Item(1);
    EXPECT_EQ(log->alive, 3);
    ErrorOf([&] { items->Item(9); });
    row->SetText(u"x");
    row->SubItems(1);
    EXPECT_EQ(log->alive, 3);
  }
  EXPECT_EQ(log->alive, 0);
}

TEST_F(LateBound, LeavesNoTextBehind) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can't be counted here";
  log->recordCalls = false;
  const Ref<LateBoundList> list = Open();
  const Ref<ListItem> row = list->ListItems()->Item(1);
  row->SetText(u"warm");
  const AllocationSpy spy;
  for (int round = 0; round < 10; ++round) {
    row->SetText(u"text");
    row->Text();
    row->SetSubItems(1, u"cell");
    list->ListItems()->Add(0, u"", u"new", u"icon", Value());
    log->failures["Text"] = {DISP_E_EXCEPTION, E_FAIL, L"told"};
    ErrorOf([&] { row->Text(); });
  }
  EXPECT_EQ(spy.Alive(), 0);
}

// Foreign lists with a window.
class LateBoundWindow : public LateBound {
 protected:
  LateBoundWindow() {
    memory->SetWindow(static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(form.List())));
  }

  ListViewOnAForm form;
  Recorder recorder;
};

TEST_F(LateBoundWindow, TheWindowIsAskedForOnceForALongChange) {
  const Ref<LateBoundList> list = Open();
  EXPECT_EQ(CallsOf([&] {
              const UpdateScope outer(list.Get());
              const UpdateScope inner(list.Get());
              list->ListItems()->Clear();
            }),
            (Strings{"get hWnd", "get ListItems", "call Clear()"}));
}

TEST_F(LateBoundWindow, LongChangesAreDrawnOnce) {
  const Ref<LateBoundList> list = Open();
  ListWatcher watcher(form.List(), memory, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  ErrorOf([&] {
    const UpdateScope outer(list.Get());
    const UpdateScope inner(list.Get());
    throw RuntimeError(ErrorNumber::kOverflow);
  });
  EXPECT_TRUE(recorder.Shows({"SetRedraw 0", "SetRedraw 1"}));
  EXPECT_TRUE(GetUpdateRect(form.List(), nullptr, FALSE));
}

TEST_F(LateBoundWindow, AHiddenWindowIsLeftAlone) {
  ShowWindow(form.List(), SW_HIDE);
  const Ref<LateBoundList> list = Open();
  ListWatcher watcher(form.List(), memory, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  { const UpdateScope update(list.Get()); }
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(GetWindowLongPtrW(form.List(), GWL_STYLE) & WS_VISIBLE, 0);
}

TEST_F(LateBoundWindow, AListWithoutAWindowIsChangedLikeAnyOther) {
  log->lacking = {"hWnd"};
  const Ref<LateBoundList> list = Open();
  {
    const UpdateScope update(list.Get());
    list->ListItems()->Clear();
  }
  EXPECT_EQ(memory->ListItems()->Count(), 0);
  EXPECT_EQ(ErrorOf([&] { list->hWnd(); }), kMissingMemberError);
}

TEST_F(LateBoundWindow, TheWindowMayGoMeanwhile) {
  const Ref<LateBoundList> list = Open();
  const UpdateScope update(list.Get());
  form.Destroy();
}

TEST_F(LateBoundWindow, HandlesComeInAnyKindOfNumber) {
  const Ref<LateBoundList> list = Open();
  log->results["hWnd"] = [](VARIANT& result) {
    result.vt = VT_UI4;
    result.ulVal = 0x80000010;
  };
  EXPECT_EQ(list->hWnd(), static_cast<std::int32_t>(0x80000010u));
  log->results["hWnd"] = [](VARIANT& result) {
    result.vt = VT_I8;
    result.llVal = 0x10024;
  };
  EXPECT_EQ(list->hWnd(), 0x10024);
}

}  // namespace

}  // namespace sifter
