#include "win32/MessageBoxPrompts.h"

#include "win32/TerminatedText.h"

#include <windows.h>

namespace sifter {

void MessageBoxPrompts::Show(const Text& text, const Text& title, PromptIcon icon) {
  const HWND owner = GetActiveWindow();
  UINT style = MB_OK;
  if (icon == PromptIcon::kExclamation) style |= MB_ICONEXCLAMATION;
  if (owner == nullptr) style |= MB_TASKMODAL;
  MessageBoxW(owner, TerminatedText(text).Get(), TerminatedText(title).Get(), style);
}

}  // namespace sifter
