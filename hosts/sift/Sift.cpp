#include "sift/Sift.h"

#include "sift/Arguments.h"
#include "sift/CsvReader.h"
#include "sift/FileBytes.h"
#include "sift/FilterRun.h"
#include "sift/OneLine.h"
#include "sift/Report.h"
#include "sift/Terminal.h"
#include "sift/UserError.h"

#include <cerrno>
#include <new>
#include <string_view>
#include <system_error>

namespace sifter {

namespace {

int Fail(int exitCode, std::string_view what) {
  WriteAll(Stream::kError, "sift: " + OnOneLine(Text::FromUtf8(what)) + '\n');
  return exitCode;
}

// Who has read enough of a pipe needs no message about it.
int NotWritten(int error) {
  if (error == EPIPE) return kNotWritten;
  return Fail(kNotWritten, "cannot write the output: " + std::generic_category().message(error));
}

CsvTable ReadTable(const std::string& file) {
  try {
    return ReadCsv(ReadAllBytes(file));
  } catch (const CsvError& error) {
    throw UserError(DisplayName(file) + ", " + error.what());
  }
}

int Write(const std::string& output, const std::string& remarks) {
  const int error = WriteAll(Stream::kOutput, output);
  if (error != 0) return NotWritten(error);
  WriteAll(Stream::kError, remarks);
  return kDone;
}

int Run(const Arguments& arguments, const Conversions& conversions, const Clock& clock) {
  if (arguments.help) return Write(HelpText(), "");
  const CsvTable table = ReadTable(arguments.file);
  const FilterResult result = FilterTable(table, arguments, conversions, clock);
  const OutputFormat format = ChosenFormat(arguments.format, IsTerminal(Stream::kOutput));
  return Write(OutputOf(table, result, format, arguments.listColumns),
               RemarksOn(result, format, arguments.listColumns));
}

}  // namespace

int RunSift(const std::vector<std::string>& words, const Conversions& conversions,
            const Clock& clock) {
  try {
    return Run(ParseArguments(words), conversions, clock);
  } catch (const UserError& error) {
    return Fail(kUserError, error.what());
  } catch (const std::bad_alloc&) {
    return Fail(kNotWritten, "there is not enough memory");
  }
}

}  // namespace sifter
