#pragma once

#include <functional>
#include <string>

namespace sifter {

// How a program ended and what it printed.
struct ProcessEnd {
  long code = -1;  // -1 when it didn't end in time and had to be stopped
  std::string output;
};

// Runs a program to its end, thirty seconds at most. Meanwhile `each` is called again and again.
ProcessEnd RunProcess(const std::wstring& commandLine, const std::function<void()>& each = {});

// A file with this text, in a folder for temporary ones, for as long as the object lives.
class TemporaryFile {
 public:
  TemporaryFile(const std::wstring& name, const std::string& text);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::wstring& Path() const { return path_; }

 private:
  std::wstring path_;
};

// Where the system's programs of this bitness are.
std::wstring SystemProgram(const wchar_t* file);

}  // namespace sifter
