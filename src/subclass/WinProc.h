#pragma once

#include "subclass/OneBasedArray.h"
#include "subclass/WindowSystem.h"

#include <cstdint>
#include <vector>

namespace sifter {

class HookClass;

// The table of the windows whose messages are being watched, and the window procedure that stands
// in for their own meanwhile. However many watch a window, its procedure is replaced once, and put
// back when the last of them leaves or the window ends.
//
// One process has one table, since a window can tell the procedure that it calls nothing but
// itself; over Windows it is ProcessWinProc in win32/Win32WindowSystem.h. The table belongs to the
// thread of the user interface.
class WinProc {
 public:
  // `windows` must outlive the table.
  explicit WinProc(WindowSystem& windows) : windows_(windows) {}
  WinProc(const WinProc&) = delete;
  WinProc& operator=(const WinProc&) = delete;

  // From now on `subscriber` is told of the window's messages, behind those who came earlier. It
  // must leave before it ends. Nothing happens for window 0 or when it is told already. Error 6
  // when 32767 windows are watched; this one is left alone then.
  void Hook(std::int32_t window, HookClass& subscriber);

  // Nothing happens for one who isn't told of the window's messages.
  void Unhook(std::int32_t window, HookClass& subscriber);

  // What the window's own procedure makes of a message; 0 for a window that isn't watched.
  std::intptr_t CallOriginal(std::int32_t window, std::uint32_t message, std::intptr_t wParam,
                             std::intptr_t lParam);

  // The replacement procedure. Tells the subscribers in the order of their coming, those who ask
  // for the message, then calls the window's own procedure with the same arguments and returns its
  // result. Returns 0 for a window that isn't watched.
  //
  // A subscriber may leave, send others away, end, or destroy the window while it is told: those
  // who have left are passed over, those who come are told from the next message on, and the
  // window's own procedure gets the message in any case. An error that comes out of a subscriber
  // ends there.
  //
  // When the window reports its own end or that of a child window whose identifier is 0, nobody is
  // told; after its own procedure has had the message it is watched no more.
  std::intptr_t WindowProcedure(std::int32_t window, std::uint32_t message, std::intptr_t wParam,
                                std::intptr_t lParam);

  // How many windows are watched.
  std::int16_t Count() const { return table_.Count(); }

 private:
  struct Subscription {
    HookClass* subscriber;
    std::uint64_t ticket;  // ascending in the order of joining, never used twice
  };

  struct Entry {
    std::int32_t window;
    std::vector<Subscription> subscribers;
    WindowSystem::Procedure original;
  };

  std::int16_t Find(std::int32_t window) const;
  void RemoveEntry(std::int16_t position);
  void Tell(std::int32_t window, std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam);
  Subscription NextSubscription(std::int32_t window, std::uint64_t after) const;
  std::intptr_t Call(WindowSystem::Procedure original, std::int32_t window, std::uint32_t message,
                     std::intptr_t wParam, std::intptr_t lParam);

  WindowSystem& windows_;
  OneBasedArray<Entry> table_;
  std::uint64_t lastTicket_ = 0;
};

}  // namespace sifter
