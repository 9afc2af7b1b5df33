#include "Program.h"

#include "container/Failure.h"

#include <algorithm>

namespace hosts {

namespace {

constexpr DWORD kPatienceMilliseconds = 30'000;

}  // namespace

Program::Program(const std::wstring& commandLine) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE theirs = nullptr;
  if (!CreatePipe(&output_, &theirs, &inherited, 0)) ThrowLastError(L"Making a pipe");
  SetHandleInformation(output_, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = theirs;
  start.hStdError = theirs;
  std::wstring line = commandLine;
  const BOOL started = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      nullptr, &start, &process_);
  CloseHandle(theirs);
  if (!started) ThrowLastError(commandLine);
  reader_ = std::thread([this] {
    char bytes[4096];
    DWORD count = 0;
    while (ReadFile(output_, bytes, sizeof bytes, &count, nullptr) && count > 0)
      read_.append(bytes, count);
  });
}

Program::~Program() {
  TerminateProcess(process_.hProcess, 1);
  if (reader_.joinable()) reader_.join();
  CloseHandle(output_);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

Program::End Program::WaitForEnd() {
  End end{-1, ""};
  DWORD code = 0;
  if (WaitForSingleObject(process_.hProcess, kPatienceMilliseconds) == WAIT_OBJECT_0) {
    GetExitCodeProcess(process_.hProcess, &code);
    end.code = static_cast<long>(code);
  } else {
    TerminateProcess(process_.hProcess, 1);
  }
  reader_.join();
  std::erase(read_, '\r');
  end.output = std::move(read_);
  return end;
}

std::wstring BuiltProgram(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  std::wstring program(path);
  program.erase(program.find_last_of(L'\\') + 1);
  return L'"' + program + name + L'"';
}

std::wstring SystemProgram(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  GetSystemDirectoryW(path, MAX_PATH);
  return L'"' + std::wstring(path) + L'\\' + name + L'"';
}

}  // namespace hosts
