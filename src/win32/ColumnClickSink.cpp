#include "win32/ColumnClickSink.h"

#include "base/RuntimeError.h"
#include "win32/ComResult.h"
#include "win32/EventSearch.h"
#include "win32/LateBoundListObject.h"
#include "win32/ModuleUse.h"
#include "win32/NativeListViewDispatchCall.h"
#include "win32/Variants.h"

#include <utility>

namespace sifter {

namespace {

using Clicked = std::function<void(std::int32_t column)>;

std::int32_t IndexOf(const Value& header) {
  const Ref<Object>* held = header.As<Ref<Object>>();
  const auto* object = held == nullptr ? nullptr : dynamic_cast<const ComObject*>(held->Get());
  if (object == nullptr || object->Dispatch() == nullptr)
    throw RuntimeError(ErrorNumber::kObjectRequired);
  const LateBoundObject column(MakeRef<LateBoundClasses>(), ComRef<IDispatch>(object->Dispatch()),
                               LateBoundRole::kColumn);
  return ValueToInt32(column.Read(LateBoundMember::kIndex));
}

// What a list calls. It may be kept by the list for longer than it is wanted.
class ColumnClickSink final : public IDispatch {
 public:
  ColumnClickSink(const FoundEvent& event, Clicked clicked)
      : interfaceId_(event.interfaceId), event_(event.id), clicked_(std::move(clicked)) {}
  ColumnClickSink(const ColumnClickSink&) = delete;
  ColumnClickSink& operator=(const ColumnClickSink&) = delete;

  void Close() { const Clicked leaving = std::exchange(clicked_, nullptr); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IDispatch && id != interfaceId_) return E_NOINTERFACE;
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info != nullptr) *info = nullptr;
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID, WORD, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* error, UINT*) override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (arguments == nullptr) return E_INVALIDARG;
    if (result != nullptr) VariantInit(result);
    if (id != event_ || !clicked_) return S_OK;
    const ComRef<IDispatch> alive(this);
    return ComResult(error, [&] { Tell(*arguments); });
  }

 private:
  ~ColumnClickSink() = default;

  // The list may end the connection while it is asked.
  void Tell(const DISPPARAMS& arguments) const {
    const DispatchCall call(arguments, DispatchCall::kMostParameters, false);
    const std::int32_t column = IndexOf(SUCCEEDED(call.Result()) ? call[0] : Value());
    const Clicked clicked = clicked_;
    if (clicked) clicked(column);
  }

  ModuleUse use_;
  ULONG references_ = 1;
  const IID interfaceId_;
  const DISPID event_;
  Clicked clicked_;
};

// A sink at its connection point. The point may be what remains of a list.
class Connection final : public Object {
 public:
  Connection(ComRef<IConnectionPoint> point, ComRef<ColumnClickSink> sink)
      : point_(std::move(point)), sink_(std::move(sink)) {}
  ~Connection() override {
    sink_->Close();
    if (connected_) point_->Unadvise(cookie_);
  }

  bool Connect() {
    connected_ = SUCCEEDED(point_->Advise(sink_.Get(), &cookie_));
    return connected_;
  }

 private:
  ComRef<IConnectionPoint> point_;
  ComRef<ColumnClickSink> sink_;
  DWORD cookie_ = 0;
  bool connected_ = false;
};

}  // namespace

Ref<Object> WatchColumnClickEvent(IDispatch* list,
                                  std::function<void(std::int32_t column)> clicked) {
  FoundEvent event = FindEvent(list, u"ColumnClick");
  if (!event.point) return nullptr;
  auto sink = ComRef<ColumnClickSink>::Adopt(new ColumnClickSink(event, std::move(clicked)));
  const auto connection = MakeRef<Connection>(std::move(event.point), std::move(sink));
  return connection->Connect() ? Ref<Object>(connection) : nullptr;
}

}  // namespace sifter
