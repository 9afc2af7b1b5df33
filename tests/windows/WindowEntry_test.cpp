#include "win32/WindowEntry.h"

#include "base/RuntimeError.h"
#include "support/Errors.h"
#include "win32/UniqueWindow.h"

#include <gtest/gtest.h>

#include <functional>
#include <windows.h>

namespace sifter {
namespace {

constexpr LRESULT kOnError = -7;

// What the window of the tests does with a message of ours.
std::function<LRESULT(WPARAM)> onMessage;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return WindowEntry(
      [&]() -> LRESULT {
        if (message == WM_APP) return onMessage(wParam);
        return DefWindowProcW(window, message, wParam, lParam);
      },
      kOnError);
}

class WindowEntryTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.lpszClassName = L"WindowEntryTest";
    RegisterClassW(&windowClass);
  }
  static void TearDownTestSuite() {
    UnregisterClassW(L"WindowEntryTest", nullptr);
    onMessage = nullptr;
  }

  LRESULT Send(WPARAM wParam = 0) { return SendMessageW(window_.Get(), WM_APP, wParam, 0); }

  UniqueWindow window_{CreateWindowExW(0, L"WindowEntryTest", L"", WS_POPUP, 0, 0, 1, 1, nullptr,
                                       nullptr, nullptr, nullptr)};
};

TEST_F(WindowEntryTest, GivesTheResultOfTheWork) {
  onMessage = [](WPARAM wParam) { return static_cast<LRESULT>(wParam) + 1; };
  EXPECT_EQ(Send(41), 42);
}

TEST_F(WindowEntryTest, KeepsAnErrorUntilTheCallIsBack) {
  onMessage = [](WPARAM) -> LRESULT { throw RuntimeError(ErrorNumber::kOverflow); };
  LRESULT result = 0;
  const auto send = [&] { CallingWindows([&] { result = Send(); }); };
  EXPECT_EQ(ErrorOf(send), kOverflowError);
  EXPECT_EQ(result, kOnError);
}

TEST_F(WindowEntryTest, ThrowsTheFirstOfSeveralErrors) {
  onMessage = [](WPARAM wParam) -> LRESULT {
    throw RuntimeError(static_cast<std::int32_t>(wParam), u"error"_text);
  };
  EXPECT_EQ(ErrorOf([&] {
              CallingWindows([&] {
                Send(1);
                Send(2);
              });
            }),
            "1: error");
}

TEST_F(WindowEntryTest, LeavesAnErrorToTheInnermostCall) {
  std::string inner;
  onMessage = [](WPARAM) -> LRESULT { throw RuntimeError(ErrorNumber::kOverflow); };
  EXPECT_EQ(ErrorOf([&] {
              CallingWindows([&] { inner = ErrorOf([&] { CallingWindows([&] { Send(); }); }); });
            }),
            "nothing");
  EXPECT_EQ(inner, kOverflowError);
}

TEST_F(WindowEntryTest, ForgetsAnErrorThatNobodyWaitsFor) {
  onMessage = [](WPARAM) -> LRESULT { throw RuntimeError(ErrorNumber::kOverflow); };
  EXPECT_EQ(Send(), kOnError);
  EXPECT_EQ(ErrorOf([] { CallingWindows([] {}); }), "nothing");
}

TEST_F(WindowEntryTest, LetsNothingElseThroughEither) {
  onMessage = [](WPARAM) -> LRESULT { throw 5; };
  EXPECT_EQ(Send(), kOnError);
  bool done = false;
  WindowEntry([&] {
    done = true;
    throw 5;
  });
  EXPECT_TRUE(done);
}

TEST_F(WindowEntryTest, HandsOutTheResultOfACall) {
  onMessage = [](WPARAM) -> LRESULT { return 5; };
  EXPECT_EQ(CallingWindows([&] { return Send(); }), 5);
}

}  // namespace
}  // namespace sifter
