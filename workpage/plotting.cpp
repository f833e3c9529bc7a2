// The graph of the work page: a dense cloud of single points that are not joined.

#include "base/counted_loop.h"
#include "base/failure.h"
#include "forms/application.h"
#include "workpage/Form12.h"
#include "workpage/tangent.h"

namespace clinorama {

void Form12::DesenharGráfico_Click() {
  BringLiveSurfaceToFront();
  if (Função1.Text().empty()) {
    Inform("Deve escrever a expressão analítica da função que pretende representar graficamente.");
    return;
  }
  try {
    MousePointer = forms::MousePointer::Hourglass;
    clsEquation equation;
    equation.Equation(Função1.Text());
    PlotPoints(equation);
  } catch (const base::Failure& error) {
    // The points drawn so far stay, and the live surface stays in front.
    MousePointer = forms::MousePointer::Default;
    GraficoDesenhado = true;
    Inform("Erro na expressão analítica:\n\n" + error.Description());
    Função1.SetFocus();
    return;
  }
  MousePointer = forms::MousePointer::Default;
  GraficoDesenhado = true;
  BringKeptSurfaceToFront();
}

// On the live surface the user watches the points arrive.
void Form12::BringLiveSurfaceToFront() {
  Picture1.Visible = false;
  Picture2.Visible = true;
  Picture1.AutoRedraw = true;
  Picture1.DrawMode = forms::CopyPen;
  Picture2.AutoRedraw = false;
  Picture2.DrawMode = forms::CopyPen;
}

void Form12::BringKeptSurfaceToFront() {
  Picture1.Visible = true;
  Picture2.Visible = false;
}

void Form12::PlotPoints(clsEquation& equation) {
  constexpr double Step = 0.0005;  // far below a pixel, so that a curve looks closed
  base::CountedLoop(-Limit, Limit, Step, [&](double x) {
    const double y = ValueAt(equation, x);
    // A point outside the domain has the value 1000 and is left out here too.
    if (y <= -Limit || y >= Limit) {
      return;
    }
    Picture1.PSet(x, y, CommonDialog1.Color);
    Picture2.PSet(x, y, CommonDialog1.Color);
    Picture2.Refresh();
  });
}

}  // namespace clinorama
