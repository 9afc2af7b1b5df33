#include "WatchedWindows.h"
#include "support/Errors.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

// What a subscriber may do inside its own event.

namespace sifter {

namespace {

class SubscriberLiberties : public WatchedWindowsTest {
 protected:
  const std::int32_t window = Window();
  Listener a{*this, "A", {4103}};
  Listener b{*this, "B", {4103}};
  Listener c{*this, "C", {4103}};

  // All three watch the window, and B does this when it hears a message.
  void InTheEventOfB(std::function<void()> work) {
    for (Listener* listener : {&a, &b, &c}) listener->SethWnd(window);
    b.WndProc = [this, work = std::move(work)](std::uint32_t message, std::int32_t wParam,
                                               std::int32_t lParam, std::int32_t&) {
      recorder.Line("B hears " + Parameters(message, wParam, lParam));
      work();
    };
    recorder.Clear();
  }
};

TEST_F(SubscriberLiberties, ItMayLeave) {
  InTheEventOfB([&] { b.SethWnd(0); });
  EXPECT_EQ(windows.Send(window, 4103), kAnswer);
  windows.Send(window, 4103, 1);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
      "A hears 4103 1 0",
      "C hears 4103 1 0",
      "101 own: 4103 1 0",
  }));
}

TEST_F(SubscriberLiberties, ItMaySendAwayOneThatHasBeenTold) {
  InTheEventOfB([&] { a.SethWnd(0); });
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
  }));
}

TEST_F(SubscriberLiberties, OneSentAwayBeforeItsTurnIsPassedOver) {
  InTheEventOfB([&] { c.SethWnd(0); });
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 0", "B hears 4103 0 0", "101 own: 4103 0 0"}));
}

TEST_F(SubscriberLiberties, WhenAllHaveLeftTheOwnProcedureStillGetsTheMessageOnce) {
  InTheEventOfB([&] {
    for (Listener* listener : {&a, &b, &c}) listener->SethWnd(0);
  });
  EXPECT_EQ(windows.Send(window, 4103, 5, 6), kAnswer);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 5 6",
      "B hears 4103 5 6",
      "101 gets its own back",
      "101 own: 4103 5 6",
  }));
  EXPECT_EQ(table.Count(), 0);
}

TEST_F(SubscriberLiberties, ItMayDestroyTheWindow) {
  InTheEventOfB([&] { windows.Destroy(window); });
  EXPECT_EQ(windows.Send(window, 4103), kAnswer);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "101 own: 2 0 0",
      "101 gets its own back",
      "101 own: 130 0 0",
      "101 own: 4103 0 0",
  }));
  EXPECT_EQ(table.Count(), 0);
}

TEST_F(SubscriberLiberties, ItMayEndItself) {
  auto ending = std::make_unique<HookClass>(table, About());
  ending->SetMessages(4103, true);
  ending->SethWnd(window);
  c.SethWnd(window);
  // The text is longer than what fits into a handler: it ends with the handler if that ends.
  ending->WndProc = [this, &ending, farewell = std::string("the one that ends itself has heard")](
                        std::uint32_t, std::int32_t, std::int32_t, std::int32_t&) {
    ending.reset();
    recorder.Line(farewell);
  };
  recorder.Clear();
  windows.Send(window, 4103);
  windows.Send(window, 4103, 1);
  EXPECT_TRUE(recorder.Shows({
      "the one that ends itself has heard",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
      "C hears 4103 1 0",
      "101 own: 4103 1 0",
  }));
}

TEST_F(SubscriberLiberties, ItMayTakeItsHandlerAway) {
  InTheEventOfB([&] { b.WndProc = nullptr; });
  windows.Send(window, 4103);
  windows.Send(window, 4103, 1);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
      "A hears 4103 1 0",
      "C hears 4103 1 0",
      "101 own: 4103 1 0",
  }));
}

