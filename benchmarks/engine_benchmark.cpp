// Times one evaluation of typical expressions, by the engine and by muParser in the same run, and
// prints the geometric mean of the ratios engine / muParser at the end. Goal: at most 1.
//
// One evaluation of the engine is what a page does for a point: `Var`, `Solve` and `Solution`. One
// of muParser is a write to its bound variable and `Eval`.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <iterator>
#include <map>
#include <string>
#include <utility>
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
    {"sqr(x+1)", "sqrt(x+1)"},
    {"ln(x)/x", "ln(x)/x"},
};

// The abscissas go up by the step of a drawing and start again, as they do there.
constexpr double First = 0.5;
constexpr double Last = 10.5;
constexpr double StepX = 0.0005;

double NextAbscissa(double x) { return x < Last ? x + StepX : First; }

void EngineTime(benchmark::State& state, const char* text) {
  clinorama::clsEquation equation;
  equation.Equation(text);
  double x = First;
  for (auto pass : state) {
    (void)pass;
    equation.Var("x", x);
    equation.Solve();
    benchmark::DoNotOptimize(equation.Solution());
    x = NextAbscissa(x);
  }
}

void MuParserTime(benchmark::State& state, const char* text) {
  mu::Parser parser;
  double variable = First;
  double x = First;
  parser.DefineVar("x", &variable);
  parser.SetExpr(text);
  for (auto pass : state) {
    (void)pass;
    variable = x;
    benchmark::DoNotOptimize(parser.Eval());
    x = NextAbscissa(x);
  }
}

// A table of two programs is worth nothing if they calculate different things.
bool Agree(const Expression& expression) {
  clinorama::clsEquation equation;
  equation.Equation(expression.ours);
  mu::Parser parser;
  double x = 2.5;
  parser.DefineVar("x", &x);
  parser.SetExpr(expression.theirs);
  equation.Var("x", x);
  const double ours = equation.Solution();
  return std::fabs(ours - parser.Eval()) <= 1e-12 * (1 + std::fabs(ours));
}

// Prints as usual and keeps the shortest time of each program, since what disturbs a measurement
// only ever makes it longer.
class Collector final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        const auto [best, isNew] =
            times_.try_emplace(run.run_name.function_name, run.GetAdjustedCPUTime());
        best->second = isNew ? best->second : std::min(best->second, run.GetAdjustedCPUTime());
      }
    }
  }

  // Prints the ratio engine / muParser of each expression and returns their geometric mean.
  double Ratios() const {
    double logarithms = 0;
    int count = 0;
    for (const Expression& expression : Expressions) {
      const auto ours = times_.find(std::string("engine ") + expression.ours);
      const auto theirs = times_.find(std::string("muParser ") + expression.ours);
      if (ours != times_.end() && theirs != times_.end()) {
        const double ratio = ours->second / theirs->second;
        std::cout << "ratio " << expression.ours << ": " << ratio << '\n';
        logarithms += std::log(ratio);
        ++count;
      }
    }
    return count == 0 ? 0 : std::exp(logarithms / count);
  }

 private:
  std::map<std::string, double> times_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  for (const Expression& expression : Expressions) {
    if (!Agree(expression)) {
      std::cerr << "the programs disagree about " << expression.ours << '\n';
      return 1;
    }
    benchmark::RegisterBenchmark((std::string("engine ") + expression.ours).c_str(), EngineTime,
                                 expression.ours);
    benchmark::RegisterBenchmark((std::string("muParser ") + expression.ours).c_str(), MuParserTime,
                                 expression.theirs);
  }
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  const double mean = collector.Ratios();
  std::cout << "geometric mean of engine / muParser: " << mean << '\n';
  benchmark::Shutdown();
}
