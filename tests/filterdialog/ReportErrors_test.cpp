#include "filterdialog/ReportErrors.h"

#include "support/HeadlessPrompts.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

namespace sifter {

namespace {

class ReportErrorsTest : public testing::Test {
 protected:
  Recorder recorder;
  HeadlessPrompts prompts{recorder};
};

TEST_F(ReportErrorsTest, WorkThatSucceedsShowsNothing) {
  ReportErrors(prompts, [&] { recorder.Line("work"); });
  EXPECT_TRUE(recorder.Shows({"work"}));
}

TEST_F(ReportErrorsTest, AnErrorIsShownWithItsOwnNumberAndDescription) {
  const std::vector<RuntimeError> errors = {
      RuntimeError(ErrorNumber::kOverflow),
      RuntimeError(35602, u"Key is not unique in collection"),
      RuntimeError(-2147221503, u""),
      RuntimeError::ControlArrayElement(7),
  };
  for (const RuntimeError& error : errors)
    ReportErrors(prompts, [&] { throw RuntimeError(error); });
  EXPECT_TRUE(recorder.Shows({
      "box \"Error\" ! \"Error number is 6, Overflow\"",
      "box \"Error\" ! \"Error number is 35602, Key is not unique in collection\"",
      "box \"Error\" ! \"Error number is -2147221503, \"",
      "box \"Error\" ! \"Error number is 340, Control array element '7' doesn't exist\"",
  }));
}

TEST_F(ReportErrorsTest, RunningOutOfMemoryIsShownAsWell) {
  ReportErrors(prompts, [] { throw std::bad_alloc(); });
  EXPECT_EQ(prompts.Boxes(), std::vector<std::string>{ErrorBox("7, Out of memory")});
}

}  // namespace

}  // namespace sifter
