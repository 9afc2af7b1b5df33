#include "demo/FolderList.h"

#include "user/RemoteList.h"

#include <gtest/gtest.h>

#include <memory>

namespace hosts {

namespace {

using Names = std::vector<std::wstring>;

FolderEntry File(const wchar_t* name, const wchar_t* size = L"1") {
  FolderEntry entry;
  entry.name = name;
  entry.size = size;
  return entry;
}

std::wstring CellOf(HWND list, int row, int column) {
  wchar_t text[260] = L"";
  ListView_GetItemText(list, row, column, text, 260);
  return text;
}

// The list on a window, and how many rows it was told to insert and to delete.
class FolderListTest : public testing::Test {
 protected:
  FolderListTest()
      : parent_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 600, 400, nullptr, nullptr,
                                nullptr, nullptr)),
        list_(std::make_unique<FolderList>(parent_, 1)) {
    SetPropW(list_->Window(), L"test", this);
    original_ = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
        list_->Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&FolderListTest::Procedure)));
  }
  ~FolderListTest() override {
    SetWindowLongPtrW(list_->Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
    list_.reset();
    DestroyWindow(parent_);
  }

  Names Shown() const { return RowsOf(list_->Window()); }
  void Forget() { inserted_ = deleted_ = cleared_ = 0; }

  HWND parent_;
  std::unique_ptr<FolderList> list_;
  int inserted_ = 0;
  int deleted_ = 0;
  int cleared_ = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
    auto* const self = static_cast<FolderListTest*>(GetPropW(window, L"test"));
    if (message == LVM_INSERTITEMA || message == LVM_INSERTITEMW) ++self->inserted_;
    if (message == LVM_DELETEITEM) ++self->deleted_;
    if (message == LVM_DELETEALLITEMS) ++self->cleared_;
    return CallWindowProcW(self->original_, window, message, wide, wider);
  }

  WNDPROC original_;
};

TEST_F(FolderListTest, FillShowsEveryEntry) {
  list_->Fill({File(L"a", L"10"), File(L"b", L"20")});
  EXPECT_EQ(Shown(), (Names{L"a", L"b"}));
  EXPECT_EQ(CellOf(list_->Window(), 1, 2), L"20");
  EXPECT_EQ(list_->Total(), 2);
}

TEST_F(FolderListTest, FillAgainLeavesNothingOfTheFormerRows) {
  list_->Fill({File(L"a"), File(L"b")});
  list_->Fill({File(L"b"), File(L"c")});
  EXPECT_EQ(Shown(), (Names{L"b", L"c"}));
}

TEST_F(FolderListTest, FollowTouchesOnlyWhatDiffers) {
  list_->Fill({File(L"b"), File(L"c", L"1"), File(L"d"), File(L"f")});
  Forget();
  list_->Follow({File(L"a"), File(L"c", L"2"), File(L"d"), File(L"e"), File(L"f"), File(L"g")},
                false);
  EXPECT_EQ(Shown(), (Names{L"a", L"c", L"d", L"e", L"f", L"g"}));
  EXPECT_EQ(CellOf(list_->Window(), 1, 2), L"2");
  EXPECT_EQ(inserted_, 3);
  EXPECT_EQ(deleted_, 1);
  EXPECT_EQ(cleared_, 0);
}

TEST_F(FolderListTest, FollowWithoutDifferenceDoesNothing) {
  list_->Fill({File(L"a"), File(L"b")});
  Forget();
  list_->Follow({File(L"a"), File(L"b")}, false);
  EXPECT_EQ(inserted_ + deleted_ + cleared_, 0);
}

TEST_F(FolderListTest, FollowFillsAnewWhenRowsWereTakenOut) {
  list_->Fill({File(L"a"), File(L"b"), File(L"c")});
  ListView_DeleteItem(list_->Window(), 0);
  list_->Follow({File(L"a"), File(L"b"), File(L"d")}, false);
  EXPECT_EQ(Shown(), (Names{L"a", L"b", L"d"}));
}

TEST_F(FolderListTest, FollowUnderAFilterLeavesHiddenRowsAsTheyAre) {
  list_->Fill({File(L"a"), File(L"b", L"1"), File(L"c"), File(L"d", L"1"), File(L"e")});
  ListView_DeleteItem(list_->Window(), 0);  // a, as a filter does it
  ListView_DeleteItem(list_->Window(), 2);  // d
  Forget();
  // a is gone, c too, b and d have changed, f has come.
  list_->Follow({File(L"b", L"2"), File(L"d", L"2"), File(L"e"), File(L"f")}, true);
  EXPECT_EQ(Shown(), (Names{L"b", L"e", L"f"}));
  EXPECT_EQ(CellOf(list_->Window(), 0, 2), L"2");
  EXPECT_EQ(list_->Total(), 5);
  EXPECT_EQ(inserted_, 2);  // b anew, and f
  EXPECT_EQ(deleted_, 2);
  EXPECT_EQ(cleared_, 0);
}

TEST_F(FolderListTest, FollowUnderAFilterPassesOverAFileThatReturnsToAHiddenRow) {
  list_->Fill({File(L"a"), File(L"b")});
  ListView_DeleteItem(list_->Window(), 0);
  list_->Follow({File(L"b")}, true);
  list_->Follow({File(L"a", L"9"), File(L"b")}, true);
  EXPECT_EQ(Shown(), (Names{L"b"}));
  EXPECT_EQ(list_->Total(), 2);
}

TEST_F(FolderListTest, FollowKeepsTheOrderThatTheUserHasChosen) {
  list_->Fill({File(L"a"), File(L"b"), File(L"d")});
  const Automation list{ComRef<IDispatch>(list_->Object())};
  list.Put(L"SortOrder", Variant(1));
  list.Put(L"Sorted", Variant(true));
  list_->Follow({File(L"b", L"2"), File(L"c"), File(L"d")}, false);
  EXPECT_EQ(Shown(), (Names{L"d", L"c", L"b"}));
  EXPECT_EQ(CellOf(list_->Window(), 2, 2), L"2");
}

TEST_F(FolderListTest, TextOfRowsHasALineForEachRowThatIsShown) {
  list_->Fill({File(L"a", L"10"), File(L"b", L"20"), File(L"c", L"30")});
  ListView_DeleteItem(list_->Window(), 1);
  EXPECT_EQ(list_->TextOfRows(), L"a\t\t10\t\t\r\nc\t\t30\t\t\r\n");
}

TEST_F(FolderListTest, EntryAtGoesByTheRowsThatAreLeft) {
  list_->Fill({File(L"a"), File(L"b", L"7")});
  ListView_DeleteItem(list_->Window(), 0);
  ASSERT_NE(list_->EntryAt(0), nullptr);
  EXPECT_EQ(list_->EntryAt(0)->size, L"7");
  EXPECT_EQ(list_->EntryAt(-1), nullptr);
}

}  // namespace

}  // namespace hosts
