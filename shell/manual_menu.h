#pragma once

#include "forms/controls.h"

namespace clinorama {

// Binds the four menu items that stand on several pages to the viewers of the manual.
void BindManualMenu(forms::Menu& instructions, forms::Menu& comments, forms::Menu& syntax,
                    forms::Menu& functions);

}  // namespace clinorama
