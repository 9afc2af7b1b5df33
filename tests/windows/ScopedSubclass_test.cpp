#include "win32/ScopedSubclass.h"

#include "base/RuntimeError.h"
#include "support/Errors.h"
#include "win32/UniqueWindow.h"
#include "win32/WindowEntry.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace sifter {
namespace {

UniqueWindow NewEdit() {
  return UniqueWindow(CreateWindowExW(0, L"EDIT", L"text", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                      nullptr, nullptr));
}

LRESULT TextLength(HWND window) { return SendMessageW(window, WM_GETTEXTLENGTH, 0, 0); }

// Answers the text length of a window and passes everything else on.
ScopedSubclass::Handler AnswersLength(LRESULT length) {
  return [length](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_GETTEXTLENGTH) return length;
    return std::nullopt;
  };
}

TEST(ScopedSubclass, SeesTheMessagesOfTheWindowWhileItLives) {
  const UniqueWindow edit = NewEdit();
  const auto procedure = GetWindowLongPtrW(edit.Get(), GWLP_WNDPROC);
  {
    const ScopedSubclass subclass(edit.Get(), AnswersLength(99));
    EXPECT_EQ(subclass.Window(), edit.Get());
    EXPECT_EQ(TextLength(edit.Get()), 99);
    EXPECT_EQ(SendMessageW(edit.Get(), EM_GETLINECOUNT, 0, 0), 1);
  }
  EXPECT_EQ(TextLength(edit.Get()), 4);
  EXPECT_EQ(GetWindowLongPtrW(edit.Get(), GWLP_WNDPROC), procedure);
}

TEST(ScopedSubclass, ActsAfterTheWindowProcedureByPassingAMessageOnItself) {
  const UniqueWindow edit = NewEdit();
  const ScopedSubclass subclass(
      edit.Get(),
      [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (message != WM_GETTEXTLENGTH) return std::nullopt;
        return ScopedSubclass::Default(window, message, wParam, lParam) * 10;
      });
  EXPECT_EQ(TextLength(edit.Get()), 40);
}

TEST(ScopedSubclass, ComesAndGoesInAnyOrder) {
  const UniqueWindow edit = NewEdit();
  ScopedSubclass first(edit.Get(), AnswersLength(1));
  ScopedSubclass second(edit.Get(), AnswersLength(2));
  EXPECT_EQ(TextLength(edit.Get()), 2);
  first.Reset();
  EXPECT_EQ(first.Window(), nullptr);
  EXPECT_EQ(TextLength(edit.Get()), 2);
  second = ScopedSubclass(edit.Get(), AnswersLength(3));
  EXPECT_EQ(TextLength(edit.Get()), 3);
  ScopedSubclass moved = std::move(second);
  EXPECT_EQ(TextLength(edit.Get()), 3);
  moved.Reset();
  EXPECT_EQ(TextLength(edit.Get()), 4);
}

TEST(ScopedSubclass, EndsWithTheWindow) {
  UniqueWindow edit = NewEdit();
  UINT last = 0;
  const ScopedSubclass subclass(edit.Get(),
                                [&](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                                  last = message;
                                  return std::nullopt;
                                });
  edit.Reset();
  EXPECT_EQ(last, UINT{WM_NCDESTROY});
  EXPECT_EQ(subclass.Window(), nullptr);
}

TEST(ScopedSubclass, MayEndInsideItsOwnHandler) {
  const UniqueWindow edit = NewEdit();
  const auto alive = std::make_shared<std::string>("alive");
  auto subclass = std::make_unique<ScopedSubclass>();
  std::string seen;
  *subclass = ScopedSubclass(
      edit.Get(), [&, alive](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_GETTEXTLENGTH) return std::nullopt;
        subclass.reset();
        seen = *alive;  // what the handler holds is still there
        return std::nullopt;
      });
  EXPECT_EQ(TextLength(edit.Get()), 4);
  EXPECT_EQ(seen, "alive");
  EXPECT_EQ(subclass, nullptr);
  EXPECT_EQ(alive.use_count(), 1);
  EXPECT_EQ(TextLength(edit.Get()), 4);
}

TEST(ScopedSubclass, MayDestroyTheWindowInItsHandler) {
  UniqueWindow edit = NewEdit();
  const ScopedSubclass subclass(edit.Get(),
                                [&](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                                  if (message == WM_GETTEXTLENGTH) edit.Reset();
                                  return std::nullopt;
                                });
  EXPECT_EQ(TextLength(edit.Get()), 0);
  EXPECT_EQ(subclass.Window(), nullptr);
}

TEST(ScopedSubclass, PassesAMessageOnWhoseHandlerFails) {
  const UniqueWindow edit = NewEdit();
  const ScopedSubclass subclass(edit.Get(),
                                [](HWND, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                                  if (message == WM_GETTEXTLENGTH)
                                    throw RuntimeError(ErrorNumber::kOverflow);
                                  return std::nullopt;
                                });
  LRESULT length = 0;
  EXPECT_EQ(ErrorOf([&] { CallingWindows([&] { length = TextLength(edit.Get()); }); }),
            kOverflowError);
  EXPECT_EQ(length, 4);
}

TEST(ScopedSubclass, IsForWindowsOfItsOwnThread) {
  EXPECT_EQ(ErrorOf([] { ScopedSubclass(nullptr, AnswersLength(1)); }), kBadKeyError);
  const UniqueWindow edit = NewEdit();
  std::string error;
  std::thread([&] {
    error = ErrorOf([&] { ScopedSubclass(edit.Get(), AnswersLength(1)); });
  }).join();
  EXPECT_EQ(error, kBadKeyError);
}

}  // namespace
}  // namespace sifter
