#include "subclass/WinProc.h"

#include "WatchedWindows.h"
#include "support/Errors.h"

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace sifter {

namespace {

class WinProcTest : public WatchedWindowsTest {};

TEST_F(WinProcTest, WindowZeroIsIgnored) {
  HookClass hook(table, About());
  table.Hook(0, hook);
  table.Unhook(0, hook);
  EXPECT_EQ(table.Count(), 0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(WinProcTest, TheProcedureIsReplacedOnceForTwoSubscribers) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103});
  Listener b(*this, "B", {4103});
  a.SethWnd(window);
  b.SethWnd(window);
  EXPECT_TRUE(recorder.Shows({"read procedure of 101", "101 gets the replacement"}));
  EXPECT_EQ(table.Count(), 1);
}

TEST_F(WinProcTest, TheOneThatStaysIsServedAndTheLastRestoresTheProcedure) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103});
  Listener b(*this, "B", {4103});
  a.SethWnd(window);
  b.SethWnd(window);
  recorder.Clear();
  windows.Send(window, 4103);
  a.SethWnd(0);
  windows.Send(window, 4103, 1);
  b.SethWnd(0);
  windows.Send(window, 4103, 2);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "101 own: 4103 0 0",
      "B hears 4103 1 0",
      "101 own: 4103 1 0",
      "101 gets its own back",
      "101 own: 4103 2 0",
  }));
}

TEST_F(WinProcTest, TheSameSubscriberIsToldOnceHoweverOftenItJoins) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103});
  a.SethWnd(window);
  table.Hook(window, a);
  recorder.Clear();
  windows.Send(window, 4103);
  a.SethWnd(0);
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "101 own: 4103 0 0",
      "101 gets its own back",
      "101 own: 4103 0 0",
  }));
}

TEST_F(WinProcTest, EventsGoInOrderOfJoiningAndForListedMessagesOnly) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103, 4105});
  Listener b(*this, "B", {4104, 4105});
  Listener c(*this, "C", {4103, 4104, 4105});
  c.SethWnd(window);
  a.SethWnd(window);
  b.SethWnd(window);
  recorder.Clear();
  for (const std::uint32_t message : {4103u, 4104u, 4105u, 4106u}) windows.Send(window, message);
  EXPECT_TRUE(recorder.Shows({
      "C hears 4103 0 0",
      "A hears 4103 0 0",
      "101 own: 4103 0 0",
      "C hears 4104 0 0",
      "B hears 4104 0 0",
      "101 own: 4104 0 0",
      "C hears 4105 0 0",
      "A hears 4105 0 0",
      "B hears 4105 0 0",
      "101 own: 4105 0 0",
      "101 own: 4106 0 0",
  }));
}

TEST_F(WinProcTest, OneThatCameBackIsToldLast) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103});
  Listener b(*this, "B", {4103});
  a.SethWnd(window);
  b.SethWnd(window);
  a.SethWnd(0);
  a.SethWnd(window);
  recorder.Clear();
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({"B hears 4103 0 0", "A hears 4103 0 0", "101 own: 4103 0 0"}));
}

TEST_F(WinProcTest, TheOwnProcedureGetsTheArgumentsUnchangedAndItsAnswerIsReturned) {
  constexpr std::intptr_t kMost = std::numeric_limits<std::intptr_t>::max();
  constexpr std::intptr_t kLeast = std::numeric_limits<std::intptr_t>::min();
  const std::int32_t window = windows.Open(
      [&](std::int32_t, std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam) {
        recorder.Line("own: " + Parameters(message, wParam, lParam));
        return kMost - 1;
      });
  Listener a(*this, "A", {0xFFFFFFFF});
  a.SethWnd(window);
  recorder.Clear();
  EXPECT_EQ(windows.Send(window, 0xFFFFFFFF, kMost, kLeast), kMost - 1);
  // What is wider than 32 bits reaches the event as its lower half.
  EXPECT_TRUE(recorder.Shows({
      "A hears " + Parameters(0xFFFFFFFF, static_cast<std::int32_t>(kMost),
                              static_cast<std::int32_t>(kLeast)),
      "own: " + Parameters(0xFFFFFFFF, kMost, kLeast),
  }));
}

