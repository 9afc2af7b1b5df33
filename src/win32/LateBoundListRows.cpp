#include "win32/LateBoundListRows.h"

#include "win32/ComResult.h"
#include "win32/Errors.h"

#include <algorithm>
#include <utility>

namespace sifter {

// Where the list's module puts the rows that it is asked for.
class LateBoundListRows::Sink final : public IRowSink {
 public:
  explicit Sink(const LateBoundListRows& rows) : rows_(rows) {}

  HRESULT STDMETHODCALLTYPE TakeRow(ULONG token, const TransferRow* row) override {
    return ComResult([&] { rows_.Know(token, UnpackRow(*row)); });
  }

 private:
  const LateBoundListRows& rows_;
};

TransferState LateBoundListRows::State() const {
  TransferState state{};
  ThrowIfFailed(transfer_->GetState(&state));
  return state;
}

const RowStore& LateBoundListRows::Rows() const {
  if (!fetched_ || State().version != version_) FetchAll();
  return rows_;
}

std::int32_t LateBoundListRows::ColumnCount() const { return State().columns; }

bool LateBoundListRows::TakesSharedRows() const { return State().takesRows != FALSE; }

void LateBoundListRows::Know(ULONG token, RowPtr row) const {
  if (token >= known_.size()) known_.resize(token + 1);
  tokens_.emplace(row.Get(), token);
  known_[token] = std::move(row);
}

void LateBoundListRows::FetchAll() const {
  const TransferState state = State();
  std::vector<ULONG> tokens(static_cast<std::size_t>(state.rows));
  ULONG count = 0;
  ThrowIfFailed(transfer_->GetTokens(tokens.data(), static_cast<ULONG>(tokens.size()), &count));
  tokens.resize(count);
  Fetch(tokens);
  std::vector<RowPtr> rows;
  rows.reserve(tokens.size());
  for (const ULONG token : tokens) rows.push_back(known_[token]);
  rows_.Assign(std::move(rows));
  version_ = state.version;
  fetched_ = true;
  if (known_.size() > 2 * tokens.size() + 1000) ForgetUnused();
}

void LateBoundListRows::Fetch(const std::vector<ULONG>& tokens) const {
  std::vector<ULONG> unknown;
  for (const ULONG token : tokens)
    if (token >= known_.size() || known_[token].Get() == nullptr) unknown.push_back(token);
  if (unknown.empty()) return;
  Sink sink(*this);
  ThrowIfFailed(transfer_->ReadRows(unknown.data(), static_cast<ULONG>(unknown.size()), &sink));
}

// Rows that stand neither in the list nor in any snapshot of it.
void LateBoundListRows::ForgetUnused() const {
  std::vector<ULONG> unused;
  for (std::size_t token = 0; token < known_.size(); ++token)
    if (known_[token].Get() != nullptr && !known_[token].IsShared())
      unused.push_back(static_cast<ULONG>(token));
  if (FAILED(transfer_->ForgetRows(unused.data(), static_cast<ULONG>(unused.size())))) return;
  for (const ULONG token : unused) {
    tokens_.erase(known_[token].Get());
    known_[token] = RowPtr();
  }
}

// A host that changes the list on being told of the row has its changes fetched at once.
void LateBoundListRows::AppendShared(const RowData& row) {
  TransferState after{};
  const auto found = tokens_.find(&row);
  if (found != tokens_.end()) {
    ThrowIfFailed(transfer_->AppendKnownRow(found->second, &after));
  } else {
    ULONG token = 0;
    ThrowIfFailed(transfer_->AppendRow(&packer_.Pack(row), &token, &after));
    Know(token, RowPtr::Share(&row));
  }
  if (!fetched_ || after.version != version_ + 1) {
    FetchAll();
    return;
  }
  rows_.AppendShared(row);
  version_ = after.version;
}

// The list may count the removals one by one or as one change.
void LateBoundListRows::RemoveRows(const std::vector<std::int32_t>& positions) {
  if (positions.empty()) return;
  const std::vector<LONG> crossing(positions.begin(), positions.end());
  TransferState after{};
  ThrowIfFailed(
      transfer_->RemoveRows(crossing.data(), static_cast<ULONG>(crossing.size()), &after));
  const std::uint64_t changes = after.version - version_;
  const auto left = rows_.Count() - static_cast<std::int32_t>(positions.size());
  if (!fetched_ || after.rows != left || (changes != 1 && changes != positions.size())) {
    FetchAll();
    return;
  }
  rows_.RemoveAscending(positions);
  version_ = after.version;
}

}  // namespace sifter
