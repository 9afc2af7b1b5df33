#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"
#include "base/Ref.h"
#include "common/Stopwatch.h"
#include "common/Workloads.h"
#include "listmodel/MemoryListView.h"
#include "sift/HeadlessDialog.h"

#include <cstdint>
#include <vector>

namespace sifter::bench {

// The criteria dialog over a list in memory, worked as a user would and measured at its buttons.
class DialogUnderTest {
 public:
  // Sets the dialog up for a list with all its rows.
  explicit DialogUnderTest(Ref<MemoryListView> list);

  // Clears the criteria, puts all rows back and sets up a filter without applying it. Throws
  // UserError when the filter doesn't suit the table.
  void Choose(const Workload& workload);

  // Changes the values of the filter; nothing is cleared and nothing applied.
  void Change(const Workload& workload);

  // Puts all rows back into the list; the criteria stay.
  void Refill();

  // Shows the dialog and presses a button. Only the press is measured: from the moment the button
  // goes down to the moment its work is done and the dialog hidden.
  Duration Apply() { return Press(dialog_.Form().cmdApply); }
  Duration Reset() { return Press(dialog_.Form().cmdReset); }

  // Which rows of the full list are left, 0-based, in the list's order. Rows are told by their
  // identity, so this fails (std::logic_error) when the list holds any row that isn't one of the
  // full list's, or holds them in another order.
  std::vector<std::uint32_t> RowsLeft();

  frmFilter& Form() { return dialog_.Form(); }
  MemoryListView& List() { return *list_; }
  const Conversions& EnUs() const { return conversions_; }

 private:
  Duration Press(CommandButton& button);

  SystemClock clock_;
  EnUsConversions conversions_{clock_};
  Ref<MemoryListView> list_;
  HeadlessDialog dialog_;
};

}  // namespace sifter::bench
