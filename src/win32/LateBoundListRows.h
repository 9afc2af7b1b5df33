#pragma once

#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"
#include "win32/ComRef.h"
#include "win32/RowTransfer.h"
#include "win32/RowTransferRow.h"

#include <cstdint>
#include <unordered_map>
#include <vector>
#include <windows.h>

namespace sifter {

// The rows of a list in another module, as rows of our own to share: a copy that is brought up to
// date when it is asked for and the list has changed since. Only rows that are not known yet cross
// as such.
class LateBoundListRows final : public SharedRows {
 public:
  explicit LateBoundListRows(ComRef<IRowTransfer> transfer) : transfer_(std::move(transfer)) {}

  const RowStore& Rows() const override;
  std::int32_t ColumnCount() const override;
  bool TakesSharedRows() const override;
  void AppendShared(const RowData& row) override;
  void RemoveRows(const std::vector<std::int32_t>& positions) override;

  void BeginUpdate() noexcept { transfer_->BeginUpdate(); }
  void EndUpdate() noexcept { transfer_->EndUpdate(); }

 private:
  class Sink;

  TransferState State() const;
  void FetchAll() const;
  void Fetch(const std::vector<ULONG>& tokens) const;
  void ForgetUnused() const;
  void Know(ULONG token, RowPtr row) const;

  ComRef<IRowTransfer> transfer_;
  RowPacker packer_;

  // What is known of the list changes nothing about it.
  mutable RowStore rows_;
  mutable std::uint64_t version_ = 0;  // the list's, that the rows are those of
  mutable bool fetched_ = false;
  mutable std::vector<RowPtr> known_;  // by token
  mutable std::unordered_map<const RowData*, ULONG> tokens_;
};

}  // namespace sifter
