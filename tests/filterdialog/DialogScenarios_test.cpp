#include "support/DialogScenarios.h"

#include "support/HeadlessControls.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessPrompts.h"
#include "support/ListObserverRecorder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace sifter {

namespace {

// As on a screen, the form becomes the active window again when a message box has been answered.
class PromptsOfAForm final : public Prompts {
 public:
  explicit PromptsOfAForm(Recorder& recorder) : prompts_(recorder) {}
  void SetForm(const Form& form) { form_ = &form; }

  void Show(const Text& text, const Text& title, PromptIcon icon) override {
    prompts_.Show(text, title, icon);
    if (form_ != nullptr && form_->Visible() && form_->Activate) form_->Activate();
  }

 private:
  HeadlessPrompts prompts_;
  const Form* form_ = nullptr;
};

// The user is a script that sets properties.
class HeadlessStage final : public DialogStage {
 public:
  HeadlessStage() { prompts_.SetForm(dialog_); }

  frmFilter& Dialog() override { return dialog_; }
  Ref<HostListView> List() override { return list_; }
  Recorder& Recording() override { return recorder_; }

  void Showing(const std::function<void()>& script) override {
    host_.During(script);
    ShowLikeButton(dialog_, list_);
  }

  void Picks(std::int32_t row, TextView operatorWord) override {
    ComboBox& box = dialog_.cboOperator[row];
    const auto found = std::find(box.Entries().begin(), box.Entries().end(), operatorWord);
    ASSERT_NE(found, box.Entries().end());
    box.SetListIndex(static_cast<std::int32_t>(found - box.Entries().begin()));
  }
  void Types(ComboBox& box, TextView text) override { box.SetText(Text(text)); }
  void Types(TextBox& box, TextView text) override { box.Edit(Text(text)); }
  void TurnsMonth(DatePicker& picker, int months) override {
    CalendarTime day = *CalendarOf(picker.Value());
    day.month += months;
    picker.ChooseDay(DateOf(day));
  }
  void Drags(Label& label, Control& field) override { field.Drop(label); }
  void Ticks(CheckBox& box) override { box.SetValue(CheckValue::kChecked); }
  void Presses(CommandButton& button) override { button.SetValue(true); }
  void PressesEnterIn(Control& field) override { field.PressKey(13); }

 private:
  const Ref<MemoryListView> list_ = MakeRef<MemoryListView>();
  Recorder recorder_;
  ListObserverRecorder observer_{*list_, recorder_};
  ClockFake clock_;
  EnUsConversions conversions_{clock_};
  HeadlessFormHost host_{recorder_};
  PromptsOfAForm prompts_{recorder_};
  frmFilter dialog_{{host_, prompts_, conversions_, clock_}};
};

class HeadlessScenarios : public testing::TestWithParam<DialogScenario> {};

TEST_P(HeadlessScenarios, GiveTheirRecording) {
  HeadlessStage stage;
  Play(GetParam(), stage);
  EXPECT_TRUE(stage.Recording().Shows(GetParam().recording));
}

INSTANTIATE_TEST_SUITE_P(Dialog, HeadlessScenarios, testing::ValuesIn(DialogScenarios()),
                         [](const auto& scenario) { return std::string(scenario.param.name); });

}  // namespace

}  // namespace sifter
