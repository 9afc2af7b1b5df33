#include "win32/WindowTap.h"

#include "base/RuntimeError.h"
#include "support/Errors.h"
#include "support/Recorder.h"
#include "win32/UniqueWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

namespace sifter {

namespace {

constexpr UINT kAsked = WM_APP + 1;

WNDPROC beneath;

LRESULT CALLBACK AddOne(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return CallWindowProcW(beneath, window, message, wParam, lParam) + (message == kAsked ? 1 : 0);
}

class WindowTapTest : public testing::Test {
 protected:
  static LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kAsked) return static_cast<LRESULT>(wParam) * 10 + lParam;
    return DefWindowProcW(window, message, wParam, lParam);
  }

  static UniqueWindow Make() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = Answer;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"TappedWindowOfATest";
    RegisterClassW(&kind);
    return UniqueWindow(CreateWindowExW(0, kind.lpszClassName, L"", WS_POPUP, 0, 0, 10, 10, nullptr,
                                        nullptr, kind.hInstance, nullptr));
  }

  // A tap that records what it sees and passes it on.
  WindowTap Recording(const std::string& name) {
    return WindowTap(window.Get(), [this, name](UINT message, WPARAM, LPARAM) {
      if (message == kAsked) recorder.Line(name);
      return std::optional<LRESULT>();
    });
  }

  LRESULT Ask() { return SendMessageW(window.Get(), kAsked, 4, 2); }
  LONG_PTR Procedure() const { return GetWindowLongPtrW(window.Get(), GWLP_WNDPROC); }

  UniqueWindow window = Make();
  const LONG_PTR original = Procedure();
  Recorder recorder;
};

TEST_F(WindowTapTest, SeesMessagesAndPassesThemOn) {
  const WindowTap tap = Recording("seen");
  EXPECT_EQ(Ask(), 42);
  EXPECT_TRUE(recorder.Shows({"seen"}));
}

TEST_F(WindowTapTest, MayAnswerOrPassOnSomethingElse) {
  WindowTap tap;
  tap = WindowTap(window.Get(), [&](UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kAsked) return std::optional<LRESULT>();
    return std::optional<LRESULT>(tap.Default(message, wParam + 1, lParam) + 1);
  });
  EXPECT_EQ(Ask(), 53);
  EXPECT_EQ(tap.Default(kAsked, 1, 1), 11);
}

TEST_F(WindowTapTest, TheLastComerSeesAMessageFirst) {
  const WindowTap first = Recording("first");
  {
    const WindowTap second = Recording("second");
    Ask();
  }
  Ask();
  EXPECT_TRUE(recorder.Shows({"second", "first", "first"}));
}

TEST_F(WindowTapTest, PutsTheProcedureBack) {
  {
    const WindowTap tap = Recording("");
    EXPECT_NE(Procedure(), original);
  }
  EXPECT_EQ(Procedure(), original);
}

TEST_F(WindowTapTest, MayEndBeforeSomebodyWhoCameLater) {
  WindowTap tap = Recording("tap");
  beneath = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AddOne)));
  tap.Reset();
  EXPECT_EQ(Ask(), 43);
  SetWindowLongPtrW(window.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(beneath));
  EXPECT_EQ(Ask(), 42);
  EXPECT_TRUE(recorder.Shows({}));
  const WindowTap again = Recording("again");
  Ask();
  EXPECT_TRUE(recorder.Shows({"again"}));
}

TEST_F(WindowTapTest, MayEndInsideItsOwnHandler) {
  auto tap = std::make_unique<WindowTap>();
  *tap = WindowTap(window.Get(), [&](UINT message, WPARAM, LPARAM) {
    if (message == kAsked) tap.reset();
    return std::optional<LRESULT>();
  });
  EXPECT_EQ(Ask(), 42);
  EXPECT_EQ(Procedure(), original);
}

TEST_F(WindowTapTest, EndsWithItsWindow) {
  bool last = false;
  WindowTap tap(window.Get(), [&](UINT message, WPARAM, LPARAM) {
    last = message == WM_NCDESTROY;
    return std::optional<LRESULT>();
  });
  window.Reset();
  EXPECT_TRUE(last);
  EXPECT_EQ(tap.Default(kAsked, 1, 1), 0);
}

TEST_F(WindowTapTest, KeepsTheKindOfTheWindow) {
  const UniqueWindow ansi(
      CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr));
  const bool before = IsWindowUnicode(ansi.Get()) != 0;
  const WindowTap tap(ansi.Get(), [](UINT, WPARAM, LPARAM) { return std::optional<LRESULT>(); });
  EXPECT_EQ(IsWindowUnicode(ansi.Get()) != 0, before);
  const WindowTap other = Recording("");
  EXPECT_TRUE(IsWindowUnicode(window.Get()));
}

TEST_F(WindowTapTest, AnExceptionStaysInside) {
  const WindowTap tap(window.Get(), [](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == kAsked) throw std::runtime_error("inside");
    return std::nullopt;
  });
  EXPECT_EQ(Ask(), 42);
}

TEST_F(WindowTapTest, RefusesWindowsThatAreNotOfThisThread) {
  const auto ignore = [](UINT, WPARAM, LPARAM) { return std::optional<LRESULT>(); };
  const std::string refused = "5: Invalid procedure call or argument";
  EXPECT_EQ(ErrorOf([&] { WindowTap(nullptr, ignore); }), refused);
  std::string error;
  std::thread([&] { error = ErrorOf([&] { WindowTap(window.Get(), ignore); }); }).join();
  EXPECT_EQ(error, refused);
}

}  // namespace

}  // namespace sifter
