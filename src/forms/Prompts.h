#pragma once

#include "base/Text.h"

namespace sifter {

enum class PromptIcon { kNone, kExclamation };

// Port: message boxes with an OK button only.
class Prompts {
 public:
  // The title of a box that was given none: the library's own.
  static constexpr TextView kDefaultTitle = u"RowSifter";

  virtual ~Prompts() = default;

  // Returns when the user has answered. Messages may be dispatched meanwhile.
  virtual void Show(const Text& text, const Text& title, PromptIcon icon) = 0;
};

}  // namespace sifter
