// The still drawings of the lesson, in the order of its pages.

#include <cmath>
#include <vector>

#include "base/counted_loop.h"
#include "lesson/Form9.h"
#include "lesson/figures.h"

namespace clinorama {

using namespace lesson;  // NOLINT(google-build-using-namespace): names of this folder

namespace {

constexpr double CurveStep = 0.001;  // close enough for the points of a curve to touch
constexpr double BranchLimit = 8;    // curves between the axes of the margin end here, both ways

constexpr Point LabelOfA = {0, -9.4};  // below the axis of the margin

}  // namespace

// The points of a curve, each in a colour. Curves are runs of points and never lines: where the
// graph is steep its points stand apart.
template <class Function>
void Form9::DesenharCurva(double from, double to, Function f, forms::Color color) {
  DesenharCurva(from, to, f, color, [](double) { return true; });
}

template <class Function, class Accepts>
void Form9::DesenharCurva(double from, double to, Function f, forms::Color color, Accepts accepts) {
  base::CountedLoop(from, to, CurveStep, [&](double x) {
    const double y = f(x);
    if (accepts(y)) {
      Picture1.PSet(x, y, color);
    }
  });
}

// A curve in blue as far as it lies between the axes of the margin.
template <class Function>
void Form9::DesenharRamo(double from, double to, Function f) {
  DesenharCurva(from, to, f, forms::Blue,
                [](double y) { return y >= -BranchLimit && y <= BranchLimit; });
}

// A circle with a tangent. The marker's corner is that of the other scale, so that it lies a
// little beside the point of contact.
void Form9::CenaCircunferencia() {
  Picture1.Cls();
  OcultarMarcadores();
  Picture1.ForeColor = forms::Blue;
  Picture1.Circle(0, 0, 4);
  const double root = std::sqrt(2);
  DesenharCurva(
      -2, 8, [root](double x) { return 4 * root - x; }, Picture1.ForeColor);
  Colocar(5, 2 * root, 2 * root, QuadrantCorner);
}

// A vertical line that meets a parabola once and is no tangent.
void Form9::CenaParabola() {
  Picture1.Cls();
  OcultarMarcadores();
  Picture1.ForeColor = forms::Blue;
  DesenharCurva(-10, 10, Parabola, Picture1.ForeColor, [](double y) { return y > -9 && y < 9; });
  Picture1.Line(4, 9, 4, -9);
  Colocar(5, 4, Parabola(4), MarginCorner);
}

// A tangent that crosses its curve. Going back from page 5 leads here from another scale.
void Form9::CenaTangenteDivide() {
  Picture1.Cls();
  Picture1.Scale(-10, 10, 10, -10);
  OcultarMarcadores();
  Picture1.DrawMode = forms::CopyPen;
  DesenharRamo(-8, 8, Cubic);
  Colocar(5, 0, 0, MarginCorner);
  Picture1.PrintAt(-0.4, -0.4, "P");
  DesenharCurva(
      -5, 5, [](double x) { return -2 * x / 3; }, Picture1.ForeColor);
}

// The graph with the points of abscissas a and x. The pen stays blue up to page 15.
void Form9::CenaPontosDireita() {
  OcultarMarcadores();
  EixosQuadrante();
  Picture1.ForeColor = forms::Blue;
  Picture1.DrawMode = forms::CopyPen;
  DesenharCurva(1, 8, FuncaoF, Picture1.ForeColor);
  Rotular({.a = {3.9, -0.1},
           .x = {6.9, -0.1},
           .fa = {-0.8, 6.1},
           .fx = {-0.8, 7.1},
           .A = {3.9, 6.5},
           .X = {6.9, 7.5}});
  MarcarPontoA();
  MarcarPontoDireita();
}

// The semi-secant with the two legs of its slope. A and a lose their markers here.
void Form9::CenaSemiSecanteDireita() {
  OcultarMarcadores();
  for (const int marker : {5, 1, 12}) {
    Image1(marker).Visible = true;
  }
  PrepararSemiSecante(RightSide);
  Picture1.DrawStyle = forms::Solid;
  DesenharSemiSecante();
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(AbcissaA, OrdenadaA, AbcissaX, OrdenadaA, forms::Blue);
  Picture1.Line(AbcissaX, OrdenadaX, AbcissaX, OrdenadaA, forms::Red);
}

// The semi-tangent of either side: it lies where the motion before has left the semi-secant.
void Form9::SemiTangente() {
  Picture1.DrawMode = forms::CopyPen;
  Picture1.DrawStyle = forms::Solid;
  Picture1.DrawWidth = 2;
  DesenharSemiSecante(forms::Red);
  Picture1.DrawWidth = 1;
}

void Form9::CenaPontosEsquerda() {
  const double x = LeftSide.Start;
  const double y = FuncaoF(x);
  MarcarPontoA();
  ExemploUm();
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(x, y, x, 0);
  Picture1.Line(0, y, x, y);
  Rotular({.a = {3.9, -0.1},
           .x = {1.4, -0.1},
           .fa = {-0.8, 6.1},
           .fx = {-0.8, 3.8},
           .A = {3.9, 6.5},
           .X = {1.3, 4.2}});
}

// The legs meet below A here, and below X on the right side.
void Form9::CenaSemiSecanteEsquerda() {
  PrepararSemiSecante(LeftSide);
  Picture1.DrawStyle = forms::Solid;
  DesenharSemiSecante();
  Picture1.DrawStyle = forms::Dotted;
  Picture1.Line(AbcissaA, OrdenadaA, AbcissaA, OrdenadaX, forms::Blue);
  Picture1.Line(AbcissaX, OrdenadaX, AbcissaA, OrdenadaX, forms::Red);
}

void Form9::CenaCubica() {
  EixosMargem();
  DesenharRamo(-8, 8, Cubic);
  Colocar(10, 0, 0, MarginCorner);
  Picture1.PrintAt(LabelOfA.X, LabelOfA.Y, "a");
  MarcarVertical(0);
}

// Two branches that do not meet at a. The pages differ in where (a, f(a)) lies, and so in which
// ends of the branches are open.
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
    Colocar(index, 0, y, MarginCorner);
  }
  DesenharRamo(-8, 0, LeftBranch);
  DesenharRamo(0, 8, RightBranch);
  MarcarVertical(9);
  Picture1.PrintAt(LabelOfA.X, LabelOfA.Y, "a");
}

// A cusp, with the curve closed by dots where it is steepest. The green disc lies over the blue
// one, a little to the left.
void Form9::CenaReversao() {
  constexpr double GreenCornerLeft = 0.29;
  EixosMargem();
  Colocar(16, 0, Cusp(0), MarginCorner);
  DesenharCurva(-8, 8, Cusp, forms::Blue);
  Image1(10).Move(-GreenCornerLeft, Cusp(0) + MarginCorner);
  Image1(10).Visible = true;
  base::CountedLoop(-3, -4, -0.1, [this](double y) { Picture1.PSet(0, y, forms::Blue); });
  MarcarVertical(9);
  Picture1.PrintAt(LabelOfA.X, LabelOfA.Y, "a");
}

// A corner; its semi-tangents lie on the curve itself.
void Form9::CenaAnguloso() {
  EixosMargem();
  Colocar(16, 0, Corner(0), MarginCorner);
  DesenharCurva(-8, 8, Corner, forms::Blue);
  DesenharCurva(-5, 5, Corner, forms::Red);
  MarcarVertical(9);
  Picture1.PrintAt(LabelOfA.X, LabelOfA.Y, "a");
}

}  // namespace clinorama
