#pragma once

#include <string>

#include "browser/numbers.h"
#include "forms/control.h"

namespace clinorama::browser {

// What the document needs to know to show a control (or a page), as an object in JSON; the members
// of each kind are listed in site/types.d.ts. Measures are in logical pixels.
std::string Description(forms::Control& control, const Numbers& numbers);

// The same with all that the control holds and, for a page, its menu bar and keys.
std::string DescriptionOfAll(forms::Control& control, const Numbers& numbers);

}  // namespace clinorama::browser
