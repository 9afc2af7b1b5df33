#pragma once

namespace sifter::bench {

// Compares the dialog with the yardsticks on all sizes of the generated table, measures the
// memory of its lists, and prints both as tables. `repetitions` is for the smallest table and
// falls as they grow. Throws std::logic_error when results differ.
void PrintRatios(int repetitions);

// Measures a banner that filters again after its host has added rows, beside one comparison of all
// rows, and prints a table.
void PrintReapplying(int repetitions);

}  // namespace sifter::bench
