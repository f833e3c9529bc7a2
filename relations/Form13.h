#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/page.h"
#include "forms/picture_box.h"

namespace clinorama {

// The relations page: the user compares a function with its first and second derivatives in three
// drawing windows, where the same colour means the same fact.
//
// operations.cpp holds the table of the twelve drawing buttons; drawing.cpp carries out a row of
// that table, and sampling.cpp computes the values that it plots. graduation.cpp draws the axes;
// page_control.cpp binds the other events.
class Form13 : public forms::Page {
 public:
  Form13();

  forms::Label Label4{*this, "Label4", {960, 240, 5805, 525}, "RELAÇÃO FUNÇÃO/CLINORAMA"};

  forms::Frame Frame1{*this, "Frame1", {60, 960, 8000, 780}};
  forms::Label Label3{Frame1, "Label3", {420, 360, 2880, 255}, "Expressão analítica da função:"};
  forms::Label Label5{Frame1, "Label5", {3360, 360, 345, 255}, "y ="};
  forms::TextBox Função1{Frame1,
                         "Função1",
                         {3720, 360, 3795, 285},
                         "x*(1-cos(x))",
                         "Escreva aqui a expressão analítica da função."};

  // Six canvases in pairs, placed when the page loads: 1, 3 and 5 are persistent, 2, 4 and 6 live.
  forms::ControlArray<forms::PictureBox> Picture1{*this, "Picture1",    1,
                                                  6,     forms::Rect{}, std::string{}};

  forms::Frame Frame2{*this, "Frame2", {60, 9960, 7995, 1035}, "Função"};
  forms::CommandButton DesenharGráfico{
      Frame2,
      "DesenharGráfico",
      {180, 300, 615, 615},
      "Desenhar",
      "icons/desenhar",
      "Desenhar o gráfico da função cuja expressão analítica foi escrita."};
  forms::CommandButton ColocarCoresFunção{
      Frame2,
      "ColocarCoresFunção",
      {1057, 300, 615, 615},
      "Colorir 1",
      "icons/colorir1",
      "Colorir o gráfico para compará-lo com o da primeira derivada (com Colorir 1)."};
  forms::CommandButton ColocarCoresFunção2{
      Frame2,
      "ColocarCoresFunção2",
      {1934, 300, 615, 615},
      "Colorir 2",
      "icons/colorir2",
      "Colorir o gráfico para compará-lo com o da segunda derivada (com Colorir 2)."};
  forms::CommandButton ApagarGráfico1{Frame2,   "ApagarGráfico1", {2811, 300, 615, 615},
                                      "Apagar", "icons/apagar",   "Apagar o gráfico da função."};
  forms::CommandButton CorDoGráfico{Frame2, "CorDoGráfico", {3688, 300, 615, 615},
                                    "Cor",  "icons/cor",    "Mudar a cor do gráfico da função."};
  forms::CommandButton CorDoFundo{
      Frame2,  "CorDoFundo",  {4565, 300, 615, 615},
      "Fundo", "icons/fundo", "Mudar a cor do fundo do gráfico da função."};
  forms::CommandButton EixosRad{
      Frame2,     "EixosRad",       {5442, 300, 615, 615},
      "Radianos", "icons/radianos", "Graduar os eixos das abcissas em radianos."};
  forms::CommandButton ExtremosFunção{
      Frame2,     "ExtremosFunção", {6319, 300, 615, 615},
      "Extremos", "icons/extremos", "Assinalar os extremos relativos no gráfico da função."};
  forms::CommandButton InflexõesFunção{
      Frame2,      "InflexõesFunção", {7200, 300, 615, 615},
      "Inflexões", "icons/inflexoes", "Assinalar os pontos de inflexão no gráfico da função."};

  forms::Label Label2{*this, "Label2", {8280, 360, 4995, 195}, "Função  1ª derivada"};
  forms::Frame Frame4{*this, "Frame4", {13380, 480, 1635, 5115}, "1ª derivada"};
  forms::CommandButton DesenharPrimeira{
      Frame4,     "DesenharPrimeira", {120, 600, 615, 615},
      "Desenhar", "icons/desenhar",   "Desenhar o gráfico da primeira derivada da função."};
  forms::CommandButton ApagarPrimeira{
      Frame4,   "ApagarPrimeira", {900, 600, 615, 615},
      "Apagar", "icons/apagar",   "Apagar o gráfico da primeira derivada da função."};
  forms::CommandButton ColocarCoresPrimeira1{
      Frame4,
      "ColocarCoresPrimeira1",
      {120, 1800, 615, 615},
      "Colorir 1",
      "icons/colorir1",
      "Colorir o gráfico para compará-lo com o da função (com Colorir 1)."};
  forms::CommandButton ColocarCoresPrimeira2{
      Frame4,
      "ColocarCoresPrimeira2",
      {900, 1800, 615, 615},
      "Colorir 2",
      "icons/colorir2",
      "Colorir o gráfico para compará-lo com o da função (com Colorir 2)."};
  forms::CommandButton EixosRad1{
      Frame4,     "EixosRad1",      {120, 3000, 615, 615},
      "Radianos", "icons/radianos", "Graduar os eixos das abcissas em radianos."};
  forms::CommandButton ZerosPrimeira{
      Frame4,  "ZerosPrimeira", {900, 3000, 615, 615},
      "Zeros", "icons/zeros",   "Assinalar os zeros da primeira derivada."};
  forms::CommandButton CorPrimeira{
      Frame4, "CorPrimeira", {120, 4200, 615, 615},
      "Cor",  "icons/cor",   "Mudar a cor do gráfico da primeira derivada da função."};
  forms::CommandButton CorFundoPrimeira{
      Frame4,
      "CorFundoPrimeira",
      {900, 4200, 615, 615},
      "Fundo",
      "icons/fundo",
      "Mudar a cor do fundo do gráfico da primeira derivada da função."};

