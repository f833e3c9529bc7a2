// The lesson as a sequence: what each page shows and which buttons it enables, the ways forwards
// and backwards, pauses, and the menu.

#include <string>

#include "base/number_text.h"
#include "forms/application.h"
#include "lesson/Form9.h"
#include "shell/manual_menu.h"
#include "workpage/Form12.h"

namespace clinorama {

// Which buttons are enabled during a page's action, and whether Still takes its place afterwards.
struct Form9::Botões {
  bool Anterior;
  bool Seguinte;
  bool Parar;
  bool Continuar;
  bool StillAfterwards;

  static const Botões First;
  static const Botões Still;
  static const Botões Moving;
  static const Botões All;
};
constexpr Form9::Botões Form9::Botões::First = {false, true, false, false, false};
constexpr Form9::Botões Form9::Botões::Still = {true, true, false, false, false};
constexpr Form9::Botões Form9::Botões::Moving = {false, false, true, true, true};
constexpr Form9::Botões Form9::Botões::All = {true, true, true, true, false};

// What happens on a page. Its text is the picture of the same number.
struct Form9::Página {
  const Botões& Buttons;
  void (Form9::*Action)() = nullptr;      // a scene or a motion
  const char* LabelAfterwards = nullptr;  // in the place of the number of the page
};

// The pages from 1 on; page 0 is what loading shows. Page 22 locks its buttons though nothing moves
// there, and page 23 leaves them free, so that other pages can be called into its motion.
const Form9::Página Form9::Páginas[LastPage] = {
    {Botões::First, &Form9::MostrarDefinição},
    {Botões::Still, &Form9::CenaCircunferencia},
    {Botões::Still, &Form9::CenaParabola},
    {Botões::Still, &Form9::CenaTangenteDivide},
    {Botões::Still, &Form9::CenaPontosDireita},
    {Botões::Still, &Form9::CenaSemiSecanteDireita},
    {Botões::Moving, &Form9::AproximarPontoDireita},
    {Botões::Moving, &Form9::AproximarSemiSecanteDireita},
    {Botões::Still, &Form9::SemiTangente},
    {Botões::Still, &Form9::CenaPontosEsquerda},  // 10
    {Botões::Still, &Form9::CenaSemiSecanteEsquerda},
    {Botões::Moving, &Form9::AproximarPontoEsquerda},
    {Botões::Moving, &Form9::AproximarSemiSecanteEsquerda},
    {Botões::Still, &Form9::SemiTangente},
    {Botões::Still},
    {Botões::Still, &Form9::CenaCubica},
    {Botões::Moving, &Form9::MovimentoSemiSecantes},
    {Botões::Still, &Form9::CenaDoisTrocos},
    {Botões::Moving, &Form9::MovimentoSemiSecantes},
    {Botões::Still, &Form9::CenaDoisTrocos},  // 20
    {Botões::Moving, &Form9::MovimentoSemiSecantes},
    {Botões::Moving, &Form9::CenaDoisTrocos},
    {Botões::All, &Form9::MovimentoSemiSecantes},
    {Botões::Still, &Form9::CenaDoisTrocos},
    {Botões::Moving, &Form9::MovimentoSemiSecantes},
    {Botões::Still, &Form9::CenaDoisTrocos},
    {Botões::Moving, &Form9::MovimentoSemiSecantes},
    {Botões::Still, &Form9::CenaReversao},
    {Botões::Moving, &Form9::MovimentoSemiSecantes},
    {Botões::Moving, &Form9::CenaAnguloso, "Final"},  // 30
};

Form9::Form9() : Page("Form9", {0, 690, 15345, 10605}, "CLINORAMA") {
  Label1.Font = {.Name = "Comic Sans MS", .Size = 14.25, .Bold = true};
  Label1.ForeColor = forms::Red;
  Opções.ForeColor = forms::Blue;
  Label2.ForeColor = forms::Blue;
  Label3.ForeColor = forms::Red;
  // Small enough for the caption to fit.
  Label2.Font = {.Size = 6.75};
  Label3.Font = {.Size = 6.75};
  Label3.AccessibleName = "Página activa";

  Seguinte.Click = [this] { Seguinte_Click(); };
  Anterior.Click = [this] { Anterior_Click(); };
  Parar.Click = [this] { Parar_Click(); };
  Continuar.Click = [this] { Continuar_Click(); };

  FecharPágina.Click = [this] { UserClose(); };
  BindManualMenu(Instruções, Comentários, Sintaxe, FunçõesDefinidas);
  AbandonarPrograma.Click = [] { forms::End(); };
  Clinorama.Click = [this] { Clinorama_Click(); };
}

std::unique_ptr<forms::Image> Form9::NovoTexto(int index, const std::string& name) {
  constexpr forms::Rect Place = {9600, 60, 5589, 9317};
  const std::string picture = index > LastPage ? "" : "lesson/pagina_" + base::TwoDigits(index);
  return std::make_unique<forms::Image>(*this, name, Place, picture,
                                        "Texto da página " + std::to_string(index));
}

void Form9::Form_Load() {
  OcultarMarcadores();
  for (int i = Image4.First(); i <= Image4.Last(); ++i) {
    Image4(i).Visible = false;
  }
  Image4(0).Visible = true;
  Picture1.AutoRedraw = true;
  PaginaActiva = 0;
  PodeContinuar = false;
  PermitirBotões(Botões::First);
  Label3.Caption = "0";
  Picture1.Scale(-10, 10, 10, -10);
}

// The label is written before the number is limited: during a replay of the last page it reads one
// more. Each page is compared afresh, so that when an action comes back and has had a later page
// called into it, that page is shown once more from here.
void Form9::Seguinte_Click() {
  for (int i = Image4.First(); i <= Image4.Last(); ++i) {
    Image4(i).Visible = false;
  }
  Image5.Visible = false;
  ++PaginaActiva;
  Label3.Caption = std::to_string(PaginaActiva);
  if (PaginaActiva > LastPage) {
    PaginaActiva = LastPage;
  }
  for (int number = 1; number <= LastPage; ++number) {
    if (PaginaActiva == number) {
      MostrarPágina(number);
    }
  }
}

void Form9::MostrarPágina(int number) {
  const Página& page = Páginas[number - 1];
  PermitirBotões(page.Buttons);
  Image4(number).Visible = true;
  if (page.Action != nullptr) {
    (this->*page.Action)();
  }
  if (page.Buttons.StillAfterwards) {
    PermitirBotões(Botões::Still);
  }
  if (page.LabelAfterwards != nullptr) {
    Label3.Caption = page.LabelAfterwards;
  }
}

void Form9::PermitirBotões(const Botões& buttons) {
  Anterior.Enabled = buttons.Anterior;
  Seguinte.Enabled = buttons.Seguinte;
  Parar.Enabled = buttons.Parar;
  Continuar.Enabled = buttons.Continuar;
}

// Leads back to the start of a drawing. The pages from FirstOfSequence to FirstExample build on
// one drawing and cannot be entered in the middle; behind them each even page sets up a drawing,
// and it or its motion leads to the drawing before. Showing the next page adds one again.
void Form9::Anterior_Click() {
  constexpr int FirstOfSequence = 5;
  constexpr int FirstExample = 16;
  if (PaginaActiva > FirstOfSequence && PaginaActiva < FirstExample) {
    PaginaActiva = FirstOfSequence + 1;
  }
  if (PaginaActiva > FirstExample && PaginaActiva % 2 == 0) {
    --PaginaActiva;
  }
  PaginaActiva -= 2;
  Seguinte_Click();
}

// A pause holds the motion because this handler runs nested in the motion's wait and does not
// return.
void Form9::Parar_Click() {
  if (!CanPause()) {
    return;
  }
  Continuar.Visible = true;
  Continuar.Enabled = true;
  Parar.Visible = false;
  PodeContinuar = false;
  WaitFor(PodeContinuar);
}

void Form9::Continuar_Click() {
  Continuar.Visible = false;
  Parar.Visible = true;
  PodeContinuar = true;
  Continuar.Enabled = false;
}

void Form9::Clinorama_Click() {
  UserClose();
  forms::The<Form12>().Show();
}

// The drawing under the definition stays: it is empty, or that of the page after.
void Form9::MostrarDefinição() {
  OcultarMarcadores();
  Image5.Visible = true;
}

}  // namespace clinorama
