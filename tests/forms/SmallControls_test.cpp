#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/DatePicker.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureButton.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessWatcher.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

class SmallControlsTest : public testing::Test {
 protected:
  ~SmallControlsTest() override { form.Watch(nullptr); }

  Recorder recorder;
  HeadlessFormHost host{recorder};
  Form form{host};
  HeadlessWatcher watcher{form, recorder};
};

using CheckBoxTest = SmallControlsTest;
using CommandButtonTest = SmallControlsTest;
using PictureButtonTest = SmallControlsTest;
using DatePickerTest = SmallControlsTest;
using TextBoxTest = SmallControlsTest;
using TimerTest = SmallControlsTest;

TEST_F(CheckBoxTest, ANewValueRaisesClickWhoeverSetsIt) {
  CheckBox box(form, u"chkCaseSensitive");
  box.Click = [&] { recorder.Line("click"); };
  recorder.Clear();
  box.SetValue(CheckValue::kChecked);
  box.SetValue(CheckValue::kChecked);
  box.SetValue(CheckValue::kGrayed);
  box.SetValue(CheckValue::kUnchecked);
  EXPECT_TRUE(recorder.Shows({
      "chkCaseSensitive.Value 1",
      "click",
      "chkCaseSensitive.Value 2",
      "click",
      "chkCaseSensitive.Value 0",
      "click",
  }));
}

TEST_F(CommandButtonTest, SettingItsValueToTrueIsAPress) {
  CommandButton button(form, u"cmdApply");
  button.Click = [&] { recorder.Line("click"); };
  recorder.Clear();
  button.SetValue(true);
  button.SetValue(false);
  button.SetValue(true);
  EXPECT_TRUE(recorder.Shows({"click", "click"}));
}

