#pragma once

#include "host/HostTable.h"

#include <cstdint>
#include <vector>
#include <windows.h>

namespace sifter::bench {

// Yardsticks: what an apply has to do to a list-view window, with plain messages and nothing else.
// Redrawing is off meanwhile, the number of rows is told in advance, and rows are taken out from
// the last to the first. No notice carries anything, no attribute is kept.

// How the window comes by its texts.
enum class TextsBy {
  kMessages,   // each cell is set: what programs do
  kCallbacks,  // the window asks when it draws: the least that a row can cost
};

// A report-style list view with a parent that knows the table.
class PlainWindow {
 public:
  PlainWindow(HWND parent, const HostTable& table, TextsBy texts);
  ~PlainWindow();
  PlainWindow(const PlainWindow&) = delete;
  PlainWindow& operator=(const PlainWindow&) = delete;

  HWND Handle() const { return window_; }

  // Puts all rows in, into a window that has any.
  void Refill();

  // All rows out and in again, and those at `failing` (0-based, ascending) out; in milliseconds.
  double Apply(const std::vector<std::int32_t>& failing);

 private:
  void InsertRows();

  HWND window_;
  const HostTable& table_;
  TextsBy texts_;
};

double Milliseconds();

// Processor time of this thread, which other work on the machine doesn't add to. Counted in steps
// of ten milliseconds or so.
double ThreadMilliseconds();

}  // namespace sifter::bench
