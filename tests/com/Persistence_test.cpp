#include "SavedForm.h"

namespace sifter {

namespace {

class Persistence : public SavedForm {};

TEST_F(Persistence, FirstPlacementTakesTheColourOfTheForm) {
  Put(control, L"FilterCaption", u"Trees");
  ASSERT_EQ(container.As<IPersistStreamInit>()->InitNew(), S_OK);
  EXPECT_TRUE(recorder.Shows({"ambient -701"}));
  EXPECT_EQ(FieldsOf(control), DefaultFields());
}

TEST_F(Persistence, FirstPlacementByBagOrStorageIsTheSame) {
  Put(control, L"FilterCaption", u"Trees");
  ASSERT_EQ(container.As<IPersistPropertyBag>()->InitNew(), S_OK);
  EXPECT_EQ(FieldsOf(control), DefaultFields());
  Put(control, L"FilterCaption", u"Trees");
  const ComRef<IStorage> storage = NewStorage();
  control = Create();
  ASSERT_EQ(control.As<IPersistStorage>()->InitNew(storage.Get()), S_OK);
  EXPECT_EQ(FieldsOf(control), DefaultFields());
}

TEST_F(Persistence, BagIsReadInOrderAndTheColourLast) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_TRUE(recorder.Shows({"read Active", "read ColumnsToExlude", "read Filter",
                              "read FilterCaption", "read FilterMessage", "ambient -701"}));
  EXPECT_EQ(FieldsOf(control), LoadedFields());
}

TEST_F(Persistence, LaterChangesOfTheFormsColourAreNotFollowed) {
  ASSERT_EQ(LoadFromBag(), S_OK);
  recorder.Clear();
  container.Offers(DISPID_AMBIENT_BACKCOLOR, 0x654321);
  container.Tells(DISPID_AMBIENT_BACKCOLOR);
  container.Tells(DISPID_UNKNOWN);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Persistence, BagIsWrittenInOrder) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  recorder.Clear();
  ASSERT_EQ(SaveToBag(true), S_OK);
  EXPECT_TRUE(recorder.Shows({"write Active True", "write ColumnsToExclude \"Name\"",
                              "write Filter \"Qty > 5\"", "write FilterCaption \"Trees\"",
                              "write FilterMessage \"Which trees?\""}));
}

TEST_F(Persistence, DefaultsAreWrittenOnlyWhenAllIsAskedFor) {
  ASSERT_EQ(SaveToBag(false), S_OK);
  EXPECT_TRUE(recorder.Shows({}));
  Put(control, L"FilterMessage", u"Which trees?");
  ASSERT_EQ(SaveToBag(false), S_OK);
  EXPECT_TRUE(recorder.Shows({"write FilterMessage \"Which trees?\""}));
  recorder.Clear();
  ASSERT_EQ(SaveToBag(true), S_OK);
  EXPECT_TRUE(
      recorder.Shows({"write Active False", "write ColumnsToExclude \"\"", "write Filter \"\"",
                      "write FilterCaption \"Tarvenn Software Row Sifter\"",
                      "write FilterMessage \"Which trees?\""}));
}

TEST_F(Persistence, ExcludedColumnsAreNotFoundAgain) {
  Put(control, L"ColumnsToExclude", u"Name");
  Put(control, L"FilterCaption", u"Trees");
  ASSERT_EQ(SaveToBag(false), S_OK);
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_EQ(FieldsOf(control), (Strings{"False", "\"\"", "\"\"", "\"Trees\"",
                                        "\"Please enter criteria to apply to your listview\""}));
}

TEST_F(Persistence, AnEmptyBagGivesTheDefaults) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  bag.entries.clear();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_EQ(FieldsOf(control), DefaultFields());
}

TEST_F(Persistence, ALoadedActiveControlShowsNothingAndRaisesNothing) {
  EventSink events(Library::Built().IdOf(L"__TSRowSifter"), recorder);
  const Connection connection(control.Get(), Library::Built().IdOf(L"__TSRowSifter"), &events);
  ComRef<IDispatch> list;
  ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
  const Ref<HostListView> rows = NativeListView(form.List());
  Fill(*rows, {"Name"}, {{"Oak"}, {"Ash"}});
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  bag.Holds(L"Active", true);
  recorder.Clear();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_TRUE(recorder.Shows({"read Active", "read ColumnsToExlude", "read Filter",
                              "read FilterCaption", "read FilterMessage", "ambient -701"}));
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
  EXPECT_EQ(Get(control, L"Active"), Value(true));
  EXPECT_EQ(FirstTexts(*rows), (Strings{"Oak", "Ash"}));
}

TEST_F(Persistence, ActiveIsConvertedToBoolean) {
  const struct {
    Value held;
    bool active;
  } cases[] = {{true, true},  {false, false}, {u"True", true}, {u"false", false},
               {1, true},     {0, false},     {-1, true},      {0.5, true},
               {u"0", false}, {u"-1", true},  {u"2", true}};
  for (const auto& c : cases) {
    bag.Holds(L"Active", c.held);
    ASSERT_EQ(LoadFromBag(), S_OK) << Shown(c.held);
    EXPECT_EQ(Get(control, L"Active"), Value(c.active)) << Shown(c.held);
  }
}

TEST_F(Persistence, AnActiveThatIsNoBooleanIsAnErrorForTheContainer) {
  bag.Holds(L"Active", u"maybe");
  EXPECT_EQ(LoadFromBag(), static_cast<HRESULT>(0x800A000D));
}

TEST_F(Persistence, ErrorsOfTheBagComeOut) {
  bag.failsWith = E_ACCESSDENIED;
  EXPECT_EQ(LoadFromBag(), E_ACCESSDENIED);
  recorder.Clear();
  EXPECT_EQ(SaveToBag(true), E_ACCESSDENIED);
  EXPECT_TRUE(recorder.Shows({"write Active False"}));
}

TEST_F(Persistence, NumbersInTheBagAreTakenAsTexts) {
  bag.Holds(L"FilterCaption", 12);
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_EQ(Get(control, L"FilterCaption"), Value(u"12"));
}

TEST_F(Persistence, LoadingTellsNobodyOfChanges) {
  PropertySink properties(recorder);
  ViewSink views(recorder);
  const Connection connection(control.Get(), IID_IPropertyNotifySink, &properties);
  FillBag();
  recorder.Clear();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_TRUE(recorder.Shows({"read Active", "read ColumnsToExlude", "read Filter",
                              "read FilterCaption", "read FilterMessage", "ambient -701"}));
}

TEST_F(Persistence, NeedsNoSite) {
  const ComRef<IDispatch> second = Create();
  FillBag();
  ASSERT_EQ(second.As<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  EXPECT_EQ(FieldsOf(second), LoadedFields());
}

}  // namespace

}  // namespace sifter
