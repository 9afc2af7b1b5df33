#pragma once

#include "sift/Arguments.h"
#include "sift/CsvTable.h"
#include "sift/FilterRun.h"

#include <string>

namespace sifter {

// The format that is meant, given where the output goes. Never kAutomatic.
OutputFormat ChosenFormat(OutputFormat asked, bool onTerminal);

// What goes to the standard output: the kept records, or with --columns the columns. The JSON
// object holds both anyway and is the same with --columns.
std::string OutputOf(const CsvTable& table, const FilterResult& result, OutputFormat format,
                     bool listColumns);

// What goes to the standard error beside it, line by line: the dialog's boxes as "title: text",
// notes, and under the records how many there are and what they were filtered by. JSON has the
// boxes, the counts and the texts in it, so that only notes remain.
std::string RemarksOn(const FilterResult& result, OutputFormat format, bool listColumns);

}  // namespace sifter
