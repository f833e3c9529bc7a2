// The still drawings of the lesson, in the order of its pages.

#include <cmath>
#include <vector>

#include "base/counted_loop.h"
#include "lesson/Form9.h"
#include "lesson/figures.h"

namespace clinorama {

using namespace lesson;  // NOLINT(google-build-using-namespace): names of this folder

namespace {

constexpr double CurveStep = 0.001;  // small enough for the points of a flat curve to touch
constexpr double OrdinateLimit = 8;  // bounded curves are drawn from -8 to 8

}  // namespace

// A curve is drawn as single points and never as lines: where it is steep the points do not touch.
template <class Function>
void Form9::DrawCurve(double from, double to, Function f, forms::Color color) {
  DrawCurve(from, to, f, color, [](double) { return true; });
}

template <class Function, class Accepts>
void Form9::DrawCurve(double from, double to, Function f, forms::Color color, Accepts accepts) {
  base::CountedLoop(from, to, CurveStep, [&](double x) {
    const double y = f(x);
    if (accepts(y)) {
      Picture1.PSet(x, y, color);
    }
  });
}

// The part of a curve with ordinates from -8 to 8, in blue.
template <class Function>
void Form9::DrawBoundedCurve(double from, double to, Function f) {
  DrawCurve(from, to, f, forms::Blue,
            [](double y) { return y >= -OrdinateLimit && y <= OrdinateLimit; });
}

// A circle with a tangent. The marker is placed with the distance of the other scale, so it lies a
// little beside the point of contact.
void Form9::CenaCircunferencia() {
  Picture1.Cls();
  HideMarkers();
  Picture1.ForeColor = forms::Blue;
  Picture1.Circle(0, 0, 4);
  const double root = std::sqrt(2);
  DrawCurve(
      -2, 8, [root](double x) { return 4 * root - x; }, Picture1.ForeColor);
  PlaceMarker(5, 2 * root, 2 * root, QuadrantCorner);
  Image1(5).AccessibleName = "Ponto de contacto";
}

// A vertical line that meets a parabola once and is no tangent.
void Form9::CenaParabola() {
  Picture1.Cls();
  HideMarkers();
  Picture1.ForeColor = forms::Blue;
  DrawCurve(-10, 10, Parabola, Picture1.ForeColor, [](double y) { return y > -9 && y < 9; });
  Picture1.Line(4, 9, 4, -9);
  PlaceMarker(5, 4, Parabola(4), MarginCorner);
  Image1(5).AccessibleName = "Ponto de intersecção";
}

// A tangent that crosses its curve. The scale is set because page 5, which has another one, leads
// back to this page.
void Form9::CenaTangenteDivide() {
  Picture1.Cls();
  Picture1.Scale(-10, 10, 10, -10);
  HideMarkers();
  Picture1.DrawMode = forms::CopyPen;
  DrawBoundedCurve(-8, 8, Cubic);
  PlaceMarker(5, 0, 0, MarginCorner);
  Image1(5).AccessibleName = "Ponto P";
  Picture1.PrintAt(-0.4, -0.4, "P");
  DrawCurve(
      -5, 5, [](double x) { return -2 * x / 3; }, Picture1.ForeColor);
}

// The graph with the points of abscissas a and x. ForeColor stays blue up to page 15.
void Form9::CenaPontosDireita() {
  HideMarkers();
  EixosQuadrante();
  Picture1.ForeColor = forms::Blue;
  Picture1.DrawMode = forms::CopyPen;
  DrawCurve(1, 8, FuncaoF, Picture1.ForeColor);
  PrintLabels({.a = {3.9, -0.1},
               .x = {6.9, -0.1},
               .fa = {-0.8, 6.1},
               .fx = {-0.8, 7.1},
               .A = {3.9, 6.5},
               .X = {6.9, 7.5}});
  MarcarPontoA();
  MarcarPontoDireita();
}

// The semi-secant with the two legs of its slope. The markers of A and a are hidden.
void Form9::CenaSemiSecanteDireita() {
  HideMarkers();
  for (const int marker : {5, 1, 12}) {
    Image1(marker).Visible = true;
  }
  SetSemiSecant(RightSide);
  Picture1.DrawStyle = forms::Solid;
  DrawSemiSecant();
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(AbcissaA, OrdenadaA, AbcissaX, OrdenadaA, forms::Blue);
  Picture1.Line(AbcissaX, OrdenadaX, AbcissaX, OrdenadaA, forms::Red);
}

// The semi-tangent of either side. It lies where the motion of the page before left the
// semi-secant.
void Form9::SemiTangente() {
  Picture1.DrawMode = forms::CopyPen;
  Picture1.DrawStyle = forms::Solid;
  Picture1.DrawWidth = 2;
  DrawSemiSecant(forms::Red);
  Picture1.DrawWidth = 1;
}

void Form9::CenaPontosEsquerda() {
  const double x = LeftSide.Start;
  const double y = FuncaoF(x);
  MarcarPontoA();
  ExemploUm();
  DrawCoordinates(x, y);
  PrintLabels({.a = {3.9, -0.1},
               .x = {1.4, -0.1},
               .fa = {-0.8, 6.1},
               .fx = {-0.8, 3.8},
               .A = {3.9, 6.5},
               .X = {1.3, 4.2}});
}

// The legs meet below A; on the right side they meet below X.
void Form9::CenaSemiSecanteEsquerda() {
  SetSemiSecant(LeftSide);
  Picture1.DrawStyle = forms::Solid;
  DrawSemiSecant();
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(AbcissaA, OrdenadaA, AbcissaA, OrdenadaX, forms::Blue);
  Picture1.Line(AbcissaX, OrdenadaX, AbcissaA, OrdenadaX, forms::Red);
}

void Form9::CenaCubica() {
  EixosMargem();
  DrawBoundedCurve(-8, 8, Cubic);
  PlaceMarker(10, 0, 0, MarginCorner);
  Picture1.PrintAt(LabelOfA.X, LabelOfA.Y, "a");
  DrawVertical(0);
}

// Two branches that do not meet at a. The pages differ in the place of (a, f(a)), and so in the
// branches whose end is open.
void Form9::CenaDoisTrocos() {
  struct Marker {
    int Index;
    double Y;
  };
  struct Member {
    int Page;
    std::vector<Marker> Markers;
  };
  static const Member Members[] = {
      {18, {{16, 6}, {17, 3}, {18, -2}}},   // f(a) apart from both branches
      {20, {{16, 3}, {18, -2}}},            // on the right one
      {22, {{16, 1}, {17, 3}, {18, -2}}},   // between them
      {24, {{17, 3}, {16, -2}}},            // on the left one
      {26, {{18, -2}, {17, 3}, {16, -4}}},  // below both
  };
  EixosMargem();
  for (const auto& [index, y] : RowOfPage(Members, PaginaActiva).Markers) {
    PlaceMarker(index, 0, y, MarginCorner);
  }
  DrawBoundedCurve(-8, 0, LeftBranch);
  DrawBoundedCurve(0, 8, RightBranch);
  DrawExampleAbscissa();
}

// A cusp; some dots close the gap where the curve is steepest. The green disc lies over the blue
// one, a little to the left.
void Form9::CenaReversao() {
  constexpr double GreenCornerLeft = 0.29;
  EixosMargem();
  PlaceMarker(16, 0, Cusp(0), MarginCorner);
  DrawCurve(-8, 8, Cusp, forms::Blue);
  Image1(10).Move(-GreenCornerLeft, Cusp(0) + MarginCorner);
  Image1(10).Visible = true;
  base::CountedLoop(-3, -4, -0.1, [this](double y) { Picture1.PSet(0, y, forms::Blue); });
  DrawExampleAbscissa();
}

// A corner. Its semi-tangents, in red, lie on the curve itself.
void Form9::CenaAnguloso() {
  EixosMargem();
  PlaceMarker(16, 0, Corner(0), MarginCorner);
  DrawCurve(-8, 8, Corner, forms::Blue);
  DrawCurve(-5, 5, Corner, forms::Red);
  DrawExampleAbscissa();
}

}  // namespace clinorama
