#include "container/Failure.h"
#include "demo/DemoWindow.h"

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

namespace {

// There on every Windows, with hundreds of files.
constexpr wchar_t kDefaultFolder[] = L"C:\\windows\\system32";

std::wstring FolderFromCommandLine() {
  int count = 0;
  LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  std::wstring folder = arguments != nullptr && count > 1 ? arguments[1] : kDefaultFolder;
  LocalFree(arguments);
  return folder;
}

struct Ole {
  Ole() { hosts::Check(OleInitialize(nullptr), L"Starting COM"); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
  ~Ole() { OleUninitialize(); }
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int show) {
  try {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    const Ole ole;
    return hosts::DemoWindow(FolderFromCommandLine()).Run(show);
  } catch (...) {
    MessageBoxW(nullptr, hosts::DescribeCurrentFailure().c_str(), L"Files", MB_ICONERROR);
    return 1;
  }
}