TEST_F(WinProcTest, WhatTheEventSetsAsResultGoesNowhere) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103});
  Listener b(*this, "B", {4103});
  const auto answer = [](std::uint32_t, std::int32_t, std::int32_t, std::int32_t& result) {
    EXPECT_EQ(result, 0);
    result = 5;
  };
  a.WndProc = answer;
  b.WndProc = answer;
  a.SethWnd(window);
  b.SethWnd(window);
  EXPECT_EQ(windows.Send(window, 4103), kAnswer);
}

struct EndCase {
  std::uint32_t message;
  std::intptr_t wParam;
  bool ends;
};

constexpr EndCase kEndCases[] = {
    {2, 0, true},
    {2, 5, true},
    {130, 0, true},
    {130, 5, true},
    {528, 2, true},
    {528, 0, false},
    {528, 1, false},
    {528, 0x10002, false},
    {528, -2, false},
    {528, 130, false},
    {4103, 2, false},
    {1, 2, false},
    {3, 2, false},
    {529, 2, false},
    // Only in 64-bit processes; elsewhere it is the case from above.
    {528, sizeof(std::intptr_t) > 4 ? static_cast<std::intptr_t>(0x100000002LL) : 0, false},
};

TEST_F(WinProcTest, WatchingEndsWithTheWindowOrAChildWithoutIdentifier) {
  for (const EndCase& c : kEndCases) {
    SCOPED_TRACE(Parameters(c.message, c.wParam, 9));
    const std::int32_t window = Window();
    const std::string name = std::to_string(window);
    Listener a(*this, "A", {c.message});
    a.SethWnd(window);
    recorder.Clear();
    EXPECT_EQ(windows.Send(window, c.message, c.wParam, 9), kAnswer);
    const std::string own = name + " own: " + Parameters(c.message, c.wParam, 9);
    const std::string hears =
        "A hears " + Parameters(c.message, static_cast<std::int32_t>(c.wParam), 9);
    if (c.ends)
      EXPECT_TRUE(recorder.Shows({own, name + " gets its own back"}));
    else
      EXPECT_TRUE(recorder.Shows({hears, own}));
    EXPECT_EQ(table.Count(), c.ends ? 0 : 1);
  }
}

TEST_F(WinProcTest, AfterAnEndTheSubscriberStillHoldsTheHandleAndHasToWriteZeroFirst) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {4103});
  a.SethWnd(window);
  windows.Send(window, 528, 2);
  recorder.Clear();

  EXPECT_EQ(a.hWnd(), window);
  a.SethWnd(window);
  windows.Send(window, 4103, 1);
  EXPECT_TRUE(recorder.Shows({"101 own: 4103 1 0"}));
  recorder.Clear();

  a.SethWnd(0);
  a.SethWnd(window);
  windows.Send(window, 4103, 2);
  EXPECT_TRUE(recorder.Shows({
      "read procedure of 101",
      "101 gets the replacement",
      "A hears 4103 2 0",
      "101 own: 4103 2 0",
  }));
}

