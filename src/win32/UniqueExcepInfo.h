#pragma once

#include <oleauto.h>
#include <windows.h>

namespace sifter {

// What a called object tells about its failure, with the ownership of the texts in it.
class UniqueExcepInfo {
 public:
  UniqueExcepInfo() = default;
  UniqueExcepInfo(const UniqueExcepInfo&) = delete;
  UniqueExcepInfo& operator=(const UniqueExcepInfo&) = delete;
  ~UniqueExcepInfo() {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
  }

  EXCEPINFO* Address() noexcept { return &info_; }

  // Objects may put off filling it in until somebody asks.
  const EXCEPINFO& Fill() noexcept {
    const auto fill = info_.pfnDeferredFillIn;
    info_.pfnDeferredFillIn = nullptr;
    if (fill != nullptr) fill(&info_);
    return info_;
  }

 private:
  EXCEPINFO info_{};
};

}  // namespace sifter
