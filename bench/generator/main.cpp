#include "common/TableGenerator.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace {

constexpr std::size_t kMostRows = 10'000'000;

int Fail(const char* message) {
  std::fprintf(stderr, "make_table: %s\n", message);
  return 2;
}

bool ReadRows(const char* argument, std::size_t& rows) {
  const char* end = argument + std::strlen(argument);
  const std::from_chars_result read = std::from_chars(argument, end, rows);
  return read.ec == std::errc() && read.ptr == end && rows <= kMostRows;
}

bool Write(const std::string& csv, std::FILE* file) {
  return std::fwrite(csv.data(), 1, csv.size(), file) == csv.size() && std::fflush(file) == 0;
}

}  // namespace

// Writes the generated table as CSV.
int main(int argc, char** argv) {
  std::size_t rows = 0;
  if (argc < 2 || argc > 3 || !ReadRows(argv[1], rows))
    return Fail("expected ROWS (0 to 10000000) and, if not standard output, FILE.csv");
  const std::string csv = sifter::bench::GeneratedTable(rows);
  if (argc == 2) return Write(csv, stdout) ? 0 : Fail("standard output can't be written");
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(argv[2], "wb"),
                                                             &std::fclose);
  if (!file || !Write(csv, file.get())) return Fail("the file can't be written");
  return 0;
}
