// What binds the work page together: its look, loading and activation, what a change of text
// clears, and its menu.

#include <initializer_list>

#include "base/Module1.h"
#include "base/failure.h"
#include "forms/application.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form5.h"
#include "shell/manual_menu.h"
#include "workpage/Form12.h"

namespace clinorama {

using forms::The;

Form12::Form12() : Page("Form12", {120, 690, 15240, 10650}, "CLINORAMA") {
  Label4.Font = {.Name = "Comic Sans MS", .Size = 18, .Bold = true};
  Label4.ForeColor = forms::Red;
  for (forms::Frame* frame : {&Frame2, &FrameOpções, &Frame1, &Frame3, &Velocidade}) {
    frame->ForeColor = forms::Blue;
  }
  struct ValueLabel {
    forms::Label& Field;
    const char* SpokenName;
  };
  for (const auto& [field, spokenName] : {ValueLabel{Label2, "Valor da derivada à esquerda"},
                                          ValueLabel{Label3, "Valor da derivada à direita"},
                                          ValueLabel{Label6, "Valor da derivada"}}) {
    field.Bordered = true;
    field.Alignment = forms::Alignment::Center;
    field.AccessibleName = spokenName;
    field.Click = [&label = field] { label.Caption = ""; };
    field.DblClick = [&label = field] { label.Caption = ""; };
  }
  Função1.AccessibleName = "Expressão analítica da função";
  Abcissa.AccessibleName = "Abcissa do ponto";
  for (forms::Control* setting : std::initializer_list<forms::Control*>{
           &MarcaX, &GradNumX, &PassoX, &MarcaY, &GradNumY, &PassoY, &Command1}) {
    setting->Visible = false;
  }

  // Each lies in one place with the button that brings it.
  Continuar.Visible = false;
  Continuar1.Visible = false;

  DesenharGráfico.Click = [this] { DesenharGráfico_Click(); };
  ApagarGráfico.Click = [this] { ApagarGráfico_Click(); };
  CorGráfico.Click = [this] { CorGráfico_Click(); };
  CorFundo.Click = [this] { CorFundo_Click(); };
  EixosRad.Click = [this] { EixosRad_Click(); };
  Command1.Click = [this] { DesenharEixos(); };
  Função1.Change = [this] { EsquecerValores(); };
  Abcissa.Change = [this] { EsquecerValores(); };

  Exemplos.Click = [this] { Exemplos_Click(); };

  DerivadaEsquerda.Click = [this] { DerivadaEsquerda_Click(); };
  DerivadaDireita.Click = [this] { DerivadaDireita_Click(); };
  Calcular.Click = [this] { Calcular_Click(); };
  Relacionar.Click = [this] { Relacionar_Click(); };
  Parar.Click = [this] { Pausar(Parar, Continuar); };
  Continuar.Click = [this] { Retomar(Parar, Continuar); };
  Parar1.Click = [this] { Pausar(Parar1, Continuar1); };
  Continuar1.Click = [this] { Retomar(Parar1, Continuar1); };

  FecharPágina.Click = [this] { UserClose(); };
  ConceitoDerivada.Click = [this] { ConceitoDerivada_Click(); };
  BindManualMenu(Instruções, Comentários, Sintaxe, FunçõesDefinidas);
  AbandonarPrograma.Click = [] { forms::End(); };
}

void Form12::Form_Load() {
  Picture1.Visible = true;
  Picture2.Visible = false;
  CommonDialog1.Color = forms::Blue;
  CommonDialog2.Color = forms::White;
  EmRadianos = false;
  DerivadaEsquerda.Value = false;
  DerivadaDireita.Value = false;
  Image1(0).Visible = false;
  Image1(1).Visible = false;
  GraficoDesenhado = false;
  PontoAceite = true;
}

void Form12::Form_Activate() { DesenharEixos(); }

// Values of derivatives no longer belong to a text that has changed.
void Form12::EsquecerValores() {
  Label2.Caption = "";
  Label3.Caption = "";
  DerivadaEsquerda.Value = false;
  DerivadaDireita.Value = false;
}

// Keeps other commands from starting inside a motion. The marks of the options are taken away so
// that each is free for its next click.
void Form12::BloquearComandos() {
  PermitirComandos(false);
  DerivadaEsquerda.Value = false;
  DerivadaDireita.Value = false;
}

void Form12::LibertarComandos() { PermitirComandos(true); }

void Form12::PermitirComandos(bool allowed) {
  for (forms::Control* command : std::initializer_list<forms::Control*>{
           &Função1, &DesenharGráfico, &ApagarGráfico, &CorGráfico, &CorFundo, &EixosRad, &Abcissa,
           &DerivadaEsquerda, &DerivadaDireita, &Calcular, &Relacionar, &Exemplos}) {
    command->Enabled = allowed;
  }
}

// A pause holds the motion because this handler runs nested in the motion's wait and does not
// return. Without a motion it simply waits for the other button.
void Form12::Pausar(forms::CommandButton& stop, forms::CommandButton& resume) {
  if (!CanPause()) {
    return;
  }
  resume.Visible = true;
  stop.Visible = false;
  EmMovimento = false;
  WaitFor(EmMovimento);
}

void Form12::Retomar(forms::CommandButton& stop, forms::CommandButton& resume) {
  resume.Visible = false;
  stop.Visible = true;
  EmMovimento = true;
}

// Puts a marker's middle on a point of the canvas. A point too far away leaves it where it was.
void Form12::MoverMarcador(forms::Image& marker, double x, double y) {
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

// The relations page starts from this page's expression. This page stays loaded, hidden.
void Form12::Relacionar_Click() {
  The<Form13>().Show();
  The<Form13>().Função1.Text = Função1.Text();
  Visible = false;
  Image1(0).Visible = false;
  Image1(1).Visible = false;
  EsquecerValores();
}

}  // namespace clinorama
