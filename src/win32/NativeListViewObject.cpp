#include "win32/NativeListViewObject.h"

#include "win32/ComResult.h"
#include "win32/NativeListViewDispatchMembers.h"
#include "win32/NativeListViewDispatchObject.h"
#include "win32/NativeListViewEvents.h"
#include "win32/RowTransferServer.h"

#include <utility>
#include <vector>

namespace sifter {

namespace {

class ListViewDispatch;

// Those that somebody holds, so that one list is one object. Of this thread, as the lists are.
std::vector<ListViewDispatch*>& LivingObjects() {
  static thread_local std::vector<ListViewDispatch*> objects;
  return objects;
}

class ListViewDispatch final : public DispatchObject, private IRowTransferSource {
 public:
  explicit ListViewDispatch(Ref<HostListView> list)
      : DispatchObject(list, ListViewMembers()), list_(std::move(list)) {
    LivingObjects().push_back(this);
  }

  HostListView* List() const { return list_.Get(); }

 private:
  ~ListViewDispatch() override { std::erase(LivingObjects(), this); }

  void* OtherInterface(REFIID id) override {
    if (id == kRowTransferSourceId) return static_cast<IRowTransferSource*>(this);
    return events_.Interface(id);
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return DispatchObject::QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return DispatchObject::AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return DispatchObject::Release(); }

  HRESULT STDMETHODCALLTYPE OpenTransfer(IRowTransfer** transfer) override {
    if (transfer == nullptr) return E_POINTER;
    *transfer = nullptr;
    return ComResult([&] { *transfer = new RowTransferServer(list_); });
  }

  Ref<HostListView> list_;
  NativeListViewEvents events_{*static_cast<DispatchObject*>(this), *list_};
};

}  // namespace

ComRef<IDispatch> ListViewObject(Ref<HostListView> list) {
  for (ListViewDispatch* object : LivingObjects())
    if (object->List() == list.Get())
      return ComRef<IDispatch>(static_cast<DispatchObject*>(object));
  return ComRef<IDispatch>::Adopt(
      static_cast<DispatchObject*>(new ListViewDispatch(std::move(list))));
}

}  // namespace sifter
