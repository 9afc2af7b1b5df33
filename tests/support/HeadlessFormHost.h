#pragma once

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "forms/Control.h"
#include "forms/Form.h"
#include "forms/FormHost.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace sifter {

// "cboOperator(2)", or "cmdApply" for a control that stands alone.
inline std::string NameOf(const Control& control) {
  const std::string name = control.Name().ToUtf8();
  if (control.Index() == Control::kNoIndex) return name;
  return name + '(' + std::to_string(control.Index()) + ')';
}

// Puts forms before a user who is a script, and records what it is asked to do:
//
//   show modal "Row Sifter"
//   delete system menu entry 6
//   focus cmdReset
//   hide
//   modal showing ends
class HeadlessFormHost final : public FormHost {
 public:
  explicit HeadlessFormHost(Recorder& recorder) : recorder_(recorder) {}

  // What the user does while the form is shown modally; one script for each showing to come. It
  // has to leave the form hidden.
  void During(std::function<void()> script) { scripts_.push_back(std::move(script)); }

  // From now on a control that is given the focus refuses it with this error.
  void RefuseFocus(RuntimeError error) { refusal_ = std::move(error); }

  // From now on a form can't be brought onto the screen.
  void RefuseToShow(RuntimeError error) { noShow_ = std::move(error); }
  void ShowAgain() { noShow_.reset(); }

  // What happens inside the platform when the focus moves.
  void OnFocus(std::function<void()> work) { onFocus_ = std::move(work); }

  void ShowModal(Form& form) override {
    recorder_.Line("show modal " + Quoted(form.Caption()));
    if (noShow_) throw RuntimeError(*noShow_);
    if (form.Activate) form.Activate();
    Play(form);
    recorder_.Line("modal showing ends");
  }

  void ShowModeless(Form& form) override {
    recorder_.Line("show " + Quoted(form.Caption()));
    if (noShow_) throw RuntimeError(*noShow_);
    if (form.Activate) form.Activate();
  }

  void Hide(Form&) override { recorder_.Line("hide"); }

  void SetFocus(Form&, Control& control) override {
    recorder_.Line("focus " + NameOf(control));
    if (refusal_) throw RuntimeError(*refusal_);
    if (onFocus_) onFocus_();
  }

  void DeleteSystemMenuItem(std::int32_t position) override {
    recorder_.Line("delete system menu entry " + std::to_string(position));
  }

  void Unload(Form& form) override {
    recorder_.Line("unload with " + std::to_string(form.Controls().size()) + " controls");
  }

 private:
  void Play(Form& form) {
    if (scripts_.empty()) {
      ADD_FAILURE() << "nobody is there to close the dialog";
    } else {
      const std::function<void()> script = std::move(scripts_.front());
      scripts_.pop_front();
      script();
      EXPECT_FALSE(form.Visible()) << "the script has left the dialog open";
    }
    form.Hide();
  }

  Recorder& recorder_;
  std::deque<std::function<void()>> scripts_;
  std::optional<RuntimeError> refusal_;
  std::optional<RuntimeError> noShow_;
  std::function<void()> onFocus_;
};

}  // namespace sifter
