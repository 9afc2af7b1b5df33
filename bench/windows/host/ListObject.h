#pragma once

#include "host/HostTable.h"

#include <cstdint>
#include <initializer_list>
#include <oaidl.h>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter::bench {

// A list view with the object that the library makes for it, spoken to as a C++ program would.
class ListObject {
 public:
  // Columns and rows of the table; the key of a row is "r" and its number from 0.
  ListObject(HWND parent, const HostTable& table);
  ~ListObject();
  ListObject(const ListObject&) = delete;
  ListObject& operator=(const ListObject&) = delete;

  IDispatch* Object() const { return object_; }
  HWND Window() const { return window_; }

  // The numbers of the table's rows that are not in the list, ascending.
  std::vector<std::int32_t> MissingRows(std::size_t rows) const;

 private:
  HWND window_;
  IDispatch* object_ = nullptr;
};

// Hands calls on to `object` and counts them, with those to everything it leads to.
IDispatch* CountCalls(IDispatch* object, std::uint64_t& calls, std::uint64_t& nameQuestions);

}  // namespace sifter::bench
