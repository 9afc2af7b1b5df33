#pragma once

#include "subclass/WinProc.h"
#include "subclass/WindowSystem.h"

namespace sifter {

// The windows of this process, spoken to through the ANSI forms of the platform's functions.
//
// Replacing the procedure of a Unicode window makes it an ANSI window for that long: the messages
// that list views are filled by keep their texts, WM_SETTEXT loses what the code page lacks. What
// stands for a replaced procedure may be a handle that only CallProcedure can call.
class Win32WindowSystem final : public WindowSystem {
 public:
  Procedure WindowProcedure(std::int32_t window) const override;
  void SetWindowProcedure(std::int32_t window, Procedure procedure) override;
  std::intptr_t CallProcedure(Procedure procedure, std::int32_t window, std::uint32_t message,
                              std::intptr_t wParam, std::intptr_t lParam) override;
  void SetFocus(std::int32_t window) override;
  Procedure ReplacementProcedure() const override;
};

WindowSystem& ProcessWindows();

// The one table of this process, on the thread of its user interface. While it counts a window, the
// code of this module must stay loaded.
WinProc& ProcessWinProc();

}  // namespace sifter
