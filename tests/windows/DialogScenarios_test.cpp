#include "support/DialogScenarios.h"

#include "BoxOnScreen.h"
#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "User.h"
#include "support/HeadlessControls.h"
#include "win32/FormWindow.h"
#include "win32/MessageBoxPrompts.h"
#include "win32/NativeListView.h"
#include "win32/Win32FormHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace sifter {

namespace {

// Records what the form host is asked for, and asks another.
class RecordingFormHost final : public FormHost {
 public:
  RecordingFormHost(FormHost& host, Recorder& recorder) : host_(host), recorder_(recorder) {}

  void ShowModal(Form& form) override {
    recorder_.Line("show modal " + Quoted(form.Caption()));
    host_.ShowModal(form);
    recorder_.Line("modal showing ends");
  }
  void ShowModeless(Form& form) override {
    recorder_.Line("show " + Quoted(form.Caption()));
    host_.ShowModeless(form);
  }
  void Hide(Form& form) override {
    recorder_.Line("hide");
    host_.Hide(form);
  }
  void SetFocus(Form& form, Control& control) override {
    recorder_.Line("focus " + NameOf(control));
    host_.SetFocus(form, control);
  }
  void DeleteSystemMenuItem(std::int32_t position) override {
    recorder_.Line("delete system menu entry " + std::to_string(position));
    host_.DeleteSystemMenuItem(position);
  }
  void Unload(Form& form) override { host_.Unload(form); }

 private:
  FormHost& host_;
  Recorder& recorder_;
};

// Counts the message boxes that have been answered.
class CountingPrompts final : public Prompts {
 public:
  void Show(const Text& text, const Text& title, PromptIcon icon) override {
    prompts_.Show(text, title, icon);
    ++answered_;
  }
  int Answered() const { return answered_; }

 private:
  MessageBoxPrompts prompts_;
  int answered_ = 0;
};

// The dialog is a window over a native list view, and the user has a keyboard and a mouse.
class WindowStage final : public DialogStage {
 public:
  WindowStage() { windows_.SetOwner(form_.Parent()); }

  frmFilter& Dialog() override { return dialog_; }
  Ref<HostListView> List() override { return list_; }
  Recorder& Recording() override { return recorder_; }

  void Showing(const std::function<void()>& script) override {
    user_.Does([&] {
      user_.WaitsFor([&] {
        const FormWindow* window = windows_.WindowOf(dialog_);
        return window != nullptr && IsWindowVisible(window->Handle()) != FALSE;
      });
      script();
      EXPECT_FALSE(dialog_.Visible()) << "the script has left the dialog open";
      dialog_.Hide();
    });
    ShowLikeButton(dialog_, list_);
    user_.PumpUntilDone();
  }

  void Picks(std::int32_t row, TextView operatorWord) override {
    ComboBox& box = dialog_.cboOperator[row];
    const auto found = std::find(box.Entries().begin(), box.Entries().end(), operatorWord);
    ASSERT_NE(found, box.Entries().end());
    user_.MovesTo({0, 0});  // the entry under the mouse would be highlighted
    GoTo(box);
    user_.Presses(VK_F4);
    user_.Presses(VK_HOME);
    for (auto entry = box.Entries().begin(); entry != found; ++entry) user_.Presses(VK_DOWN);
    user_.Presses(VK_RETURN);
  }

  void Types(ComboBox& box, TextView text) override { TypesInto(box, text); }
  void Types(TextBox& box, TextView text) override { TypesInto(box, text); }

  void TurnsMonth(DatePicker& picker, int months) override {
    GoTo(picker);
    user_.Presses(VK_RIGHT);  // to the month
    for (int i = 0; i < std::abs(months); ++i) user_.Presses(months < 0 ? VK_DOWN : VK_UP);
  }

  void Drags(Label& label, Control& field) override {
    user_.MovesTo(MiddleOf(WindowOf(label)));
    user_.HoldsButton();
    user_.MovesTo(MiddleOf(WindowOf(field)));
    user_.LetsButtonGo();
  }

  void Ticks(CheckBox& box) override { user_.Clicks(WindowOf(box)); }

  void Presses(CommandButton& button) override {
    user_.Clicks(WindowOf(button));
    AnswersBoxes();
  }

  void PressesEnterIn(Control& field) override {
    GoTo(field);
    user_.Presses(VK_RETURN);
    AnswersBoxes();
  }

 private:
  HWND WindowOf(const Control& control) const {
    return windows_.WindowOf(dialog_)->Find(control)->Handle();
  }
  void GoTo(Control& control) { SetFocus(WindowOf(control)); }

  void TypesInto(Control& field, TextView text) {
    GoTo(field);
    user_.Presses(VK_HOME);
    user_.Presses({VK_SHIFT, VK_END});
    user_.Presses(VK_DELETE);
    user_.Types(text);
  }

  void AnswersBoxes() {
    while (HWND box = FindMessageBox()) {
      recorder_.Line("box " + DescribeMessageBox(box));
      EXPECT_EQ(GetWindow(box, GW_OWNER), windows_.WindowOf(dialog_)->Handle());
      const int before = prompts_.Answered();
      user_.Presses(VK_RETURN);
      user_.WaitsFor([&] { return prompts_.Answered() > before; });
    }
  }

  ListViewOnAForm form_;
  const Ref<HostListView> list_ = NativeListView(form_.List());
  Recorder recorder_;
  ListWatcher watcher_{form_.List(), list_, recorder_};
  ClockFake clock_;
  EnUsConversions conversions_{clock_};
  Win32FormHost windows_;
  RecordingFormHost host_{windows_, recorder_};
  CountingPrompts prompts_;
  frmFilter dialog_{{host_, prompts_, conversions_, clock_}};
  User user_;
};

class WindowScenarios : public testing::TestWithParam<DialogScenario> {};

TEST_P(WindowScenarios, GiveTheRecordingOfTheHeadlessDialog) {
  WindowStage stage;
  Play(GetParam(), stage);
  EXPECT_TRUE(stage.Recording().Shows(GetParam().recording));
}

INSTANTIATE_TEST_SUITE_P(Dialog, WindowScenarios, testing::ValuesIn(DialogScenarios()),
                         [](const auto& scenario) { return std::string(scenario.param.name); });

}  // namespace

}  // namespace sifter
