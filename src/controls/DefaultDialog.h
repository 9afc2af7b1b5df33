#pragma once

#include "filterdialog/frmFilter.h"

#include <optional>

namespace sifter {

// The dialog that belongs to no control and is never shown or given a list. There is one for each
// application, made when it is first asked for.
class DefaultDialog {
 public:
  explicit DefaultDialog(const DialogServices& services) : services_(services) {}

  frmFilter& Get() {
    if (!dialog_) dialog_.emplace(services_);
    return *dialog_;
  }
  bool Exists() const { return dialog_.has_value(); }

 private:
  DialogServices services_;
  std::optional<frmFilter> dialog_;
};

}  // namespace sifter
