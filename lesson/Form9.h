#pragma once

#include <memory>
#include <string>

#include "forms/controls.h"
#include "forms/page.h"
#include "forms/picture_box.h"

namespace clinorama {

namespace lesson {
struct HalfMotion;
struct LabelPlaces;
struct Side;
}  // namespace lesson

// The lesson about the concept of derivative: 31 pages, numbered 0 to 30, each with a text on the
// right and a drawing on the left. A page may draw over the page before it: scale, pen, markers and
// the end of the semi-secant stay as a page leaves them.
//
// sequencer.cpp holds the table of pages, the buttons and the menu; scene_parts.cpp the axes,
// labels and markers that scenes share; scenes.cpp the still drawings; motions.cpp the moving ones;
// figures.h the functions.
class Form9 : public forms::Page {
 public:
  Form9();

  static constexpr int LastPage = 30;

  forms::Label Label1{
      *this, "Label1", {420, 360, 8460, 405}, "CONCEITO DE DERIVADA DE UMA FUNÇÃO NUM PONTO "};

  forms::PictureBox Picture1{*this, "Picture1", {60, 1140, 9465, 9465}, "Figura da página"};
  // The markers of points; scene_parts.cpp holds the table of their pictures.
  forms::ControlArray<forms::Image> Image1{
      "Image1", 0, 19,
      [this](int index, const std::string& name) { return NewMarker(index, name); }};
  forms::Image Image5{Picture1,
                      "Image5",
                      {0, 0, 8539, 9816},
                      "lesson/definicao",
                      "Definição de derivada de uma função num ponto"};
  // The texts of the pages. The last three are blank.
  forms::ControlArray<forms::Image> Image4{
      "Image4", 0, 34, [this](int index, const std::string& name) { return NewText(index, name); }};

  forms::Frame Opções{*this, "Opções", {9600, 9420, 5535, 1215}, "Opções"};
  forms::CommandButton Seguinte{
      Opções, "Seguinte", {300, 360, 615, 615}, "Seguinte", "icons/seguinte"};
  forms::CommandButton Anterior{
      Opções, "Anterior", {1080, 360, 615, 615}, "Anterior", "icons/anterior"};
  // Partly under Parar: until the first pause a strip of Continuar is visible beside it.
  forms::CommandButton Continuar{
      Opções, "Continuar", {2220, 360, 615, 615}, "Continuar", "icons/continuar"};
  forms::CommandButton Parar{Opções, "Parar", {2280, 360, 615, 615}, "Parar", "icons/parar"};
  forms::Label Label2{Opções, "Label2", {3480, 300, 1020, 195}, "Página activa:"};
  forms::Label Label3{Opções, "Label3", {4620, 300, 675, 255}};
  // How many milliseconds a step of a motion waits: 10 at the left end, 0 at the right end.
  forms::HScrollBar HScroll1{Opções, "HScroll1", {3240, 720, 2175, 315}, 10, 0, 5, "Velocidade"};

  forms::Menu Ficheiro{*this, "Ficheiro", "Ficheiro"};
  forms::Menu FecharPágina{Ficheiro, "FecharPágina", "Fechar esta página"};
  forms::Menu AbandonarPrograma{Ficheiro, "AbandonarPrograma", "Abandonar o Programa"};
  forms::Menu Clinorama{*this, "Clinorama", "Clinorama"};
  forms::Menu Instruções{*this, "Instruções", "Instruções"};
  forms::Menu Comentários{*this, "Comentários", "Comentários"};
  forms::Menu Sintaxe{*this, "Sintaxe", "Sintaxe"};
  forms::Menu FunçõesDefinidas{*this, "FunçõesDefinidas", "Funções definidas"};

  void Form_Load() override;

 private:
  // sequencer.cpp
  struct ButtonSet;
  struct LessonPage;
  static const LessonPage LessonPages[LastPage];
  std::unique_ptr<forms::Image> NewText(int index, const std::string& name);
  void Seguinte_Click();
  void Anterior_Click();
  void Parar_Click();
  void Continuar_Click();
  void Clinorama_Click();
  void ShowPage(int number);
  void EnableButtons(const ButtonSet& buttons);
  void ShowDefinition();

  // scene_parts.cpp
  struct AxesLayout;
  std::unique_ptr<forms::Image> NewMarker(int index, const std::string& name);
  void HideMarkers();
  void MoveMarker(int marker, double x, double y, double corner);
  void PlaceMarker(int marker, double x, double y, double corner);
  void MovePoint(const lesson::Side& side, double x, double y);
  void DrawAxes(const AxesLayout& axes);
  void EixosQuadrante();
  void EixosMargem();
  void DrawVertical(double top);
  void DrawExampleAbscissa();
  void DrawCoordinates(double x, double y);
  void PrintLabels(const lesson::LabelPlaces& places);
  void MarcarPontoA();
  void PlaceAtStart(const lesson::Side& side);
  void MarcarPontoDireita();
  void ExemploUm();
  void ComputeEnd(double x, double y, double length);
  void SetSemiSecant(const lesson::Side& side);
  void DrawSemiSecant();
  void DrawSemiSecant(forms::Color color);

  // scenes.cpp
  template <class Function>
  void DrawCurve(double from, double to, Function f, forms::Color color);
  template <class Function, class Accepts>
  void DrawCurve(double from, double to, Function f, forms::Color color, Accepts accepts);
  template <class Function>
  void DrawBoundedCurve(double from, double to, Function f);
  void CenaCircunferencia();
  void CenaParabola();
  void CenaTangenteDivide();
  void CenaPontosDireita();
  void CenaSemiSecanteDireita();
  void SemiTangente();
  void CenaPontosEsquerda();
  void CenaSemiSecanteEsquerda();
  void CenaCubica();
  void CenaDoisTrocos();
  void CenaReversao();
  void CenaAnguloso();

  // motions.cpp
  void EsperarPasso();
  template <class Draw>
  void ShowFigureInPassing(Draw draw);
  template <class DrawLegs>
  void TurnSemiSecant(const lesson::Side& side, DrawLegs drawLegs);
  void AproximarPonto(const lesson::Side& side);
  void AproximarPontoDireita();
  void AproximarSemiSecanteDireita();
  void AproximarPontoEsquerda();
  void AproximarSemiSecanteEsquerda();
  void TurnToLimit(const lesson::HalfMotion& half, double start, double step);
  void MovimentoSemiSecantes();

  int PaginaActiva = 0;        // 0 to LastPage
  bool PodeContinuar = false;  // false while a pause waits

  // The semi-secant, in user units: it starts at the fixed point A, goes through the point X and
  // ends at Extremo. A page that the user opens inside a motion changes these values for that
  // motion too.
  double AbcissaA = 0;
  double OrdenadaA = 0;
  double AbcissaX = 0;
  double OrdenadaX = 0;
  double ExtremoX = 0;
  double ExtremoY = 0;
};

}  // namespace clinorama
