#pragma once

#include <memory>
#include <string>

#include "forms/controls.h"
#include "forms/page.h"
#include "forms/picture_box.h"

namespace clinorama {

class clsEquation;

// The main work page: the user types a function, and it is plotted on the canvas.
//
// The operations live in files named for what they do: canvas.cpp (axes, graduation, colours),
// plotting.cpp (the graph), lateral_derivative.cpp (semi-secants at a point), tangent_sweep.cpp
// (the tangent along the graph), page_control.cpp (look, events, locking, pauses, other pages).
class Form12 : public forms::Page {
 public:
  Form12();

  // The canvas: the kept surface and its live twin, which is in front while a graph is plotted.
  static constexpr forms::Rect CanvasPlace = {60, 1140, 9500, 9500};
  static constexpr forms::Rect MarkerSize = {0, 0, 225, 225};
  static constexpr forms::Rect ArrowSize = {0, 0, 135, 135};
  forms::PictureBox Picture1{*this, "Picture1", CanvasPlace, "Gráfico da função"};
  forms::PictureBox Picture2{*this, "Picture2", CanvasPlace, "Gráfico em construção"};
  forms::Image Image3{Picture1, "Image3", ArrowSize, "pictures/seta_x", "Eixo das abcissas"};
  forms::Image Image2{Picture1, "Image2", ArrowSize, "pictures/seta_y", "Eixo das ordenadas"};
  // The markers of the fixed point, 0, and of the moving point, 1.
  forms::ControlArray<forms::Image> Image1{
      "Image1", 0, 2, [this](int index, const std::string& name) {
        return index == 0 ? std::make_unique<forms::Image>(Picture1, name, MarkerSize,
                                                           "pictures/ponto_fixo", "Ponto fixo")
                          : std::make_unique<forms::Image>(Picture1, name, MarkerSize,
                                                           "pictures/ponto_movel", "Ponto móvel");
      }};

  forms::Label Label4{*this, "Label4", {4020, 240, 2700, 525}, "CLINORAMA"};

  forms::Frame Frame2{*this, "Frame2", {9720, 240, 5355, 855}, "Expressão analítica da  função"};
  forms::Label Label5{Frame2, "Label5", {180, 390, 375, 255}, "y ="};
  forms::TextBox Função1{Frame2,
                         "Função1",
                         {600, 330, 4575, 360},
                         "x*(1-cos(x))/2",
                         "Escreva aqui a expressão analítica da função que pretende estudar."};

  forms::Frame FrameOpções{
      *this, "FrameOpções", {9720, 1530, 5355, 1395}, "Opções sobre o gráfico"};
  forms::CommandButton DesenharGráfico{
      FrameOpções, "DesenharGráfico", {180, 390, 780, 840}, "Desenhar", "icons/desenhar"};
  forms::CommandButton ApagarGráfico{
      FrameOpções, "ApagarGráfico", {1023, 390, 780, 840}, "Apagar", "icons/apagar"};
  forms::CommandButton CorGráfico{
      FrameOpções, "CorGráfico", {1866, 390, 780, 840}, "Cor", "icons/cor"};
  forms::CommandButton CorFundo{
      FrameOpções, "CorFundo", {2709, 390, 780, 840}, "Fundo", "icons/fundo"};
  forms::CommandButton EixosRad{FrameOpções,           "EixosRad",
                                {3552, 390, 780, 840}, "Radianos",
                                "icons/radianos",      "Graduar o eixo das abcissas em radianos."};
  forms::CommandButton Exemplos{
      FrameOpções, "Exemplos", {4395, 390, 780, 840}, "Exemplos", "icons/exemplos"};

  forms::Frame Frame1{*this, "Frame1", {9720, 3360, 5355, 2595}, "Derivada num ponto"};
  forms::Label Label1{Frame1, "Label1", {180, 375, 2280, 255}, "Abcissa do ponto:"};
  forms::TextBox Abcissa{
      Frame1,
      "Abcissa",
      {2520, 330, 2655, 345},
      "2",
      "Escreva aqui o valor da abcissa do ponto onde pretende calcular a derivada."};
  forms::OptionButton DerivadaEsquerda{
      Frame1,
      "DerivadaEsquerda",
      {180, 810, 2280, 345},
      "derivada à esquerda",
      "Clique aqui para determinar a derivada à esquerda do ponto."};
  forms::Label Label2{Frame1, "Label2", {2520, 810, 2655, 345}};
  forms::OptionButton DerivadaDireita{Frame1,
                                      "DerivadaDireita",
                                      {180, 1260, 2280, 345},
                                      "derivada à direita",
                                      "Clique aqui para determinar a derivada à direita do ponto."};
  forms::Label Label3{Frame1, "Label3", {2520, 1260, 2655, 345}};
  forms::CommandButton Continuar{
      Frame1, "Continuar", {2288, 1695, 780, 780}, "Continuar", "icons/continuar"};
  forms::CommandButton Parar{Frame1, "Parar", {2288, 1695, 780, 780}, "Parar", "icons/parar"};

  forms::Frame Frame3{*this, "Frame3", {9720, 6390, 5355, 2955}, "Derivada em todos os pontos"};
  forms::CommandButton Calcular{
      Frame3, "Calcular", {1440, 390, 780, 840}, "Calcular", "icons/calcular"};
  forms::CommandButton Relacionar{
      Frame3, "Relacionar", {3135, 390, 780, 840}, "Relacionar", "icons/relacionar"};
  forms::Label Label7{Frame3, "Label7", {180, 1530, 2280, 255}, "Valor da derivada:"};
  forms::Label Label6{Frame3, "Label6", {2520, 1485, 2655, 345}};
  forms::CommandButton Continuar1{
      Frame3, "Continuar1", {2288, 1995, 780, 780}, "Continuar", "icons/continuar"};
  forms::CommandButton Parar1{Frame3, "Parar1", {2288, 1995, 780, 780}, "Parar", "icons/parar"};

