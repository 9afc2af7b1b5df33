#include "sift/Terminal.h"

#include <cerrno>
#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Needs windows.h before it.
#include <shellapi.h>
#else
#include <csignal>
#include <unistd.h>
#endif

namespace sifter {

namespace {

std::FILE* FileOf(Stream stream) { return stream == Stream::kOutput ? stdout : stderr; }

}  // namespace

StandardStreams::~StandardStreams() { restore_(); }

#ifdef _WIN32

// The console outlives the program.
StandardStreams::StandardStreams()
    : restore_([codePage = GetConsoleOutputCP()] { SetConsoleOutputCP(codePage); }) {
  SetConsoleOutputCP(CP_UTF8);
  for (std::FILE* file : {stdin, stdout, stderr}) _setmode(_fileno(file), _O_BINARY);
}

// The ones that the C library hands over have lost what the user's code page lacks.
std::vector<std::string> Utf8Arguments(int, char**) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  if (words == nullptr) return arguments;
  for (int i = 1; i < count; ++i) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, words[i], -1, nullptr, 0, nullptr, nullptr);
    std::string argument(static_cast<std::size_t>(size > 0 ? size : 1), '\0');
    WideCharToMultiByte(CP_UTF8, 0, words[i], -1, argument.data(), size, nullptr, nullptr);
    argument.pop_back();  // its closing NUL
    arguments.push_back(argument);
  }
  LocalFree(words);
  return arguments;
}

bool IsTerminal(Stream stream) { return _isatty(_fileno(FileOf(stream))) != 0; }

#else

StandardStreams::StandardStreams()
    : restore_([handler = std::signal(SIGPIPE, SIG_IGN)] { std::signal(SIGPIPE, handler); }) {}

std::vector<std::string> Utf8Arguments(int argc, char** argv) {
  return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

bool IsTerminal(Stream stream) { return isatty(fileno(FileOf(stream))) != 0; }

#endif

int WriteAll(Stream stream, std::string_view bytes) {
  std::FILE* const file = FileOf(stream);
  errno = 0;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  if (written && std::fflush(file) == 0) return 0;
  return errno == 0 ? EIO : errno;
}

}  // namespace sifter
