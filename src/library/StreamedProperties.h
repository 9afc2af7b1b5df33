#pragma once

#include "controls/SavedProperties.h"
#include "library/FramedControl.h"

#include <objidl.h>

namespace sifter {

// All settings of a control, ready to be written: pictures are kept as the bytes by which they
// store themselves. Errors come out.
SavedProperties StateOf(const FramedControl& control);

// Settings in a stream, from where it stands; it stands behind them afterwards. The stream's errors
// come out, and error 321 when what is there was not saved by a control,
// a damaged picture among it.
SavedProperties ReadStream(IStream& stream);
void WriteStream(IStream& stream, const SavedProperties& properties);

}  // namespace sifter
