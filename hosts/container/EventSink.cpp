#include "container/EventSink.h"

#include "container/Bstr.h"
#include "container/ComObject.h"
#include "container/Failure.h"

#include <utility>

namespace hosts {

namespace {

struct EventInterface {
  IID id = IID_NULL;
  ComRef<ITypeInfo> description;
};

// The default outgoing interface of a class.
ComRef<ITypeInfo> DefaultSource(ITypeInfo* coclass) {
  constexpr int kDefaultSource = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
  TYPEATTR* attributes = nullptr;
  Check(coclass->GetTypeAttr(&attributes), L"Reading the control's class");
  const UINT count = attributes->cImplTypes;
  coclass->ReleaseTypeAttr(attributes);
  for (UINT i = 0; i < count; ++i) {
    int flags = 0;
    HREFTYPE reference = 0;
    ComRef<ITypeInfo> source;
    if (SUCCEEDED(coclass->GetImplTypeFlags(i, &flags)) &&
        (flags & kDefaultSource) == kDefaultSource &&
        SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference)) &&
        SUCCEEDED(coclass->GetRefTypeInfo(reference, source.Receive())))
      return source;
  }
  throw Failure(L"The control describes no events");
}

EventInterface EventsOf(IUnknown* control) {
  EventInterface events;
  const auto provider = ComRef<IUnknown>(control).As<IProvideClassInfo2>();
  if (!provider) throw Failure(L"The control doesn't describe its class");
  Check(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events.id),
        L"Asking for the control's events");
  ComRef<ITypeInfo> coclass;
  Check(provider->GetClassInfo(coclass.Receive()), L"Asking for the control's class");
  events.description = DefaultSource(coclass.Get());
  return events;
}

// The object that the control calls.
class Receiver : public IDispatch {
 public:
  bool Answers(REFIID id) const {
    return IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
           IsEqualIID(id, events_.id);
  }

  Receiver(EventInterface events, std::weak_ptr<EventHandler> handler)
      : events_(std::move(events)), handler_(std::move(handler)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = Answers(id) ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
  }
  ULONG STDMETHODCALLTYPE Release() override {
    const auto left = static_cast<ULONG>(InterlockedDecrement(&references_));
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    *info = ComRef<ITypeInfo>(events_.description).Release();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override {
    return events_.description->GetIDsOfNames(names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                                   EXCEPINFO*, UINT*) override {
    const auto handler = handler_.lock();
    if (handler == nullptr) return S_OK;
    return ComBody([&] {
      std::vector<VARIANT*> arguments;
      for (UINT i = parameters == nullptr ? 0 : parameters->cArgs; i > 0; --i)
        arguments.push_back(&parameters->rgvarg[i - 1]);
      (*handler)(NameOf(id), arguments);
    });
  }

 private:
  virtual ~Receiver() = default;

  std::wstring NameOf(DISPID id) const {
    Bstr name;
    UINT count = 0;
    Check(events_.description->GetNames(id, name.Receive(), 1, &count), L"Looking for an event");
    return std::wstring(name.View());
  }

  LONG references_ = 1;
  EventInterface events_;
  std::weak_ptr<EventHandler> handler_;
};

}  // namespace

EventSink::EventSink(IUnknown* control, EventHandler handler)
    : handler_(std::make_shared<EventHandler>(std::move(handler))) {
  EventInterface events = EventsOf(control);
  const auto container = ComRef<IUnknown>(control).As<IConnectionPointContainer>();
  if (!container) throw Failure(L"The control raises no events");
  Check(container->FindConnectionPoint(events.id, point_.Receive()),
        L"Looking for the control's events");
  const auto receiver = ComRef<IDispatch>::Adopt(new Receiver(std::move(events), handler_));
  Check(point_->Advise(receiver.Get(), &cookie_), L"Connecting to the control's events");
}

EventSink::~EventSink() { point_->Unadvise(cookie_); }

}  // namespace hosts
