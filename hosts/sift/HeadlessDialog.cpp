#include "sift/HeadlessDialog.h"

namespace sifter {

HeadlessDialog::HeadlessDialog(const Conversions& conversions, const Clock& clock)
    : form_({.forms = *this, .prompts = *this, .conversions = conversions, .clock = clock}) {}

void HeadlessDialog::ShowModal(const std::function<void()>& user) {
  user_ = user;
  form_.Show(ShowMode::kModal);
}

void HeadlessDialog::ShowModal(sifter::Form&) {
  user_();
  form_.cmdHideFilter.SetValue(true);
}

void HeadlessDialog::Show(const Text& text, const Text& title, PromptIcon) {
  messages_.push_back({title, text});
}

}  // namespace sifter
