#pragma once

#include "base/Text.h"
#include "forms/Prompts.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

// Message boxes that are answered at once. Each is recorded as
//
//   box "Error" ! "Error number is 6, Overflow"
//   box "RowSifter" "data type is number but parameter equals 10@"
//
// the "!" being the exclamation mark, and kept in Boxes() in the same form without "box ".
class HeadlessPrompts final : public Prompts {
 public:
  explicit HeadlessPrompts(Recorder& recorder) : recorder_(recorder) {}

  const std::vector<std::string>& Boxes() const { return boxes_; }
  void Forget() { boxes_.clear(); }

  // What happens while a box is up, after it has been recorded.
  void WhileUp(std::function<void()> work) { work_ = std::move(work); }

  void Show(const Text& text, const Text& title, PromptIcon icon) override {
    const char* const mark = icon == PromptIcon::kExclamation ? " ! " : " ";
    boxes_.push_back(Quoted(title) + mark + Quoted(text));
    recorder_.Line("box " + boxes_.back());
    if (work_) work_();
  }

 private:
  Recorder& recorder_;
  std::vector<std::string> boxes_;
  std::function<void()> work_;
};

// As the error box shows an error.
inline std::string ErrorBox(const std::string& numberAndDescription) {
  return "\"Error\" ! \"Error number is " + numberAndDescription + '"';
}

// As a message about a parameter is shown.
inline std::string Message(const std::string& text) { return "\"RowSifter\" \"" + text + '"'; }

}  // namespace sifter
