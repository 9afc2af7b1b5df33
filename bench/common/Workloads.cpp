#include "common/Workloads.h"

#include <algorithm>
#include <stdexcept>

namespace sifter::bench {

std::span<const Workload> StandardWorkloads() {
  static const std::vector<Workload> workloads = {
      {"contains", {{"Notes", "contains", {"oak"}}}},
      {"three",
       {{"Product", "contains", {"er"}},
        {"Price", "is between", {"100", "600"}},
        {"Ordered", "is after", {"6/30/2008"}}}},
      {"six",
       {{"Product", "contains", {"e"}},
        {"Category", "does not equal", {"Garden"}},
        {"City", "ends with", {"d"}},
        {"Quantity", "is greater than", {"50"}},
        {"Price", "is between", {"50", "900"}},
        {"Ordered", "is before", {"1/1/2018"}}}},
      {"none", {{"Notes", "contains", {"no such words"}}}},
      {"all",
       {{"Notes", "does not contain", {"no such words"}}, {"Quantity", "is greater than", {"-1"}}}},
  };
  return workloads;
}

const Workload& ChangedThree() {
  static const Workload changed = {"changed",
                                   {{"Product", "contains", {"an"}},
                                    {"Price", "is between", {"50", "300"}},
                                    {"Ordered", "is after", {"12/31/2012"}}}};
  return changed;
}

const Workload& WorkloadNamed(const std::string& name) {
  const std::span<const Workload> workloads = StandardWorkloads();
  const auto found = std::find_if(workloads.begin(), workloads.end(),
                                  [&](const Workload& workload) { return workload.name == name; });
  if (found == workloads.end()) throw std::invalid_argument("no workload is called " + name);
  return *found;
}

}  // namespace sifter::bench
