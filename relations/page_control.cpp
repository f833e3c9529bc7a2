// What binds the relations page together: its look, loading and activation, clearing, colours and
// leaving.

#include "forms/application.h"
#include "relations/Form13.h"
#include "relations/operations.h"

namespace clinorama {

Form13::Form13() : Page("Form13", {120, 330, 15165, 11100}, "CLINORAMA") {
  Label4.Font = {.Name = "Comic Sans MS", .Size = 18, .Bold = true};
  Label4.ForeColor = forms::Red;
  for (forms::Label* legend : {&Label1, &Label2}) {
    legend->Font = {.Bold = true};
    legend->ForeColor = forms::Blue;
  }
  for (forms::Frame* frame : {&Frame2, &Frame4, &Frame5}) {
    frame->ForeColor = forms::Blue;
  }
  Função1.AccessibleName = "Expressão analítica da função";

  for (const Operation& operation : Operations()) {
    (this->*operation.Button).Click = [this, &operation] { Executar(operation); };
  }

  ApagarGráfico1.Click = [this] {
    ModoCoresFunção = 0;
    Graduar(JanelaFunção);
  };
  // The record of the second derivative is the one that goes with the first derivative's clearing.
  ApagarPrimeira.Click = [this] {
    ModoCoresSegunda = 0;
    Graduar(JanelaPrimeira);
  };
  ApagarSegunda.Click = [this] { Graduar(JanelaSegunda); };

  struct WindowButtons {
    const Window& Of;
    forms::CommandButton& Color;
    forms::CommandButton& Ground;
  };
  for (const auto& [window, color, ground] :
       {WindowButtons{JanelaFunção, CorDoGráfico, CorDoFundo},
        WindowButtons{JanelaPrimeira, CorPrimeira, CorFundoPrimeira},
        WindowButtons{JanelaSegunda, CorSegunda, CorFundoSegunda}}) {
    // A colour of a curve takes effect at the next drawing.
    color.Click = [&chooser = window.CurveColor] { chooser.ShowColor(); };
    ground.Click = [this, &of = window] { MudarFundo(of); };
    window.EixosRad.Click = [this, &of = window] { AlternarGraduação(of); };
  }

  Sair.Click = [this] { Sair_Click(); };
}

void Form13::Form_Load() {
  for (const Window* window : {&JanelaFunção, &JanelaPrimeira, &JanelaSegunda}) {
    for (forms::PictureBox* canvas : {&Persistent(*window), &Live(*window)}) {
      canvas->Height = window->Place.Height;
      canvas->Width = window->Place.Width;
      canvas->Top = window->Place.Top;
      canvas->Left = window->Place.Left;
      canvas->Scale(-10, 10, 10, -10);
      canvas->AccessibleName = window->SpokenName;
    }
    Persistent(*window).AutoRedraw = true;
    Live(*window).AutoRedraw = false;
    Persistent(*window).Visible = false;
    Live(*window).Visible = true;
  }
}

// The grounds of the canvases keep their colours, though the choosers forget them, and so do the
// buttons their captions.
void Form13::Form_Activate() {
  GraduarTodas();
  for (const Window* window : {&JanelaFunção, &JanelaPrimeira, &JanelaSegunda}) {
    window->CurveColor.Color = forms::Blue;
    window->GroundColor.Color = forms::White;
    window->Radianos = false;
  }
}

// A chooser that was cancelled keeps its colour, and the window is cleared all the same.
void Form13::MudarFundo(const Window& window) {
  window.GroundColor.ShowColor();
  for (forms::PictureBox* canvas : {&Persistent(window), &Live(window)}) {
    canvas->BackColor(window.GroundColor.Color);
    Graduar(window);
  }
}

// Leaving toggles the graduations and resets none of them; the second derivative's turn comes only
// when the first derivative's window went back to units. The next activation graduates all windows
// in units, so a window left in units comes back with the other caption on its button.
void Form13::Sair_Click() {
  Visible = false;
  AlternarGraduação(JanelaFunção);
  AlternarGraduação(JanelaPrimeira);
  if (!JanelaPrimeira.Radianos) {
    AlternarGraduação(JanelaSegunda);
  }
}

}  // namespace clinorama
