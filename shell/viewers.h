#pragma once

#include "base/Module1.h"
#include "forms/controls.h"
#include "shell/viewer.h"

// The four viewers of the manual, and the menu that opens them.
namespace clinorama {

// clang-format off
inline constexpr ViewerKind SyntaxViewer = {
    "Form3", "SINTAXE", 4, 7260, 11310, 7037, 9737, "manual/sintaxe_", nullptr};
inline constexpr ViewerKind FunctionsViewer = {
    "Form4", "FUNÇÕES DEFINIDAS", 23, 7245, 10965, 7037, 9737, "manual/funcoes_", nullptr};
inline constexpr ViewerKind InstructionsViewer = {
    "Form6", "INSTRUÇÕES", 22, 9200, 11115, 8837, 9377, "manual/instrucoes_",
    &Module1::PaginaInstrucoes};
inline constexpr ViewerKind CommentsViewer = {
    "Form11", "COMENTÁRIOS", 11, 9200, 11115, 8837, 9377, "manual/comentarios_", nullptr};
// clang-format on

class Form3 : public PageViewer {
 public:
  Form3() : PageViewer(SyntaxViewer) {}
  void UserClose() override { CloseAndRenew<Form3>(); }
};

class Form4 : public PageViewer {
 public:
  Form4() : PageViewer(FunctionsViewer) {}
  void UserClose() override { CloseAndRenew<Form4>(); }
};

// Closing the instructions discards them, so that they open next at the page that is asked for
// then.
class Form6 : public PageViewer {
 public:
  Form6() : PageViewer(InstructionsViewer) {}
};

class Form11 : public PageViewer {
 public:
  Form11() : PageViewer(CommentsViewer) {}
  void UserClose() override { CloseAndRenew<Form11>(); }
};

// Binds the four menu items of the manual, which several pages have, to its viewers.
void BindManualMenu(forms::Menu& instructions, forms::Menu& comments, forms::Menu& syntax,
                    forms::Menu& functions);

}  // namespace clinorama
