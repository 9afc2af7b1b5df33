#pragma once

#include "ListViewOnAForm.h"
#include "User.h"
#include "base/Conversions.h"
#include "filterdialog/frmFilter.h"
#include "support/ClockFake.h"
#include "support/HeadlessDialog.h"
#include "support/Lists.h"
#include "win32/FormWindow.h"
#include "win32/MessageBoxPrompts.h"
#include "win32/NativeListView.h"
#include "win32/Win32FormHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace sifter {

// The dialog as a window over a host's list view, and a user. The clock stands at noon of 15 June
// 2007, so that is the day the pickers start with.
class DialogOnScreen : public testing::Test {
 protected:
  void SetUp() override { host.SetOwner(hostForm.Parent()); }

  // Fills the host's list and builds the dialog's rows for it.
  void Prepare(const std::vector<std::string>& columns, const TextRows& rows) {
    list->ListItems()->Clear();
    list->ColumnHeaders()->Clear();
    Fill(*list, columns, rows);
    dialog.UsersListview = list;
    if (dialog.ListView1) dialog.ListView1->ColumnHeaders()->Clear();
    dialog.SetUpForm();
  }

  // Shows the dialog modally; meanwhile the user does this. A dialog that they leave open is
  // hidden then.
  void Show(const std::function<void()>& script) {
    user.Does([&] {
      user.WaitsFor([&] { return Window() != nullptr && IsWindowVisible(Window()) != FALSE; });
      script();
      dialog.Hide();
    });
    dialog.Show(ShowMode::kModal);
    user.PumpUntilDone();
  }

  // From the first showing on.
  HWND Window() const {
    const FormWindow* window = host.WindowOf(dialog);
    return window == nullptr ? nullptr : window->Handle();
  }
  HWND WindowOf(const Control& control) const {
    const ControlWindow* window = host.WindowOf(dialog)->Find(control);
    return window == nullptr ? nullptr : window->Handle();
  }

  // The control that has the focus, "" when no control of the dialog has it.
  std::string Focused() const {
    const ControlWindow* window = host.WindowOf(dialog)->Find(GetFocus());
    return window == nullptr ? "" : NameOf(window->Shown());
  }

  // Puts the focus on a control with the mouse or, where a click would do something, directly.
  void GoTo(Control& control) { SetFocus(WindowOf(control)); }

  // The user drops the list of operators down, moves through it and takes one.
  void PickOperator(std::int32_t row, TextView word) {
    ComboBox& box = dialog.cboOperator[row];
    const auto found = std::find(box.Entries().begin(), box.Entries().end(), word);
    ASSERT_NE(found, box.Entries().end());
    user.MovesTo({0, 0});  // the entry under the mouse would be highlighted
    GoTo(box);
    user.Presses(VK_F4);
    user.Presses({VK_HOME});
    for (auto entry = box.Entries().begin(); entry != found; ++entry) user.Presses(VK_DOWN);
    user.Presses(VK_RETURN);
    EXPECT_EQ(box.Text(), word);
  }

  bool ListIsDown(const ComboBox& box) const {
    return SendMessageW(WindowOf(box), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
  }

  // The middle of an entry of a list that is down.
  POINT EntryOf(const ComboBox& box, int entry) const {
    const HWND shown = ComponentsOf(box).hwndList;
    RECT area;
    SendMessageW(shown, LB_GETITEMRECT, static_cast<WPARAM>(entry),
                 reinterpret_cast<LPARAM>(&area));
    POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    ClientToScreen(shown, &middle);
    return middle;
  }

  // The user drops a list down and takes an entry, with the mouse.
  void ClicksEntry(const ComboBox& box, int entry) {
    const RECT area = ComponentsOf(box).rcButton;
    POINT button{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    ClientToScreen(WindowOf(box), &button);
    user.ClicksAt(button);
    EXPECT_TRUE(ListIsDown(box));
    user.ClicksAt(EntryOf(box, entry));
    EXPECT_FALSE(ListIsDown(box));
  }

  COMBOBOXINFO ComponentsOf(const ComboBox& box) const {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(WindowOf(box), &info);
    return info;
  }

  ListViewOnAForm hostForm;
  const Ref<HostListView> list = NativeListView(hostForm.List());
  ClockFake clock;
  EnUsConversions conversions{clock};
  MessageBoxPrompts prompts;
  Win32FormHost host;
  frmFilter dialog{{host, prompts, conversions, clock}};
  User user;
};

}  // namespace sifter
