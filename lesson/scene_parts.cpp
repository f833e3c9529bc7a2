// What the scenes and motions are put together from: axes, labels, markers and the semi-secant.

#include <cmath>
#include <string>
#include <utility>

#include "lesson/Form9.h"
#include "lesson/figures.h"

namespace clinorama {

using namespace lesson;  // NOLINT(google-build-using-namespace): names of this folder

std::unique_ptr<forms::Image> Form9::NovoMarcador(int index, const std::string& name) {
  struct Marker {
    const char* Picture;
    const char* SpokenName;
  };
  static constexpr Marker Markers[] = {
      {"pictures/disco_verde", "Ponto A"},
      {"pictures/disco_verde", "Ponto X à direita"},
      {"pictures/disco_verde", "Ponto X à esquerda"},
      {"pictures/anel_verde", "Início de X à direita"},
      {"pictures/anel_verde", "Início de X à esquerda"},
      {"pictures/disco_vermelho", "Abcissa x à direita"},  // also the point of pages 2 to 4
      {"pictures/disco_vermelho", "Abcissa x à esquerda"},
      {"pictures/anel_vermelho", "Início de x à direita"},
      {"pictures/anel_vermelho", "Início de x à esquerda"},
      {"pictures/disco_preto", "Abcissa a"},
      {"pictures/disco_verde", "Ponto do gráfico"},  // 10
      {"pictures/disco_preto", "Ordenada f(a)"},
      {"pictures/disco_vermelho", "Ordenada f(x) à direita"},
      {"pictures/anel_vermelho", "Início de f(x) à direita"},
      {"pictures/disco_vermelho", "Ordenada f(x) à esquerda"},
      {"pictures/anel_vermelho", "Início de f(x) à esquerda"},
      {"pictures/disco_azul", "Ponto de abcissa a"},
      {"pictures/anel_azul", "Extremo aberto de um ramo"},
      {"pictures/anel_azul", "Extremo aberto de um ramo"},
  };
  constexpr forms::Rect Size = {0, 0, 240, 240};
  const Marker& marker = Markers[index];
  return std::make_unique<forms::Image>(Picture1, name, Size, marker.Picture, marker.SpokenName);
}

void Form9::OcultarMarcadores() {
  for (int i = Image1.First(); i <= Image1.Last(); ++i) {
    Image1(i).Visible = false;
  }
}

void Form9::Mover(int marker, double x, double y, double corner) {
  Image1(marker).Move(x - corner, y + corner);
}

void Form9::Colocar(int marker, double x, double y, double corner) {
  Mover(marker, x, y, corner);
  Image1(marker).Visible = true;
}

// The moving point of a side, with its two coordinates on the axes.
void Form9::MoverPonto(const Side& side, double x, double y) {
  Mover(side.Moving.OnAxisX, x, 0, QuadrantCorner);
  Mover(side.Moving.OnGraph, x, y, QuadrantCorner);
  Mover(side.Moving.OnAxisY, 0, y, QuadrantCorner);
}

// Two axes with their arrows. They are drawn in the order told, with the mode of the pen that the
// page before has left.
struct Form9::Eixos {
  struct Segment {
    double X1, Y1, X2, Y2;
  };
  Segment Scale;
  Segment Segments[6];
  Point LabelX;
  Point LabelY;
};

void Form9::DesenharEixos(const Eixos& axes) {
  Picture1.Cls();
  Picture1.Scale(axes.Scale.X1, axes.Scale.Y1, axes.Scale.X2, axes.Scale.Y2);
  Picture1.ForeColor = forms::Black;
  Picture1.AutoRedraw = true;
  Picture1.DrawStyle = forms::Solid;
  for (const auto& [x1, y1, x2, y2] : axes.Segments) {
    Picture1.Line(x1, y1, x2, y2);
  }
  Picture1.PrintAt(axes.LabelX.X, axes.LabelX.Y, "x");
  Picture1.PrintAt(axes.LabelY.X, axes.LabelY.Y, "y");
}

// Axes through the origin, with the first quadrant in view.
void Form9::EixosQuadrante() {
  static constexpr Eixos Axes = {.Scale = {-1, 10, 10, -1},
                                 .Segments = {{0, 0, 9, 0},
                                              {0, 0, 0, 9},
                                              {-0.1, 8.9, 0, 9},
                                              {0.1, 8.9, 0, 9},
                                              {8.9, 0.1, 9, 0},
                                              {8.9, -0.1, 9, 0}},
                                 .LabelX = {9.1, -0.1},
                                 .LabelY = {-0.3, 9.3}};
  DesenharEixos(Axes);
}

// Axes on the left and lower margin: the middle is left to an example with its point a at 0.
void Form9::EixosMargem() {
  static constexpr Eixos Axes = {.Scale = {-10, 10, 10, -10},
                                 .Segments = {{-9, 9, -9, -9},
                                              {-9, -9, 9, -9},
                                              {-9.1, 8.9, -9, 9},
                                              {-8.9, 8.9, -9, 9},
                                              {8.9, -8.9, 9, -9},
                                              {8.9, -9.1, 9, -9}},
                                 .LabelX = {9.1, -9.1},
                                 .LabelY = {-9.3, 9.3}};
  OcultarMarcadores();
  DesenharEixos(Axes);
}

// The dotted vertical through a = 0, from a height down to the axis in the margin.
void Form9::MarcarVertical(double top) {
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(0, top, 0, -9);
  Picture1.DrawStyle = forms::Solid;
}

void Form9::Rotular(const LabelPlaces& places) {
  const std::pair<const char*, Point> labels[] = {{"a", places.a},     {"x", places.x},
                                                  {"f(a)", places.fa}, {"f(x)", places.fx},
                                                  {"A", places.A},     {"X", places.X}};
  for (const auto& [text, place] : labels) {
    Picture1.PrintAt(place.X, place.Y, text);
  }
}

void Form9::MarcarPontoA() {
  const double y = FuncaoF(PointA);
  Colocar(0, PointA, y, QuadrantCorner);
  Colocar(9, PointA, 0, QuadrantCorner);
  Colocar(11, 0, y, QuadrantCorner);
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(PointA, y, PointA, 0);
  Picture1.Line(0, y, PointA, y);
  Picture1.DrawStyle = forms::Solid;
}

// The moving point at its start. The rings go there too, and are shown by the motions.
void Form9::MarcarInicio(const Side& side) {
  const double y = FuncaoF(side.Start);
  Mover(side.Rings.OnGraph, side.Start, y, QuadrantCorner);
  Mover(side.Rings.OnAxisX, side.Start, 0, QuadrantCorner);
  Mover(side.Rings.OnAxisY, 0, y, QuadrantCorner);
  MoverPonto(side, side.Start, y);
  for (const int marker : {side.Moving.OnGraph, side.Moving.OnAxisX, side.Moving.OnAxisY}) {
    Image1(marker).Visible = true;
  }
}

void Form9::MarcarPontoDireita() {
  MarcarInicio(RightSide);
  const double y = FuncaoF(RightSide.Start);
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(RightSide.Start, y, RightSide.Start, 0);
  Picture1.Line(0, y, RightSide.Start, y);
  Picture1.DrawStyle = forms::Solid;
}

void Form9::ExemploUm() { MarcarInicio(LeftSide); }

// The end of a semi-secant of a length that starts at A and goes through (x, y), however far that
// is. The two points must not be the same.
void Form9::CalcularExtremo(double x, double y, double length) {
  const double dx = x - AbcissaA;
  const double dy = y - OrdenadaA;
  const double distance = std::sqrt(dy * dy + dx * dx);
  ExtremoX = AbcissaA + length * dx / distance;
  ExtremoY = OrdenadaA + length * dy / distance;
}

// The semi-secant of FuncaoF through the start of a side.
void Form9::PrepararSemiSecante(const Side& side) {
  AbcissaA = PointA;
  OrdenadaA = FuncaoF(PointA);
  AbcissaX = side.Start;
  OrdenadaX = FuncaoF(side.Start);
  CalcularExtremo(AbcissaX, OrdenadaX, SemiSecantLength);
}

void Form9::DesenharSemiSecante() { DesenharSemiSecante(Picture1.ForeColor); }

void Form9::DesenharSemiSecante(forms::Color color) {
  Picture1.Line(AbcissaA, OrdenadaA, ExtremoX, ExtremoY, color);
}

}  // namespace clinorama
