// The motions of the lesson: a point that tends to a, and semi-secants that turn to their limits. A
// figure in motion leaves small marks where it crosses other drawing; they belong to the lesson.

#include "base/counted_loop.h"
#include "lesson/Form9.h"
#include "lesson/figures.h"

namespace clinorama {

using namespace lesson;  // NOLINT(google-build-using-namespace): names of this folder

void Form9::EsperarPasso() { Wait(HScroll1.Value); }

template <class Draw>
void Form9::ShowFigureInPassing(Draw draw) {
  forms::ShowInPassing(Picture1, draw, [this] { EsperarPasso(); });
}

// The point x of a side moves towards a, X along the graph and f(x) along its axis. At the end they
// go back to their start, where the next page needs them.
void Form9::AproximarPonto(const Side& side) {
  base::CountedLoop(side.Start, PointA, side.Step, [&](double x) {
    const double y = FuncaoF(x);
    MovePoint(side, x, y);
    ShowFigureInPassing([&] {
      Picture1.DrawStyle = forms::Dotted;
      Picture1.Line(x, y, x, 0);
      Picture1.Line(x, y, 0, y);
    });
  });
  Image1(side.Rings.OnAxisX).Visible = false;
  Image1(side.Rings.OnAxisY).Visible = false;
  MovePoint(side, side.Start, FuncaoF(side.Start));
}

void Form9::AproximarPontoDireita() {
  for (const int ring : {7, 13}) {
    Image1(ring).Visible = true;
  }
  AproximarPonto(RightSide);
}

// Only this side shows the ring of X, and the ring stays visible.
void Form9::AproximarPontoEsquerda() {
  for (const int ring : {4, 8, 15}) {
    Image1(ring).Visible = true;
  }
  AproximarPonto(LeftSide);
}

// The semi-secant through X turns about A while X moves towards A; `drawLegs` draws the legs of its
// slope. The last line draws it once more in its limit position, where it stays.
template <class DrawLegs>
void Form9::TurnSemiSecant(const Side& side, DrawLegs drawLegs) {
  base::CountedLoop(side.Start, PointA, side.Step, [&](double x) {
    const double y = FuncaoF(x);
    ComputeEnd(x, y, SemiSecantLength);
    MovePoint(side, x, y);
    ShowFigureInPassing([&] {
      Picture1.DrawStyle = forms::Dotted;
      Picture1.Line(x, y, x, 0);
      drawLegs(x, y);
      Picture1.DrawStyle = forms::Solid;
      DrawSemiSecant();
    });
  });
  DrawSemiSecant();
}

// The first semi-secant is drawn in the mode that page 7 left, which inverts pixels: the blue
// semi-secant of page 6 turns yellow.
void Form9::AproximarSemiSecanteDireita() {
  PrintLabels({.a = {3.9, -0.1},
               .x = Outside,
               .fa = {-0.8, 6.1},
               .fx = Outside,
               .A = {3.9, 6.5},
               .X = Outside});
  SetSemiSecant(RightSide);
  Picture1.DrawStyle = forms::Solid;
  DrawSemiSecant(forms::White);
  Image1(RightSide.Rings.OnGraph).Visible = false;
  TurnSemiSecant(RightSide, [this](double x, double y) {
    Picture1.Line(0, y, x, y);
    Picture1.Line(AbcissaA, OrdenadaA, x, OrdenadaA);
  });
  for (const int marker : {5, 12, 1}) {
    Image1(marker).Visible = false;
  }
}

// The first semi-secant erases that of page 11. The horizontal through X is drawn as far as a.
void Form9::AproximarSemiSecanteEsquerda() {
  ComputeEnd(LeftSide.Start, FuncaoF(LeftSide.Start), SemiSecantLength);
  Picture1.DrawMode = forms::CopyPen;
  Picture1.DrawStyle = forms::Solid;
  DrawSemiSecant(forms::White);
  TurnSemiSecant(LeftSide, [this](double, double y) { Picture1.Line(0, y, AbcissaA, y); });
}

// One semi-secant goes to its limit from one side, and leaves its semi-tangent in red.
void Form9::TurnToLimit(const HalfMotion& half, double start, double step) {
  base::CountedLoop(start, 0, step, [&](double x) {
    ComputeEnd(x, half.Function(x), half.Length);
    ShowFigureInPassing([this] { DrawSemiSecant(forms::Blue); });
  });
  Picture1.DrawMode = forms::CopyPen;
  DrawSemiSecant(forms::Red);
}

// The semi-secants of a = 0: first the right one turns, then the left one.
void Form9::MovimentoSemiSecantes() {
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
  AbcissaA = 0;
  OrdenadaA = member.ValueAtA;
  TurnToLimit(member.Right, StartDistance, -member.Step);
  TurnToLimit(member.Left, -StartDistance, member.Step);
}

}  // namespace clinorama
