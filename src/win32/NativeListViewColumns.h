#pragma once

#include "win32/NativeListViewItems.h"

#include <cstdint>
#include <optional>
#include <windows.h>

namespace sifter {

// The columns of a native list's window. Widths are twips in the list and pixels in the window.
class NativeListViewColumns {
 public:
  explicit NativeListViewColumns(NativeListViewWindow& window) : window_(window) {}

  // With the column in the list already. Error 7 when the window refuses.
  void Insert(std::int32_t position, double width);

  // With the column still in the list.
  void Remove(std::int32_t position);

  void Change(std::int32_t position);
  void Resize(std::int32_t position, double width);

  // `given` as long as the window's column is as wide as that makes it, else its own width.
  double Width(std::int32_t position, double given) const;

  // Whether one of the above is sending the window a message.
  bool IsAtWork() const { return atWork_ > 0; }

 private:
  class WorkScope;

  NativeListViewWindow& window_;
  int atWork_ = 0;
};

}  // namespace sifter