  forms::Frame Velocidade{*this,
                          "Velocidade",
                          {9720, 9780, 5355, 795},
                          "Velocidade",
                          "Utilize as setas nas extremidades ou a barra de deslocamento para "
                          "alterar a velocidade dos movimentos."};
  // Milliseconds that a step of a motion waits: the left end is the slowest.
  forms::HScrollBar HScroll1{Velocidade, "HScroll1", {180, 360, 4995, 270}, 10, 0, 5, "Velocidade"};

  // Settings of the graduation, never shown to the user.
  forms::CheckBox MarcaX{*this, "MarcaX", {}, true};
  forms::CheckBox GradNumX{*this, "GradNumX", {}, true};
  forms::TextBox PassoX{*this, "PassoX", {}, "1"};
  forms::CheckBox MarcaY{*this, "MarcaY", {}, true};
  forms::CheckBox GradNumY{*this, "GradNumY", {}, true};
  forms::TextBox PassoY{*this, "PassoY", {}, "1"};
  forms::CommandButton Command1{*this, "Command1", {}, "Eixos"};

  forms::CommonDialog CommonDialog1;  // colour of the graph
  forms::CommonDialog CommonDialog2;  // colour of the background

  forms::Menu Ficheiro{*this, "Ficheiro", "Ficheiro"};
  forms::Menu FecharPágina{Ficheiro, "FecharPágina", "Fechar esta página"};
  forms::Menu AbandonarPrograma{Ficheiro, "AbandonarPrograma", "Abandonar o programa"};
  forms::Menu ConceitoDerivada{*this, "ConceitoDerivada", "Conceito de derivada"};
  forms::Menu Instruções{*this, "Instruções", "Instruções"};
  forms::Menu Comentários{*this, "Comentários", "Comentários"};
  forms::Menu Sintaxe{*this, "Sintaxe", "Sintaxe"};
  forms::Menu FunçõesDefinidas{*this, "FunçõesDefinidas", "Funções definidas"};

  void Form_Load() override;
  void Form_Activate() override;

 private:
  static constexpr double Limit = 12;  // the range is -12 to 12 on both axes

  // canvas.cpp
  void DesenharEixos();
  template <class Draw>
  void OnBothSurfaces(Draw draw);
  void ClearCanvas();
  void SetScale();
  void DrawAxes();
  void PrintAxisNames();
  template <class Draw>
  void Graduate(double min, double max, const forms::TextBox& step, Draw draw);
  void DrawTicks();
  void DrawTickOfX(forms::PictureBox& surface, double x);
  void PrintNumbers();
  void MarcarRadianos();
  void GraduarRadianos();
  void EixosRad_Click();
  void CorFundo_Click();
  void CorGráfico_Click();
  void ApagarGráfico_Click();

  // plotting.cpp
  void DesenharGráfico_Click();
  void BringLiveSurfaceToFront();
  void BringKeptSurfaceToFront();
  void PlotPoints(clsEquation& equation);

  // lateral_derivative.cpp
  struct Side;
  class SemiSecant;
  void DerivadaEsquerda_Click();
  void DerivadaDireita_Click();
  void RunLateralDerivative(const Side& side);
  bool InputMissing(bool blanksAreNoFunction);
  bool PointRefused(const Side& side);
  void DrawGuides(const SemiSecant& secant);
  void ShowMarkers(const SemiSecant& secant);
  void WalkToPoint(SemiSecant& secant, const Side& side);
  static void ShowSlope(const SemiSecant& secant, forms::Label& value);
  static void ShowLastSlope(const SemiSecant& secant, const Side& side);
  void TestarDominio();
  void TestarEsquerda();
  void TestarDireita();
  void TestSide(double distance);
  template <class Test>
  void WithRecovery(Test test);

  // tangent_sweep.cpp
  void Calcular_Click();

  // page_control.cpp
  void SetLook();
  void BindCanvas();
  void BindMotions();
  void BindPages();
  void ClearDerivatives();
  void BloquearComandos();
  void LibertarComandos();
  void EnableCommands(bool enabled);
  void Pause(forms::CommandButton& stop, forms::CommandButton& resume);
  void Resume(forms::CommandButton& stop, forms::CommandButton& resume);
  void ConceitoDerivada_Click();
  void Exemplos_Click();
  void Relacionar_Click();
  void MoveMarker(forms::Image& marker, double x, double y);
  bool GraphMissing();
  static void Inform(const std::string& text);

  bool EmRadianos = false;  // the x axis is graduated in radians

  // The scale of the canvas, in user units: the range of the axes, the margins outside the range,
  // and the size of a logical pixel.
  double XMin = 0;
  double XMax = 0;
  double YMin = 0;
  double YMax = 0;
  double MargemX = 0;
  double MargemY = 0;
  double PixelX = 0;
  double PixelY = 0;

  bool GraficoDesenhado = false;  // plotting was attempted since the page was loaded
  bool PontoAceite = true;        // cleared by a test that refuses the point
  bool EmMovimento = false;       // false holds the wait of a pause
};

}  // namespace clinorama
