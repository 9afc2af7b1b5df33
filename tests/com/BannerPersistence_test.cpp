#include "HostedBanner.h"
#include "SavedForm.h"

namespace sifter {

namespace {

class BannerPersistence : public SavedForm {
 protected:
  BannerPersistence() : SavedForm(kBanner) {}

  Strings Written() {
    recorder.Clear();
    EXPECT_EQ(SaveToBag(false), S_OK);
    return recorder.Lines();
  }
  HRESULT LoadStream(const ComRef<IStream>& stream) {
    Rewind(stream);
    return container.As<IPersistStreamInit>()->Load(stream.Get());
  }
  static OLE_XSIZE_HIMETRIC WidthOf(const ComRef<IPictureDisp>& picture) {
    OLE_XSIZE_HIMETRIC width = 0;
    EXPECT_EQ(picture.As<IPicture>(IID_IPicture)->get_Width(&width), S_OK);
    return width;
  }
};

TEST_F(BannerPersistence, BagIsReadInOrderAndTheColourLast) {
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_TRUE(
      recorder.Shows({"read Active", "read ColumnsToExlude", "read FilterCaption",
                      "read FilterMessage", "read ItemDescription", "read ExtraButtonVisible",
                      "read BannerButtonVisible", "read BannerButtonPicture", "ambient -701"}));
}

TEST_F(BannerPersistence, AnEmptyBagGivesTheDefaults) {
  ASSERT_EQ(LoadFromBag(), S_OK);
  Strings expected = DefaultBannerFields();
  expected[8] = "FilterCaption=\"Rodney's Row Sifter\"";
  EXPECT_EQ(BannerFieldsOf(control), expected);
  EXPECT_TRUE(PictureOf(control)) << "the design picture, as an object for hosts";
}

TEST_F(BannerPersistence, FirstPlacementWritesItsOwnCaptionAndNoPicture) {
  ASSERT_EQ(container.As<IPersistPropertyBag>()->InitNew(), S_OK);
  EXPECT_EQ(Shown(Get(control, L"BannerButtonPicture")), "Nothing");
  EXPECT_EQ(Written(),
            (Strings{"write Active False", "write FilterCaption \"Tarvenn Software Row Sifter\"",
                     "write ExtraButtonVisible False", "write BannerButtonVisible False"}));
}

TEST_F(BannerPersistence, EverythingIsWrittenInOrder) {
  bag.Holds(L"Active", true);
  ASSERT_EQ(LoadFromBag(), S_OK);
  Put(control, L"ColumnsToExclude", u"2,3");
  Put(control, L"FilterCaption", u"Trees");
  Put(control, L"FilterMessage", u"Which?");
  Put(control, L"ItemDescription", u"Trees");
  Put(control, L"ExtraButtonVisible", true);
  Put(control, L"BannerButtonVisible", true);
  Put(control, L"ExtraButtonCaption", u"Report");
  const ComRef<IPictureDisp> picture = NewPicture();
  PutRef(control, L"BannerButtonPicture", ObjectValue(picture.Get()));
  Strings lines = Written();
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines.back().rfind("write BannerButtonPicture ", 0), 0u);
  lines.pop_back();
  EXPECT_EQ(lines, (Strings{"write Active True", "write ColumnsToExclude \"2,3\"",
                            "write FilterCaption \"Trees\"", "write FilterMessage \"Which?\"",
                            "write ItemDescription \"Trees\"", "write ExtraButtonVisible True",
                            "write BannerButtonVisible True"}));

  const ComRef<IDispatch> second = Create(kBanner);
  ASSERT_EQ(second.As<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
  Strings expected = DefaultBannerFields();
  expected[1] = "Active=True";
  expected[5] = "ItemDescription=\"Trees\"";
  expected[6] = "FilterMessage=\"Which?\"";
  expected[8] = "FilterCaption=\"Trees\"";
  expected[9] = "ExtraButtonVisible=True";
  expected[12] = "BannerButtonVisible=True";
  EXPECT_EQ(BannerFieldsOf(second), expected);
  EXPECT_TRUE(IsSameComObject(PictureOf(second).Get(), picture.Get()));
}

TEST_F(BannerPersistence, TheStockPictureIsNotStored) {
  ASSERT_EQ(LoadFromBag(), S_OK);
  const ComRef<IPictureDisp> stock = PictureOf(control);
  ASSERT_TRUE(stock);
  EXPECT_TRUE(IsSameComObject(PictureOf(control).Get(), stock.Get()));
  PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture().Get()));
  EXPECT_EQ(Written().size(), 4u);
  PutRef(control, L"BannerButtonPicture", ObjectValue(stock.Get()));
  EXPECT_EQ(Written(), (Strings{"write Active False", "write ExtraButtonVisible False",
                                "write BannerButtonVisible False"}));
}

