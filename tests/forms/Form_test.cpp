#include "forms/Form.h"

#include "forms/CommandButton.h"
#include "forms/DatePicker.h"
#include "forms/Frame.h"
#include "forms/TextBox.h"
#include "support/Errors.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessWatcher.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace sifter {

namespace {

class Dialog final : public Form {
 public:
  explicit Dialog(FormHost& host) : Form(host) { SetCaption(u"Dialog"); }
  ~Dialog() override { Unload(); }

  Frame frame{*this, u"Frame1"};
  TextBox box{*this, u"txtFrom", 0};
  CommandButton button{*this, u"cmdReset"};
};

class FormTest : public testing::Test {
 protected:
  void ShowModeless() {
    dialog->Show(ShowMode::kModeless);
    recorder.Clear();
  }

  Recorder recorder;
  HeadlessFormHost host{recorder};
  std::optional<Dialog> dialog{std::in_place, host};
};

TEST_F(FormTest, AModalShowingLastsUntilTheFormIsHidden) {
  dialog->Activate = [&] { recorder.Line("activate"); };
  host.During([&] {
    EXPECT_TRUE(dialog->Visible());
    recorder.Line("user");
    dialog->Hide();
  });
  dialog->Show(ShowMode::kModal);
  EXPECT_FALSE(dialog->Visible());
  EXPECT_TRUE(
      recorder.Shows({"show modal \"Dialog\"", "activate", "user", "hide", "modal showing ends"}));
}

TEST_F(FormTest, AModelessShowingReturnsAtOnce) {
  dialog->Show(ShowMode::kModeless);
  EXPECT_TRUE(dialog->Visible());
  EXPECT_TRUE(recorder.Shows({"show \"Dialog\""}));
}

TEST_F(FormTest, AVisibleFormIsLeftAsItIsWhenShownModeless) {
  ShowModeless();
  dialog->Show(ShowMode::kModeless);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(FormTest, AVisibleFormCannotBeShownModally) {
  ShowModeless();
  EXPECT_EQ(ErrorOf([&] { dialog->Show(ShowMode::kModal); }),
            "400: Form already displayed; can't show modally");
  EXPECT_TRUE(dialog->Visible());
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(FormTest, AFormThatCannotBeShownStaysHiddenAndCanBeTriedAgain) {
  host.RefuseToShow(RuntimeError(ErrorNumber::kOutOfMemory));
  EXPECT_EQ(ErrorOf([&] { dialog->Show(ShowMode::kModal); }), "7: Out of memory");
  EXPECT_EQ(ErrorOf([&] { dialog->Show(ShowMode::kModeless); }), "7: Out of memory");
  EXPECT_FALSE(dialog->Visible());
  host.ShowAgain();
  host.During([&] { dialog->Hide(); });
  EXPECT_EQ(ErrorOf([&] { dialog->Show(ShowMode::kModal); }), "nothing");
}

TEST_F(FormTest, HidingAHiddenFormDoesNothing) {
  dialog->Hide();
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(FormTest, TheFocusMovesOnAVisibleFormOnly) {
  dialog->SetFocus(dialog->button);
  EXPECT_EQ(dialog->ActiveControl(), nullptr);
  EXPECT_TRUE(recorder.Shows({}));
  ShowModeless();
  dialog->SetFocus(dialog->button);
  EXPECT_EQ(dialog->ActiveControl(), &dialog->button);
  EXPECT_TRUE(recorder.Shows({"focus cmdReset"}));
}

TEST_F(FormTest, AControlThatIsHiddenOrDisabledCannotTakeTheFocus) {
  ShowModeless();
  dialog->SetFocus(dialog->button);
  recorder.Clear();
  dialog->box.SetVisible(false);
  dialog->SetFocus(dialog->box);
  dialog->box.SetVisible(true);
  dialog->box.SetEnabled(false);
  dialog->SetFocus(dialog->box);
  EXPECT_EQ(dialog->ActiveControl(), &dialog->button);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(FormTest, NeitherCanAControlInAHiddenContainer) {
  ShowModeless();
  DatePicker picker(*dialog, u"dtpFrom", 0);
  picker.SetContainer(&dialog->frame);
  dialog->box.SetContainer(&picker);
  dialog->frame.SetVisible(false);
  dialog->SetFocus(dialog->box);
  EXPECT_TRUE(recorder.Shows({}));
  dialog->frame.SetVisible(true);
  dialog->SetFocus(dialog->box);
  EXPECT_TRUE(recorder.Shows({"focus txtFrom(0)"}));
}

TEST_F(FormTest, TheUserMovesTheFocusAsWell) {
  dialog->FocusMoved(&dialog->box);
  EXPECT_EQ(dialog->ActiveControl(), &dialog->box);
  dialog->FocusMoved(nullptr);
  EXPECT_EQ(dialog->ActiveControl(), nullptr);
}

TEST_F(FormTest, AControlThatEndsNoLongerHasTheFocus) {
  ShowModeless();
  auto extra = std::make_unique<TextBox>(*dialog, u"txtFrom", std::int16_t{1});
  dialog->SetFocus(*extra);
  ASSERT_EQ(dialog->ActiveControl(), extra.get());
  extra.reset();
  EXPECT_EQ(dialog->ActiveControl(), nullptr);
}

TEST_F(FormTest, CaptionAndMeasuresAnnounceTheirChanges) {
  dialog->Changed = [&] {
    recorder.Line(Quoted(dialog->Caption()) + ' ' + Shown(dialog->Width()) + " x " +
                  Shown(dialog->Height()));
  };
  dialog->SetCaption(u"Filter");
  dialog->SetCaption(u"Filter");
  dialog->SetWidth(9720);
  dialog->SetWidth(9720);
  dialog->SetHeight(2415);
  EXPECT_TRUE(
      recorder.Shows({"\"Filter\" 0 x 0", "\"Filter\" 9720 x 0", "\"Filter\" 9720 x 2415"}));
}

TEST_F(FormTest, AFormThatEndsIsUnloadedOnceWithItsControlsStillThere) {
  HeadlessWatcher watcher(*dialog, recorder);
  ShowModeless();
  dialog.reset();
  EXPECT_TRUE(recorder.Shows({"unload with 3 controls"}));
}

}  // namespace

}  // namespace sifter
