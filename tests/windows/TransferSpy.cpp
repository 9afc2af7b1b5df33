#include "TransferSpy.h"

#include <utility>

namespace sifter {

namespace {

// Hands on the rows that are read.
class CountingSink final : public IRowSink {
 public:
  CountingSink(IRowSink& sink, TransferCounts& counts) : sink_(sink), counts_(counts) {}
  HRESULT STDMETHODCALLTYPE TakeRow(ULONG token, const TransferRow* row) override {
    ++counts_.rowsRead;
    return sink_.TakeRow(token, row);
  }

 private:
  IRowSink& sink_;
  TransferCounts& counts_;
};

class TransferSpy final : public IRowTransfer {
 public:
  TransferSpy(ComRef<IRowTransfer> transfer, std::shared_ptr<TransferCounts> counts)
      : transfer_(std::move(transfer)), counts_(std::move(counts)) {
    ++counts_->open;
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetState(TransferState* state) override {
    return transfer_->GetState(state);
  }
  HRESULT STDMETHODCALLTYPE GetTokens(ULONG* tokens, ULONG capacity, ULONG* count) override {
    const HRESULT result = transfer_->GetTokens(tokens, capacity, count);
    counts_->tokensRead += *count;
    return result;
  }
  HRESULT STDMETHODCALLTYPE ReadRows(const ULONG* tokens, ULONG count, IRowSink* sink) override {
    CountingSink counting(*sink, *counts_);
    return transfer_->ReadRows(tokens, count, &counting);
  }
  HRESULT STDMETHODCALLTYPE AppendRow(const TransferRow* row, ULONG* token,
                                      TransferState* after) override {
    ++counts_->rowsWritten;
    return transfer_->AppendRow(row, token, after);
  }
  HRESULT STDMETHODCALLTYPE AppendKnownRow(ULONG token, TransferState* after) override {
    ++counts_->knownRowsWritten;
    return transfer_->AppendKnownRow(token, after);
  }
  HRESULT STDMETHODCALLTYPE RemoveRows(const LONG* positions, ULONG count,
                                       TransferState* after) override {
    return transfer_->RemoveRows(positions, count, after);
  }
  HRESULT STDMETHODCALLTYPE ForgetRows(const ULONG* tokens, ULONG count) override {
    counts_->forgotten += count;
    return transfer_->ForgetRows(tokens, count);
  }
  HRESULT STDMETHODCALLTYPE BeginUpdate() override { return transfer_->BeginUpdate(); }
  HRESULT STDMETHODCALLTYPE EndUpdate() override { return transfer_->EndUpdate(); }

 private:
  ~TransferSpy() { --counts_->open; }

  ULONG references_ = 1;
  ComRef<IRowTransfer> transfer_;
  std::shared_ptr<TransferCounts> counts_;
};

class SourceSpy final : public IRowTransferSource {
 public:
  SourceSpy(ComRef<IRowTransferSource> source, std::shared_ptr<TransferCounts> counts)
      : source_(std::move(source)), counts_(std::move(counts)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE OpenTransfer(IRowTransfer** transfer) override {
    ComRef<IRowTransfer> opened;
    const HRESULT result = source_->OpenTransfer(opened.Receive());
    if (SUCCEEDED(result)) *transfer = new TransferSpy(std::move(opened), counts_);
    return result;
  }

 private:
  ~SourceSpy() = default;

  ULONG references_ = 1;
  ComRef<IRowTransferSource> source_;
  std::shared_ptr<TransferCounts> counts_;
};

}  // namespace

std::function<HRESULT(REFIID, void**)> CountTransfers(ComRef<IDispatch> list,
                                                      std::shared_ptr<TransferCounts> counts) {
  return [list = std::move(list), counts = std::move(counts)](REFIID id, void** object) {
    *object = nullptr;
    if (id != kRowTransferSourceId) return E_NOINTERFACE;
    auto source = list.As<IRowTransferSource>(kRowTransferSourceId);
    if (!source) return E_NOINTERFACE;
    *object = static_cast<IRowTransferSource*>(new SourceSpy(std::move(source), counts));
    return S_OK;
  };
}

}  // namespace sifter
