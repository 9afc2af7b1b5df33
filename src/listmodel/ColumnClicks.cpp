#include "listmodel/ColumnClicks.h"

#include <utility>

namespace sifter {

class ColumnClicks::Watcher final : public Object {
 public:
  Watcher(Ref<Watchers> watchers, Clicked clicked)
      : watchers_(std::move(watchers)), number_(watchers_->next++) {
    watchers_->all.emplace(number_, std::move(clicked));
  }
  // What goes with the function may end others, so it goes when this one is off the list.
  ~Watcher() override { const auto leaving = watchers_->all.extract(number_); }

 private:
  const Ref<Watchers> watchers_;
  const std::uint64_t number_;
};

Ref<Object> ColumnClicks::Watch(Clicked clicked) {
  return Ref<Object>(MakeRef<Watcher>(watchers_, std::move(clicked)));
}

void ColumnClicks::Raise(std::int32_t column) const {
  const Ref<Watchers> watchers = watchers_;
  const std::uint64_t end = watchers->next;
  auto each = watchers->all.begin();
  while (each != watchers->all.end() && each->first < end && !watchers->over) {
    const std::uint64_t number = each->first;
    const Clicked clicked = each->second;
    clicked(column);
    each = watchers->all.upper_bound(number);
  }
}

}  // namespace sifter
