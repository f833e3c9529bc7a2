// The motions of the lesson: a point that tends to a, and semi-secants that turn to their limits.
// The marks that a passing figure leaves where it crosses other drawing are wanted.

#include "base/counted_loop.h"
#include "lesson/Form9.h"
#include "lesson/figures.h"

namespace clinorama {

using namespace lesson;  // NOLINT(google-build-using-namespace): names of this folder

void Form9::EsperarPasso() { Wait(HScroll1.Value); }

template <class Draw>
void Form9::PassarFigura(Draw draw) {
  forms::ShowInPassing(Picture1, draw, [this] { EsperarPasso(); });
}

// The point x of a side slides towards a, X along the graph and f(x) along its axis; at the end
// they go back to their start, for the next page.
void Form9::AproximarPonto(const Side& side) {
  base::CountedLoop(side.Start, PointA, side.Step, [&](double x) {
    const double y = FuncaoF(x);
    MoverPonto(side, x, y);
    PassarFigura([&] {
      Picture1.DrawStyle = forms::Dotted;
      Picture1.Line(x, y, x, 0);
      Picture1.Line(x, y, 0, y);
    });
  });
  Image1(side.Rings.OnAxisX).Visible = false;
  Image1(side.Rings.OnAxisY).Visible = false;
  MoverPonto(side, side.Start, FuncaoF(side.Start));
}

void Form9::AproximarPontoDireita() {
  for (const int ring : {7, 13}) {
    Image1(ring).Visible = true;
  }
  AproximarPonto(RightSide);
}

// The ring of X is shown on this side only, and stays.
void Form9::AproximarPontoEsquerda() {
  for (const int ring : {4, 8, 15}) {
    Image1(ring).Visible = true;
  }
  AproximarPonto(LeftSide);
}

// The semi-secant through X turns about A while X slides towards A, with the legs of its slope. In
// its limit position it is drawn once more than it is taken away, and stays.
template <class DrawLegs>
void Form9::RodarSemiSecante(const Side& side, DrawLegs drawLegs) {
  base::CountedLoop(side.Start, PointA, side.Step, [&](double x) {
    const double y = FuncaoF(x);
    CalcularExtremo(x, y, SemiSecantLength);
    MoverPonto(side, x, y);
    PassarFigura([&] {
      Picture1.DrawStyle = forms::Dotted;
      Picture1.Line(x, y, x, 0);
      drawLegs(x, y);
      Picture1.DrawStyle = forms::Solid;
      DesenharSemiSecante();
    });
  });
  DesenharSemiSecante();
}

// The pixels of the semi-secant of page 6 are inverted here, with the mode of the pen that page 7
// has left: they turn yellow.
void Form9::AproximarSemiSecanteDireita() {
  Rotular({.a = {3.9, -0.1},
           .x = Outside,
           .fa = {-0.8, 6.1},
           .fx = Outside,
           .A = {3.9, 6.5},
           .X = Outside});
  PrepararSemiSecante(RightSide);
  Picture1.DrawStyle = forms::Solid;
  DesenharSemiSecante(forms::White);
  Image1(RightSide.Rings.OnGraph).Visible = false;
  RodarSemiSecante(RightSide, [this](double x, double y) {
    Picture1.Line(0, y, x, y);
    Picture1.Line(AbcissaA, OrdenadaA, x, OrdenadaA);
  });
  for (const int marker : {5, 12, 1}) {
    Image1(marker).Visible = false;
  }
}

// The semi-secant of page 11 is erased. The level of X is drawn as far as a, beyond X.
void Form9::AproximarSemiSecanteEsquerda() {
  CalcularExtremo(LeftSide.Start, FuncaoF(LeftSide.Start), SemiSecantLength);
  Picture1.DrawMode = forms::CopyPen;
  Picture1.DrawStyle = forms::Solid;
  DesenharSemiSecante(forms::White);
  RodarSemiSecante(LeftSide, [this](double, double y) { Picture1.Line(0, y, AbcissaA, y); });
}

// The two semi-secants of a = 0 go to their limits, first the right one and then the left one;
// each leaves its semi-tangent in red.
void Form9::MovimentoSemiSecantes() {
  struct HalfMotion {
    double (*Function)(double);
    double Length;  // of the semi-secant
  };
  struct Member {
    int Page;
    double ValueAtA;
    double Step;
    HalfMotion Right;
    HalfMotion Left;
  };
  static constexpr Member Members[] = {
      {17, 0, 0.005, {Cubic, 7}, {Cubic, 7}},
      {19, 6, 0.001, {RightBranch, 11}, {LeftBranch, 11}},
      {21, 3, 0.001, {RightBranch, 11}, {LeftBranch, 11}},
      {23, 1, 0.001, {RightBranch, 11}, {LeftBranch, 8}},
      {25, -2, 0.001, {RightBranch, 11}, {LeftBranch, 8}},
      {27, -4, 0.001, {RightBranch, 11}, {LeftBranch, 8}},
      {29, -4, 0.001, {Cusp, 11}, {Cusp, 8}},
  };
  constexpr double StartDistance = 4;

  const Member& member = RowOfPage(Members, PaginaActiva);
  const auto turn = [&](const HalfMotion& half, double start, double step) {
    base::CountedLoop(start, 0, step, [&](double x) {
      CalcularExtremo(x, half.Function(x), half.Length);
      PassarFigura([this] { DesenharSemiSecante(forms::Blue); });
    });
    Picture1.DrawMode = forms::CopyPen;
    DesenharSemiSecante(forms::Red);
  };
  AbcissaA = 0;
  OrdenadaA = member.ValueAtA;
  turn(member.Right, StartDistance, -member.Step);
  turn(member.Left, -StartDistance, member.Step);
}

}  // namespace clinorama
