#include "rowsifter/ListViewObject.h"

#include "AllocationSpy.h"
#include "DispatchCalls.h"
#include "ListViewOnAForm.h"
#include "ScriptEngine.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "win32/NativeListView.h"
#include "win32/UniqueBstr.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

ComRef<IDispatch> ObjectOf(HWND window) {
  ComRef<IDispatch> object;
  EXPECT_EQ(CreateListViewObject(window, object.Receive()), S_OK);
  return object;
}

class ListViewObject : public testing::Test {
 protected:
  ListViewObject() { Fill(*rows, {"a", "b"}, {{"1", "x"}, {"2", "y"}}); }

  ComRef<IDispatch> Items() { return GetObject(list, L"ListItems"); }
  ComRef<IDispatch> Item(std::int32_t position) { return GetObject(Items(), L"Item", {position}); }

  // What a call without our own helpers' politeness results in.
  HRESULT ResultOf(const ComRef<IDispatch>& object, DISPID id, WORD flags,
                   std::initializer_list<Value> arguments = {}) {
    UniqueVariant result;
    UniqueExcepInfo error;
    return TryInvoke(object.Get(), id, flags, arguments, result, error);
  }

  ListViewOnAForm form;
  Ref<HostListView> rows = NativeListView(form.List());
  ComRef<IDispatch> list = ObjectOf(form.List());
};

TEST_F(ListViewObject, HasTheMembersOfTheModel) {
  const Strings members[] = {
      {"ColumnHeaders", "ListItems", "hWnd", "Sorted", "SortKey", "SortOrder", "SetFocus"},
      {"Item", "Count", "Add", "Clear", "_NewEnum"},
      {"Index", "Key", "Text", "Width", "Alignment", "Icon", "Tag"},
      {"Item", "Count", "Add", "Clear", "Remove", "_NewEnum"},
      {"Index", "Key", "Text", "Tag", "Icon", "SmallIcon", "ToolTipText", "Checked", "Bold",
       "ForeColor", "Ghosted", "ListSubItems", "SubItems"},
      {"Item", "Count", "Add", "_NewEnum"},
      {"Key", "Text", "Tag", "ReportIcon", "ToolTipText", "ForeColor", "Bold"},
  };
  const ComRef<IDispatch> columns = GetObject(list, L"ColumnHeaders");
  const ComRef<IDispatch> cells = GetObject(Item(1), L"ListSubItems");
  const ComRef<IDispatch> objects[] = {list,    columns, GetObject(columns, L"Item", {1}), Items(),
                                       Item(1), cells,   GetObject(cells, L"Item", {1})};
  for (std::size_t i = 0; i < std::size(objects); ++i)
    for (const std::string& name : members[i])
      EXPECT_EQ(ErrorOf([&] { IdOf(objects[i].Get(), Wide(Text::FromUtf8(name))); }), "nothing")
          << "object " << i << ", " << name;
}

TEST_F(ListViewObject, NamesAreFoundWhateverTheirCase) {
  EXPECT_EQ(IdOf(list.Get(), L"LISTitems"), IdOf(list.Get(), L"ListItems"));
  EXPECT_EQ(ErrorOf([&] { IdOf(list.Get(), L"ListItem"); }), kMissingMemberError);
}