TEST_F(SubscriberLiberties, OneThatJoinsIsToldFromTheNextMessageOn) {
  std::optional<Listener> newcomer;
  InTheEventOfB([&] {
    if (newcomer) return;
    newcomer.emplace(*this, "N", std::initializer_list<std::uint32_t>{4103});
    newcomer->SethWnd(window);
  });
  windows.Send(window, 4103);
  windows.Send(window, 4103, 1);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
      "A hears 4103 1 0",
      "B hears 4103 1 0",
      "C hears 4103 1 0",
      "N hears 4103 1 0",
      "101 own: 4103 1 0",
  }));
}

TEST_F(SubscriberLiberties, OneThatLeavesAndJoinsAgainIsNotToldTwice) {
  InTheEventOfB([&] {
    b.SethWnd(0);
    b.SethWnd(window);
  });
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
  }));
}

TEST_F(SubscriberLiberties, WatchingMayEndAndBeginAnewMeanwhile) {
  InTheEventOfB([&] {
    for (Listener* listener : {&a, &b, &c}) listener->SethWnd(0);
    c.SethWnd(window);
  });
  EXPECT_EQ(windows.Send(window, 4103), kAnswer);
  windows.Send(window, 4103, 1);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "101 gets its own back",
      "read procedure of 101",
      "101 gets the replacement",
      "101 own: 4103 0 0",
      "C hears 4103 1 0",
      "101 own: 4103 1 0",
  }));
}

TEST_F(SubscriberLiberties, ItMayChangeWhatALaterOneIsToldOf) {
  InTheEventOfB([&] { c.SetMessages(4103, false); });
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({"A hears 4103 0 0", "B hears 4103 0 0", "101 own: 4103 0 0"}));
}

TEST_F(SubscriberLiberties, AnotherWindowMayLeaveTheTableMeanwhile) {
  Listener first(*this, "F", {});
  first.SethWnd(Window());
  const std::int32_t later = Window();
  Listener d(*this, "D", {4103}, [&](std::uint32_t) { first.SethWnd(0); });
  Listener e(*this, "E", {4103});
  d.SethWnd(later);
  e.SethWnd(later);
  recorder.Clear();
  EXPECT_EQ(windows.Send(later, 4103), kAnswer);
  EXPECT_TRUE(recorder.Shows({
      "D hears 4103 0 0",
      "102 gets its own back",
      "E hears 4103 0 0",
      "103 own: 4103 0 0",
  }));
}

TEST_F(SubscriberLiberties, ItMaySendFurtherMessages) {
  b.SetMessages(4104, true);
  int sent = 0;
  InTheEventOfB([&] {
    if (sent++ == 0) windows.Send(window, 4104, 9);
  });
  windows.Send(window, 4103);
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 0 0",
      "B hears 4103 0 0",
      "B hears 4104 9 0",
      "101 own: 4104 9 0",
      "C hears 4103 0 0",
      "101 own: 4103 0 0",
  }));
}

TEST_F(SubscriberLiberties, AnErrorEndsInItsEventWhateverItIs) {
  int round = 0;
  InTheEventOfB([&] {
    if (++round == 1) throw RuntimeError(ErrorNumber::kTypeMismatch);
    if (round == 2) throw std::runtime_error("no run-time error of ours");
    throw round;
  });
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(windows.Send(window, 4103, i), kAnswer);
  }
  EXPECT_TRUE(recorder.Shows({
      "A hears 4103 1 0",
      "B hears 4103 1 0",
      "C hears 4103 1 0",
      "101 own: 4103 1 0",
      "A hears 4103 2 0",
      "B hears 4103 2 0",
      "C hears 4103 2 0",
      "101 own: 4103 2 0",
      "A hears 4103 3 0",
      "B hears 4103 3 0",
      "C hears 4103 3 0",
      "101 own: 4103 3 0",
  }));
}

}  // namespace

}  // namespace sifter
