#include "rowsifter/ListViewObject.h"
#include "win32/ComResult.h"
#include "win32/NativeListView.h"
#include "win32/NativeListViewObject.h"

HRESULT STDMETHODCALLTYPE CreateListViewObject(HWND listView, IDispatch** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  return sifter::ComResult(
      [&] { *object = sifter::ListViewObject(sifter::NativeListView(listView)).Release(); });
}
