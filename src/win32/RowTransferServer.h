#pragma once

#include "listmodel/HostListView.h"
#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"
#include "win32/RowTransfer.h"
#include "win32/RowTransferRow.h"

#include <unordered_map>
#include <vector>

namespace sifter {

// The list's side of a row transfer. It keeps a share of every row that has a token; a shared row
// never changes, so a token stands for what the caller has seen.
//
// It starts with one reference, the maker's.
class RowTransferServer final : public IRowTransfer {
 public:
  // `list` must share its rows.
  explicit RowTransferServer(Ref<HostListView> list)
      : list_(std::move(list)), rows_(*list_->Shared()) {}
  RowTransferServer(const RowTransferServer&) = delete;
  RowTransferServer& operator=(const RowTransferServer&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetState(TransferState* state) override;
  HRESULT STDMETHODCALLTYPE GetTokens(ULONG* tokens, ULONG capacity, ULONG* count) override;
  HRESULT STDMETHODCALLTYPE ReadRows(const ULONG* tokens, ULONG count, IRowSink* sink) override;
  HRESULT STDMETHODCALLTYPE AppendRow(const TransferRow* row, ULONG* token,
                                      TransferState* after) override;
  HRESULT STDMETHODCALLTYPE AppendKnownRow(ULONG token, TransferState* after) override;
  HRESULT STDMETHODCALLTYPE RemoveRows(const LONG* positions, ULONG count,
                                       TransferState* after) override;
  HRESULT STDMETHODCALLTYPE ForgetRows(const ULONG* tokens, ULONG count) override;
  HRESULT STDMETHODCALLTYPE BeginUpdate() override;
  HRESULT STDMETHODCALLTYPE EndUpdate() override;

 private:
  ~RowTransferServer() = default;

  TransferState State() const;
  void Append(const RowData& row);
  ULONG TokenOf(const RowData& row);
  const RowPtr& RowOf(ULONG token) const;

  ULONG references_ = 1;
  Ref<HostListView> list_;
  SharedRows& rows_;
  std::vector<RowPtr> known_;  // by token; some are free
  std::vector<ULONG> free_;
  std::unordered_map<const RowData*, ULONG> tokens_;
  RowPacker packer_;
};

}  // namespace sifter
