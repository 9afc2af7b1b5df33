#pragma once

namespace sifter {

// 65536 entries: the upper case of each code unit by Unicode's simple mapping, as far as the way
// back leads to the same letter. The sharp s and everything else without a single upper-case letter
// of its own stay themselves: the dotless i, the long s, the final sigma, the micro sign; and so do
// surrogates. Built at the first call, which may come from any thread.
const char16_t* SimpleUpperCaseTable();

}  // namespace sifter
