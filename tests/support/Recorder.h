#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

// What the fakes of one test saw, a line for each event, in order. All fakes of a test write into
// one recorder, so that the order among them is part of what is asserted.
class Recorder {
 public:
  void Line(std::string line) { lines_.push_back(std::move(line)); }
  const std::vector<std::string>& Lines() const { return lines_; }

  // Forgets what came from setting the scene.
  void Clear() { lines_.clear(); }

  // Whether the recording is exactly this. To be used as EXPECT_TRUE(recorder.Shows({...})): a
  // failure prints both lists and marks the first line that differs.
  testing::AssertionResult Shows(const std::vector<std::string>& expected) const {
    if (lines_ == expected) return testing::AssertionSuccess();
    const auto [seen, wanted] =
        std::mismatch(lines_.begin(), lines_.end(), expected.begin(), expected.end());
    const auto difference = static_cast<std::size_t>(seen - lines_.begin());
    return testing::AssertionFailure() << "\nrecorded:\n"
                                       << Listing(lines_, difference) << "expected:\n"
                                       << Listing(expected, difference);
  }

 private:
  static std::string Listing(const std::vector<std::string>& lines, std::size_t marked) {
    std::ostringstream listing;
    for (std::size_t i = 0; i < lines.size(); ++i)
      listing << (i == marked ? "> " : "  ") << lines[i] << '\n';
    if (marked >= lines.size()) listing << "> (nothing more)\n";
    return listing.str();
  }

  std::vector<std::string> lines_;
};

}  // namespace sifter
