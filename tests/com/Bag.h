#pragma once

#include "ComFake.h"
#include "support/Printers.h"
#include "support/Recorder.h"
#include "win32/Variants.h"
#include "win32/WideText.h"

#include <map>
#include <ocidl.h>
#include <string>

namespace sifter {

// A container's property bag: a line for each reading and writing.
class Bag final : public ComFake<IPropertyBag> {
 public:
  explicit Bag(Recorder& recorder) : recorder_(recorder) {}

  std::map<std::wstring, Value> entries;
  HRESULT failsWith = S_OK;  // what a bag that can't be read or written answers

  void Holds(const std::wstring& name, const Value& value) { entries[name] = value; }

  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    recorder_.Line("read " + FromWide(name).ToUtf8());
    // Whoever reads says by its type what they want; garbage in it would be taken for a wish.
    EXPECT_LE(value->vt, VT_CLSID);
    if (FAILED(failsWith)) return failsWith;
    const auto found = entries.find(name);
    if (found == entries.end()) return E_INVALIDARG;
    const VARTYPE wanted = value->vt;
    *value = VariantFromValue(found->second).Release();
    return wanted == VT_EMPTY ? S_OK : VariantChangeType(value, value, 0, wanted);
  }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
    recorder_.Line("write " + FromWide(name).ToUtf8() + ' ' + Shown(ValueFromVariant(*value)));
    if (FAILED(failsWith)) return failsWith;
    entries[name] = ValueFromVariant(*value);
    return S_OK;
  }

 private:
  Recorder& recorder_;
};

}  // namespace sifter
