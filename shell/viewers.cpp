#include "shell/viewers.h"

#include "forms/application.h"

namespace clinorama {

using forms::The;

void BindManualMenu(forms::Menu& instructions, forms::Menu& comments, forms::Menu& syntax,
                    forms::Menu& functions) {
  instructions.Click = [] { The<Form6>().Show(); };
  comments.Click = [] { The<Form11>().Show(); };
  syntax.Click = [] { The<Form3>().Show(); };
  functions.Click = [] { The<Form4>().Show(); };
}

}  // namespace clinorama
