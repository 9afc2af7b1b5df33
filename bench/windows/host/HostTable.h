#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace sifter::bench {

// The generated table as a C++ program would hold it.
struct HostTable {
  std::vector<std::wstring> captions;
  std::vector<std::vector<std::wstring>> rows;
};

HostTable MakeHostTable(std::size_t rows);

}  // namespace sifter::bench
