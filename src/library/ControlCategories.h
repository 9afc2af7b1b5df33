#pragma once

#include <span>
#include <windows.h>

namespace sifter {

// What our controls are and can do, as containers look for it. None of them claims to be safe for
// scripts or data that nobody trusts.
std::span<const GUID> ControlCategories();

// Enters the classes in their categories through the platform's own manager. Its errors come out.
void EnterCategories();

// Takes them out again; what isn't there is no error.
void LeaveCategories() noexcept;

}  // namespace sifter
