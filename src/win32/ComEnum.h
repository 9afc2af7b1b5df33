#pragma once

#include "win32/ComRef.h"
#include "win32/ComResult.h"
#include "win32/ModuleUse.h"

#include <cstddef>
#include <new>
#include <objbase.h>
#include <utility>
#include <vector>
#include <windows.h>

namespace sifter {

// How the items of an enumerator are handed over. The plain kind is copied bit by bit.
template <class Item>
struct PlainItems {
  using Kept = Item;
  static void Give(const Kept& kept, Item& out) { out = kept; }
};

// Interface pointers, with a reference for the caller.
template <class T>
struct ReferenceItems {
  using Kept = ComRef<T>;
  static void Give(const Kept& kept, T*& out) { out = ComRef<T>(kept).Release(); }
};

// An enumerator over items that were there when it was made.
template <class Interface, class Item, class Items = PlainItems<Item>>
class ComEnum final : public Interface {
 public:
  using Kept = typename Items::Kept;

  // With one reference for the caller.
  static Interface* Make(std::vector<Kept> items) { return new ComEnum(std::move(items), 0); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (id != IID_IUnknown && id != __uuidof(Interface)) return E_NOINTERFACE;
    *object = static_cast<Interface*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE Next(ULONG count, Item* items, ULONG* fetched) override {
    if (fetched != nullptr) *fetched = 0;
    if (items == nullptr || (fetched == nullptr && count != 1)) return E_POINTER;
    ULONG given = 0;
    for (; given < count && next_ < items_.size(); ++given)
      Items::Give(items_[next_++], items[given]);
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const std::size_t left = items_.size() - next_;
    next_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    next_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(Interface** copy) override {
    if (copy == nullptr) return E_POINTER;
    *copy = nullptr;
    return ComResult([&] { *copy = new ComEnum(items_, next_); });
  }

 private:
  ComEnum(std::vector<Kept> items, std::size_t next) : items_(std::move(items)), next_(next) {}
  ~ComEnum() = default;

  ModuleUse use_;
  std::vector<Kept> items_;
  std::size_t next_;
  ULONG references_ = 1;
};

}  // namespace sifter
