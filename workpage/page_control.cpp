// The control of the work page: look, events, loading and activation, locking of commands, pauses,
// and the ways to other pages.

#include <initializer_list>

#include "base/Module1.h"
#include "base/failure.h"
#include "forms/application.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
#include "workpage/Form12.h"

namespace clinorama {

using forms::The;

Form12::Form12() : Page("Form12", {120, 690, 15240, 10650}, "CLINORAMA") {
  SetLook();
  BindCanvas();
  BindMotions();
  BindPages();
}

void Form12::SetLook() {
  AccessibleName = "Página de trabalho";
  Label4.Font = {.Name = "Comic Sans MS", .Size = 18, .Bold = true};
  Label4.ForeColor = forms::Red;
  for (forms::Frame* frame : {&Frame2, &FrameOpções, &Frame1, &Frame3, &Velocidade}) {
    frame->ForeColor = forms::Blue;
  }
  for (forms::Label* value : {&Label2, &Label3, &Label6}) {
    value->Bordered = true;
    value->Alignment = forms::Alignment::Center;
    value->Font = {.Size = 10.5, .Bold = true};  // to be read from the back of a class
  }
  for (forms::Label* caption : {&Label5, &Label1, &Label7}) {
    caption->InMiddle = true;  // level with the field beside it
  }
  Label2.AccessibleName = "Valor da derivada à esquerda";
  Label3.AccessibleName = "Valor da derivada à direita";
  Label6.AccessibleName = "Valor da derivada";
  Função1.AccessibleName = "Expressão analítica da função";
  Abcissa.AccessibleName = "Abcissa do ponto";

  for (forms::Control* setting : std::initializer_list<forms::Control*>{
           &MarcaX, &GradNumX, &PassoX, &MarcaY, &GradNumY, &PassoY, &Command1}) {
    setting->Visible = false;
  }
  // Each of these stands in one place with a button that shows it.
  Continuar.Visible = false;
  Continuar1.Visible = false;
}

void Form12::BindCanvas() {
  Função1.Change = [this] { ClearDerivatives(); };
  DesenharGráfico.Click = [this] { DesenharGráfico_Click(); };
  ApagarGráfico.Click = [this] { ApagarGráfico_Click(); };
  CorGráfico.Click = [this] { CorGráfico_Click(); };
  CorFundo.Click = [this] { CorFundo_Click(); };
  EixosRad.Click = [this] { EixosRad_Click(); };
  Command1.Click = [this] { DesenharEixos(); };
}

void Form12::BindMotions() {
  forms::Pair(Parar, Continuar);
  forms::Pair(Parar1, Continuar1);
  Abcissa.Change = [this] { ClearDerivatives(); };
  DerivadaEsquerda.Click = [this] { DerivadaEsquerda_Click(); };
  DerivadaDireita.Click = [this] { DerivadaDireita_Click(); };
  Calcular.Click = [this] { Calcular_Click(); };
  for (forms::Label* value : {&Label2, &Label3, &Label6}) {
    value->Click = [value] { value->Caption = ""; };
    value->DblClick = [value] { value->Caption = ""; };
  }
  Parar.Click = [this] { Pause(Parar, Continuar); };
  Continuar.Click = [this] { Resume(Parar, Continuar); };
  Parar1.Click = [this] { Pause(Parar1, Continuar1); };
  Continuar1.Click = [this] { Resume(Parar1, Continuar1); };
}

void Form12::BindPages() {
  Exemplos.Click = [this] { Exemplos_Click(); };
  Relacionar.Click = [this] { Relacionar_Click(); };
  FecharPágina.Click = [this] { UserClose(); };
  ConceitoDerivada.Click = [this] { ConceitoDerivada_Click(); };
  BindManualMenu(Instruções, Comentários, Sintaxe, FunçõesDefinidas);
  AbandonarPrograma.Click = [] { forms::End(); };
}

void Form12::Form_Load() {
  Picture2.Visible = false;
  Image1(0).Visible = false;
  Image1(1).Visible = false;
  CommonDialog1.Color = forms::Blue;
  CommonDialog2.Color = forms::White;
}

void Form12::Form_Activate() { DesenharEixos(); }

// The values of derivatives do not belong to a text that has changed.
void Form12::ClearDerivatives() {
  Label2.Caption = "";
  Label3.Caption = "";
  DerivadaEsquerda.Value = false;
  DerivadaDireita.Value = false;
}

void Form12::Inform(const std::string& text) {
  forms::MsgBox(text, forms::InformationBox, "Limites");
}

// Whether no graph was plotted since the page was loaded; the user is told.
bool Form12::GraphMissing() {
  if (GraficoDesenhado) {
    return false;
  }
  Inform("Deve desenhar primeiro o gráfico da função.");
  return true;
}

// Keeps other commands from starting inside a motion. An unmarked option can be clicked again.
void Form12::BloquearComandos() {
  EnableCommands(false);
  DerivadaEsquerda.Value = false;
  DerivadaDireita.Value = false;
}

void Form12::LibertarComandos() { EnableCommands(true); }

void Form12::EnableCommands(bool enabled) {
  for (forms::Control* command : std::initializer_list<forms::Control*>{
           &Função1, &DesenharGráfico, &ApagarGráfico, &CorGráfico, &CorFundo, &EixosRad, &Abcissa,
           &DerivadaEsquerda, &DerivadaDireita, &Calcular, &Relacionar, &Exemplos}) {
    command->Enabled = enabled;
  }
}

// This handler runs nested in the wait of a motion, so the motion stands still until it returns.
// Without a motion it only waits for the other button.
void Form12::Pause(forms::CommandButton& stop, forms::CommandButton& resume) {
  if (!CanPause()) {
    return;
  }
  resume.Visible = true;
  stop.Visible = false;
  EmMovimento = false;
  WaitFor(EmMovimento);
}

void Form12::Resume(forms::CommandButton& stop, forms::CommandButton& resume) {
  resume.Visible = false;
  stop.Visible = true;
  EmMovimento = true;
}

// Puts the middle of a marker on a point of the canvas. For a point beyond the range of 32-bit
// reals the marker stays where it was.
void Form12::MoveMarker(forms::Image& marker, double x, double y) {
  constexpr double MarginsToCorner = 0.6;
  base::Ignorar([&] { marker.Move(x - MarginsToCorner * MargemX, y + MarginsToCorner * MargemY); });
}

void Form12::ConceitoDerivada_Click() {
  UserClose();
  The<Form9>().Show();
}

void Form12::Exemplos_Click() {
  Module1::OrigemExemplos = 3;
  The<Form5>().Show();
}

// The relations page starts with the function of this page, which stays loaded but hidden.
void Form12::Relacionar_Click() {
  The<Form13>().Show();
  The<Form13>().Função1.Text = Função1.Text();
  Visible = false;
  Image1(0).Visible = false;
  Image1(1).Visible = false;
  ClearDerivatives();
}

}  // namespace clinorama
