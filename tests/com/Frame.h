#pragma once

#include "ComFake.h"
#include "support/Recorder.h"

#include <oleidl.h>
#include <string>

namespace sifter {

// The container's frame: records what objects ask of it.
class Frame final : public ComFake<IOleInPlaceFrame> {
 public:
  Frame(HWND window, Recorder& recorder) : window_(window), recorder_(recorder) {}

  // The object that has told the frame to take its keys, null when none has.
  IOleInPlaceActiveObject* ActiveObject() const { return active_; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
    *window = window_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetBorder(RECT*) override {
    recorder_.Line("frame.GetBorder");
    return INPLACE_E_NOTOOLSPACE;
  }
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override {
    recorder_.Line("frame.RequestBorderSpace");
    return INPLACE_E_NOTOOLSPACE;
  }
  HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS widths) override {
    recorder_.Line(widths == nullptr ? "frame.SetBorderSpace none" : "frame.SetBorderSpace");
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
    recorder_.Line(object == nullptr ? "frame.SetActiveObject none" : "frame.SetActiveObject");
    if (object != nullptr) object->AddRef();
    if (active_ != nullptr) active_->Release();
    active_ = object;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override {
    recorder_.Line("frame.InsertMenus");
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override {
    recorder_.Line("frame.SetMenu");
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override {
    recorder_.Line("frame.RemoveMenus");
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override {
    recorder_.Line("frame.SetStatusText");
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnableModeless(WINBOOL enable) override {
    recorder_.Line(enable ? "frame.EnableModeless True" : "frame.EnableModeless False");
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

 protected:
  void* Find(REFIID id) override {
    if (id == IID_IOleWindow || id == IID_IOleInPlaceUIWindow)
      return static_cast<IOleInPlaceFrame*>(this);
    return ComFake::Find(id);
  }

 private:
  HWND window_;
  Recorder& recorder_;
  IOleInPlaceActiveObject* active_ = nullptr;
};

}  // namespace sifter
