// The derivative on one side of a point: another point of the graph walks towards it, a semi-secant
// turns with that point, and the last slope counts as the limit.

#include <cmath>
#include <optional>
#include <string>

#include "base/Module1.h"
#include "base/counted_loop.h"
#include "base/failure.h"
#include "base/number_text.h"
#include "forms/application.h"
#include "workpage/Form12.h"
#include "workpage/tangent.h"

namespace clinorama {

using base::Ignorar;

namespace {

constexpr double Length = 10;        // of the semi-secant, user units
constexpr double StartDistance = 3;  // from the point to where the walk begins
constexpr double WalkStep = 0.01;
constexpr double SideDistance = 0.000001;  // of the tests beside the point
constexpr double LastDistance = 0.00000000001;
constexpr double Infinite = 10000;    // a slope beyond this counts as infinite
constexpr double LargestSide = 1000;  // a value beside the point beyond this refuses it

// Codes that the last guarded operation leaves when it failed. Only the test of the point itself
// counts a division by zero as a failure.
constexpr int FirstFailureCode = 1;
constexpr int LastFailureCode = 17;
constexpr int DivisionByZeroCode = 18;

bool CodeBetween(int first, int last) {
  return Module1::CodigoDominio >= first && Module1::CodigoDominio <= last;
}

// The value of a text without a variable.
double ValueOf(clsEquation& equation, const std::string& text) {
  equation.Equation(text);
  equation.Solve();
  return equation.Solution();
}

double ValueAt(clsEquation& equation, const std::string& text, double x) {
  equation.Equation(text);
  return ValueAt(equation, x);
}

void SetFontName(forms::Label& label, const std::string& name) {
  forms::Font font = label.Font;
  font.Name = name;
  label.Font = font;
}

}  // namespace

// The semi-secant from the fixed point of the graph through the moving one. An abscissa or a
// function that cannot be evaluated counts as 0.
class Form12::SemiSecant {
 public:
  SemiSecant(const std::string& abscissa, const std::string& function) {
    Ignorar([&] { A = ValueOf(equation_, abscissa); });
    equation_.Equation(function);
    Ignorar([&] { FA = ValueAt(equation_, A); });
  }

  double A = 0;   // abscissa of the fixed point
  double FA = 0;  // value there
  double X = 0;   // the moving point
  double Y = 0;
  SegmentEnd End{Length};

  void MoveTo(double x) {
    X = x;
    Ignorar([&] { Y = ValueAt(equation_, X); });
  }
  // Turns the semi-secant towards where the moving point is now.
  void Turn() { End.Aim(A, FA, X, Y); }

  double Slope() const { return base::Divide(base::Subtract(End.Y, FA), End.X - A); }

  void Draw(forms::Surface& surface, std::optional<forms::Color> color = {}) const {
    Ignorar([&] { surface.Line(A, FA, End.X, End.Y, color); });
  }

