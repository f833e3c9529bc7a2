// Carries out a row of the table of operations: its preparations, its points, and its end or its
// failure. It runs from beginning to end without letting an event in; the user watches the points
// arrive on the live canvas.

#include "base/failure.h"
#include "forms/application.h"
#include "relations/operations.h"

namespace clinorama {

using namespace relations;

void Form13::Executar(const Operation& operation) {
  const Window& window = this->*operation.On;
  const Manner& manners = operation.Manners;
  bool showsLive = false;
  for (const Preparation preparation : manners.Preparations) {
    switch (preparation) {
      case Preparation::RefuseEmpty:
        if (Recusar(operation)) {
          return;
        }
        break;
      case Preparation::ShowHourglass:
        MousePointer = forms::MousePointer::Hourglass;
        break;
      case Preparation::ShowLive:
        Persistent(window).Visible = false;
        Live(window).Visible = true;
        showsLive = true;
        break;
    }
  }
  try {
    Traçar(operation);
  } catch (const base::Failure& failure) {
    // The points drawn so far stay, with the live canvas in front.
    forms::MsgBox("Erro:\n\n" + failure.Description(), manners.FailureBox.Style,
                  manners.FailureBox.Title);
    MousePointer = forms::MousePointer::Default;
    Função1.SetFocus();
    return;
  }
  MousePointer = forms::MousePointer::Default;
  if (showsLive) {
    Persistent(window).Visible = true;
    Live(window).Visible = false;
  }
  if (operation.AtEnd != nullptr) {
    operation.AtEnd(*this);
  }
}

bool Form13::Recusar(const Operation& operation) {
  if (!Função1.Blank()) {
    return false;
  }
  forms::MsgBox(operation.Manners.EmptyMessage, forms::InformationBox, "Relações");
  if (operation.Manners.FocusWhenEmpty) {
    Função1.SetFocus();
  }
  return true;
}

// Samples the function and plots the points that pass their tests. A failure comes out of here only
// where it is to be reported.
void Form13::Traçar(const Operation& operation) {
  const Window& window = this->*operation.On;
  forms::PictureBox& persistent = Persistent(window);
  forms::PictureBox& live = Live(window);
  Sampler f(Função1.Text, operation.Manners.OnFailure);

  const auto plot = [&](forms::PictureBox& canvas, const Sample& sample, const Mark& mark) {
    f.Recovery.Statement([&] {
      const double y = (operation.AtSolution ? f.Solution() : sample.Value) + mark.Lift;
      canvas.PSet(sample.X, y,
                  mark.Color == CurveColor ? window.CurveColor.Color : forms::QBColor(mark.Color));
    });
  };
  persistent.DrawWidth = operation.DotSize;
  live.DrawWidth = operation.DotSize;
  operation.Sampling(f, operation.Over, [&](const Sample& sample) {
    for (const Mark& mark : operation.Marks) {
      const bool passed = f.Recovery.Test([&] {
        // Read whatever the other conditions say, as its failure decides.
        const bool onZero = operation.NotOnZeros && f.Solution() == 0;
        return !onZero && operation.Values.Holds(sample.Value) && mark.Test(sample) &&
               f.Recovery.PontoValido();
      });
      if (!passed) {
        continue;
      }
      plot(persistent, sample, mark);
      if (!operation.OnBothCanvases) {
        continue;
      }
      plot(live, sample, mark);
      live.Refresh();
    }
  });
  persistent.DrawWidth = 1;
  live.DrawWidth = 1;
}

}  // namespace clinorama
