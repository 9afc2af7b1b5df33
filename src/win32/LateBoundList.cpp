#include "win32/LateBoundList.h"

#include "base/AbsorbErrors.h"
#include "win32/ColumnClickSink.h"
#include "win32/LateBoundListParts.h"

#include <utility>

namespace sifter {

namespace {

std::unique_ptr<LateBoundListRows> OpenRows(IDispatch* list) {
  const auto source = ComRef<IDispatch>(list).As<IRowTransferSource>(kRowTransferSourceId);
  ComRef<IRowTransfer> transfer;
  if (!source || FAILED(source->OpenTransfer(transfer.Receive())) || !transfer) return nullptr;
  return std::make_unique<LateBoundListRows>(std::move(transfer));
}

// Good for as long as the object is held.
const void* IdentityOf(IDispatch* object) {
  const auto identity = ComRef<IDispatch>(object).As<IUnknown>(IID_IUnknown);
  return identity.Get();
}

// A handle fits 32 bits, but hosts may hand it over as an unsigned or a wider number.
std::int32_t HandleIn(const Value& value) {
  const double* wide = value.As<double>();
  if (wide == nullptr || *wide < 0 || *wide > 4294967295.0) return ValueToInt32(value);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(*wide));
}

HWND WindowOf(std::int32_t handle) { return reinterpret_cast<HWND>(static_cast<INT_PTR>(handle)); }

}  // namespace

LateBoundList::LateBoundList(ComRef<IDispatch> list, Transfer transfer)
    : object_(MakeRef<LateBoundClasses>(), std::move(list), LateBoundRole::kList),
      identity_(IdentityOf(object_.Get())),
      rows_(transfer == Transfer::kNever ? nullptr : OpenRows(object_.Get())) {}

Ref<ColumnHeaderCollection> LateBoundList::ColumnHeaders() {
  return LateBoundColumns(LateBoundObject(object_.Classes(),
                                          object_.ReadObject(LateBoundMember::kColumnHeaders),
                                          LateBoundRole::kColumns));
}

Ref<ListItemCollection> LateBoundList::ListItems() {
  return LateBoundRows(LateBoundObject(
      object_.Classes(), object_.ReadObject(LateBoundMember::kListItems), LateBoundRole::kRows));
}

std::int32_t LateBoundList::hWnd() const {
  return HandleIn(object_.Read(LateBoundMember::kWindow));
}

Ref<Object> LateBoundList::WatchColumnClicks(std::function<void(std::int32_t column)> clicked) {
  return WatchColumnClickEvent(object_.Get(), std::move(clicked));
}

// A list without a window is changed like any other.
void LateBoundList::BeginUpdate() noexcept {
  if (rows_) {
    rows_->BeginUpdate();
    return;
  }
  HWND window = nullptr;
  if (pause_.IsOutermost()) AbsorbErrors([&] { window = WindowOf(hWnd()); });
  pause_.Begin(window);
}

void LateBoundList::EndUpdate() noexcept {
  if (rows_)
    rows_->EndUpdate();
  else
    pause_.End();
}

}  // namespace sifter
