#pragma once

#include "win32/ComRef.h"
#include "win32/RowTransfer.h"

#include <functional>
#include <memory>

namespace sifter {

// What crosses between a list and its mirror in another module.
struct TransferCounts {
  unsigned long rowsRead = 0;
  unsigned long rowsWritten = 0;
  unsigned long knownRowsWritten = 0;
  unsigned long tokensRead = 0;
  unsigned long forgotten = 0;
  int open = 0;  // connections that somebody holds
};

// For an object that is asked for other interfaces: `list`'s rows for transfer, and counted.
std::function<HRESULT(REFIID, void**)> CountTransfers(ComRef<IDispatch> list,
                                                      std::shared_ptr<TransferCounts> counts);

}  // namespace sifter
