#include "demo/FolderEntry.h"

#include "Folder.h"
#include "container/Failure.h"
#include "demo/FileWords.h"
#include "demo/FolderWatch.h"

namespace hosts {

namespace {

using Names = std::vector<std::wstring>;

Names NamesOf(const std::vector<FolderEntry>& entries) {
  Names names;
  for (const FolderEntry& entry : entries) names.push_back(entry.name);
  return names;
}

TEST(ReadFolder, PutsFoldersFirstAndIgnoresCase) {
  const Folder folder;
  folder.Write(L"b.txt", "12345");
  folder.Write(L"A.txt", "");
  folder.Write(L"c", "1");
  folder.MakeFolder(L"Zoo");
  folder.MakeFolder(L"ark");
  EXPECT_EQ(NamesOf(ReadFolder(folder.Path())), (Names{L"ark", L"Zoo", L"A.txt", L"b.txt", L"c"}));
}

TEST(ReadFolder, GivesSizesInPlainDigitsAndNoneToFolders) {
  const Folder folder;
  folder.Write(L"large.bin", std::string(123456, 'x'));
  folder.MakeFolder(L"sub");
  const auto entries = ReadFolder(folder.Path());
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0].size, L"");
  EXPECT_TRUE(entries[0].isFolder);
  EXPECT_EQ(entries[0].attributes, L"D");
  EXPECT_EQ(entries[1].size, L"123456");
  EXPECT_FALSE(entries[1].isFolder);
}

TEST(ReadFolder, OfNothingIsAFailure) {
  const Folder folder;
  EXPECT_THROW(ReadFolder(folder.PathOf(L"missing")), Failure);
}

TEST(FileWords, NameEachAttributeByItsLetter) {
  EXPECT_EQ(AttributesInWords(FILE_ATTRIBUTE_NORMAL), L"");
  EXPECT_EQ(
      AttributesInWords(FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN),
      L"RHA");
}

TEST(FileWords, TellTheSameKindForTheSameExtension) {
  EXPECT_EQ(KindOf(L"a.txt", 0).name, KindOf(L"b.txt", 0).name);
  EXPECT_NE(KindOf(L"a.txt", 0).name, KindOf(L"a.txt", FILE_ATTRIBUTE_DIRECTORY).name);
  EXPECT_NE(KindOf(L"a.dll", 0).name, L"");
}

bool Signalled(const FolderWatch& watch, DWORD milliseconds) {
  return WaitForSingleObject(watch.Handle(), milliseconds) == WAIT_OBJECT_0;
}

TEST(FolderWatch, IsSignalledByEachChangeOnceItIsRearmed) {
  const Folder folder;
  FolderWatch watch(folder.Path());
  ASSERT_NE(watch.Handle(), nullptr);
  EXPECT_FALSE(Signalled(watch, 0));
  folder.Write(L"new", "");
  EXPECT_TRUE(Signalled(watch, 10'000));
  watch.Rearm();
  folder.Remove(L"new");
  EXPECT_TRUE(Signalled(watch, 10'000));
}

TEST(FolderWatch, OfNothingIsNeverSignalled) {
  const Folder folder;
  EXPECT_EQ(FolderWatch(folder.PathOf(L"missing")).Handle(), nullptr);
}

}  // namespace

}  // namespace hosts
