#include "subclass/HookClass.h"
#include "support/Printers.h"
#include "win32/ModuleVersionInfo.h"
#include "win32/WideText.h"
#include "win32/Win32FormHost.h"
#include "win32/Win32WindowSystem.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <windows.h>

namespace sifter {

namespace {

constexpr wchar_t kTitle[] = L"About PlinthControls2";

using Strings = std::vector<std::string>;

// The user of this thread's about box: reads it and presses OK. Looks for it with every tick of a
// timer, which the box's own message loop keeps going.
class AboutReader {
 public:
  AboutReader() : timer_(SetTimer(nullptr, 0, 10, &Tick)) { texts_.clear(); }
  ~AboutReader() { KillTimer(nullptr, timer_); }
  AboutReader(const AboutReader&) = delete;
  AboutReader& operator=(const AboutReader&) = delete;

  static inline bool closesByFrame = false;

  // "Static: Version 1.06", in the order of the windows from front to back.
  static const Strings& Texts() { return texts_; }

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND box = FindWindowW(nullptr, kTitle);
    if (box == nullptr || !IsWindowVisible(box)) return;
    KillTimer(nullptr, timer);
    HWND ok = nullptr;
    for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      wchar_t windowClass[40] = L"";
      GetClassNameW(child, windowClass, 40);
      const Text text = WindowText(child);
      if (!text.IsEmpty()) texts_.push_back(FromWide(windowClass).ToUtf8() + ": " + text.ToUtf8());
      if (text == u"OK") ok = child;
    }
    EXPECT_EQ(GetFocus(), ok);
    if (closesByFrame)
      SendMessageW(box, WM_CLOSE, 0, 0);
    else
      SendMessageW(ok, BM_CLICK, 0, 0);
  }

  static inline Strings texts_;
  UINT_PTR timer_;
};

TEST(AboutBoxWindow, ShowsWhatTheModuleSaysUntilOkIsPressed) {
  Win32FormHost forms;
  const ModuleVersionInfo version;
  HookClass hook(ProcessWinProc(), {forms, version});
  for (int showing = 0; showing < 2; ++showing) {
    const AboutReader reader;
    hook.AboutBox();
    EXPECT_EQ(AboutReader::Texts(), (Strings{
                                        "Static: Tests of Row Sifter for Windows",
                                        "Static: Version 1.06",
                                        "Static: Copyright \u00A9 Tarvenn Software, Z\u00FCrich "
                                        "\u6771\u4EAC",
                                        "Button: OK",
                                    }));
    EXPECT_EQ(FindWindowW(nullptr, kTitle), nullptr);
  }
}

TEST(AboutBoxWindow, MayBeClosedByItsFrame) {
  Win32FormHost forms;
  const ModuleVersionInfo version;
  HookClass hook(ProcessWinProc(), {forms, version});
  AboutReader::closesByFrame = true;
  {
    const AboutReader reader;
    hook.AboutBox();
  }
  AboutReader::closesByFrame = false;
  EXPECT_EQ(FindWindowW(nullptr, kTitle), nullptr);
}

}  // namespace

}  // namespace sifter
