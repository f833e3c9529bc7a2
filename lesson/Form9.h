#pragma once

#include <memory>
#include <string>

#include "forms/controls.h"
#include "forms/page.h"
#include "forms/picture_box.h"

namespace clinorama {

namespace lesson {
struct LabelPlaces;
struct Side;
}  // namespace lesson

// The lesson about the concept of derivative: 31 pages, numbered 0 to 30, each with a text on the
// right and a drawing on the left. A page's drawing may build on the one before: scale, pen,
// markers and the end of the semi-secant stay as a page leaves them.
//
// The operations live in files named for what they do: sequencer.cpp (the table of pages, the
// buttons, the menu), scene_parts.cpp (axes, labels and markers that scenes share), scenes.cpp
// (the still drawings), motions.cpp (the moving ones). The functions are in figures.h.
class Form9 : public forms::Page {
 public:
  Form9();

  static constexpr int LastPage = 30;

  forms::Label Label1{
      *this, "Label1", {420, 360, 8460, 405}, "CONCEITO DE DERIVADA DE UMA FUNÇÃO NUM PONTO "};

  forms::PictureBox Picture1{*this, "Picture1", {60, 1140, 9465, 9465}, "Figura da página"};
  // The markers of points; their looks are in scene_parts.cpp.
  forms::ControlArray<forms::Image> Image1{
      "Image1", 0, 19,
      [this](int index, const std::string& name) { return NovoMarcador(index, name); }};
  forms::Image Image5{Picture1,
                      "Image5",
                      {0, 0, 8539, 9816},
                      "lesson/definicao",
                      "Definição de derivada de uma função num ponto"};
  // The texts of the pages. The last three are blank.
  forms::ControlArray<forms::Image> Image4{
      "Image4", 0, 34,
      [this](int index, const std::string& name) { return NovoTexto(index, name); }};

  forms::Frame Opções{*this, "Opções", {9600, 9420, 5535, 1215}, "Opções"};
  forms::CommandButton Seguinte{
      Opções, "Seguinte", {300, 360, 615, 615}, "Seguinte", "icons/seguinte"};
  forms::CommandButton Anterior{
      Opções, "Anterior", {1080, 360, 615, 615}, "Anterior", "icons/anterior"};
  // Under Parar, beside which a strip of it shows until the first pause.
  forms::CommandButton Continuar{
      Opções, "Continuar", {2220, 360, 615, 615}, "Continuar", "icons/continuar"};
  forms::CommandButton Parar{Opções, "Parar", {2280, 360, 615, 615}, "Parar", "icons/parar"};
  forms::Label Label2{Opções, "Label2", {3480, 300, 1020, 195}, "Página activa:"};
  forms::Label Label3{Opções, "Label3", {4620, 300, 675, 255}};
  // Milliseconds that a step of a motion waits: the left end is the slowest.
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
  struct Botões;
  struct Página;
  static const Página Páginas[LastPage];
  std::unique_ptr<forms::Image> NovoTexto(int index, const std::string& name);
  void Seguinte_Click();
  void Anterior_Click();
  void Parar_Click();
  void Continuar_Click();
  void Clinorama_Click();
  void MostrarPágina(int number);
  void PermitirBotões(const Botões& buttons);
  void MostrarDefinição();

  // scene_parts.cpp
  struct Eixos;
  std::unique_ptr<forms::Image> NovoMarcador(int index, const std::string& name);
  void OcultarMarcadores();
  void Mover(int marker, double x, double y, double corner);
  void Colocar(int marker, double x, double y, double corner);
  void MoverPonto(const lesson::Side& side, double x, double y);
  void DesenharEixos(const Eixos& axes);
  void EixosQuadrante();
  void EixosMargem();
  void MarcarVertical(double top);
  void Rotular(const lesson::LabelPlaces& places);
  void MarcarPontoA();
  void MarcarInicio(const lesson::Side& side);
  void MarcarPontoDireita();
  void ExemploUm();
  void CalcularExtremo(double x, double y, double length);
  void PrepararSemiSecante(const lesson::Side& side);
  void DesenharSemiSecante();
  void DesenharSemiSecante(forms::Color color);

  // scenes.cpp
  template <class Function>
  void DesenharCurva(double from, double to, Function f, forms::Color color);
  template <class Function, class Accepts>
  void DesenharCurva(double from, double to, Function f, forms::Color color, Accepts accepts);
  template <class Function>
  void DesenharRamo(double from, double to, Function f);
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
  void PassarFigura(Draw draw);
  template <class DrawLegs>
  void RodarSemiSecante(const lesson::Side& side, DrawLegs drawLegs);
  void AproximarPonto(const lesson::Side& side);
  void AproximarPontoDireita();
  void AproximarSemiSecanteDireita();
  void AproximarPontoEsquerda();
  void AproximarSemiSecanteEsquerda();
  void MovimentoSemiSecantes();

  int PaginaActiva = 0;        // 0 to LastPage
  bool PodeContinuar = false;  // false holds the wait of a pause

  // The semi-secant, in user units: its fixed point A, a point X that it goes through, and the end
  // beyond. A page that is entered inside a motion changes them under it.
  double AbcissaA = 0;
  double OrdenadaA = 0;
  double AbcissaX = 0;
  double OrdenadaX = 0;
  double ExtremoX = 0;
  double ExtremoY = 0;
};

}  // namespace clinorama