TEST_F(WinProcTest, TheReplacementAnswersZeroForAWindowThatIsNotWatched) {
  const std::int32_t window = Window();
  windows.SetWindowProcedure(window, windows.ReplacementProcedure());
  recorder.Clear();
  EXPECT_EQ(windows.Send(window, 4103), 0);
  EXPECT_EQ(windows.Send(window, 2), 0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(WinProcTest, CallOriginalAnswersZeroForAWindowThatIsNotWatched) {
  const std::int32_t window = Window();
  EXPECT_EQ(table.CallOriginal(window, 4103, 0, 0), 0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(WinProcTest, TheLaterWindowsStayWatchedWhenOneLeaves) {
  const std::int32_t first = Window();
  const std::int32_t second = Window();
  const std::int32_t third = Window();
  Listener a(*this, "A", {4103});
  Listener b(*this, "B", {4103});
  Listener c(*this, "C", {4103});
  a.SethWnd(first);
  b.SethWnd(second);
  c.SethWnd(third);
  recorder.Clear();
  a.SethWnd(0);
  EXPECT_EQ(table.Count(), 2);
  for (const std::int32_t window : {first, second, third}) windows.Send(window, 4103);
  b.SethWnd(0);
  c.SethWnd(0);
  EXPECT_TRUE(recorder.Shows({
      "101 gets its own back",
      "101 own: 4103 0 0",
      "B hears 4103 0 0",
      "102 own: 4103 0 0",
      "C hears 4103 0 0",
      "103 own: 4103 0 0",
      "102 gets its own back",
      "103 gets its own back",
  }));
  EXPECT_EQ(table.Count(), 0);
}

TEST_F(WinProcTest, OneHookEachWatchesItsOwnWindowOnly) {
  const std::int32_t first = Window();
  const std::int32_t second = Window();
  Listener a(*this, "A", {4103});
  Listener b(*this, "B", {4103});
  a.SethWnd(first);
  b.SethWnd(second);
  table.Unhook(second, a);
  recorder.Clear();
  windows.Send(second, 4103);
  EXPECT_TRUE(recorder.Shows({"B hears 4103 0 0", "102 own: 4103 0 0"}));
}

TEST_F(WinProcTest, ADestroyedWindowIsForgottenAfterItsOwnProcedureHasRun) {
  const std::int32_t window = Window();
  Listener a(*this, "A", {2, 130, 4103});
  a.SethWnd(window);
  recorder.Clear();
  windows.Destroy(window);
  EXPECT_TRUE(recorder.Shows({
      "101 own: 2 0 0",
      "101 gets its own back",
      "101 own: 130 0 0",
  }));
  EXPECT_EQ(table.Count(), 0);
  recorder.Clear();
  a.SethWnd(0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(WinProcTest, WindowsMayEndInsideEachOthersEnd) {
  std::int32_t child = 0;
  const std::int32_t parent = Window([&](std::uint32_t message) {
    if (message == 2) windows.Destroy(child);
  });
  child = Window();
  Listener c(*this, "C", {});
  Listener p(*this, "P", {});
  Listener other(*this, "O", {4103});
  // Ahead of the parent in the table, so that the parent's place is another's afterwards.
  c.SethWnd(child);
  p.SethWnd(parent);
  other.SethWnd(Window());
  recorder.Clear();
  windows.Destroy(parent);
  windows.Send(other.hWnd(), 4103);
  EXPECT_TRUE(recorder.Shows({
      "101 own: 2 0 0",
      "102 own: 2 0 0",
      "102 gets its own back",
      "102 own: 130 0 0",
      "101 gets its own back",
      "101 own: 130 0 0",
      "O hears 4103 0 0",
      "103 own: 4103 0 0",
  }));
  EXPECT_EQ(table.Count(), 1);
}

TEST_F(WinProcTest, OneWindowTooManyIsAnOverflowAndLeftAlone) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int16_t>::max();
  MemoryWindowSystem silent;
  HookClass many(silent.Watched(), About());
  for (std::int32_t window = 1; window <= kMost; ++window)
    silent.Watched().Hook(window + 1000, many);
  EXPECT_EQ(silent.Watched().Count(), kMost);

  const std::int32_t oneMore = silent.Open();
  const WindowSystem::Procedure own = silent.WindowProcedure(oneMore);
  HookClass hook(silent.Watched(), About());
  EXPECT_EQ(ErrorOf([&] { hook.SethWnd(oneMore); }), kOverflowError);
  EXPECT_EQ(silent.WindowProcedure(oneMore), own);
  EXPECT_EQ(hook.hWnd(), oneMore);
  EXPECT_EQ(silent.Watched().Count(), kMost);

  silent.Watched().Unhook(1001, many);
  hook.SethWnd(0);
  hook.SethWnd(oneMore);
  EXPECT_EQ(silent.WindowProcedure(oneMore), MemoryWindowSystem::kReplacement);
}

}  // namespace

}  // namespace sifter