 private:
  clsEquation equation_;
};

// What differs between the two sides.
struct Form12::Side {
  double Direction;  // of the side from the point: -1 or 1
  forms::OptionButton& Option;
  forms::Label& Value;
  void (Form12::*Test)();
  const char* NoDerivative;
  bool DrawsOnScreenOnly;    // the kept picture stays as it was
  bool BlanksAreNoFunction;  // a function of blanks counts as an empty one
  bool ComparesShownSlope;   // the last slope is compared as it is shown, rounded
};

void Form12::DerivadaEsquerda_Click() {
  RunLateralDerivative({.Direction = -1,
                        .Option = DerivadaEsquerda,
                        .Value = Label2,
                        .Test = &Form12::TestarEsquerda,
                        .NoDerivative = "Esta função não tem derivada à esquerda desse ponto.",
                        .DrawsOnScreenOnly = true,
                        .BlanksAreNoFunction = true,
                        .ComparesShownSlope = true});
}

void Form12::DerivadaDireita_Click() {
  RunLateralDerivative({.Direction = 1,
                        .Option = DerivadaDireita,
                        .Value = Label3,
                        .Test = &Form12::TestarDireita,
                        .NoDerivative = "Esta função não tem derivada à direita desse ponto.",
                        .DrawsOnScreenOnly = false,
                        .BlanksAreNoFunction = false,
                        .ComparesShownSlope = false});
}

// Every statement that fails is without effect. A bad expression therefore shows horizontal
// semi-secants with the value 0, and no message.
void Form12::RunLateralDerivative(const Side& side) {
  if (side.DrawsOnScreenOnly) {
    Picture1.AutoRedraw = false;
  }
  if (InputMissing(side.BlanksAreNoFunction)) {
    side.Option.Value = false;
    return;
  }
  if (PointRefused(side)) {
    return;  // the option stays marked
  }
  BloquearComandos();
  SemiSecant secant(Abcissa.Text(), Função1.Text());
  secant.MoveTo(secant.A + side.Direction * StartDistance);
  DrawGuides(secant);
  ShowMarkers(secant);
  WalkToPoint(secant, side);

  secant.MoveTo(secant.A + side.Direction * LastDistance);
  secant.Turn();
  ShowLastSlope(secant, side);
  Picture1.DrawMode = forms::CopyPen;
  secant.Draw(Picture1, forms::Red);
  Image1(1).Visible = false;
  LibertarComandos();
}

// Whether a text or the graph is missing; the user is told.
bool Form12::InputMissing(bool blanksAreNoFunction) {
  if (blanksAreNoFunction ? Função1.Blank() : Função1.Text().empty()) {
    forms::MsgBox("Não existe função.");
    return true;
  }
  if (GraphMissing()) {
    return true;
  }
  if (Abcissa.Text().empty()) {
    Inform("Tem de indicar a abcissa do ponto.");
    return true;
  }
  return false;
}

// Whether a test refuses the point; the user is told.
bool Form12::PointRefused(const Side& side) {
  const auto refused = [this](const char* text) {
    if (PontoAceite) {
      return false;
    }
    PontoAceite = true;
    Inform(text);
    return true;
  };
  TestarDominio();
  if (refused("Esse ponto não pertence ao domínio da função.")) {
    return true;
  }
  (this->*side.Test)();
  return refused(side.NoDerivative);
}

// Dotted lines from the fixed point to both axes.
void Form12::DrawGuides(const SemiSecant& secant) {
  Picture1.DrawStyle = forms::Dotted;
  Ignorar([&] { Picture1.Line(secant.A, 0, secant.A, secant.FA); });
  Ignorar([&] { Picture1.Line(secant.A, secant.FA, 0, secant.FA); });
  Picture1.DrawStyle = forms::Solid;
}

void Form12::ShowMarkers(const SemiSecant& secant) {
  Image1(0).Visible = true;
  MoveMarker(Image1(0), secant.A, secant.FA);
  Image1(1).Visible = true;
  MoveMarker(Image1(1), secant.X, secant.Y);
}

void Form12::WalkToPoint(SemiSecant& secant, const Side& side) {
  base::CountedLoop(secant.X, secant.A, -side.Direction * WalkStep, [&](double x) {
    secant.MoveTo(x);
    secant.Turn();
    MoveMarker(Image1(1), secant.X, secant.Y);
    forms::ShowInPassing(
        Picture1, [&] { secant.Draw(Picture1); },
        [&] {
          ShowSlope(secant, side.Value);
          Wait(HScroll1.Value);
        });
  });
}

void Form12::ShowSlope(const SemiSecant& secant, forms::Label& value) {
  Ignorar([&] { value.Caption = base::NumberText(base::Round(secant.Slope(), 2)); });
}

// The last slope is the value, unless it is so steep that it counts as infinite. The left side
// compares the slope as it is shown, which is rounded.
void Form12::ShowLastSlope(const SemiSecant& secant, const Side& side) {
  if (side.ComparesShownSlope) {
    ShowSlope(secant, side.Value);
  }
  Ignorar([&] {
    const double last =
        side.ComparesShownSlope ? base::NumberFrom(side.Value.Caption()) : secant.Slope();
    if (std::abs(last) <= Infinite) {
      ShowSlope(secant, side.Value);
      return;
    }
    SetFontName(side.Value, "Symbol");
    side.Value.Caption = last > 0 ? "+ ¥" : "- ¥";
  });
}

// Runs a test of the point. An error of the interpreter ends the test without a verdict and brings
// the kept surface back to the front.
template <class Test>
void Form12::WithRecovery(Test test) {
  try {
    clsEquation equation;
    test(equation);
  } catch (const base::Failure&) {
    MousePointer = forms::MousePointer::Default;
    BringKeptSurfaceToFront();
    Picture1.DrawMode = forms::CopyPen;
  }
}

// A function without guarded operations leaves the code of an earlier evaluation, which counts too.
// A side outside the domain has the value 1000 and passes: the test of that side refuses it.
void Form12::TestarDominio() {
  WithRecovery([this](clsEquation& equation) {
    const auto abscissa = [&] { return ValueOf(equation, Abcissa.Text()); };
    ValueAt(equation, Função1.Text(), abscissa());
    if (CodeBetween(FirstFailureCode, DivisionByZeroCode)) {
      PontoAceite = false;
      return;
    }
    const double left = ValueAt(equation, Função1.Text(), abscissa() - SideDistance);
    const double right = ValueAt(equation, Função1.Text(), abscissa() + SideDistance);
    if (std::abs(left) > LargestSide || std::abs(right) > LargestSide) {
      PontoAceite = false;
    }
  });
}

void Form12::TestarEsquerda() { TestSide(-SideDistance); }

void Form12::TestarDireita() { TestSide(SideDistance); }

void Form12::TestSide(double distance) {
  WithRecovery([this, distance](clsEquation& equation) {
    const double a = ValueOf(equation, Abcissa.Text());
    ValueAt(equation, Função1.Text(), a + distance);
    if (CodeBetween(FirstFailureCode, LastFailureCode)) {
      PontoAceite = false;
    }
  });
}

}  // namespace clinorama
