// The tangent that runs along the whole graph, with its slope.

#include "base/checked.h"
#include "base/counted_loop.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "engine/clsEquation.h"
#include "forms/application.h"
#include "workpage/Form12.h"

namespace clinorama {

using base::Ignorar;

namespace {

constexpr double From = -12;
constexpr double To = 12;
constexpr double Step = 0.001;
constexpr double HalfLength = 5;  // of the tangent, user units
constexpr double NeighbourDistance = 0.000001;

// One half of the tangent: it goes HalfLength from the point towards a neighbour beside it. Built
// separately from the other half, so that the tangent bends at a corner.
struct HalfTangent {
  double NeighbourX = 0;
  double NeighbourY = 0;
  double Distance = 0;
  double EndX = 0;
  double EndY = 0;

  // Each value that cannot be had stays as it was.
  void Follow(double x, double y) {
    using namespace base;
    Ignorar([&] {
      const double height = Subtract(y, NeighbourY);
      Distance = Sqrt(Add(Multiply(x - NeighbourX, x - NeighbourX), Multiply(height, height)));
    });
    Ignorar([&] { EndX = x + Divide(Multiply(NeighbourX - x, HalfLength), Distance); });
    Ignorar(
        [&] { EndY = Add(y, Divide(Multiply(Subtract(NeighbourY, y), HalfLength), Distance)); });
  }
};

}  // namespace

// Points outside the domain are passed over by their values alone: at 1000 the tangent lies far
// above the canvas. Every statement that fails is without effect.
void Form12::Calcular_Click() {
  if (!GraficoDesenhado) {
    forms::MsgBox("Deve desenhar primeiro o gráfico da função.", forms::InformationBox, "Limites");
    return;
  }
  BloquearComandos();
  Picture1.AutoRedraw = false;
  Image1(1).Visible = true;

  clsEquation equation;
  const auto evaluate = [&equation](double x, double& y) {
    Ignorar([&] {
      equation.Var("x", x);
      equation.Solve();
      y = equation.Solution();
    });
  };
  double y = 0;
  HalfTangent left;
  HalfTangent right;
  base::CountedLoop(From, To, Step, [&](double x) {
    equation.Equation(Função1.Text());
    evaluate(x, y);
    left.NeighbourX = x - NeighbourDistance;
    evaluate(left.NeighbourX, left.NeighbourY);
    right.NeighbourX = x + NeighbourDistance;
    evaluate(right.NeighbourX, right.NeighbourY);
    left.Follow(x, y);
    right.Follow(x, y);

    MoverMarcador(Image1(1), x, y);
    Ignorar([&] {
      const double slope =
          base::Divide(base::Subtract(right.EndY, left.EndY), right.EndX - left.EndX);
      Label6.Caption = base::NumberText(base::Round(slope, 3));
    });
    const auto drawTangent = [&] {
      Ignorar([&] { Picture1.Line(left.EndX, left.EndY, right.EndX, right.EndY); });
    };
    forms::ShowInPassing(Picture1, drawTangent, [this] { Wait(HScroll1.Value); });
  });

  LibertarComandos();
  Label6.Caption = "";
  Image1(1).Visible = false;
  Picture1.DrawMode = forms::CopyPen;
}

}  // namespace clinorama
