#include "win32/ControlTimers.h"

#include "User.h"
#include "forms/Timer.h"
#include "forms/UserControl.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace sifter {

namespace {

// Windows that nobody sees are no children of any window on the desktop.
int MessageWindows() {
  int count = 0;
  HWND window = nullptr;
  while ((window = FindWindowExW(HWND_MESSAGE, window, L"STATIC", nullptr)) != nullptr)
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) ++count;
  return count;
}

class Clock : public UserControl {
 public:
  Clock() {
    quick.SetInterval(10);
    quick.SetEnabled(false);
    other.SetInterval(10);
    other.SetEnabled(false);
    quick.Tick = [this] { ++ticks; };
    other.Tick = [this] { ++otherTicks; };
  }

  Timer quick{*this, u"quick"};
  Timer other{*this, u"other"};
  int ticks = 0;
  int otherTicks = 0;
};

class ControlTimersTest : public testing::Test {
 protected:
  static void JustRun(const std::function<void()>& work) { work(); }

  // Runs a message loop until this holds.
  void Until(const std::function<bool()>& holds) {
    user.Does([&] { user.WaitsFor(holds); });
    user.PumpUntilDone();
  }
  // So long that a timer of ten milliseconds would have elapsed.
  void LetTimePass() {
    const int before = clock.otherTicks;
    clock.other.SetEnabled(true);
    Until([&] { return clock.otherTicks >= before + 5; });
    clock.other.SetEnabled(false);
  }

  Clock clock;
  User user;
};

TEST_F(ControlTimersTest, TickUntilTheyAreDisabled) {
  const ControlTimers timers(clock, JustRun);
  clock.quick.SetEnabled(true);
  Until([&] { return clock.ticks >= 3; });
  clock.quick.SetEnabled(false);
  const int atTheEnd = clock.ticks;
  LetTimePass();
  EXPECT_EQ(clock.ticks, atTheEnd);
}

TEST_F(ControlTimersTest, DoNotTickBeforeTheyAreEnabled) {
  const ControlTimers timers(clock, JustRun);
  LetTimePass();
  EXPECT_EQ(clock.ticks, 0);
}

TEST_F(ControlTimersTest, TickWhenTheyWereEnabledBefore) {
  clock.quick.SetEnabled(true);
  const ControlTimers timers(clock, JustRun);
  Until([&] { return clock.ticks >= 1; });
}

TEST_F(ControlTimersTest, FollowTheInterval) {
  const ControlTimers timers(clock, JustRun);
  clock.quick.SetInterval(0);
  clock.quick.SetEnabled(true);
  LetTimePass();
  EXPECT_EQ(clock.ticks, 0) << "an interval of 0 never elapses";
  clock.quick.SetInterval(10);
  Until([&] { return clock.ticks >= 1; });
  clock.quick.SetInterval(1'000'000);
  const int before = clock.ticks;
  LetTimePass();
  EXPECT_EQ(clock.ticks, before);
}

TEST_F(ControlTimersTest, ElapseInTimeAlthoughTheyAreEnabledAgainAndAgain) {
  const ControlTimers timers(clock, JustRun);
  clock.quick.SetInterval(50);
  clock.other.Tick = [&] { clock.quick.SetEnabled(true); };
  clock.other.SetEnabled(true);
  Until([&] { return clock.ticks >= 1; });
}

TEST_F(ControlTimersTest, StopWithTheClock) {
  const int windows = MessageWindows();
  {
    const ControlTimers timers(clock, JustRun);
    EXPECT_EQ(MessageWindows(), windows) << "no timer runs";
    clock.quick.SetEnabled(true);
    EXPECT_EQ(MessageWindows(), windows + 1);
    Until([&] { return clock.ticks >= 1; });
  }
  EXPECT_EQ(MessageWindows(), windows);
  const int before = clock.ticks;
  const ControlTimers others(clock, JustRun);
  clock.quick.SetEnabled(false);
  LetTimePass();
  EXPECT_EQ(clock.ticks, before);
}

TEST_F(ControlTimersTest, DoWithoutATimerThatEnds) {
  const ControlTimers timers(clock, JustRun);
  int ticks = 0;
  {
    Timer brief(clock, u"brief");
    brief.Tick = [&] { ++ticks; };
    brief.SetInterval(10);
    brief.SetEnabled(false);
    brief.SetEnabled(true);
    Until([&] { return ticks >= 1; });
  }
  const int before = ticks;
  LetTimePass();
  EXPECT_EQ(ticks, before);
}

// A control and its clock, kept alive by whoever holds them.
struct Whole {
  Clock clock;
  std::optional<ControlTimers> timers;
};

TEST_F(ControlTimersTest, MayEndInsideATick) {
  auto whole = std::make_shared<Whole>();
  const std::weak_ptr<Whole> seen = whole;
  whole->timers.emplace(whole->clock, [seen](const std::function<void()>& work) {
    const std::shared_ptr<Whole> alive = seen.lock();
    work();
  });
  whole->clock.quick.Tick = [&whole] { whole.reset(); };
  whole->clock.quick.SetEnabled(true);
  Until([&] { return seen.expired(); });
}

TEST_F(ControlTimersTest, GoOnAfterAnErrorInATick) {
  const ControlTimers timers(clock, JustRun);
  clock.quick.Tick = [&] {
    if (++clock.ticks == 1) throw std::runtime_error("the first one fails");
  };
  clock.quick.SetEnabled(true);
  Until([&] { return clock.ticks >= 2; });
}

}  // namespace

}  // namespace sifter
