#include "Leftovers.h"
#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/NativeListView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace sifter {

namespace {

// Random changes of a list, the same for the same seed.
class RandomLife {
 public:
  explicit RandomLife(std::uint32_t seed) : random_(seed) {}

  std::int32_t Below(std::int32_t end) {
    return std::uniform_int_distribution<std::int32_t>(0, end - 1)(random_);
  }

  void Change(HostListView& list) {
    const Ref<ListItemCollection> rows = list.ListItems();
    const std::int32_t count = rows->Count();
    const std::int32_t position = count == 0 ? 0 : Below(count) + 1;
    switch (count == 0 ? 0 : Below(12)) {
      case 0:
      case 1:
        AddRow(list, {NewText(), NewText()});
        break;
      case 2:
        rows->Add(position, Text(), Text::FromUtf8(NewText()), Value(), Value());
        break;
      case 3:
        rows->Remove(position);
        break;
      case 4:
        rows->Item(position)->SetText(Text::FromUtf8(NewText()));
        break;
      case 5:
        rows->Item(position)->SetSubItems(1, Text::FromUtf8(NewText()));
        break;
      case 6:
        rows->Item(position)->SetChecked(Below(2) == 0);
        break;
      case 7:
        rows->Item(position)->SetGhosted(Below(2) == 0);
        break;
      case 8:
        rows->Item(position)->SetKey(Text::FromUtf8(NewText()));
        break;
      case 9:
        list.Shared()->RemoveRows(SomeOf(count));
        break;
      case 10:
        Rarely([&] { rows->Clear(); });
        break;
      default:
        Rarely([&] { list.SetSorted(Below(2) == 0); });
        break;
    }
  }

 private:
  std::string NewText() {
    ++texts_;
    return std::to_string(texts_ * 7919 % 1000) + '.' + std::to_string(texts_);
  }

  std::vector<std::int32_t> SomeOf(std::int32_t count) {
    std::vector<std::int32_t> positions;
    for (std::int32_t i = 1; i <= count; ++i)
      if (Below(4) == 0) positions.push_back(i);
    return positions;
  }

  template <class Work>
  void Rarely(Work&& work) {
    if (Below(8) == 0) work();
  }

  std::mt19937 random_;
  int texts_ = 0;
};

std::string MarksShown(HWND window) {
  std::string marks;
  const bool boxes = (listview::ExtendedStyle(window) & listview::kCheckBoxes) != 0;
  for (int item = 0; item < listview::ItemCount(window); ++item) {
    const UINT state = listview::ItemState(window, item, ~0u);
    marks += boxes && (state & listview::kStateImageMask) == listview::kCheckedImage ? 'x' : '-';
    marks += (state & listview::kCut) != 0 ? 'g' : '-';
  }
  return marks;
}

std::string MarksOf(HostListView& list) {
  std::string marks;
  const Ref<ListItemCollection> rows = list.ListItems();
  for (std::int32_t i = 1; i <= rows->Count(); ++i) {
    marks += rows->Item(i)->Checked() == Value(true) ? 'x' : '-';
    marks += rows->Item(i)->Ghosted() == Value(true) ? 'g' : '-';
  }
  return marks;
}

// Whatever happens to a list, and whatever its watchers do to it meanwhile, the window shows it.
TEST(NativeListViewLife, TheWindowShowsTheListThroughoutALife) {
  for (std::uint32_t seed = 1; seed <= 30; ++seed) {
    ListViewOnAForm form;
    const Ref<HostListView> list = NativeListView(form.List());
    Fill(*list, {"a", "b"}, {});
    Recorder notices;
    ListWatcher watcher(form.List(), list, notices);
    RandomLife life(seed);
    for (int step = 0; step < 60; ++step) {
      if (seed % 2 == 0 && life.Below(3) == 0)
        watcher.DuringTheNext([&] { ErrorOf([&] { life.Change(*list); }); });
      ErrorOf([&] { life.Change(*list); });
      ASSERT_EQ(form.ShownTexts(), Texts(*list)) << "seed " << seed << ", step " << step;
      ASSERT_EQ(MarksShown(form.List()), MarksOf(*list)) << "seed " << seed << ", step " << step;
    }
  }
}

// The same life on a list in memory leaves the same behind.
TEST(NativeListViewLife, ALifeEndsAsInMemory) {
  for (std::uint32_t seed = 1; seed <= 30; ++seed) {
    ListViewOnAForm form;
    const Ref<HostListView> native = NativeListView(form.List());
    const Ref<MemoryListView> memory = MakeRef<MemoryListView>();
    for (HostListView* list : {native.Get(), static_cast<HostListView*>(memory.Get())}) {
      Fill(*list, {"a", "b"}, {});
      RandomLife life(seed);
      for (int step = 0; step < 200; ++step) ErrorOf([&] { life.Change(*list); });
    }
    ASSERT_EQ(Dump(*native), Dump(*memory)) << "seed " << seed;
  }
}

TEST(NativeListViewLife, LeavesNoWindowAndNoDrawingObjectBehind) {
  const auto live = [] {
    ListViewOnAForm form;
    const Ref<HostListView> list = NativeListView(form.List());
    Fill(*list, {"a", "b"}, {{"1", "x"}, {"2", "y"}});
    list->ListItems()->Item(1)->SetBold(true);
    list->ListItems()->Item(1)->SetForeColor(255);
    list->ListItems()->Item(2)->SetChecked(true);
    UpdateWindow(form.List());
  };
  live();
  const int windows = WindowsOfThisThread();
  const int objects = GdiObjects();
  for (int round = 0; round < 50; ++round) live();
  EXPECT_EQ(WindowsOfThisThread(), windows);
  EXPECT_EQ(GdiObjects(), objects);
}

}  // namespace

}  // namespace sifter
