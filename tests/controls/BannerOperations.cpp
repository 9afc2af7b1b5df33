#include "BannerOperations.h"

#include <array>
#include <cstddef>
#include <ostream>
#include <random>

namespace sifter {

namespace {

struct ActRow {
  const char* name;
  int share;  // how often it happens
};

constexpr std::array<ActRow, static_cast<std::size_t>(Act::kCount)> kActs = {{
    {"kInsert", 30},
    {"kInsertTwin", 4},
    {"kReuseKey", 1},
    {"kDelete", 14},
    {"kClear", 1},
    {"kEdit", 4},
    {"kCheck", 4},
    {"kTick", 12},
    {"kShow", 14},
    {"kShowModeless", 2},
    {"kApplyText", 5},
    {"kActivate", 2},
    {"kDeactivate", 1},
    {"kSetInactive", 1},
    {"kDetach", 3},
    {"kClickColumn", 2},
    {"kAddColumn", 1},
}};

int AllShares() {
  int all = 0;
  for (const ActRow& row : kActs) all += row.share;
  return all;
}

Act ActAt(int share) {
  std::size_t act = 0;
  while (share >= kActs[act].share) share -= kActs[act++].share;
  return static_cast<Act>(act);
}

}  // namespace

Operations RandomOperations(unsigned seed, int count) {
  std::mt19937 random(seed);
  const auto below = [&random](int n) {
    return static_cast<int>(random() % static_cast<unsigned>(n));
  };
  Operations operations;
  for (int i = 0; i < count; ++i) {
    const Act act = ActAt(below(AllShares()));
    const int a = below(1000);
    const int b = act == Act::kInsert ? below(1000) : below(3) == 0 ? below(6) : 0;
    operations.push_back({act, a, b});
  }
  operations.push_back({Act::kShow, 0, 0});
  return operations;
}

std::ostream& operator<<(std::ostream& out, const Operations& operations) {
  for (const Operation& operation : operations)
    out << "{Act::" << kActs[static_cast<std::size_t>(operation.act)].name << ", " << operation.a
        << ", " << operation.b << "},\n";
  return out;
}

}  // namespace sifter