  forms::Label Label1{*this, "Label1", {8280, 5760, 4995, 195}, "Função  2ª derivada"};
  forms::Frame Frame5{*this, "Frame5", {13380, 5880, 1635, 5115}, "2ª derivada"};
  forms::CommandButton DesenharSegunda{
      Frame5,     "DesenharSegunda", {120, 780, 615, 615},
      "Desenhar", "icons/desenhar",  "Desenhar o gráfico da segunda derivada da função."};
  forms::CommandButton ApagarSegunda{
      Frame5,   "ApagarSegunda", {900, 780, 615, 615},
      "Apagar", "icons/apagar",  "Apagar o gráfico da segunda derivada da função."};
  forms::CommandButton ColocarCoresSegunda{
      Frame5,
      "ColocarCoresSegunda",
      {180, 2100, 615, 615},
      "Colorir 2",
      "icons/colorir2",
      "Colorir o gráfico para compará-lo com o da função (com Colorir 2)."};
  forms::CommandButton EixosRad2{
      Frame5,     "EixosRad2",      {900, 2100, 615, 615},
      "Radianos", "icons/radianos", "Graduar os eixos das abcissas em radianos."};
  forms::CommandButton ZerosSegunda{
      Frame5,  "ZerosSegunda",        {540, 3120, 615, 615},
      "Zeros", "icons/zeros_segunda", "Assinalar os zeros da segunda derivada."};
  forms::CommandButton CorSegunda{
      Frame5, "CorSegunda", {120, 4200, 615, 615},
      "Cor",  "icons/cor",  "Mudar a cor do gráfico da segunda derivada da função."};
  forms::CommandButton CorFundoSegunda{
      Frame5,  "CorFundoSegunda", {900, 4200, 615, 615},
      "Fundo", "icons/fundo",     "Mudar a cor do fundo do gráfico da segunda derivada da função."};

  // It leaves this page only, and not the program as its tool tip says.
  forms::CommandButton Sair{*this,   "Sair",       {7320, 180, 735, 735},
                            "Sair ", "icons/sair", "Sair do programa."};

  // For each window in turn the chooser of the curve's colour and that of the background.
  forms::CommonDialog CommonDialog1;
  forms::CommonDialog CommonDialog2;
  forms::CommonDialog CommonDialog3;
  forms::CommonDialog CommonDialog4;
  forms::CommonDialog CommonDialog5;
  forms::CommonDialog CommonDialog6;

  // Whether the abscissas of a window are graduated in radians.
  bool RadianosFunção = false;
  bool RadianosPrimeira = false;
  bool RadianosSegunda = false;
  // The last colouring that reached its end: 1 or 2 on the function, 1 on the second derivative; 0
  // after a clearing. Nothing reads these fields.
  int ModoCoresFunção = 0;
  int ModoCoresSegunda = 0;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  // A drawing window: its pair of canvases and what belongs to it.
  struct Window {
    int Persistent;  // index of its persistent canvas; that of the live one is the next
    forms::Rect Place;
    const char* SpokenName;
    forms::CommandButton& EixosRad;
    bool& Radianos;
    forms::CommonDialog& CurveColor;
    forms::CommonDialog& BackgroundColor;
    bool UnitsSetButton;  // a graduation in units also sets the button and the field
  };
  struct Operation;  // what a drawing button does, see operations.h

  Window functionWindow_{1,
                         {60, 1800, 8000, 8000},
                         "Gráfico da função",
                         EixosRad,
                         RadianosFunção,
                         CommonDialog1,
                         CommonDialog2,
                         true};
  Window firstWindow_{3,
                      {8280, 600, 5000, 5000},
                      "Gráfico da primeira derivada",
                      EixosRad1,
                      RadianosPrimeira,
                      CommonDialog3,
                      CommonDialog4,
                      false};
  Window secondWindow_{5,
                       {8280, 6000, 5000, 5000},
                       "Gráfico da segunda derivada",
                       EixosRad2,
                       RadianosSegunda,
                       CommonDialog5,
                       CommonDialog6,
                       false};

  forms::PictureBox& Persistent(const Window& window) { return Picture1(window.Persistent); }
  forms::PictureBox& Live(const Window& window) { return Picture1(window.Persistent + 1); }

  // graduation.cpp
  void GraduarTodas();
  void GraduarUnidades(const Window& window);
  void GraduarRadianos(const Window& window);
  void RedrawAxes(const Window& window);
  void ToggleGraduation(const Window& window);
  void SetGraduation(const Window& window, bool radians);

  // operations.cpp
  static const std::vector<Operation> Operations;

  // drawing.cpp
  void Execute(const Operation& operation);
  bool Prepare(const Operation& operation);
  bool RefuseEmptyBox(const Operation& operation);
  void Finish(const Operation& operation);
  void Plot(const Operation& operation);

  // page_control.cpp
  void ChangeBackground(const Window& window);
  void Sair_Click();
};

}  // namespace clinorama
