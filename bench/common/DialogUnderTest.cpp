#include "common/DialogUnderTest.h"

#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"
#include "sift/CriteriaPlan.h"

#include <stdexcept>

namespace sifter::bench {

DialogUnderTest::DialogUnderTest(Ref<MemoryListView> list)
    : list_(std::move(list)), dialog_(conversions_, clock_) {
  Form().UsersListview = list_;
  Form().SetUpForm();
}

void DialogUnderTest::Choose(const Workload& workload) {
  Form().ClearCriteria();
  Refill();
  const CheckValue matchCase = workload.matchCase ? CheckValue::kChecked : CheckValue::kUnchecked;
  if (Form().chkCaseSensitive.Value() != matchCase) Form().chkCaseSensitive.SetValue(matchCase);
  Change(workload);
}

void DialogUnderTest::Change(const Workload& workload) {
  const std::vector<RowAction> actions = PlanCriteria(Form(), workload.criteria, conversions_);
  dialog_.ShowModal([&] {
    for (const RowAction& action : actions) Perform(Form(), action);
  });
}

void DialogUnderTest::Refill() { Form().CopyListview(Form().ListView1, Form().UsersListview); }

Duration DialogUnderTest::Press(CommandButton& button) {
  Duration duration;
  dialog_.ShowModal([&] { duration = Timed([&] { button.SetValue(true); }); });
  return duration;
}

std::vector<std::uint32_t> DialogUnderTest::RowsLeft() {
  HostListView& list = *list_;
  const RowStore& all = Form().ListView1->Shared()->Rows();
  const RowStore& left = list.Shared()->Rows();
  std::vector<std::uint32_t> rows;
  std::int32_t position = 1;
  for (std::int32_t i = 1; i <= left.Count(); ++i, ++position) {
    const RowData* wanted = &left.At(i);
    while (position <= all.Count() && &all.At(position) != wanted) ++position;
    if (position > all.Count()) throw std::logic_error("the list holds a row of its own");
    rows.push_back(static_cast<std::uint32_t>(position - 1));
  }
  return rows;
}

}  // namespace sifter::bench
