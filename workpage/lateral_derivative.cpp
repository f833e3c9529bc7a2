// The derivative on one side of a point: a point of the graph walks towards it, a semi-secant turns
// with it, and the last slope is taken for the limit.

#include <cmath>
#include <string>

#include "base/Module1.h"
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

constexpr double Length = 10;        // of the semi-secant, user units
constexpr double StartDistance = 3;  // from the point to where the walk begins
constexpr double WalkStep = 0.01;
constexpr double SideDistance = 0.000001;  // of the tests beside the point
constexpr double LastDistance = 0.00000000001;
constexpr double Infinite = 10000;    // a slope beyond this counts as infinite
constexpr double LargestSide = 1000;  // a value beside the point beyond this refuses it

// Codes that the last guarded operation leaves when it failed. The last of them is a division by
// zero, which only the test of the point itself counts as a failure.
constexpr int FirstFailureCode = 1;
constexpr int LastFailureCode = 17;
constexpr int DivisionByZeroCode = 18;

bool CodeBetween(int first, int last) {
  return Module1::CodigoDominio >= first && Module1::CodigoDominio <= last;
}

double ValueOf(clsEquation& equation, const std::string& text) {
  equation.Equation(text);
  equation.Solve();
  return equation.Solution();
}

double ValueAt(clsEquation& equation, double x) {
  equation.Var("x", x);
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

// What differs between the two sides.
struct Form12::Side {
  double Direction;  // of the side from the point: -1 or 1
  forms::OptionButton& Option;
  forms::Label& Value;
  void (Form12::*Test)();
  const char* NoDerivative;
  bool DrawsOnScreenOnly;        // what is drawn from here on is not kept
  bool BlanksAreNoFunction;      // blanks in the function's box count as an empty one
  bool ComparesRoundedQuotient;  // the last quotient is shown, and read back from there
};

void Form12::DerivadaEsquerda_Click() {
  Derivar({.Direction = -1,
           .Option = DerivadaEsquerda,
           .Value = Label2,
           .Test = &Form12::TestarEsquerda,
           .NoDerivative = "Esta função não tem derivada à esquerda desse ponto.",
           .DrawsOnScreenOnly = true,
           .BlanksAreNoFunction = true,
           .ComparesRoundedQuotient = true});
}

void Form12::DerivadaDireita_Click() {
  Derivar({.Direction = 1,
           .Option = DerivadaDireita,
           .Value = Label3,
           .Test = &Form12::TestarDireita,
           .NoDerivative = "Esta função não tem derivada à direita desse ponto.",
           .DrawsOnScreenOnly = false,
           .BlanksAreNoFunction = false,
           .ComparesRoundedQuotient = false});
}

// Every statement that fails is without effect: an error of the interpreter leaves a value as it
// was, and so does a division by a distance of zero. A bad expression therefore shows horizontal
// semi-secants with the value 0, and no message.
void Form12::Derivar(const Side& side) {
  if (side.DrawsOnScreenOnly) {
    Picture1.AutoRedraw = false;
  }
  if (Recusar(side)) {
    return;
  }

  BloquearComandos();
  clsEquation equation;
  double a = 0;
  double fa = 0;
  double x = 0;
  double y = 0;
  double d = 0;
  double endX = 0;
  double endY = 0;
  const auto evaluate = [&] { Ignorar([&] { y = ValueAt(equation, x); }); };
  const auto findEnd = [&] {
    using namespace base;
    Ignorar(
        [&] { d = Sqrt(Add(Multiply(x - a, x - a), Multiply(Subtract(y, fa), Subtract(y, fa)))); });
    Ignorar([&] { endX = a + Divide(Multiply(x - a, Length), d); });
    Ignorar([&] { endY = Add(fa, Divide(Multiply(Subtract(y, fa), Length), d)); });
  };
  const auto quotient = [&] { return base::Divide(base::Subtract(endY, fa), endX - a); };
  const auto showQuotient = [&] {
    Ignorar([&] { side.Value.Caption = base::NumberText(base::Round(quotient(), 2)); });
  };
  const auto drawSemiSecant = [&](auto... colour) {
    Ignorar([&] { Picture1.Line(a, fa, endX, endY, colour...); });
  };

  Ignorar([&] { a = ValueOf(equation, Abcissa.Text()); });
  equation.Equation(Função1.Text());
  Ignorar([&] { fa = ValueAt(equation, a); });
  x = a + side.Direction * StartDistance;
  evaluate();

  Picture1.DrawStyle = forms::Dotted;
  Ignorar([&] { Picture1.Line(a, 0, a, fa); });
  Ignorar([&] { Picture1.Line(a, fa, 0, fa); });
  Image1(0).Visible = true;
  MoverMarcador(Image1(0), a, fa);
  Image1(1).Visible = true;
  MoverMarcador(Image1(1), x, y);
  Picture1.DrawStyle = forms::Solid;

  base::CountedLoop(x, a, -side.Direction * WalkStep, [&](double counter) {
    x = counter;
    evaluate();
    findEnd();
    MoverMarcador(Image1(1), x, y);
    forms::ShowInPassing(Picture1, drawSemiSecant, [&] {
      showQuotient();
      Wait(HScroll1.Value);
    });
  });

  x = a + side.Direction * LastDistance;
  evaluate();
  findEnd();
  if (side.ComparesRoundedQuotient) {
    showQuotient();
  }
  Ignorar([&] {
    const double last =
        side.ComparesRoundedQuotient ? base::NumberFrom(side.Value.Caption()) : quotient();
    if (std::abs(last) <= Infinite) {
      showQuotient();
      return;
    }
    SetFontName(side.Value, "Symbol");
    side.Value.Caption = last > 0 ? "+ ¥" : "- ¥";
  });

  Picture1.DrawMode = forms::CopyPen;
  drawSemiSecant(forms::Red);
  Picture1.DrawStyle = forms::Solid;
  Image1(1).Visible = false;
  LibertarComandos();
}

// Whether the operation may not start; the user has been told why. Where the point itself is
// refused the option stays marked.
bool Form12::Recusar(const Side& side) {
  constexpr const char* Title = "Limites";
  const auto refuseToStart = [&side](const char* text, int style, const char* title) {
    forms::MsgBox(text, style, title);
    side.Option.Value = false;
    return true;
  };
  if (side.BlanksAreNoFunction ? Função1.Blank() : Função1.Text().empty()) {
    return refuseToStart("Não existe função.", forms::PlainBox, forms::ProgramTitle);
  }
  if (!GraficoDesenhado) {
    return refuseToStart("Deve desenhar primeiro o gráfico da função.", forms::InformationBox,
                         Title);
  }
  if (Abcissa.Text().empty()) {
    return refuseToStart("Tem de indicar a abcissa do ponto.", forms::InformationBox, Title);
  }

  const auto refusePoint = [this](const char* text) {
    if (PontoAceite) {
      return false;
    }
    PontoAceite = true;
    forms::MsgBox(text, forms::InformationBox, Title);
    return true;
  };
  TestarDominio();
  if (refusePoint("Esse ponto não pertence ao domínio da função.")) {
    return true;
  }
  (this->*side.Test)();
  return refusePoint(side.NoDerivative);
}

// Runs a test of the point. An error of the interpreter ends it with the point neither refused nor
// accepted anew, and brings the kept surface back to the front.
template <class Test>
void Form12::ComRecuperação(Test test) {
  try {
    clsEquation equation;
    test(equation);
  } catch (const base::Failure&) {
    MousePointer = forms::MousePointer::Default;
    Picture1.Visible = true;
    Picture2.Visible = false;
    Picture1.DrawMode = forms::CopyPen;
  }
}

// A code left by an earlier evaluation counts too, where the function has no guarded operation. A
// side outside the domain has the value 1000 and passes: that side's own test refuses it.
void Form12::TestarDominio() {
  ComRecuperação([this](clsEquation& equation) {
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

void Form12::TestarEsquerda() { TestarLado(-SideDistance); }

void Form12::TestarDireita() { TestarLado(SideDistance); }

void Form12::TestarLado(double distance) {
  ComRecuperação([this, distance](clsEquation& equation) {
    const double a = ValueOf(equation, Abcissa.Text());
    ValueAt(equation, Função1.Text(), a + distance);
    if (CodeBetween(FirstFailureCode, LastFailureCode)) {
      PontoAceite = false;
    }
  });
}

}  // namespace clinorama
