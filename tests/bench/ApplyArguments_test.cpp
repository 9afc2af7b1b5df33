#include "common/ApplyArguments.h"

#include "sift/UserError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter::bench {
namespace {

// "" when the arguments are fine.
std::string ComplaintAbout(const std::vector<std::string>& words) {
  try {
    ParseApplyArguments(words);
  } catch (const UserError& error) {
    return error.what();
  }
  return "";
}

TEST(ApplyArguments, AreAFileTwoCountsAndAnyNumberOfWorkloads) {
  const ApplyArguments none = ParseApplyArguments({"table.csv", "5", "0"});
  EXPECT_EQ(none.file, "table.csv");
  EXPECT_EQ(none.repetitions, 5);
  EXPECT_EQ(none.warmUps, 0);
  EXPECT_TRUE(none.workloads.empty());

  const ApplyArguments two = ParseApplyArguments(
      {"t.csv", "10", "2", "--workload", "first", "--where", "City", "contains", "port",
       "--match-case", "--where", "Price", "is between", "-5", "10", "--workload", "everything"});
  ASSERT_EQ(two.workloads.size(), 2u);
  EXPECT_EQ(two.workloads[0].name, "first");
  EXPECT_EQ(two.workloads[0].criteria, (std::vector<Where>{{"City", "contains", {"port"}},
                                                           {"Price", "is between", {"-5", "10"}}}));
  EXPECT_TRUE(two.workloads[0].matchCase);
  EXPECT_EQ(two.workloads[1].name, "everything");
  EXPECT_TRUE(two.workloads[1].criteria.empty());
  EXPECT_FALSE(two.workloads[1].matchCase);
}

TEST(ApplyArguments, StartWithTheStandardWorkloadsWhenAskedTo) {
  std::vector<std::string> names;
  for (const Workload& workload :
       ParseApplyArguments({"t.csv", "1", "0", "--standard", "--workload", "mine"}).workloads)
    names.push_back(workload.name);
  EXPECT_EQ(names, (std::vector<std::string>{"contains", "three", "six", "none", "all", "mine"}));
}

TEST(ApplyArguments, AreComplainedAboutWhenWrong) {
  EXPECT_NE(ComplaintAbout({}), "");
  EXPECT_NE(ComplaintAbout({"t.csv", "5"}), "");
  EXPECT_EQ(ComplaintAbout({"t.csv", "0", "0"}), "REPS is a number from 1 on");
  EXPECT_EQ(ComplaintAbout({"t.csv", "5x", "0"}), "REPS is a number from 1 on");
  EXPECT_EQ(ComplaintAbout({"t.csv", "5", "-1"}), "WARMUP is a number from 0 on");
  EXPECT_NE(ComplaintAbout({"t.csv", "5", "1", "--where", "A", "equals", "b"}), "");
  EXPECT_NE(ComplaintAbout({"t.csv", "5", "1", "--workload"}), "");
  EXPECT_NE(ComplaintAbout({"t.csv", "5", "1", "--workload", "w", "--where", "A"}), "");
  EXPECT_EQ(ComplaintAbout({"t.csv", "5", "1", "--workload", "w", "--json"}),
            "a workload takes --where and --match-case alone");
}

}  // namespace
}  // namespace sifter::bench
