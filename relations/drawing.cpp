// Carries out a row of the table of operations: preparations, points, and the end or the failure.
// No event is let in meanwhile; the user sees the points appear on the live canvas.

#include "base/failure.h"
#include "forms/application.h"
#include "relations/operations.h"

namespace clinorama {

using namespace relations;

void Form13::Execute(const Operation& operation) {
  if (!Prepare(operation)) {
    return;
  }
  try {
    Plot(operation);
  } catch (const base::Failure& failure) {
    // The points drawn before the failure stay, and the live canvas stays in view.
    const FailureReport& report = operation.Procedure.Report;
    forms::MsgBox("Erro:\n\n" + failure.Description(), report.Style, report.Title);
    MousePointer = forms::MousePointer::Default;
    Função1.SetFocus();
    return;
  }
  Finish(operation);
}

// Runs the preparations in their order. Returns false where the operation ends with them.
bool Form13::Prepare(const Operation& operation) {
  const Window& window = this->*operation.On;
  for (const Preparation preparation : operation.Procedure.Preparations) {
    switch (preparation) {
      case Preparation::RefuseEmpty:
        if (RefuseEmptyBox(operation)) {
          return false;
        }
        break;
      case Preparation::ShowHourglass:
        MousePointer = forms::MousePointer::Hourglass;
        break;
      case Preparation::ShowLive:
        Persistent(window).Visible = false;
        Live(window).Visible = true;
        break;
    }
  }
  return true;
}

void Form13::Finish(const Operation& operation) {
  const Window& window = this->*operation.On;
  MousePointer = forms::MousePointer::Default;
  if (operation.OnBothCanvases) {
    Persistent(window).Visible = true;
    Live(window).Visible = false;
  }
  if (operation.AtEnd != nullptr) {
    operation.AtEnd(*this);
  }
}

bool Form13::RefuseEmptyBox(const Operation& operation) {
  if (!Função1.Blank()) {
    return false;
  }
  forms::MsgBox(operation.Procedure.EmptyMessage, forms::InformationBox, "Relações");
  if (operation.Procedure.FocusWhenEmpty) {
    Função1.SetFocus();
  }
  return true;
}

// Samples the function and plots the points that pass their tests. It raises a failure only where
// the operation reports failures.
void Form13::Plot(const Operation& operation) {
  const Window& window = this->*operation.On;
  forms::PictureBox& persistent = Persistent(window);
  forms::PictureBox& live = Live(window);
  Sampler f(Função1.Text, operation.Procedure.OnFailure);

  const auto plot = [&](forms::PictureBox& canvas, const Sample& sample, const PointRule& rule) {
    f.Recovery.Statement([&] {
      const double y = (operation.AtSolution ? f.Solution() : sample.Value) + rule.Lift;
      canvas.PSet(sample.X, y,
                  rule.Color == CurveColor ? window.CurveColor.Color : forms::QBColor(rule.Color));
    });
  };
  persistent.DrawWidth = operation.DotSize;
  live.DrawWidth = operation.DotSize;
  operation.Sampling(f, operation.Over, [&](const Sample& sample) {
    for (const PointRule& rule : operation.Rules) {
      const bool passed = f.Recovery.Test([&] {
        // Solution is read before the other conditions: if the read fails, the test counts as
        // passed.
        const bool onZero = operation.NotOnZeros && f.Solution() == 0;
        return !onZero && operation.Values.Holds(sample.Value) && rule.Test(sample) &&
               f.Recovery.PontoValido();
      });
      if (!passed) {
        continue;
      }
      plot(persistent, sample, rule);
      if (!operation.OnBothCanvases) {
        continue;
      }
      plot(live, sample, rule);
      live.Refresh();
    }
  });
  persistent.DrawWidth = 1;
  live.DrawWidth = 1;
}

}  // namespace clinorama
