#pragma once

#include "container/ComRef.h"

#include <functional>
#include <memory>
#include <oleidl.h>

namespace hosts {

// What the frames of a window's controls know.
struct FrameState {
  HWND window = nullptr;                       // the top-level window
  ComRef<IOleInPlaceActiveObject> active;      // the control that has the keyboard
  std::function<void(bool modeless)> onModal;  // a control begins or ends a dialog of its own
};

// The container's top-level window, as a control sees it. It lends no border, menu or status line.
class InPlaceFrame : public IOleInPlaceFrame {
 public:
  static bool Answers(REFIID id) {
    return IsEqualIID(id, IID_IOleInPlaceFrame) || IsEqualIID(id, IID_IOleInPlaceUIWindow) ||
           IsEqualIID(id, IID_IOleWindow);
  }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetBorder(RECT*) override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override {
    return INPLACE_E_NOTOOLSPACE;
  }
  HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* active,
                                            LPCOLESTR name) override;
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, WORD) override { return S_FALSE; }

 protected:
  explicit InPlaceFrame(const std::shared_ptr<FrameState>& state) : state_(state) {}
  ~InPlaceFrame() = default;

 private:
  std::shared_ptr<FrameState> state_;
};

}  // namespace hosts
