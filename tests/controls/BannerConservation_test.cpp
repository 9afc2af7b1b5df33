#include "BannerSession.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Flows = BannerSession::Flows;

using Make = BannerSession::Make;

constexpr int kOperations = 100;
constexpr unsigned kSeeds = 1200;

struct Play {
  Flows flows;
  Make make;

  std::vector<std::string> operator()(const Operations& operations) const {
    return BannerSession(flows, make).Play(operations);
  }
};

// Takes operations away for as long as it goes wrong all the same.
Operations Shorten(Operations operations, const Play& play) {
  for (bool shortened = true; shortened;) {
    shortened = false;
    for (std::size_t i = operations.size(); i-- > 0;) {
      Operations shorter = operations;
      shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(i));
      if (play(shorter).empty()) continue;
      operations = std::move(shorter);
      shortened = true;
    }
  }
  return operations;
}

std::string Story(const Operations& operations, const Play& play) {
  const Operations shortest = Shorten(operations, play);
  std::ostringstream story;
  story << (play.make == Make::kOwn ? "own" : "foreign") << " list\n" << shortest;
  for (const std::string& line : play(shortest)) story << line << '\n';
  return story.str();
}

BannerSession::Counts PlayAll(Flows flows) {
  BannerSession::Counts counts;
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const Operations operations = RandomOperations(seed, kOperations);
    const Play play{flows, seed % 3 == 0 ? Make::kForeign : Make::kOwn};
    BannerSession session(play.flows, play.make);
    if (!session.Play(operations).empty()) {
      ADD_FAILURE() << "seed " << seed << ", " << Story(operations, play);
      break;
    }
    counts.Add(session.Counted());
  }
  EXPECT_GE(counts.operations, 120'000);
  EXPECT_GT(counts.resets, 1'500);
  return counts;
}

TEST(BannerConservation, EveryRowIsBackOnceAfterAResetAndNoOtherOne) {
  const BannerSession::Counts counts = PlayAll(Flows::kPlain);
  EXPECT_EQ(counts.deactivations, 0);
  EXPECT_EQ(counts.modelessGivenUp, 0);
  EXPECT_EQ(counts.cutOff, 0);
  EXPECT_EQ(counts.twinsGone, 0);
  EXPECT_EQ(counts.oldForms, 0);
  EXPECT_EQ(counts.rowsBack, 0);
}

TEST(BannerConservation, OnlyTheKnownFlowsGiveRowsUpOrBringThemBack) {
  const BannerSession::Counts counts = PlayAll(Flows::kAll);
  EXPECT_GT(counts.deactivations, 0);
  EXPECT_GT(counts.modelessGivenUp, 0);
  EXPECT_GT(counts.cutOff, 0);
  EXPECT_GT(counts.twinsGone, 0);
  EXPECT_GT(counts.oldForms, 0);
  EXPECT_GT(counts.rowsBack, 0);
}

}  // namespace

}  // namespace sifter
