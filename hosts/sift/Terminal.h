#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sifter {

// What a console program needs of the system besides the standard library, and nothing else. The
// bytes that go in and out are UTF-8, with line ends as they are.

enum class Stream { kOutput, kError };

// Makes the standard streams carry bytes unchanged for as long as it lives, and lets writing into
// a pipe that nobody reads any more fail rather than end the program.
class StandardStreams {
 public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

 private:
  std::function<void()> restore_;
};

// The arguments of the program, without its own name.
std::vector<std::string> Utf8Arguments(int argc, char** argv);

// Whether somebody is looking at the stream.
bool IsTerminal(Stream stream);

// Writes all bytes out. Returns 0, or the error as an errno value.
int WriteAll(Stream stream, std::string_view bytes);

}  // namespace sifter
