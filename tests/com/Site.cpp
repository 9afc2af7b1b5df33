#include "Site.h"

#include "win32/Variants.h"

#include <utility>

namespace sifter {

void* Site::Find(REFIID id) {
  if (id == IID_IOleWindow) return static_cast<IOleInPlaceSite*>(this);
  return ComFake::Find(id);
}

HRESULT Site::Note(std::string line, HRESULT result) {
  recorder_.Line(std::move(line));
  return result;
}

HRESULT Site::SaveObject() { return Note("SaveObject"); }

HRESULT Site::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT Site::GetContainer(IOleContainer** container) {
  *container = nullptr;
  return E_NOINTERFACE;
}

HRESULT Site::ShowObject() { return Note("ShowObject"); }

HRESULT Site::OnShowWindow(WINBOOL show) {
  return Note(show ? "OnShowWindow True" : "OnShowWindow False");
}

HRESULT Site::RequestNewObjectLayout() { return Note("RequestNewObjectLayout", E_NOTIMPL); }

HRESULT Site::GetWindow(HWND* window) {
  *window = window_;
  return S_OK;
}

HRESULT Site::ContextSensitiveHelp(WINBOOL) { return E_NOTIMPL; }

HRESULT Site::CanInPlaceActivate() { return Note("CanInPlaceActivate", canActivate); }

HRESULT Site::OnInPlaceActivate() { return Note("OnInPlaceActivate"); }

HRESULT Site::OnUIActivate() { return Note("OnUIActivate"); }

HRESULT Site::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                               RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info) {
  frame_.AddRef();
  *frame = &frame_;
  *document = nullptr;
  *place = position;
  GetClientRect(window_, clip);
  info->fMDIApp = FALSE;
  info->hwndFrame = window_;
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return Note("GetWindowContext");
}

HRESULT Site::Scroll(SIZE) { return Note("Scroll", E_NOTIMPL); }

HRESULT Site::OnUIDeactivate(WINBOOL undoable) {
  return Note(undoable ? "OnUIDeactivate undoable" : "OnUIDeactivate");
}

HRESULT Site::OnInPlaceDeactivate() { return Note("OnInPlaceDeactivate"); }

HRESULT Site::DiscardUndoState() { return Note("DiscardUndoState", E_NOTIMPL); }

HRESULT Site::DeactivateAndUndo() { return Note("DeactivateAndUndo", E_NOTIMPL); }

HRESULT Site::OnPosRectChange(const RECT* wanted) {
  recorder_.Line("OnPosRectChange " + std::to_string(wanted->left) + ' ' +
                 std::to_string(wanted->top) + ' ' + std::to_string(wanted->right) + ' ' +
                 std::to_string(wanted->bottom));
  if (onRoom) onRoom(*wanted);
  return S_OK;
}

HRESULT Site::OnControlInfoChanged() { return Note("OnControlInfoChanged"); }

HRESULT Site::LockInPlaceActive(WINBOOL lock) {
  return Note(lock ? "LockInPlaceActive True" : "LockInPlaceActive False");
}

HRESULT Site::GetExtendedControl(IDispatch** extended) {
  *extended = nullptr;
  return E_NOTIMPL;
}

HRESULT Site::TransformCoords(POINTL*, POINTF*, DWORD) {
  return Note("TransformCoords", E_NOTIMPL);
}

HRESULT Site::TranslateAccelerator(MSG* message, DWORD modifiers) {
  if (onKey) onKey();
  return Note("TranslateAccelerator " + std::to_string(message->wParam) + " with " +
                  std::to_string(modifiers),
              takesKey);
}

HRESULT Site::OnFocus(WINBOOL got) { return Note(got ? "OnFocus True" : "OnFocus False"); }

HRESULT Site::ShowPropertyFrame() { return Note("ShowPropertyFrame", E_NOTIMPL); }

HRESULT Site::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT Site::GetTypeInfo(UINT, LCID, ITypeInfo** type) {
  *type = nullptr;
  return E_NOTIMPL;
}

HRESULT Site::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return DISP_E_UNKNOWNNAME; }

HRESULT Site::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                     UINT*) {
  if ((flags & DISPATCH_PROPERTYGET) == 0) return Note("ambient written", DISP_E_MEMBERNOTFOUND);
  asked.insert(id);
  if (recorded.contains(id)) recorder_.Line("ambient " + std::to_string(id));
  const auto found = ambients.find(id);
  if (found == ambients.end()) return DISP_E_MEMBERNOTFOUND;
  *result = VariantFromValue(found->second).Release();
  return S_OK;
}

}  // namespace sifter
