#include "SavedForm.h"

namespace sifter {

namespace {

class StreamPersistence : public SavedForm {};

TEST_F(StreamPersistence, StreamsKeepEverythingButTheExcludedColumns) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  const ComRef<IStream> stream = NewStream();
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  Rewind(stream);
  const ComRef<IDispatch> second = Create();
  ASSERT_EQ(second.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  EXPECT_EQ(FieldsOf(second), SavedAndLoadedFields());
}

TEST_F(StreamPersistence, AStreamMayHoldMoreBehindTheControl) {
  const ComRef<IStream> stream = NewStream();
  const char behind[] = "behind";
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  stream->Write(behind, sizeof behind, nullptr);
  Rewind(stream);
  ASSERT_EQ(container.As<IPersistStreamInit>()->Load(stream.Get()), S_OK);
  char read[sizeof behind] = "";
  stream->Read(read, sizeof read, nullptr);
  EXPECT_STREQ(read, behind);
}

TEST_F(StreamPersistence, AStreamThatEndsEarlyIsRefused) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  const ComRef<IStream> whole = NewStream();
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(whole.Get(), TRUE), S_OK);
  for (ULONGLONG size = 0; size < SizeOf(whole); ++size) {
    const ComRef<IStream> part = NewStream();
    Rewind(whole);
    ULARGE_INTEGER bytes;
    bytes.QuadPart = size;
    whole->CopyTo(part.Get(), bytes, nullptr, nullptr);
    Rewind(part);
    const ComRef<IDispatch> second = Create();
    EXPECT_TRUE(FAILED(second.As<IPersistStreamInit>()->Load(part.Get()))) << size << " bytes";
  }
}

TEST_F(StreamPersistence, AStreamOfGarbageIsRefused) {
  const ComRef<IStream> stream = NewStream();
  const std::string garbage(1000, '\xFF');
  stream->Write(garbage.data(), static_cast<ULONG>(garbage.size()), nullptr);
  Rewind(stream);
  EXPECT_TRUE(FAILED(container.As<IPersistStreamInit>()->Load(stream.Get())));
}

TEST_F(StreamPersistence, TheStatedSizeIsEnough) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  const ComRef<IStream> stream = NewStream();
  ULARGE_INTEGER stated{};
  ASSERT_EQ(container.As<IPersistStreamInit>()->GetSizeMax(&stated), S_OK);
  ASSERT_EQ(container.As<IPersistStreamInit>()->Save(stream.Get(), TRUE), S_OK);
  EXPECT_LE(SizeOf(stream), stated.QuadPart);
}

TEST_F(StreamPersistence, AControlIsDirtyFromAChangeUntilItIsSaved) {
  const auto persist = container.As<IPersistStreamInit>();
  ASSERT_EQ(persist->InitNew(), S_OK);
  const ComRef<IStream> stream = NewStream();
  ASSERT_EQ(persist->Save(stream.Get(), TRUE), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
  Put(control, L"FilterCaption", u"Trees");
  EXPECT_EQ(persist->IsDirty(), S_OK);
  ASSERT_EQ(persist->Save(stream.Get(), FALSE), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_OK) << "a copy was saved";
  ASSERT_EQ(SaveToBag(true), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
  Put(control, L"FilterCaption", u"Trees");
  EXPECT_EQ(persist->IsDirty(), S_FALSE) << "it is the caption already";
}

TEST_F(StreamPersistence, StoragesKeepEverythingButTheExcludedColumns) {
  FillBag();
  ASSERT_EQ(LoadFromBag(), S_OK);
  const ComRef<IStorage> storage = NewStorage();
  const auto persist = container.As<IPersistStorage>();
  ASSERT_EQ(persist->Save(storage.Get(), FALSE), S_OK);
  ASSERT_EQ(persist->SaveCompleted(nullptr), S_OK);
  ASSERT_EQ(persist->HandsOffStorage(), S_OK);
  const ComRef<IDispatch> second = Create();
  ASSERT_EQ(second.As<IPersistStorage>()->Load(storage.Get()), S_OK);
  EXPECT_EQ(FieldsOf(second), SavedAndLoadedFields());
}

TEST_F(StreamPersistence, ACopySavedElsewhereLeavesTheControlChanged) {
  Put(container.As<IDispatch>(), L"FilterCaption", u"Trees");
  const ComRef<IStorage> storage = NewStorage();
  const auto persist = container.As<IPersistStorage>();
  ASSERT_EQ(persist->IsDirty(), S_OK);
  ASSERT_EQ(persist->Save(storage.Get(), FALSE), S_OK);
  ASSERT_EQ(persist->SaveCompleted(nullptr), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_OK);
  ASSERT_EQ(persist->Save(storage.Get(), TRUE), S_OK);
  ASSERT_EQ(persist->SaveCompleted(nullptr), S_OK);
  EXPECT_EQ(persist->IsDirty(), S_FALSE);
}

TEST_F(StreamPersistence, AStorageOfSomethingElseIsRefused) {
  EXPECT_TRUE(FAILED(container.As<IPersistStorage>()->Load(NewStorage().Get())));
}

TEST_F(StreamPersistence, EveryWayTellsTheSameClass) {
  const CLSID expected = Library::Built().IdOf(L"TSRowSifter");
  CLSID id{};
  EXPECT_EQ(container.As<IPersistPropertyBag>()->GetClassID(&id), S_OK);
  EXPECT_EQ(id, expected);
  id = {};
  EXPECT_EQ(container.As<IPersistStreamInit>()->GetClassID(&id), S_OK);
  EXPECT_EQ(id, expected);
  id = {};
  EXPECT_EQ(container.As<IPersistStorage>()->GetClassID(&id), S_OK);
  EXPECT_EQ(id, expected);
  id = {};
  EXPECT_EQ(container.As<IOleObject>()->GetUserClassID(&id), S_OK);
  EXPECT_EQ(id, expected);
}

}  // namespace

}  // namespace sifter
