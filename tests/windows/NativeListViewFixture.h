#pragma once

#include "ListViewOnAForm.h"
#include "listmodel/MemoryListView.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/NativeListView.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace sifter {

// A list view of the system's on a form, as a list of the model.
class NativeListViewTest : public testing::Test {
 protected:
  HWND Window() const { return form.List(); }
  Ref<ListItem> Row(std::int32_t position) { return list->ListItems()->Item(position); }

  // What the window shows and what the list says are the same.
  void ExpectShown() {
    EXPECT_EQ(form.ShownTexts(), Texts(*list));
    EXPECT_EQ(listview::ItemCount(Window()), list->ListItems()->Count());
  }

  ListViewOnAForm form;
  Ref<HostListView> list = NativeListView(form.List());
  Recorder recorder;
};

}  // namespace sifter
