// Appearance, loading and activation of the relations page, clearing, colours and leaving.

#include "forms/application.h"
#include "relations/Form13.h"
#include "relations/operations.h"

namespace clinorama {

Form13::Form13() : Page("Form13", {120, 330, 15165, 11100}, "CLINORAMA") {
  AccessibleName = "Relação da função com as derivadas";
  Label4.Font = {.Name = "Comic Sans MS", .Size = 18, .Bold = true};
  Label4.ForeColor = forms::Red;
  for (forms::Label* legend : {&Label1, &Label2}) {
    legend->Font = {.Bold = true};
    legend->ForeColor = forms::Blue;
  }
  Label3.InMiddle = true;  // level with the field beside them
  Label5.InMiddle = true;
  for (forms::Frame* frame : {&Frame2, &Frame4, &Frame5}) {
    frame->ForeColor = forms::Blue;
  }
  Função1.AccessibleName = "Expressão analítica da função";

  for (const Operation& operation : Operations) {
    (this->*operation.Button).Click = [this, &operation] { Execute(operation); };
  }

  ApagarGráfico1.Click = [this] {
    ModoCoresFunção = 0;
    RedrawAxes(functionWindow_);
  };
  // Clearing the first derivative resets the mode of the second one, and ApagarSegunda resets none.
  ApagarPrimeira.Click = [this] {
    ModoCoresSegunda = 0;
    RedrawAxes(firstWindow_);
  };
  ApagarSegunda.Click = [this] { RedrawAxes(secondWindow_); };

  struct WindowButtons {
    const Window& Of;
    forms::CommandButton& Color;
    forms::CommandButton& Background;
  };
  for (const auto& [window, color, background] :
       {WindowButtons{functionWindow_, CorDoGráfico, CorDoFundo},
        WindowButtons{firstWindow_, CorPrimeira, CorFundoPrimeira},
        WindowButtons{secondWindow_, CorSegunda, CorFundoSegunda}}) {
    // The colour of a curve takes effect at the next drawing.
    color.Click = [&chooser = window.CurveColor] { chooser.ShowColor(); };
    background.Click = [this, &of = window] { ChangeBackground(of); };
    window.EixosRad.Click = [this, &of = window] { ToggleGraduation(of); };
  }

  Sair.Click = [this] { Sair_Click(); };
}

void Form13::Form_Load() {
  for (const Window* window : {&functionWindow_, &firstWindow_, &secondWindow_}) {
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

// The choosers forget their colours, but the canvases keep the background they have. The buttons
// keep their captions.
void Form13::Form_Activate() {
  GraduarTodas();
  for (const Window* window : {&functionWindow_, &firstWindow_, &secondWindow_}) {
    window->CurveColor.Color = forms::Blue;
    window->BackgroundColor.Color = forms::White;
    window->Radianos = false;
  }
}

// A cancelled chooser keeps its colour; the window is cleared in either case.
void Form13::ChangeBackground(const Window& window) {
  window.BackgroundColor.ShowColor();
  for (forms::PictureBox* canvas : {&Persistent(window), &Live(window)}) {
    canvas->BackColor(window.BackgroundColor.Color);
    RedrawAxes(window);
  }
}

// Leaving toggles the graduation of the windows: that of the second derivative only when the toggle
// put the first derivative in units. Form_Activate then draws units everywhere and leaves the
// buttons alone, so a window that was in units comes back with "Unidades" on its button.
void Form13::Sair_Click() {
  Visible = false;
  ToggleGraduation(functionWindow_);
  ToggleGraduation(firstWindow_);
  if (!firstWindow_.Radianos) {
    ToggleGraduation(secondWindow_);
  }
}

}  // namespace clinorama
