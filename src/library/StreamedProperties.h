#pragma once

#include "controls/SavedProperties.h"

#include <objidl.h>

namespace sifter {

// Settings in a stream, from where it stands; it stands behind them afterwards. The stream's errors
// come out, and error 321 when what is there was not saved by a control.
SavedProperties ReadStream(IStream& stream);
void WriteStream(IStream& stream, const SavedProperties& properties);

}  // namespace sifter
