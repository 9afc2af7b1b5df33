#pragma once

#include "listmodel/RowData.h"
#include "win32/RowTransfer.h"
#include "win32/UniqueVariant.h"

#include <vector>

namespace sifter {

// A row in the form in which it crosses from one module to another. It borrows the row's texts, and
// is good until the next one is packed.
class RowPacker {
 public:
  const TransferRow& Pack(const RowData& row);

 private:
  VARIANT Icon(const Value& icon);

  TransferRow packed_{};
  std::vector<TransferText> texts_;
  std::vector<TransferCell> cells_;
  std::vector<UniqueVariant> icons_;
};

// A row of this module's own.
RowPtr UnpackRow(const TransferRow& row);

}  // namespace sifter
