#include "forms/Control.h"

#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessWatcher.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace sifter {

namespace {

class ControlTest : public testing::Test {
 protected:
  Recorder recorder;
  HeadlessFormHost host{recorder};
  Form form{host};
};

TEST_F(ControlTest, StartsVisibleEnabledAndBlankOnTheFormItself) {
  const Label label(form, u"lblName", 3);
  EXPECT_EQ(label.Kind(), ControlKind::kLabel);
  EXPECT_EQ(NameOf(label), "lblName(3)");
  EXPECT_EQ(&label.Parent(), static_cast<ControlParent*>(&form));
  EXPECT_EQ(label.Container(), nullptr);
  EXPECT_EQ((std::vector<double>{label.Left(), label.Top(), label.Width(), label.Height()}),
            (std::vector<double>{0, 0, 0, 0}));
  EXPECT_TRUE(label.Visible());
  EXPECT_TRUE(label.Enabled());
  EXPECT_EQ(label.Tag(), u"");
  EXPECT_EQ(label.ToolTipText(), u"");
}

TEST_F(ControlTest, AControlThatStandsAloneHasNoIndex) {
  const Label label(form, u"lblCaption");
  EXPECT_EQ(label.Index(), Control::kNoIndex);
  EXPECT_EQ(NameOf(label), "lblCaption");
}

TEST_F(ControlTest, TheFormListsItsControlsInTheOrderInWhichTheyCame) {
  Label first(form, u"a");
  auto second = std::make_unique<Label>(form, u"b");
  TextBox third(form, u"c");
  EXPECT_EQ(form.Controls(), (std::vector<Control*>{&first, second.get(), &third}));
  second.reset();
  EXPECT_EQ(form.Controls(), (std::vector<Control*>{&first, &third}));
}

TEST_F(ControlTest, TheWatcherIsToldOfEveryChangeOnce) {
  Frame frame(form, u"Frame1");
  HeadlessWatcher watcher(form, recorder);
  {
    TextBox box(form, u"txtFrom", 0);
    box.Move(120, 240, 0, 315);
    box.SetLeft(120);
    box.SetVisible(false);
    box.SetVisible(false);
    box.SetEnabled(false);
    box.SetToolTipText(u"tip");
    box.SetContainer(&frame);
    box.SetContainer(nullptr);
    box.SetTag(u"1");
  }
  EXPECT_TRUE(recorder.Shows({
      "added txtFrom(0)",
      "txtFrom(0).Left 120",
      "txtFrom(0).Top 240",
      "txtFrom(0).Height 315",
      "txtFrom(0).Visible False",
      "txtFrom(0).Enabled False",
      "txtFrom(0).ToolTipText \"tip\"",
      "txtFrom(0).Container Frame1",
      "txtFrom(0).Container form",
      "removed txtFrom(0)",
  }));
  form.Watch(nullptr);
}

TEST_F(ControlTest, WithoutAWatcherNobodyIsTold) {
  HeadlessWatcher watcher(form, recorder);
  form.Watch(nullptr);
  Label label(form, u"a");
  label.SetCaption(u"x");
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(ControlTest, EventsReachTheirHandlers) {
  Label label(form, u"lblColumnHeaderText", 1);
  TextBox box(form, u"txtFrom", 0);
  box.KeyDown = [&](std::int16_t key) { recorder.Line("key " + std::to_string(key)); };
  box.DragDrop = [&](Control& source) { recorder.Line("drop of " + NameOf(source)); };
  box.PressKey(13);
  box.PressKey(65);
  box.Drop(label);
  EXPECT_TRUE(recorder.Shows({"key 13", "key 65", "drop of lblColumnHeaderText(1)"}));
}

TEST_F(ControlTest, EventsWithoutAHandlerDoNothing) {
  Label label(form, u"a");
  const TextBox box(form, u"b");
  box.PressKey(13);
  box.Drop(label);
  EXPECT_TRUE(recorder.Shows({}));
}

}  // namespace

}  // namespace sifter
