#include "support/Recorder.h"

namespace sifter {

namespace {

TEST(Recorder, ShowsExactlyItsLinesInOrder) {
  Recorder recorder;
  EXPECT_TRUE(recorder.Shows({}));
  recorder.Line("picture FilterFull");
  recorder.Line("raise FilterActivated");
  EXPECT_TRUE(recorder.Shows({"picture FilterFull", "raise FilterActivated"}));
  EXPECT_FALSE(recorder.Shows({"raise FilterActivated", "picture FilterFull"}));
  EXPECT_FALSE(recorder.Shows({"picture FilterFull"}));
  EXPECT_FALSE(recorder.Shows({"picture FilterFull", "raise FilterActivated", "more"}));
}

TEST(Recorder, FailurePrintsBothListsAndMarksTheFirstDifference) {
  Recorder recorder;
  for (const char* line : {"one", "two", "three"}) recorder.Line(line);
  EXPECT_STREQ(recorder.Shows({"one", "2", "three"}).message(),
               "\n"
               "recorded:\n"
               "  one\n"
               "> two\n"
               "  three\n"
               "expected:\n"
               "  one\n"
               "> 2\n"
               "  three\n");
}

TEST(Recorder, FailureSaysWhichListIsShorter) {
  Recorder recorder;
  recorder.Line("one");
  EXPECT_STREQ(recorder.Shows({"one", "two"}).message(),
               "\n"
               "recorded:\n"
               "  one\n"
               "> (nothing more)\n"
               "expected:\n"
               "  one\n"
               "> two\n");
}

TEST(Recorder, ClearForgetsTheScenery) {
  Recorder recorder;
  recorder.Line("setting up");
  recorder.Clear();
  recorder.Line("work");
  EXPECT_TRUE(recorder.Shows({"work"}));
}

}  // namespace

}  // namespace sifter
