// The tangent that runs along the whole graph, with its slope.

#include "base/counted_loop.h"
#include "base/number_text.h"
#include "forms/application.h"
#include "workpage/Form12.h"
#include "workpage/tangent.h"

namespace clinorama {

using base::Ignorar;

namespace {

constexpr double Step = 0.001;
constexpr double HalfLength = 5;  // of the tangent, user units
constexpr double NeighbourDistance = 0.000001;

// The tangent at a point of the graph. Each half has the direction of a neighbour on its side, so
// the tangent bends at a corner.
struct Tangent {
  double X = 0;
  double Y = 0;
  double LeftY = 0;  // value at the neighbour
  double RightY = 0;
  SegmentEnd Left{HalfLength};
  SegmentEnd Right{HalfLength};

  void MoveTo(double x, clsEquation& equation) {
    const double leftX = x - NeighbourDistance;
    const double rightX = x + NeighbourDistance;
    X = x;
    Ignorar([&] { Y = ValueAt(equation, X); });
    Ignorar([&] { LeftY = ValueAt(equation, leftX); });
    Ignorar([&] { RightY = ValueAt(equation, rightX); });
    Left.Aim(X, Y, leftX, LeftY);
    Right.Aim(X, Y, rightX, RightY);
  }

  double Slope() const { return base::Divide(base::Subtract(Right.Y, Left.Y), Right.X - Left.X); }
};

}  // namespace

// A point outside the domain has the value 1000, and its tangent lies far above the canvas.
void Form12::Calcular_Click() {
  if (GraphMissing()) {
    return;
  }
  BloquearComandos();
  Picture1.AutoRedraw = false;
  Image1(1).Visible = true;

  clsEquation equation;
  Tangent tangent;
  base::CountedLoop(-Limit, Limit, Step, [&](double x) {
    equation.Equation(Função1.Text());
    tangent.MoveTo(x, equation);
    MoveMarker(Image1(1), tangent.X, tangent.Y);
    Ignorar([&] { Label6.Caption = base::NumberText(base::Round(tangent.Slope(), 3)); });
    const auto draw = [&] {
      Ignorar(
          [&] { Picture1.Line(tangent.Left.X, tangent.Left.Y, tangent.Right.X, tangent.Right.Y); });
    };
    forms::ShowInPassing(Picture1, draw, [this] { Wait(HScroll1.Value); });
  });

  LibertarComandos();
  Label6.Caption = "";
  Image1(1).Visible = false;
  Picture1.DrawMode = forms::CopyPen;
}

}  // namespace clinorama