TEST_F(BannerPersistence, ValuesOfOtherTypesAreConvertedOrRefused) {
  bag.Holds(L"FilterCaption", 12);
  bag.Holds(L"ExtraButtonVisible", u"True");
  bag.Holds(L"Unknown", u"x");
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_EQ(Get(control, L"FilterCaption"), Value(u"12"));
  EXPECT_EQ(Get(control, L"ExtraButtonVisible"), Value(true));
  const struct {
    const wchar_t* key;
    Value value;
  } wrong[] = {{L"Active", u"maybe"},
               {L"ExtraButtonVisible", u"x"},
               {L"BannerButtonVisible", u"y"},
               {L"BannerButtonPicture", u"print"},
               {L"BannerButtonPicture", 5},
               {L"BannerButtonPicture", ObjectValue(control.Get())},
               {L"FilterCaption", ObjectValue(control.Get())}};
  for (const auto& each : wrong) {
    bag.entries.clear();
    bag.Holds(each.key, each.value);
    EXPECT_EQ(LoadFromBag(), static_cast<HRESULT>(0x800A000D)) << FromWide(each.key).ToUtf8();
  }
  bag.entries.clear();
}

TEST_F(BannerPersistence, NothingInTheBagIsNoPicture) {
  bag.Holds(L"BannerButtonPicture", ObjectValue(nullptr));
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_TRUE(PictureOf(control));
}

TEST_F(BannerPersistence, LoadingReportsChangesButLeavesTheControlClean) {
  const auto persist = container.As<IPersistStreamInit>();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE) << "nobody listens";
  PropertySink properties(recorder);
  const Connection connected(control.Get(), IID_IPropertyNotifySink, &properties);
  recorder.Clear();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_TRUE(
      recorder.Shows({"read Active", "read ColumnsToExlude", "read FilterCaption",
                      "read FilterMessage", "read ItemDescription", "read ExtraButtonVisible",
                      "changed 0x68030010", "read BannerButtonVisible", "changed 0x68030013",
                      "read BannerButtonPicture", "changed 0x68030014", "ambient -701"}));
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
  Put(control, L"ExtraButtonVisible", true);
  EXPECT_EQ(persist->IsDirty(), S_OK);
}

TEST_F(BannerPersistence, ALoadedActiveControlShowsNothingAndRaisesNothing) {
  EventSink events(Library::Built().IdOf(L"__TSLvwBannerFilter"), recorder);
  const Connection connection(control.Get(), Library::Built().IdOf(L"__TSLvwBannerFilter"),
                              &events);
  ComRef<IDispatch> list;
  ASSERT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK);
  Fill(*NativeListView(form.List()), {"Name"}, {{"Oak"}, {"Ash"}});
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  bag.Holds(L"Active", true);
  recorder.Clear();
  ASSERT_EQ(LoadFromBag(), S_OK);
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
  EXPECT_EQ(Get(control, L"Active"), Value(true));
  EXPECT_EQ(recorder.Lines().back(), "ambient -701");
  EXPECT_EQ(recorder.Lines().size(), 9u);
}

