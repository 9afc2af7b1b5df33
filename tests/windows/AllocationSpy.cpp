#include "AllocationSpy.h"

#include <objbase.h>

namespace sifter {

namespace {

int alive = 0;

// Revoking only marks it until everything that it has seen is freed, so it must outlive the
// process.
class CountingSpy final : public IMallocSpy {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id != IID_IUnknown && id != IID_IMallocSpy) {
      *object = nullptr;
      return E_NOINTERFACE;
    }
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override { return size; }
  void* STDMETHODCALLTYPE PostAlloc(void* block) override {
    if (block != nullptr) ++alive;
    return block;
  }
  void* STDMETHODCALLTYPE PreFree(void* block, WINBOOL seen) override {
    if (block != nullptr && seen) --alive;
    return block;
  }
  void STDMETHODCALLTYPE PostFree(WINBOOL) override {}
  SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T size, void** newBlock, WINBOOL) override {
    *newBlock = block;
    return size;
  }
  void* STDMETHODCALLTYPE PostRealloc(void* block, WINBOOL) override { return block; }
  void* STDMETHODCALLTYPE PreGetSize(void* block, WINBOOL) override { return block; }
  SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, WINBOOL) override { return size; }
  void* STDMETHODCALLTYPE PreDidAlloc(void* block, WINBOOL) override { return block; }
  int STDMETHODCALLTYPE PostDidAlloc(void*, WINBOOL, int actual) override { return actual; }
  void STDMETHODCALLTYPE PreHeapMinimize() override {}
  void STDMETHODCALLTYPE PostHeapMinimize() override {}
};

CountingSpy spy;

}  // namespace

bool AllocationSpy::SeesBstrs() { return GetEnvironmentVariableW(L"OANOCACHE", nullptr, 0) > 0; }

AllocationSpy::AllocationSpy() {
  alive = 0;
  CoRegisterMallocSpy(&spy);
}

AllocationSpy::~AllocationSpy() { CoRevokeMallocSpy(); }

int AllocationSpy::Alive() const { return alive; }

}  // namespace sifter
