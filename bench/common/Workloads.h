#pragma once

#include "sift/Arguments.h"

#include <span>
#include <string>
#include <vector>

namespace sifter::bench {

// A filter as a user sets it up in the dialog.
struct Workload {
  std::string name;
  std::vector<Where> criteria;
  bool matchCase = false;
};

// What is measured on the generated table:
//   contains   one text
//   three      a text, a range of numbers and a date
//   six        six criteria on six columns
//   none       nothing passes
//   all        everything passes
std::span<const Workload> StandardWorkloads();

// The filter that "three" is changed into, by other values in the same fields, before it is reset.
const Workload& ChangedThree();

const Workload& WorkloadNamed(const std::string& name);

}  // namespace sifter::bench