TEST_F(CommandButtonTest, APressWithoutAHandlerDoesNothing) {
  CommandButton button(form, u"cmdApply");
  recorder.Clear();
  button.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(PictureButtonTest, ShowsAPictureAndCanBePressed) {
  PictureButton button(form, u"cmdFilter");
  button.Click = [&] { recorder.Line("click"); };
  recorder.Clear();
  const Ref<Picture> full = MakeRef<Picture>(u"FilterFull");
  button.SetPicture(full);
  button.SetPicture(full);
  button.SetValue(true);
  button.SetValue(false);
  EXPECT_TRUE(recorder.Shows({"cmdFilter.Picture \"FilterFull\"", "click"}));
}

TEST_F(SmallControlsTest, CaptionsAnnounceTheirChanges) {
  Label label(form, u"lblAnd", 0);
  Frame frame(form, u"Frame1");
  CommandButton button(form, u"cmdApply");
  CheckBox box(form, u"chkCaseSensitive");
  recorder.Clear();
  label.SetCaption(u"and");
  label.SetCaption(u"and");
  frame.SetCaption(u"f");
  button.SetCaption(u"&Apply");
  box.SetCaption(u"Match");
  EXPECT_TRUE(recorder.Shows({
      "lblAnd(0).Caption \"and\"",
      "Frame1.Caption \"f\"",
      "cmdApply.Caption \"&Apply\"",
      "chkCaseSensitive.Caption \"Match\"",
  }));
}

TEST_F(SmallControlsTest, ALabelsBorderAnnouncesItsChange) {
  Label label(form, u"lblFrame");
  EXPECT_EQ(label.BorderStyle(), BorderStyle::kNone);
  recorder.Clear();
  std::vector<ControlProperty> told;
  struct Properties final : ControlWatcher {
    explicit Properties(std::vector<ControlProperty>& list) : list_(list) {}
    void OnControlAdded(Control&) override {}
    void OnControlRemoved(Control&) override {}
    void OnPropertyChanged(Control&, ControlProperty property) override {
      list_.push_back(property);
    }
    std::vector<ControlProperty>& list_;
  } properties(told);
  form.Watch(&properties);
  label.SetBorderStyle(BorderStyle::kSingle);
  label.SetBorderStyle(BorderStyle::kSingle);
  EXPECT_EQ(told, std::vector<ControlProperty>{ControlProperty::kBorderStyle});
  form.Watch(&watcher);
}

TEST_F(TimerTest, ItsOwnWatcherHearsOfTimersOnly) {
  struct Heard final : ControlWatcher {
    void OnControlAdded(Control& control) override { Add("added ", control); }
    void OnControlRemoved(Control&) override { list.push_back("removed"); }
    void OnPropertyChanged(Control& control, ControlProperty) override { Add("changed ", control); }
    void Add(const char* what, const Control& control) {
      list.push_back(what + control.Name().ToUtf8());
    }
    std::vector<std::string> list;
  } heard;
  form.WatchTimers(&heard);
  {
    Label label(form, u"lblAnd");
    label.SetCaption(u"and");
    Timer timer(form, u"Timer1");
    timer.SetInterval(50);
    timer.SetEnabled(true);  // as it is
    timer.SetEnabled(false);
  }
  EXPECT_EQ(heard.list, (std::vector<std::string>{"added Timer1", "changed Timer1",
                                                  "changed Timer1", "removed"}));
  form.WatchTimers(nullptr);
}

TEST_F(DatePickerTest, TheUsersDayKeepsTheTimeThatWasSet) {
  struct Case {
    double before, day, after;
  };
  const Case cases[] = {
      {38353, 38360, 38360},    {38353.5, 38360, 38360.5},
      {38353.25, -2, -2.25},  // before day 0 the time still counts forward from midnight
      {-2.25, 38360, 38360.25}, {0.75, 0, 0.75},
  };
  for (const Case& c : cases) {
    DatePicker picker(form, u"dtpFrom", 0);
    picker.SetValue(Date{c.before});
    picker.ChooseDay(Date{c.day});
    EXPECT_EQ(picker.Value(), Date{c.after}) << c.before << " then " << c.day;
  }
}

TEST_F(DatePickerTest, AnnouncesValueAndColour) {
  DatePicker picker(form, u"dtpFrom", 0);
  EXPECT_EQ(picker.BackColor(), kWindowBackground);
  recorder.Clear();
  picker.SetValue(Date{2});
  picker.SetValue(Date{2});
  picker.SetBackColor(255);
  EXPECT_TRUE(recorder.Shows({"dtpFrom(0).Value #2#", "dtpFrom(0).BackColor 255"}));
}

TEST_F(TextBoxTest, AnUnlockedBoxTakesWhatIsTyped) {
  TextBox box(form, u"txtFrom", 0);
  box.InputFilter = [](TextView) { return false; };
  EXPECT_TRUE(box.Edit(u"5"));
  EXPECT_EQ(box.Text(), u"5");
}

TEST_F(TextBoxTest, ALockedBoxTakesNothingByItself) {
  TextBox box(form, u"txtFrom", 0);
  box.SetText(u"5");
  box.SetLocked(true);
  EXPECT_FALSE(box.Edit(u"6"));
  EXPECT_EQ(box.Text(), u"5");
}

TEST_F(TextBoxTest, ALockedBoxTakesWhatItsFilterLetsThrough) {
  TextBox box(form, u"txtFrom", 0);
  box.SetLocked(true);
  box.InputFilter = [](TextView text) { return text.starts_with(u'['); };
  EXPECT_FALSE(box.Edit(u"5"));
  EXPECT_TRUE(box.Edit(u"[D"));
  EXPECT_EQ(box.Text(), u"[D");
}

TEST_F(TextBoxTest, CodeWritesALockedBox) {
  TextBox box(form, u"txtFrom", 0);
  box.SetLocked(true);
  box.SetText(u"5");
  EXPECT_EQ(box.Text(), u"5");
}

TEST_F(TextBoxTest, AnnouncesTextLockBorderAndColour) {
  TextBox box(form, u"txtFrom", 0);
  recorder.Clear();
  box.SetText(u"5");
  box.SetText(u"5");
  box.SetLocked(true);
  box.SetBorderStyle(BorderStyle::kNone);
  box.SetBackColor(255);
  EXPECT_TRUE(recorder.Shows({
      "txtFrom(0).Text \"5\"",
      "txtFrom(0).Locked True",
      "txtFrom(0).BorderStyle 0",
      "txtFrom(0).BackColor 255",
  }));
}

TEST_F(TimerTest, TicksWhileItIsEnabledAndHasAnInterval) {
  Timer timer(form, u"Timer1");
  timer.Tick = [&] { recorder.Line("tick"); };
  recorder.Clear();
  timer.Elapse();
  timer.SetInterval(50);
  timer.Elapse();
  timer.SetEnabled(false);
  timer.Elapse();
  timer.SetEnabled(true);
  timer.Elapse();
  EXPECT_TRUE(recorder.Shows({
      "Timer1.Interval 50",
      "tick",
      "Timer1.Enabled False",
      "Timer1.Enabled True",
      "tick",
  }));
}

TEST_F(TimerTest, WithoutAHandlerATickIsNothing) {
  Timer timer(form, u"Timer1");
  timer.SetInterval(50);
  recorder.Clear();
  timer.Elapse();
  EXPECT_TRUE(recorder.Shows({}));
}

}  // namespace

}  // namespace sifter
