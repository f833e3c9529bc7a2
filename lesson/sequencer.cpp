// The order of the lesson: what each page shows and which buttons it enables, how the user goes
// forwards and backwards, pauses, and the menu.

#include <string>

#include "base/number_text.h"
#include "forms/application.h"
#include "lesson/Form9.h"
#include "shell/viewers.h"
#include "workpage/Form12.h"

namespace clinorama {

// Which buttons a page enables before its action, and whether it sets those of Still after it.
struct Form9::ButtonSet {
  bool Anterior;
  bool Seguinte;
  bool Parar;
  bool Continuar;
  bool StillAfterwards;

  static const ButtonSet First;
  static const ButtonSet Still;
  static const ButtonSet Moving;
  static const ButtonSet All;
};
constexpr Form9::ButtonSet Form9::ButtonSet::First = {false, true, false, false, false};
constexpr Form9::ButtonSet Form9::ButtonSet::Still = {true, true, false, false, false};
constexpr Form9::ButtonSet Form9::ButtonSet::Moving = {false, false, true, true, true};
constexpr Form9::ButtonSet Form9::ButtonSet::All = {true, true, true, true, false};

// What a page does. Its text is the picture of Image4 with the page's number.
struct Form9::LessonPage {
  const ButtonSet& Buttons;
  void (Form9::*Action)() = nullptr;      // a scene or a motion
  const char* LabelAfterwards = nullptr;  // replaces the page number in Label3 after the action
};

// The pages from 1 on; Form_Load shows page 0. Page 22 disables its buttons though it has no
// motion. Page 23 enables all buttons during its motion, so the user can open other pages inside
// it.
const Form9::LessonPage Form9::LessonPages[LastPage] = {
    {ButtonSet::First, &Form9::ShowDefinition},
    {ButtonSet::Still, &Form9::CenaCircunferencia},
    {ButtonSet::Still, &Form9::CenaParabola},
    {ButtonSet::Still, &Form9::CenaTangenteDivide},
    {ButtonSet::Still, &Form9::CenaPontosDireita},
    {ButtonSet::Still, &Form9::CenaSemiSecanteDireita},
    {ButtonSet::Moving, &Form9::AproximarPontoDireita},
    {ButtonSet::Moving, &Form9::AproximarSemiSecanteDireita},
    {ButtonSet::Still, &Form9::SemiTangente},
    {ButtonSet::Still, &Form9::CenaPontosEsquerda},  // 10
    {ButtonSet::Still, &Form9::CenaSemiSecanteEsquerda},
    {ButtonSet::Moving, &Form9::AproximarPontoEsquerda},
    {ButtonSet::Moving, &Form9::AproximarSemiSecanteEsquerda},
    {ButtonSet::Still, &Form9::SemiTangente},
    {ButtonSet::Still},
    {ButtonSet::Still, &Form9::CenaCubica},
    {ButtonSet::Moving, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Still, &Form9::CenaDoisTrocos},
    {ButtonSet::Moving, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Still, &Form9::CenaDoisTrocos},  // 20
    {ButtonSet::Moving, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Moving, &Form9::CenaDoisTrocos},
    {ButtonSet::All, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Still, &Form9::CenaDoisTrocos},
    {ButtonSet::Moving, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Still, &Form9::CenaDoisTrocos},
    {ButtonSet::Moving, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Still, &Form9::CenaReversao},
    {ButtonSet::Moving, &Form9::MovimentoSemiSecantes},
    {ButtonSet::Moving, &Form9::CenaAnguloso, "Final"},  // 30
};

Form9::Form9() : Page("Form9", {0, 690, 15345, 10605}, "CLINORAMA") {
  AccessibleName = "Conceito de derivada";
  PageUp = &Anterior;
  PageDown = &Seguinte;
  forms::Pair(Parar, Continuar);
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

std::unique_ptr<forms::Image> Form9::NewText(int index, const std::string& name) {
  constexpr forms::Rect Place = {9600, 60, 5589, 9317};
  const std::string picture = index > LastPage ? "" : "lesson/pagina_" + base::TwoDigits(index);
  return std::make_unique<forms::Image>(*this, name, Place, picture,
                                        "Texto da página " + std::to_string(index));
}

void Form9::Form_Load() {
  HideMarkers();
  for (int i = Image4.First(); i <= Image4.Last(); ++i) {
    Image4(i).Visible = false;
  }
  Image4(0).Visible = true;
  Picture1.AutoRedraw = true;
  PaginaActiva = 0;
  PodeContinuar = false;
  EnableButtons(ButtonSet::First);
  Label3.Caption = "0";
  Picture1.Scale(-10, 10, 10, -10);
}

// The label is written before the number is limited, so it reads 31 while page 30 is replayed. Each
// comparison reads PaginaActiva again: if the user opened a later page inside an action, this loop
// shows that page once more.
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
      ShowPage(number);
    }
  }
}

void Form9::ShowPage(int number) {
  const LessonPage& page = LessonPages[number - 1];
  EnableButtons(page.Buttons);
  Image4(number).Visible = true;
  if (page.Action != nullptr) {
    (this->*page.Action)();
  }
  if (page.Buttons.StillAfterwards) {
    EnableButtons(ButtonSet::Still);
  }
  if (page.LabelAfterwards != nullptr) {
    Label3.Caption = page.LabelAfterwards;
  }
}

void Form9::EnableButtons(const ButtonSet& buttons) {
  Anterior.Enabled = buttons.Anterior;
  Seguinte.Enabled = buttons.Seguinte;
  Parar.Enabled = buttons.Parar;
  Continuar.Enabled = buttons.Continuar;
}

// Goes back to a page that starts a drawing. The pages from FirstOfSequence up to FirstExample
// build on one drawing, so the user goes back to its first page. From FirstExample on each even
// page starts a drawing: going back from it skips the motion before it. Seguinte_Click adds 1
// again.
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

// This handler runs inside the wait of the motion's step. The motion stands still because the
// handler does not return until Continuar is clicked.
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

// The drawing under the definition is not cleared: it is empty, or that of page 2.
void Form9::ShowDefinition() {
  HideMarkers();
  Image5.Visible = true;
}

}  // namespace clinorama