TEST_F(ListViewObject, ReadsAndWritesEveryAttribute) {
  const ComRef<IDispatch> row = Item(1);
  Put(row, L"Text", u"one");
  Put(row, L"Key", u"k");
  Put(row, L"Tag", u"t");
  Put(row, L"Icon", 4);
  Put(row, L"SmallIcon", u"pic");
  Put(row, L"ToolTipText", u"tip");
  Put(row, L"Checked", true);
  Put(row, L"Bold", -1);
  Put(row, L"Ghosted", true);
  Put(row, L"ForeColor", 255);
  Put(row, L"SubItems", u"X", {1});
  const ComRef<IDispatch> cell = GetObject(GetObject(row, L"ListSubItems"), L"Item", {1});
  Put(cell, L"Tag", u"ct");
  Put(cell, L"ReportIcon", 2);
  EXPECT_EQ(DumpRow(*rows->ListItems()->Item(1)),
            " Key=\"k\" Text=\"one\" Tag=\"t\" ToolTipText=\"tip\" Icon=4 SmallIcon=\"pic\" "
            "Bold=True Checked=True Ghosted=True ForeColor=255\n"
            "  cell 1: Key=\"\" Text=\"X\" Tag=\"ct\" ReportIcon=2 ToolTipText=\"\" "
            "ForeColor=-2147483640 Bold=False\n");
  EXPECT_EQ(Get(row, L"SubItems", {1}), Value(u"X"));
  EXPECT_EQ(Get(row, L"Index"), Value(1));
  EXPECT_EQ(Get(list, L"hWnd"), Value(rows->hWnd()));
}

TEST_F(ListViewObject, UnsetIconsAreEmptyAndTextsNeverNull) {
  EXPECT_EQ(Call(Item(1), L"Icon").Type(), VT_EMPTY);
  const UniqueVariant key = Call(Item(1), L"Key");
  EXPECT_EQ(key.Type(), VT_BSTR);
  EXPECT_NE(key.Get().bstrVal, nullptr);
}

TEST_F(ListViewObject, ArgumentsMayBeLeftOut) {
  const ComRef<IDispatch> row = GetObject(Items(), L"Add");
  EXPECT_EQ(Get(row, L"Index"), Value(3));
  GetObject(Items(), L"Add", {Value(), Value(), u"last"});
  GetObject(Items(), L"Add", {1, u"k", u"first", 5});
  EXPECT_EQ(FirstTexts(*rows), (Strings{"first", "1", "2", "", "last"}));
  EXPECT_EQ(Get(GetObject(Items(), L"Item", {u"k"}), L"Icon"), Value(5));
  GetObject(GetObject(list, L"ColumnHeaders"), L"Add", {Value(), Value(), u"c"});
  EXPECT_EQ(rows->ColumnHeaders()->Item(3)->Width(), Value(1440));
  GetObject(GetObject(Item(1), L"ListSubItems"), L"Add", {Value(), Value(), u"cell"});
}

TEST_F(ListViewObject, ArgumentsMayBeGivenByName) {
  std::wstring add = L"Add", icon = L"smallicon", text = L"TEXT";
  LPOLESTR names[] = {add.data(), icon.data(), text.data()};
  DISPID ids[3];
  const ComRef<IDispatch> items = Items();
  ASSERT_EQ(items->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids), S_OK);
  const UniqueVariant iconValue = VariantFromValue(7);
  const UniqueVariant textValue = VariantFromValue(u"named");
  const UniqueVariant index = VariantFromValue(1);
  VARIANT arguments[] = {iconValue.Get(), textValue.Get(), index.Get()};
  DISPPARAMS parameters{arguments, &ids[1], 3, 2};
  UniqueVariant result;
  ASSERT_EQ(items->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                          result.Receive(), nullptr, nullptr),
            S_OK);
  EXPECT_EQ(FirstTexts(*rows), (Strings{"named", "1", "2"}));
  EXPECT_EQ(rows->ListItems()->Item(1)->SmallIcon(), Value(7));
  std::wstring unknown = L"Colour";
  names[1] = unknown.data();
  EXPECT_EQ(items->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
}

TEST_F(ListViewObject, ItemIsTheDefaultMemberOfCollections) {
  const UniqueVariant row = Invoke(Items().Get(), DISPID_VALUE, DISPATCH_PROPERTYGET, {2});
  EXPECT_EQ(Get(ComRef<IDispatch>(row.Get().pdispVal), L"Text"), Value(u"2"));
  EXPECT_EQ(Get(GetObject(list, L"ListItems", {2}), L"Text"), Value(u"2"));
  EXPECT_EQ(Get(GetObject(Item(2), L"ListSubItems", {1}), L"Text"), Value(u"y"));
  EXPECT_EQ(ErrorOf([&] { GetObject(list, L"ListItems", {9}); }), kBadPositionError);
}

