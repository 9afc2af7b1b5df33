#include "forms/ControlArray.h"

#include "forms/Form.h"
#include "forms/Label.h"
#include "support/Errors.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessWatcher.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <memory>

namespace sifter {

namespace {

class ControlArrayTest : public testing::Test {
 protected:
  Recorder recorder;
  HeadlessFormHost host{recorder};
  Form form{host};
  ControlArray<Label> labels{
      [this](std::int16_t index) { return std::make_unique<Label>(form, u"lblAnd", index); }};
};

TEST_F(ControlArrayTest, MemberZeroIsThereFromTheStart) {
  EXPECT_EQ(labels.Count(), 1);
  EXPECT_EQ(NameOf(labels[0]), "lblAnd(0)");
}

TEST_F(ControlArrayTest, MembersAreLoadedBehindTheLastOne) {
  EXPECT_EQ(NameOf(labels.Load()), "lblAnd(1)");
  EXPECT_EQ(NameOf(labels.Load()), "lblAnd(2)");
  EXPECT_EQ(labels.Count(), 3);
  EXPECT_EQ(labels[2].Index(), 2);
}

TEST_F(ControlArrayTest, AMemberThatDoesNotExistIsAnErrorThatNamesIt) {
  EXPECT_EQ(ErrorOf([&] { labels[1]; }), "340: Control array element '1' doesn't exist");
  EXPECT_EQ(ErrorOf([&] { labels[-1]; }), "340: Control array element '-1' doesn't exist");
}

TEST_F(ControlArrayTest, UnloadingStartsWithTheLastMemberAndKeepsTheFirst) {
  Label* const first = &labels[0];
  labels.Load();
  labels.Load();
  HeadlessWatcher watcher(form, recorder);
  labels.UnloadAllButFirst();
  labels.UnloadAllButFirst();
  form.Watch(nullptr);
  EXPECT_TRUE(recorder.Shows({"removed lblAnd(2)", "removed lblAnd(1)"}));
  EXPECT_EQ(&labels[0], first);
  EXPECT_EQ(labels.Count(), 1);
}

}  // namespace

}  // namespace sifter
