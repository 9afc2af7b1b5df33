#pragma once

#include "forms/Prompts.h"

namespace sifter {

// The system's message boxes, owned by the window that is active on this thread when they come:
// the dialog, or the host's window. Without one, all windows of the thread wait for the answer.
class MessageBoxPrompts final : public Prompts {
 public:
  void Show(const Text& text, const Text& title, PromptIcon icon) override;
};

}  // namespace sifter
