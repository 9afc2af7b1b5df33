#pragma once

#include <stdexcept>

namespace sifter {

// What the user has to put right before anything can be done: a wrong option, a file that cannot
// be read, a column that isn't there. what() is UTF-8 and says what was expected. The program ends
// with exit code 2.
class UserError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace sifter
