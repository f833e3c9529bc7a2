#include "shell/Form2.h"

#include "base/Module1.h"
#include "forms/application.h"
#include "lesson/Form9.h"
#include "shell/viewers.h"
#include "workpage/Form12.h"

namespace clinorama {

using forms::The;

Form2::Form2() : Page("Form2", {120, 690, 15240, 10650}, "CLINORAMA") {
  AccessibleName = "Apresentação";
  Label1.Font = {.Name = "Comic Sans MS", .Size = 48, .Bold = true};
  Label1.ForeColor = forms::Red;
  Label1.Alignment = forms::Alignment::Center;

  Sair.Click = [] { forms::End(); };
  ConceitoDerivada.Click = [] { The<Form9>().Show(); };
  Clinorama.Click = [] { The<Form12>().Show(); };
  BindManualMenu(Instruções, Comentários, Sintaxe, FunçõesDefinidas);
  // From here the instructions and the comments open at their first page.
  Instruções.Click = [] {
    Module1::PaginaInstrucoes = 1;
    The<Form6>().Show();
  };
  Comentários.Click = [] {
    Module1::PaginaComentarios = 1;
    The<Form11>().Show();
  };
}

void Form2::UserClose() { forms::End(); }

}  // namespace clinorama
