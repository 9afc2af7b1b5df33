#pragma once

#include "base/RuntimeError.h"

#include <oaidl.h>
#include <windows.h>

namespace sifter {

// Run-time errors and the platform's result codes: the one place where the two are turned into
// each other.

// The error that a failed call of a host's object means.
//   - An error number in the automation facility (0x800Annnn) is that number.
//   - The codes of late binding (type mismatch, bad index, no such member ...) and of memory and
//     arguments are the numbers that hosts know them by, with the descriptions of those.
//   - DISP_E_EXCEPTION is what `details` says: its code, or its number; and its description.
//   - Any other code is the number itself, negative as result codes are.
// `details` may be null. Its description wins wherever it has one; without any, the error is an
// "Automation error".
RuntimeError ErrorFromResult(HRESULT result, const EXCEPINFO* details = nullptr);

// The same for a call that is not late-bound: the description is the one that the object has left
// on this thread, if it has. It is taken from there.
RuntimeError ErrorFromCall(HRESULT result);

// What a host gets for an error: 0x800A0000 + its number; a number that is a result code already
// stays as it is. Always a failure.
HRESULT ResultOf(const RuntimeError& error);

// Throws ErrorFromCall for a failure.
void ThrowIfFailed(HRESULT result);

}  // namespace sifter
