#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <unknwn.h>
#include <vector>
#include <windows.h>

namespace sifter {

// A COM object of a test's own with these interfaces. It lives on the test's stack, and everybody
// must have given back their references by the time it ends.
template <class First, class... Others>
class ComFake : public First, public Others... {
 public:
  ComFake() = default;
  ComFake(const ComFake&) = delete;
  ComFake& operator=(const ComFake&) = delete;
  ~ComFake() { EXPECT_EQ(references_, 0) << "somebody still holds a " << typeid(First).name(); }

  int References() const { return references_; }

  // From now on it hasn't got this interface.
  void Lacks(REFIID id) { lacking_.push_back(id); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool lacks = std::find(lacking_.begin(), lacking_.end(), id) != lacking_.end();
    *object = lacks ? nullptr : Find(id);
    if (*object == nullptr) return E_NOINTERFACE;
    ++references_;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }

 protected:
  // To be extended for interfaces that others are derived from.
  virtual void* Find(REFIID id) {
    if (id == IID_IUnknown || id == __uuidof(First)) return static_cast<First*>(this);
    void* found = nullptr;
    ((id == __uuidof(Others) ? static_cast<void>(found = static_cast<Others*>(this)) : void()),
     ...);
    return found;
  }

 private:
  int references_ = 0;
  std::vector<IID> lacking_;
};

}  // namespace sifter