TEST_F(BannerPersistence, StreamsKeepAPicture) {
  ASSERT_EQ(LoadFromBag(), S_OK);
  PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture(12, 8).Get()));
  Put(control, L"ItemDescription", u"Trees");
  const OLE_XSIZE_HIMETRIC width = WidthOf(PictureOf(control));
  const ComRef<IStream> stream = NewStream();
  const auto persist = container.As<IPersistStreamInit>();
  ULARGE_INTEGER stated{};
  ASSERT_EQ(persist->GetSizeMax(&stated), S_OK);
  ASSERT_EQ(persist->Save(stream.Get(), TRUE), S_OK);
  EXPECT_EQ(SizeOf(stream), stated.QuadPart);
  control = Create(kBanner);
  Rewind(stream);
  ASSERT_EQ(control.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  EXPECT_EQ(Get(control, L"ItemDescription"), Value(u"Trees"));
  EXPECT_EQ(WidthOf(PictureOf(control)), width);

  const ComRef<IStorage> storage = NewStorage();
  ASSERT_EQ(control.As<IPersistStorage>()->Save(storage.Get(), FALSE), S_OK);
  ASSERT_EQ(control.As<IPersistStorage>()->SaveCompleted(nullptr), S_OK);
  control = Create(kBanner);
  ASSERT_EQ(control.As<IPersistStorage>()->Load(storage.Get()), S_OK);
  EXPECT_EQ(WidthOf(PictureOf(control)), width);
}

// Which pictures can be stored is the platform's affair; the rest of the form is kept whatever it
// says.
TEST_F(BannerPersistence, APictureThatCanNotBeStoredSpoilsNothing) {
  PICTDESC drawing{};
  drawing.cbSizeofstruct = sizeof drawing;
  drawing.picType = PICTYPE_ENHMETAFILE;
  drawing.emf.hemf = CloseEnhMetaFile(CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr));
  for (PICTDESC* const description : {static_cast<PICTDESC*>(nullptr), &drawing}) {
    ComRef<IPictureDisp> picture;
    ASSERT_EQ(OleCreatePictureIndirect(description, IID_IPictureDisp, TRUE, picture.ReceiveVoid()),
              S_OK);
    PutRef(control, L"BannerButtonPicture", ObjectValue(picture.Get()));
    Put(control, L"ItemDescription", u"Trees");
    const ComRef<IStream> stream = NewStream();
    ASSERT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
    const ComRef<IStorage> storage = NewStorage();
    const auto stored = control.As<IPersistStorage>();
    ASSERT_EQ(stored->Save(storage.Get(), FALSE), S_OK);
    ASSERT_EQ(stored->SaveCompleted(nullptr), S_OK);
    Put(control, L"ItemDescription", u"Bushes");
    ASSERT_EQ(LoadStream(stream), S_OK);
    EXPECT_EQ(Get(control, L"ItemDescription"), Value(u"Trees"));
  }
}

TEST_F(BannerPersistence, AStreamWithADamagedPictureIsRefusedAndChangesNothing) {
  PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture(12, 8).Get()));
  Put(control, L"ItemDescription", u"Trees");
  const ComRef<IStream> stream = NewStream();
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  // The picture is the last entry, and begins with its mark.
  std::string bytes(static_cast<std::size_t>(SizeOf(stream)), '\0');
  Rewind(stream);
  ASSERT_EQ(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr), S_OK);
  const std::size_t mark = bytes.rfind(std::string("lt\0\0", 4));
  ASSERT_NE(mark, std::string::npos);
  bytes.replace(mark, 4, "????");
  const ComRef<IStream> damaged = NewStream();
  damaged->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
  Put(control, L"ItemDescription", u"Bushes");
  const Strings before = BannerFieldsOf(control);
  const ComRef<IPictureDisp> picture = PictureOf(control);
  EXPECT_EQ(LoadStream(damaged), static_cast<HRESULT>(0x800A0141));
  EXPECT_EQ(BannerFieldsOf(control), before);
  EXPECT_TRUE(IsSameComObject(PictureOf(control).Get(), picture.Get()));
}

TEST_F(BannerPersistence, AStreamThatEndsEarlyIsRefused) {
  PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture().Get()));
  const ComRef<IStream> whole = NewStream();
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(whole.Get(), TRUE), S_OK);
  for (ULONGLONG size = 0; size < SizeOf(whole); ++size) {
    const ComRef<IStream> part = NewStream();
    Rewind(whole);
    ULARGE_INTEGER bytes;
    bytes.QuadPart = size;
    whole->CopyTo(part.Get(), bytes, nullptr, nullptr);
    EXPECT_TRUE(FAILED(LoadStream(part))) << size << " bytes";
  }
}

}  // namespace

}  // namespace sifter
