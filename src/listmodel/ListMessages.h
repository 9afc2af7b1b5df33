#pragma once

#include <cstdint>

namespace sifter {

// The list-view messages that announce a change. Inserting is announced when the list counts the
// new row already; deleting and clearing while the rows are still there.
enum ListMessage : std::uint32_t {
  kInsertItem = 4103,
  kDeleteItem = 4104,  // wParam: the row's 0-based position
  kDeleteAllItems = 4105,
  kInsertColumn = 4123,
  kDeleteColumn = 4124,  // wParam: the column's 0-based position
};

// The colour that a list view gives to text when nobody chose one: the system's window text.
inline constexpr std::int32_t kWindowTextColor = static_cast<std::int32_t>(0x80000008u);

}  // namespace sifter
