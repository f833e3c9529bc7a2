// What the scenes and motions share: axes, labels, markers and the semi-secant.

#include <cmath>
#include <string>
#include <utility>

#include "lesson/Form9.h"
#include "lesson/figures.h"

namespace clinorama {

using namespace lesson;  // NOLINT(google-build-using-namespace): names of this folder

std::unique_ptr<forms::Image> Form9::NewMarker(int index, const std::string& name) {
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
      {"pictures/disco_vermelho", ""},  // named by the scenes: it is not always the abscissa x
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

void Form9::HideMarkers() {
  for (int i = Image1.First(); i <= Image1.Last(); ++i) {
    Image1(i).Visible = false;
  }
}

void Form9::MoveMarker(int marker, double x, double y, double corner) {
  Image1(marker).Move(x - corner, y + corner);
}

void Form9::PlaceMarker(int marker, double x, double y, double corner) {
  MoveMarker(marker, x, y, corner);
  Image1(marker).Visible = true;
}

// Moves the point X of a side and its coordinates x and f(x) on the axes.
void Form9::MovePoint(const Side& side, double x, double y) {
  MoveMarker(side.Moving.OnAxisX, x, 0, QuadrantCorner);
  MoveMarker(side.Moving.OnGraph, x, y, QuadrantCorner);
  MoveMarker(side.Moving.OnAxisY, 0, y, QuadrantCorner);
}

// Two axes with their arrow heads, drawn in the order of the segments. The axes do not set
// DrawMode: they keep that of the page before.
struct Form9::AxesLayout {
  struct Segment {
    double X1, Y1, X2, Y2;
  };
  Segment Scale;
  Segment Segments[6];
  Position LabelX;
  Position LabelY;
};

void Form9::DrawAxes(const AxesLayout& axes) {
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
  static constexpr AxesLayout Axes = {.Scale = {-1, 10, 10, -1},
                                      .Segments = {{0, 0, 9, 0},
                                                   {0, 0, 0, 9},
                                                   {-0.1, 8.9, 0, 9},
                                                   {0.1, 8.9, 0, 9},
                                                   {8.9, 0.1, 9, 0},
                                                   {8.9, -0.1, 9, 0}},
                                      .LabelX = {9.1, -0.1},
                                      .LabelY = {-0.3, 9.3}};
  DrawAxes(Axes);
}

// Axes on the left and lower margin, so that the middle is free for an example with a = 0.
void Form9::EixosMargem() {
  static constexpr AxesLayout Axes = {.Scale = {-10, 10, 10, -10},
                                      .Segments = {{-9, 9, -9, -9},
                                                   {-9, -9, 9, -9},
                                                   {-9.1, 8.9, -9, 9},
                                                   {-8.9, 8.9, -9, 9},
                                                   {8.9, -8.9, 9, -9},
                                                   {8.9, -9.1, 9, -9}},
                                      .LabelX = {9.1, -9.1},
                                      .LabelY = {-9.3, 9.3}};
  HideMarkers();
  DrawAxes(Axes);
}

// The dotted vertical through a = 0, from the height `top` down to the axis in the margin.
void Form9::DrawVertical(double top) {
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(0, top, 0, -9);
  Picture1.DrawStyle = forms::Solid;
}

// Marks the point a = 0 of an example, with its label below the axis.
void Form9::DrawExampleAbscissa() {
  DrawVertical(9);
  Picture1.PrintAt(LabelOfA.X, LabelOfA.Y, "a");
}

// The dotted segments from a point to its coordinates on the axes. The style of the pen stays.
void Form9::DrawCoordinates(double x, double y) {
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(x, y, x, 0);
  Picture1.Line(0, y, x, y);
}

void Form9::PrintLabels(const LabelPlaces& places) {
  const std::pair<const char*, Position> labels[] = {{"a", places.a},     {"x", places.x},
                                                     {"f(a)", places.fa}, {"f(x)", places.fx},
                                                     {"A", places.A},     {"X", places.X}};
  for (const auto& [text, place] : labels) {
    Picture1.PrintAt(place.X, place.Y, text);
  }
}

void Form9::MarcarPontoA() {
  const double y = FuncaoF(PointA);
  PlaceMarker(0, PointA, y, QuadrantCorner);
  PlaceMarker(9, PointA, 0, QuadrantCorner);
  PlaceMarker(11, 0, y, QuadrantCorner);
  DrawCoordinates(PointA, y);
  Picture1.DrawStyle = forms::Solid;
}

// Puts the moving point at its start, and its rings too; the motions make the rings visible.
void Form9::PlaceAtStart(const Side& side) {
  const double y = FuncaoF(side.Start);
  MoveMarker(side.Rings.OnGraph, side.Start, y, QuadrantCorner);
  MoveMarker(side.Rings.OnAxisX, side.Start, 0, QuadrantCorner);
  MoveMarker(side.Rings.OnAxisY, 0, y, QuadrantCorner);
  MovePoint(side, side.Start, y);
  for (const int marker : {side.Moving.OnGraph, side.Moving.OnAxisX, side.Moving.OnAxisY}) {
    Image1(marker).Visible = true;
  }
}

void Form9::MarcarPontoDireita() {
  Image1(RightSide.Moving.OnAxisX).AccessibleName = "Abcissa x à direita";
  PlaceAtStart(RightSide);
  DrawCoordinates(RightSide.Start, FuncaoF(RightSide.Start));
  Picture1.DrawStyle = forms::Solid;
}

void Form9::ExemploUm() { PlaceAtStart(LeftSide); }

// Sets the end of the semi-secant: on the half line from A through (x, y), at a distance of
// `length` from A. The two points must differ, as their distance is a divisor.
void Form9::ComputeEnd(double x, double y, double length) {
  const double dx = x - AbcissaA;
  const double dy = y - OrdenadaA;
  const double distance = std::sqrt(dy * dy + dx * dx);
  ExtremoX = AbcissaA + length * dx / distance;
  ExtremoY = OrdenadaA + length * dy / distance;
}

// Sets the semi-secant of FuncaoF through the point where a side starts.
void Form9::SetSemiSecant(const Side& side) {
  AbcissaA = PointA;
  OrdenadaA = FuncaoF(PointA);
  AbcissaX = side.Start;
  OrdenadaX = FuncaoF(side.Start);
  ComputeEnd(AbcissaX, OrdenadaX, SemiSecantLength);
}

void Form9::DrawSemiSecant() { DrawSemiSecant(Picture1.ForeColor); }

void Form9::DrawSemiSecant(forms::Color color) {
  Picture1.Line(AbcissaA, OrdenadaA, ExtremoX, ExtremoY, color);
}

}  // namespace clinorama
