#pragma once

#include <iosfwd>
#include <vector>

namespace sifter {

// What a host, a user and the clock can do to a banner and its list.
enum class Act {
  kInsert,        // a: where, b: what
  kInsertTwin,    // a: of which row
  kReuseKey,      // a: of which hidden row
  kDelete,        // a: which
  kClear,         //
  kEdit,          // a: which
  kCheck,         // a: which
  kTick,          //
  kShow,          // a: how the user leaves the dialog, b: acts that happen meanwhile
  kShowModeless,  // a: the same
  kApplyText,     // a: which text
  kActivate,      // a: how the user leaves the dialog
  kDeactivate,    //
  kSetInactive,   //
  kDetach,        // a: in which way, b: acts that happen before the list is attached again
  kClickColumn,   // a: which
  kAddColumn,     //
  kCount,
};

// The numbers are whatever the generator gives; who acts takes what there is of rows, texts and
// ways to leave modulo their number. So any list of operations can be played, and any part of it.
struct Operation {
  Act act;
  int a = 0;
  int b = 0;
};

using Operations = std::vector<Operation>;

// The same for one seed. They end with a user who resets.
Operations RandomOperations(unsigned seed, int count);

// As it is written in a source.
std::ostream& operator<<(std::ostream& out, const Operations& operations);

}  // namespace sifter
