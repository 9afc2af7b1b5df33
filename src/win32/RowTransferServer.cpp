#include "win32/RowTransferServer.h"

#include "base/RuntimeError.h"
#include "win32/ComResult.h"

#include <utility>

namespace sifter {

HRESULT RowTransferServer::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = id == IID_IUnknown || id == kRowTransferId ? this : nullptr;
  if (*object == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG RowTransferServer::AddRef() { return ++references_; }

ULONG RowTransferServer::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

TransferState RowTransferServer::State() const {
  const RowStore& rows = rows_.Rows();
  return {rows.Version(), rows.Count(), rows_.ColumnCount(), rows_.TakesSharedRows()};
}

ULONG RowTransferServer::TokenOf(const RowData& row) {
  const auto found = tokens_.find(&row);
  if (found != tokens_.end()) return found->second;
  const bool reuse = !free_.empty();
  const ULONG token = reuse ? free_.back() : static_cast<ULONG>(known_.size());
  if (!reuse) known_.emplace_back();
  tokens_.emplace(&row, token);
  if (reuse) free_.pop_back();
  known_[token] = RowPtr::Share(&row);
  return token;
}

const RowPtr& RowTransferServer::RowOf(ULONG token) const {
  if (token >= known_.size() || known_[token].Get() == nullptr)
    throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  return known_[token];
}

HRESULT RowTransferServer::GetState(TransferState* state) {
  if (state == nullptr) return E_POINTER;
  return ComResult([&] { *state = State(); });
}

HRESULT RowTransferServer::GetTokens(ULONG* tokens, ULONG capacity, ULONG* count) {
  if (count == nullptr || (tokens == nullptr && capacity > 0)) return E_POINTER;
  *count = 0;
  return ComResult([&] {
    std::vector<const RowData*> rows;
    rows_.Rows().CollectRows(rows);
    if (rows.size() > capacity) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    for (const RowData* row : rows) tokens[(*count)++] = TokenOf(*row);
  });
}

HRESULT RowTransferServer::ReadRows(const ULONG* tokens, ULONG count, IRowSink* sink) {
  if (sink == nullptr || (tokens == nullptr && count > 0)) return E_POINTER;
  HRESULT taken = S_OK;
  const HRESULT result = ComResult([&] {
    for (ULONG i = 0; i < count && SUCCEEDED(taken); ++i)
      taken = sink->TakeRow(tokens[i], &packer_.Pack(*RowOf(tokens[i])));
  });
  return FAILED(result) ? result : taken;
}

void RowTransferServer::Append(const RowData& row) {
  if (!rows_.TakesSharedRows()) throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  rows_.AppendShared(row);
}

HRESULT RowTransferServer::AppendRow(const TransferRow* row, ULONG* token, TransferState* after) {
  if (row == nullptr || token == nullptr || after == nullptr) return E_POINTER;
  return ComResult([&] {
    const RowPtr unpacked = UnpackRow(*row);
    Append(*unpacked);
    *token = TokenOf(*unpacked);
    *after = State();
  });
}

// The row may be forgotten while its coming is announced.
HRESULT RowTransferServer::AppendKnownRow(ULONG token, TransferState* after) {
  if (after == nullptr) return E_POINTER;
  return ComResult([&] {
    const RowPtr row = RowOf(token);
    Append(*row);
    *after = State();
  });
}

HRESULT RowTransferServer::RemoveRows(const LONG* positions, ULONG count, TransferState* after) {
  if (after == nullptr || (positions == nullptr && count > 0)) return E_POINTER;
  return ComResult([&] {
    std::int32_t last = 0;
    for (ULONG i = 0; i < count; last = positions[i++])
      if (positions[i] <= last || positions[i] > rows_.Rows().Count())
        throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    rows_.RemoveRows(std::vector<std::int32_t>(positions, positions + count));
    *after = State();
  });
}

HRESULT RowTransferServer::ForgetRows(const ULONG* tokens, ULONG count) {
  if (tokens == nullptr && count > 0) return E_POINTER;
  return ComResult([&] {
    free_.reserve(free_.size() + count);
    for (ULONG i = 0; i < count; ++i) {
      tokens_.erase(RowOf(tokens[i]).Get());
      free_.push_back(tokens[i]);
      const RowPtr forgotten = std::exchange(known_[tokens[i]], RowPtr());
    }
  });
}

HRESULT RowTransferServer::BeginUpdate() {
  list_->BeginUpdate();
  return S_OK;
}

HRESULT RowTransferServer::EndUpdate() {
  list_->EndUpdate();
  return S_OK;
}

}  // namespace sifter
