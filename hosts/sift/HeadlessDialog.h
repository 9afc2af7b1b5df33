#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"
#include "filterdialog/frmFilter.h"
#include "forms/FormHost.h"
#include "forms/Prompts.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace sifter {

// A message box or an error box that the dialog showed.
struct Message {
  Text title;
  Text text;

  friend bool operator==(const Message&, const Message&) = default;
};

// The criteria dialog without a window. Who uses it stands in for the user, who sees the modal
// dialog, works on its controls and presses its buttons; message boxes are answered at once and
// kept.
class HeadlessDialog final : private FormHost, private Prompts {
 public:
  // Both must outlive this object.
  HeadlessDialog(const Conversions& conversions, const Clock& clock);

  frmFilter& Form() { return form_; }

  // Shows the dialog modally; `user` works on it meanwhile. If it is still on the screen after
  // that, it is hidden by its button.
  void ShowModal(const std::function<void()>& user);

  // All boxes so far, in order.
  const std::vector<Message>& Messages() const { return messages_; }

 private:
  void ShowModal(sifter::Form& form) override;
  void ShowModeless(sifter::Form&) override {}
  void Hide(sifter::Form&) override {}
  void SetFocus(sifter::Form&, Control&) override {}
  void DeleteSystemMenuItem(std::int32_t) override {}
  void Unload(sifter::Form&) override {}
  void Show(const Text& text, const Text& title, PromptIcon icon) override;

  std::vector<Message> messages_;
  std::function<void()> user_;
  frmFilter form_;
};

}  // namespace sifter
