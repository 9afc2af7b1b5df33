#pragma once

#include "about/VersionInfo.h"
#include "base/Clock.h"
#include "controls/ControlServices.h"
#include "controls/DefaultDialog.h"
#include "win32/MessageBoxPrompts.h"
#include "win32/ModuleVersionInfo.h"
#include "win32/PlatformConversions.h"
#include "win32/Win32FormHost.h"

namespace sifter {

// What all controls of the process share. Made with the first of them.
struct LibraryServices {
  SystemClock clock;
  PlatformConversions conversions{clock};
  ModuleVersionInfo version;
  Win32FormHost forms;  // the default dialog's, which is never shown
  MessageBoxPrompts prompts;
  DefaultDialog defaultDialog{{forms, prompts, conversions, clock}};

  static LibraryServices& Get();

  // What a control works with; the forms and message boxes are its own, in its container.
  static ControlServices ForControl(FormHost& forms, Prompts& prompts);

  // With the library: nothing may be in use any more.
  static void End() noexcept;
};

}  // namespace sifter
