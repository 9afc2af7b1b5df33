#pragma once

namespace sifter {

// 65536 entries: the upper case of each code unit by Unicode's simple mapping, which is one to
// one. The sharp s and everything else without a single upper-case letter stay themselves, and so
// do surrogates. Built at the first call, which may come from any thread.
const char16_t* SimpleUpperCaseTable();

}  // namespace sifter