TEST_F(ListViewObject, CollectionsCanBeGoneThrough) {
  const UniqueVariant made = Invoke(Items().Get(), DISPID_NEWENUM, DISPATCH_PROPERTYGET, {});
  ASSERT_EQ(made.Type(), VT_UNKNOWN);
  const auto each = ComRef<IUnknown>(made.Get().punkVal).As<IEnumVARIANT>(IID_IEnumVARIANT);
  ASSERT_TRUE(each);
  ComRef<IEnumVARIANT> copy;
  ASSERT_EQ(each->Clone(copy.Receive()), S_OK);
  VARIANT got[3];
  ULONG fetched = 0;
  EXPECT_EQ(each->Next(3, got, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 2u);
  Strings texts;
  for (ULONG i = 0; i < fetched; ++i) {
    texts.push_back(ValueToText(Get(ComRef<IDispatch>(got[i].pdispVal), L"Text")).ToUtf8());
    VariantClear(&got[i]);
  }
  EXPECT_EQ(texts, (Strings{"1", "2"}));
  EXPECT_EQ(copy->Skip(1), S_OK);
  UniqueVariant second;
  EXPECT_EQ(copy->Next(1, second.Receive(), nullptr), S_OK);
  EXPECT_EQ(Get(ComRef<IDispatch>(second.Get().pdispVal), L"Text"), Value(u"2"));
  EXPECT_EQ(copy->Skip(1), S_FALSE);
  EXPECT_EQ(copy->Reset(), S_OK);
  EXPECT_EQ(copy->Skip(2), S_OK);
}

TEST_F(ListViewObject, ErrorsCarryNumberTextAndSource) {
  UniqueVariant result;
  UniqueExcepInfo error;
  EXPECT_EQ(TryInvoke(Items().Get(), DISPID_VALUE, DISPATCH_PROPERTYGET, {9}, result, error),
            DISP_E_EXCEPTION);
  EXPECT_EQ(error.Fill().scode, static_cast<HRESULT>(0x800A0009));
  EXPECT_EQ(Text(BstrView(error.Fill().bstrDescription)), u"Subscript out of range");
  EXPECT_EQ(Text(BstrView(error.Fill().bstrSource)), u"RowSifter");
  EXPECT_EQ(ErrorOf([&] { GetObject(Items(), L"Item", {u"none"}); }), kBadKeyError);
  EXPECT_EQ(ErrorOf([&] { Put(Item(1), L"Checked", u"maybe"); }), "13: Type mismatch");
  EXPECT_EQ(ErrorOf([&] { Put(Item(1), L"ForeColor", 1e12); }), kOverflowError);
  EXPECT_EQ(ErrorOf([&] { Put(Item(1), L"Tag", Value::Null()); }), "94: Invalid use of Null");
  Put(Item(1), L"Key", u"k");
  EXPECT_EQ(ErrorOf([&] { Put(Item(2), L"Key", u"k"); }), kTakenKeyError);
}

TEST_F(ListViewObject, CallsThatDoNotFitAreToldApart) {
  const ComRef<IDispatch> items = Items();
  const DISPID count = IdOf(items.Get(), L"Count");
  EXPECT_EQ(ResultOf(items, DISPID_VALUE, DISPATCH_PROPERTYGET), DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(ResultOf(items, DISPID_VALUE, DISPATCH_PROPERTYGET, {Value()}),
            DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(ResultOf(items, DISPID_VALUE, DISPATCH_PROPERTYGET, {1, 2}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(ResultOf(items, count, DISPATCH_PROPERTYGET, {1}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(ResultOf(items, count, DISPATCH_PROPERTYPUT, {1}), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(ResultOf(items, 999, DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(ErrorOf([&] { Put(Item(1), L"Index", 2); }), kMissingMemberError);
  EXPECT_EQ(FirstTexts(*rows), (Strings{"1", "2"}));
}

TEST_F(ListViewObject, IsOneObjectAsLongAsSomebodyHoldsIt) {
  EXPECT_EQ(ObjectOf(form.List()).Get(), list.Get());
  EXPECT_EQ(ReferencesOf(list.Get()), 1u);
  {
    const ComRef<IDispatch> items = Items();
    EXPECT_EQ(ReferencesOf(items.Get()), 1u);
    EXPECT_EQ(ReferencesOf(list.Get()), 1u);
  }
  IDispatch* raw = list.Release();
  EXPECT_EQ(raw->Release(), 0u);
  list = ObjectOf(form.List());
  EXPECT_EQ(ReferencesOf(list.Get()), 1u);
}

TEST_F(ListViewObject, GoesOnWithoutItsWindow) {
  const ComRef<IDispatch> row = Item(1);
  form.Destroy();
  EXPECT_EQ(Get(list, L"hWnd"), Value(0));
  Put(row, L"Text", u"still");
  EXPECT_EQ(Get(Item(1), L"Text"), Value(u"still"));
  Call(Items(), L"Clear");
  EXPECT_EQ(Get(Items(), L"Count"), Value(0));
}

TEST_F(ListViewObject, LeavesNoTextBehind) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can't be counted here";
  const AllocationSpy spy;
  for (int round = 0; round < 10; ++round) {
    GetObject(Items(), L"Add", {Value(), Value(), u"text", u"icon", u"icon"});
    Get(Item(1), L"Text");
    ErrorOf([&] { Item(99); });
    Call(Items(), L"Remove", {3});
  }
  EXPECT_EQ(spy.Alive(), 0);
}

TEST(CreateListViewObject, RefusesWhatIsNoListView) {
  ListViewOnAForm form;
  EXPECT_EQ(CreateListViewObject(form.List(), nullptr), E_POINTER);
  auto* object = reinterpret_cast<IDispatch*>(&form);
  EXPECT_EQ(CreateListViewObject(form.Parent(), &object), static_cast<HRESULT>(0x800A0005));
  EXPECT_EQ(object, nullptr);
}

TEST_F(ListViewObject, ServesScripts) {
  const std::unique_ptr<ScriptEngine> script = ScriptEngine::Make();
  if (!script) GTEST_SKIP() << "no VBScript here";
  script->Add(L"list", list);
  EXPECT_EQ(script->Run(LR"(
    Dim row, texts, failed
    Set row = list.ListItems.Add(1, "k", "zero")
    row.SubItems(1) = "z"
    row.Checked = True
    row.ListSubItems(1).ForeColor = 255
    list.ListItems.Add , , "last"
    list.ListItems.Remove 3
    list.columnheaders(1).Text = "Name"
    For Each row In list.ListItems
      texts = texts & row.Text & "/" & row.SubItems(1) & " "
    Next
    texts = texts & list.ListItems("k").Index & " " & list.ListItems.Count
    On Error Resume Next
    list.ListItems.Add , "k"
    failed = Err.Number
    On Error GoTo 0
  )"),
            "");
  EXPECT_EQ(Get(script->Globals(), L"texts"), Value(u"zero/z 1/x last/ 1 3"));
  EXPECT_EQ(Get(script->Globals(), L"failed"), Value(457));
  EXPECT_EQ(rows->ColumnHeaders()->Item(1)->Text(), Value(u"Name"));
  EXPECT_EQ(rows->ListItems()->Item(1)->Checked(), Value(true));
  EXPECT_EQ(rows->ListItems()->Item(1)->ListSubItems()->Item(1)->ForeColor(), Value(255));
}

}  // namespace

}  // namespace sifter
