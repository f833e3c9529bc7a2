#pragma once

#include "forms/controls.h"

namespace clinorama {

// Binds the four menu items of the manual, which several pages have, to its viewers.
void BindManualMenu(forms::Menu& instructions, forms::Menu& comments, forms::Menu& syntax,
                    forms::Menu& functions);

}  // namespace clinorama
