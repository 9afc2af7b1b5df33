#pragma once

#include "ComFake.h"
#include "support/Recorder.h"
#include "win32/ComRef.h"
#include "win32/UniqueBstr.h"

#include <functional>
#include <map>
#include <oaidl.h>
#include <ocidl.h>
#include <oleidl.h>
#include <string>

namespace sifter {

// Listens to a control's events as late-bound hosts do: by number. Records each as "event 1", with
// its text by reference, or the number of arguments where it has others, and then does what the
// test has set for it.
class EventSink final : public ComFake<IDispatch> {
 public:
  EventSink(REFIID events, Recorder& recorder) : events_(events), recorder_(recorder) {}

  std::map<DISPID, std::function<void()>> handlers;
  std::function<void(BSTR& text)> onText;  // what the sink does to an argument of an event's
  HRESULT answer = S_OK;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** type) override {
    *type = nullptr;
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT*, EXCEPINFO*, UINT*) override {
    EXPECT_NE(flags & DISPATCH_METHOD, 0);
    std::string line = "event " + std::to_string(id);
    BSTR* const text = TextIn(*parameters);
    if (text != nullptr) line += " \"" + Text(BstrView(*text)).ToUtf8() + '"';
    if (text == nullptr && parameters->cArgs > 0)
      line += " with " + std::to_string(parameters->cArgs);
    recorder_.Line(line);
    if (text != nullptr && onText) onText(*text);
    if (const auto found = handlers.find(id); found != handlers.end()) found->second();
    return answer;
  }

 protected:
  void* Find(REFIID id) override {
    return id == events_ ? static_cast<IDispatch*>(this) : ComFake::Find(id);
  }

 private:
  static BSTR* TextIn(const DISPPARAMS& parameters) {
    const bool one = parameters.cArgs == 1 && parameters.rgvarg[0].vt == (VT_BYREF | VT_BSTR);
    return one ? parameters.rgvarg[0].pbstrVal : nullptr;
  }

  IID events_;
  Recorder& recorder_;
};

// Records the notices of changed properties.
class PropertySink final : public ComFake<IPropertyNotifySink> {
 public:
  explicit PropertySink(Recorder& recorder) : recorder_(recorder) {}

  HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override {
    recorder_.Line("changed " + Hex(id));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID id) override {
    recorder_.Line("may change " + Hex(id));
    return S_OK;
  }

 private:
  static std::string Hex(DISPID id) {
    char text[16];
    snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(id));
    return text;
  }

  Recorder& recorder_;
};

// Records what a control's views and storage go through.
class ViewSink final : public ComFake<IAdviseSink> {
 public:
  explicit ViewSink(Recorder& recorder) : recorder_(recorder) {}

  void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {
    recorder_.Line("data changed");
  }
  void STDMETHODCALLTYPE OnViewChange(DWORD aspect, LONG) override {
    recorder_.Line("view changed, aspect " + std::to_string(aspect));
  }
  void STDMETHODCALLTYPE OnRename(IMoniker*) override { recorder_.Line("renamed"); }
  void STDMETHODCALLTYPE OnSave() override { recorder_.Line("saved"); }
  void STDMETHODCALLTYPE OnClose() override { recorder_.Line("closed"); }

 private:
  Recorder& recorder_;
};

// A connection that ends with its holder.
class Connection {
 public:
  Connection(IUnknown* source, REFIID events, IUnknown* sink) {
    ComRef<IConnectionPointContainer> points =
        ComRef<IUnknown>(source).As<IConnectionPointContainer>();
    if (!points || FAILED(points->FindConnectionPoint(events, point_.Receive()))) {
      ADD_FAILURE() << "no such connection point";
      return;
    }
    EXPECT_EQ(point_->Advise(sink, &cookie_), S_OK);
  }
  ~Connection() { Break(); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  void Break() {
    if (!point_) return;
    EXPECT_EQ(point_->Unadvise(cookie_), S_OK);
    point_.Reset();
  }

 private:
  ComRef<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace sifter
