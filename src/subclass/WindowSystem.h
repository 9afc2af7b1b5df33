#pragma once

#include <cstdint>

namespace sifter {

// Port: the windows of the process and their window procedures. Windows are told by 32-bit
// handles, which is what handles fit into in 64-bit processes too; addresses and the parameters
// of messages are as wide as a pointer.
class WindowSystem {
 public:
  // The address of a window procedure, or what stands for it: only CallProcedure knows how to call
  // it. 0 is none.
  using Procedure = std::intptr_t;

  virtual ~WindowSystem() = default;

  // 0 for a window that doesn't exist.
  virtual Procedure WindowProcedure(std::int32_t window) const = 0;

  // Nothing happens to a window that doesn't exist.
  virtual void SetWindowProcedure(std::int32_t window, Procedure procedure) = 0;

  virtual std::intptr_t CallProcedure(Procedure procedure, std::int32_t window,
                                      std::uint32_t message, std::intptr_t wParam,
                                      std::intptr_t lParam) = 0;

  // Gives a window the input focus. Nothing happens for one that doesn't exist.
  virtual void SetFocus(std::int32_t window) = 0;

  // A window procedure that passes every message on to the WinProc over this port.
  virtual Procedure ReplacementProcedure() const = 0;
};

}  // namespace sifter
