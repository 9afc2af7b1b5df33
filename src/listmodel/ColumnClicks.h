#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <functional>
#include <map>

namespace sifter {

// Tells of clicks on the headers of a list's columns, to those who hold on to what Watch has given
// them.
class ColumnClicks {
 public:
  using Clicked = std::function<void(std::int32_t column)>;  // 1-based

  ColumnClicks() = default;
  ~ColumnClicks() { watchers_->over = true; }
  ColumnClicks(const ColumnClicks&) = delete;
  ColumnClicks& operator=(const ColumnClicks&) = delete;

  // `clicked` is called for as long as the returned object lives, and not any more once this one
  // has ended.
  Ref<Object> Watch(Clicked clicked);

  // In the order in which they came; each may end itself and others, and this object. Those who
  // come meanwhile are told of the next click.
  void Raise(std::int32_t column) const;

 private:
  class Watcher;

  struct Watchers final : Object {
    std::map<std::uint64_t, Clicked> all;  // by number
    std::uint64_t next = 0;
    bool over = false;
  };

  const Ref<Watchers> watchers_ = MakeRef<Watchers>();
};

}  // namespace sifter
