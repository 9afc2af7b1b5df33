#include "filterdialog/ReportErrors.h"

namespace sifter {

void ShowError(Prompts& prompts, const RuntimeError& error) {
  const Text text = Concat({u"Error number is ", IntegerToText(error.Number()).View(), u", ",
                            error.Description().View()});
  prompts.Show(text, u"Error"_text, PromptIcon::kExclamation);
}

}  // namespace sifter
