// Times one evaluation of typical expressions by the engine and by muParser, and prints the ratio
// engine / muParser of each and the geometric mean of the ratios. Goal: at most 0.85.
//
// Both are timed in short rounds, one after the other, so that whatever else slows the machine down
// slows both; a ratio is the median of the rounds' ratios. One evaluation of the engine is what a
// page does for a point: `Var`, `Solve` and `Solution`. One of muParser is a write to its bound
// variable and `Eval`.

#include <muParser.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <vector>

#include "engine/clsEquation.h"

namespace {

struct Expression {
  const char* ours;
  const char* theirs;
};

// The six examples that the program offers, functions that its manual and its lesson speak of, and
// others that a class draws.
constexpr Expression Expressions[] = {
    {"3sen(x)-cos(2x)", "3*sin(x)-cos(2*x)"},
    {"(x+5)*(x+1)*(x-3)*(x-6)/30", "(x+5)*(x+1)*(x-3)*(x-6)/30"},
    {"x^2/(x^2+x-12)", "x^2/(x^2+x-12)"},
    {"1/cos(x)", "1/cos(x)"},
    {"3sen(x)-sen(3x)", "3*sin(x)-sin(3*x)"},
    {"5sen(x)/x", "5*sin(x)/x"},
    {"e^cos(2x)", "2.718281828^cos(2*x)"},
    {"x*(1-cos(x))", "x*(1-cos(x))"},
    {"x^2/4-3", "x^2/4-3"},
    {"x^3-2x^2-x+2", "x^3-2*x^2-x+2"},
    {"x^3-2x+1", "x^3-2*x+1"},
    {"sqr(x+1)", "sqrt(x+1)"},
    {"ln(x)/x", "ln(x)/x"},
};

constexpr int Rounds = 201;
constexpr int Evaluations = 10000;  // of each in a round: some tenths of a millisecond

// The abscissas go up by the step of a drawing, as they do there.
constexpr double First = 0.5;
constexpr double StepX = 0.0005;

volatile double lastValue;  // so that every evaluation is needed

// Nanoseconds of one evaluation, the mean of a round.
template <class Evaluate>
double Time(Evaluate evaluate) {
  const auto start = std::chrono::steady_clock::now();
  double x = First;
  for (int i = 0; i < Evaluations; ++i) {
    lastValue = evaluate(x);
    x += StepX;
  }
  const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
  return time.count() / Evaluations;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// Prints the times of an expression and returns their ratio; 0 if the two do not agree about its
// values, as a comparison is worth nothing then.
double Compare(const Expression& expression) {
  clinorama::clsEquation equation;
  equation.Equation(expression.ours);
  const auto ours = [&equation](double x) {
    equation.Var("x", x);
    equation.Solve();
    return equation.Solution();
  };
  mu::Parser parser;
  double variable = First;
  parser.DefineVar("x", &variable);
  parser.SetExpr(expression.theirs);
  const auto theirs = [&](double x) {
    variable = x;
    return parser.Eval();
  };
  constexpr double Abscissa = 2.5;
  if (std::fabs(ours(Abscissa) - theirs(Abscissa)) > 1e-12 * (1 + std::fabs(ours(Abscissa)))) {
    return 0;
  }

  std::vector<double> engineTimes;
  std::vector<double> muParserTimes;
  std::vector<double> ratios;
  for (int round = 0; round < Rounds; ++round) {
    engineTimes.push_back(Time(ours));
    muParserTimes.push_back(Time(theirs));
    ratios.push_back(engineTimes.back() / muParserTimes.back());
  }
  const double ratio = Median(ratios);
  std::cout << std::fixed << std::setprecision(1) << std::setw(8) << Median(engineTimes)
            << std::setw(10) << Median(muParserTimes) << std::setprecision(3) << std::setw(8)
            << ratio << "  " << expression.ours << '\n';
  return ratio;
}

}  // namespace

int main() {
  std::cout << "engine, muParser [ns], ratio:\n";
  double logarithms = 0;
  for (const Expression& expression : Expressions) {
    const double ratio = Compare(expression);
    if (ratio == 0) {
      std::cerr << "the programs disagree about " << expression.ours << '\n';
      return 1;
    }
    logarithms += std::log(ratio);
  }
  std::cout << "geometric mean of the ratios: "
            << std::exp(logarithms / static_cast<double>(std::size(Expressions))) << '\n';
}
