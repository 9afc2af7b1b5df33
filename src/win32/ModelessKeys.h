#pragma once

#include "win32/FormWindow.h"

#include <vector>
#include <windows.h>

namespace sifter {

// A form that is shown modeless runs on the host's message loop, which knows nothing of its
// keyboard. A hook on that loop's messages deals with it while there is such a form.
class ModelessKeys {
 public:
  ModelessKeys() = default;
  ~ModelessKeys();
  ModelessKeys(const ModelessKeys&) = delete;
  ModelessKeys& operator=(const ModelessKeys&) = delete;

  void Watch(FormWindow& window);
  void Forget(FormWindow& window);

 private:
  static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam);
  bool Translate(MSG& message);

  std::vector<FormWindow*> windows_;
  HHOOK hook_ = nullptr;
};

}  // namespace sifter
