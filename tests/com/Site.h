#pragma once

#include "ComFake.h"
#include "Frame.h"
#include "base/Value.h"
#include "support/Recorder.h"

#include <functional>
#include <map>
#include <oaidl.h>
#include <ocidl.h>
#include <oleidl.h>
#include <set>
#include <string>

namespace sifter {

// The place of one control in a container: everything that the control says to it is recorded.
// Reading the ambient properties isn't, only which of them have been asked for.
class Site final : public ComFake<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch> {
 public:
  Site(HWND window, Frame& frame, Recorder& recorder)
      : window_(window), frame_(frame), recorder_(recorder) {}

  // What the container lets its controls know; there is none of them at first.
  std::map<DISPID, Value> ambients;
  std::set<DISPID> asked;
  std::set<DISPID> recorded;  // reading these makes a line: "ambient -701"

  RECT position{10, 10, 110, 40};
  HRESULT canActivate = S_OK;               // the answer to CanInPlaceActivate
  HRESULT takesKey = S_FALSE;               // the answer to TranslateAccelerator
  std::function<void()> onKey;              // what the container does with a key meanwhile
  std::function<void(const RECT&)> onRoom;  // and when the control asks for another place

  // IOleClientSite
  HRESULT STDMETHODCALLTYPE SaveObject() override;
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
  HRESULT STDMETHODCALLTYPE ShowObject() override;
  HRESULT STDMETHODCALLTYPE OnShowWindow(WINBOOL show) override;
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override;

  // IOleInPlaceSite
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override;
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override;
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override;
  HRESULT STDMETHODCALLTYPE OnUIActivate() override;
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame,
                                             IOleInPlaceUIWindow** document, RECT* position,
                                             RECT* clip, OLEINPLACEFRAMEINFO* info) override;
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) override;
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(WINBOOL undoable) override;
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override;
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override;
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override;
  HRESULT STDMETHODCALLTYPE OnPosRectChange(const RECT* position) override;

  // IOleControlSite
  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override;
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(WINBOOL lock) override;
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extended) override;
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message, DWORD modifiers) override;
  HRESULT STDMETHODCALLTYPE OnFocus(WINBOOL got) override;
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override;

  // IDispatch: the ambient properties
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS*,
                                   VARIANT* result, EXCEPINFO*, UINT*) override;

 protected:
  void* Find(REFIID id) override;

 private:
  HRESULT Note(std::string line, HRESULT result = S_OK);

  HWND window_;
  Frame& frame_;
  Recorder& recorder_;
};

}  // namespace sifter
