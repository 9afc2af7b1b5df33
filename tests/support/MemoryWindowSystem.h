#pragma once

#include "subclass/WinProc.h"
#include "subclass/WindowSystem.h"

#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace sifter {

// Windows in memory: handles with a window procedure each. A message is dealt with by calling the
// window's procedure, as a system does it, and the end of a window is announced by the messages 2
// and 130. It brings the table of its watched windows along.
class MemoryWindowSystem : public WindowSystem {
 public:
  using Handler = std::function<std::intptr_t(std::int32_t window, std::uint32_t message,
                                              std::intptr_t wParam, std::intptr_t lParam)>;

  // What only the replacement procedure has as its address.
  static constexpr Procedure kReplacement = -15;

  WinProc& Watched() { return watched_; }

  // A new window with this procedure. Handles start at 101, addresses at 0x1000.
  std::int32_t Open(Handler procedure) {
    const Procedure address = 0x1000 + static_cast<Procedure>(handlers_.size()) * 0x10;
    handlers_.emplace(address, std::move(procedure));
    windows_.emplace(++lastWindow_, address);
    return lastWindow_;
  }
  // One that answers every message with 0.
  std::int32_t Open() {
    return Open([](std::int32_t, std::uint32_t, std::intptr_t, std::intptr_t) { return 0; });
  }

  bool IsOpen(std::int32_t window) const { return windows_.contains(window); }

  std::intptr_t Send(std::int32_t window, std::uint32_t message, std::intptr_t wParam = 0,
                     std::intptr_t lParam = 0) {
    const auto found = windows_.find(window);
    return found == windows_.end() ? 0 : Run(found->second, window, message, wParam, lParam);
  }

  void Destroy(std::int32_t window) {
    Send(window, 2);
    Send(window, 130);
    windows_.erase(window);
  }

  Procedure WindowProcedure(std::int32_t window) const override {
    const auto found = windows_.find(window);
    return found == windows_.end() ? 0 : found->second;
  }

  void SetWindowProcedure(std::int32_t window, Procedure procedure) override {
    const auto found = windows_.find(window);
    if (found != windows_.end()) found->second = procedure;
  }

  std::intptr_t CallProcedure(Procedure procedure, std::int32_t window, std::uint32_t message,
                              std::intptr_t wParam, std::intptr_t lParam) override {
    return Run(procedure, window, message, wParam, lParam);
  }

  void SetFocus(std::int32_t window) override {
    if (IsOpen(window)) focus_ = window;
  }
  std::int32_t Focus() const { return focus_; }  // 0 as long as no window has got it

  Procedure ReplacementProcedure() const override { return kReplacement; }

 private:
  std::intptr_t Run(Procedure procedure, std::int32_t window, std::uint32_t message,
                    std::intptr_t wParam, std::intptr_t lParam) {
    if (procedure == kReplacement) return watched_.WindowProcedure(window, message, wParam, lParam);
    return handlers_.at(procedure)(window, message, wParam, lParam);
  }

  std::map<Procedure, Handler> handlers_;
  std::map<std::int32_t, Procedure> windows_;
  std::int32_t lastWindow_ = 100;
  std::int32_t focus_ = 0;
  WinProc watched_{*this};
};

}  // namespace sifter
