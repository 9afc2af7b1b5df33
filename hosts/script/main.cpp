#include "container/Failure.h"
#include "script/Script.h"
#include "script/ScriptFile.h"
#include "script/ScriptObjects.h"
#include "script/ScriptWindow.h"

#include <commctrl.h>
#include <cstdio>
#include <ole2.h>
#include <shellapi.h>

namespace {

using namespace hosts;

std::wstring FileFromCommandLine() {
  int count = 0;
  LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  const std::wstring file = arguments != nullptr && count == 2 ? arguments[1] : L"";
  LocalFree(arguments);
  return file;
}

struct Ole {
  Ole() { Check(OleInitialize(nullptr), L"Starting COM"); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
  ~Ole() { OleUninitialize(); }
};

// The exit code: 1 once there was an error, wherever in the script.
int RunFile(const std::wstring& file) {
  const std::wstring text = ReadScript(file);
  bool failed = false;
  ScriptWindow window(file);
  Script script(window.Window(), [&](const std::wstring& error, int line) {
    failed = true;
    std::fprintf(stderr, "%ls(%d): %ls\n", file.c_str(), line, error.c_str());
  });
  script.Add(L"WScript", MakeWScriptObject(file));
  script.Add(L"Form", MakeFormObject(window, script));
  if (script.Run(text)) window.RunWhileShown();
  window.Close();
  return failed ? 1 : 0;
}

}  // namespace

int main() {
  const std::wstring file = FileFromCommandLine();
  if (file.empty()) {
    std::fputs(
        "Runs a VBScript file that has a window with a list and controls.\n\n"
        "  script FILE.vbs\n",
        stderr);
    return 2;
  }
  try {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    const Ole ole;
    return RunFile(file);
  } catch (...) {
    std::fprintf(stderr, "script: %ls\n", DescribeCurrentFailure().c_str());
    return 1;
  }
}
