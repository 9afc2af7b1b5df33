#include "Process.h"

#include "win32/UniqueHandle.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace sifter {

namespace {

struct KernelKind {
  using Handle = HANDLE;
  static void Close(HANDLE handle) noexcept { CloseHandle(handle); }
};
using UniqueKernel = UniqueHandle<KernelKind>;

constexpr ULONGLONG kLongest = 30'000;  // milliseconds

std::string ReadWhatThereIs(HANDLE pipe) {
  std::string text;
  DWORD waiting = 0;
  while (PeekNamedPipe(pipe, nullptr, 0, nullptr, &waiting, nullptr) && waiting > 0) {
    std::string part(waiting, '\0');
    DWORD read = 0;
    if (!ReadFile(pipe, part.data(), waiting, &read, nullptr)) break;
    text.append(part, 0, read);
  }
  return text;
}

}  // namespace

ProcessEnd RunProcess(const std::wstring& commandLine, const std::function<void()>& each) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE ends[2] = {};
  CreatePipe(&ends[0], &ends[1], &inherited, 1 << 16);
  const UniqueKernel reading(ends[0]);
  UniqueKernel writing(ends[1]);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = start.hStdError = writing.Get();
  PROCESS_INFORMATION made{};
  std::wstring command = commandLine;
  ProcessEnd end;
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                      &made)) {
    ADD_FAILURE() << "error " << GetLastError();
    return end;
  }
  const UniqueKernel process(made.hProcess);
  CloseHandle(made.hThread);
  writing.Reset();
  const ULONGLONG latest = GetTickCount64() + kLongest;
  while (WaitForSingleObject(process.Get(), 20) == WAIT_TIMEOUT) {
    end.output += ReadWhatThereIs(reading.Get());
    if (each) each();
    if (GetTickCount64() < latest) continue;
    ADD_FAILURE() << "the program doesn't end";
    TerminateProcess(process.Get(), 99);
    return end;
  }
  end.output += ReadWhatThereIs(reading.Get());
  DWORD code = 0;
  GetExitCodeProcess(process.Get(), &code);
  end.code = static_cast<long>(code);
  return end;
}

TemporaryFile::TemporaryFile(const std::wstring& name, const std::string& text) {
  wchar_t folder[MAX_PATH] = L"";
  GetTempPathW(MAX_PATH, folder);
  path_ = folder + std::to_wstring(GetCurrentProcessId()) + L"-" + name;
  const UniqueKernel file(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  EXPECT_TRUE(
      WriteFile(file.Get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr));
}

TemporaryFile::~TemporaryFile() { DeleteFileW(path_.c_str()); }

std::wstring SystemProgram(const wchar_t* file) {
  wchar_t folder[MAX_PATH] = L"";
  GetSystemDirectoryW(folder, MAX_PATH);
  return folder + std::wstring(L"\\") + file;
}

}  // namespace sifter
