#pragma once

#include "base/Text.h"
#include "forms/Control.h"
#include "forms/Form.h"

#include <vector>

namespace sifter {

// In what order, under which numbers and names the controls of a form become windows.

// The order of the windows, which is that of the Tab key: as the controls were added, but those in
// a container right behind it.
std::vector<Control*> WindowOrder(const Form& form);

// A number that tools can find a control by. It stays the same from one showing to the next: a
// thousand for each name in the order in which the names came, and the index within an array.
int ControlId(const ControlParent& parent, const Control& control);

// What an accessibility tool should call a field: the caption of the label that heads its row.
// Empty for a control that has a text of its own, and for one right behind its label.
Text AccessibleName(const Form& form, const Control& control);

}  // namespace sifter
