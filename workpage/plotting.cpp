// The graph of the work page: a dense cloud of single points, which nothing joins.

#include "base/counted_loop.h"
#include "base/failure.h"
#include "engine/clsEquation.h"
#include "forms/application.h"
#include "workpage/Form12.h"

namespace clinorama {

void Form12::DesenharGráfico_Click() {
  constexpr double From = -12;
  constexpr double To = 12;
  constexpr double Step = 0.0005;  // far below a pixel, so that a curve looks closed

  // The user watches the points arrive on the live surface.
  Picture1.Visible = false;
  Picture2.Visible = true;
  Picture1.AutoRedraw = true;
  Picture1.DrawMode = forms::CopyPen;
  Picture2.AutoRedraw = false;
  Picture2.DrawMode = forms::CopyPen;

  if (Função1.Text().empty()) {
    forms::MsgBox(
        "Deve escrever a expressão analítica da função que pretende representar graficamente.",
        forms::InformationBox, "Limites");
    return;
  }

  try {
    clsEquation equation;
    MousePointer = forms::MousePointer::Hourglass;
    equation.Equation(Função1.Text());
    base::CountedLoop(From, To, Step, [&](double x) {
      equation.Var("x", x);
      equation.Solve();
      const double y = equation.Solution();
      // A point outside the domain has the value 1000 and falls out here too.
      if (y <= From || y >= To) {
        return;
      }
      Picture1.PSet(x, y, CommonDialog1.Color);
      Picture2.PSet(x, y, CommonDialog1.Color);
      Picture2.Refresh();
    });
  } catch (const base::Failure& error) {
    // The points drawn so far stay, with the live surface in front.
    MousePointer = forms::MousePointer::Default;
    GraficoDesenhado = true;
    forms::MsgBox("Erro na expressão analítica:\n\n" + error.Description(), forms::InformationBox,
                  "Limites");
    Função1.SetFocus();
    return;
  }
  MousePointer = forms::MousePointer::Default;
  GraficoDesenhado = true;
  Picture1.Visible = true;
  Picture2.Visible = false;
}

}  // namespace clinorama
