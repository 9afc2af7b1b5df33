#pragma once

#include <string>
#include <thread>
#include <windows.h>

namespace hosts {

// Another program, with what it prints. Ended by force if it doesn't end by itself in time.
class Program {
 public:
  explicit Program(const std::wstring& commandLine);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  struct End {
    long code;  // -1 for one that had to be ended
    std::string output;
  };
  // Waits for its end, thirty seconds at most. Once.
  End WaitForEnd();

 private:
  PROCESS_INFORMATION process_{};
  HANDLE output_ = nullptr;
  std::string read_;
  std::thread reader_;
};

// A program that was built beside this one.
std::wstring BuiltProgram(const wchar_t* name);

// The system's own programs of this bitness.
std::wstring SystemProgram(const wchar_t* name);

}  // namespace hosts
