// Times the work page's two long drawings on a machine without windows: a plot, some 48,000 points
// on two surfaces, and a pass of the running tangent, which is evaluated, drawn and taken away. The
// number after a name is the density of the screen in hundredths.
//
//   build/release/benchmarks/plot_benchmark --benchmark_repetitions=20

#include <benchmark/benchmark.h>

#include "benchmarks/null_host.h"
#include "forms/application.h"
#include "workpage/Form12.h"

namespace {

using clinorama::Form12;
using clinorama::forms::The;

constexpr double Passes = 24001;  // of the tangent along the graph

// The work page on a screen with so many hundredths of a device pixel to a logical one.
struct OpenPage {
  explicit OpenPage(const benchmark::State& state)
      : Host(static_cast<double>(state.range()) / 100), Program(Host), Page(The<Form12>()) {
    Page.Show();
  }
  clinorama::benchmarks::NullHost Host;
  clinorama::forms::Application Program;
  Form12& Page;
};

void Plot(benchmark::State& state) {
  OpenPage open(state);
  for (auto pass : state) {
    (void)pass;
    open.Page.DesenharGráfico.UserClick();
  }
}
BENCHMARK(Plot)->Arg(100)->Arg(150)->Unit(benchmark::kMillisecond);

void Sweep(benchmark::State& state) {
  OpenPage open(state);
  open.Page.DesenharGráfico.UserClick();
  for (auto pass : state) {
    (void)pass;
    open.Page.Calcular.UserClick();
  }
  state.counters["a pass"] = benchmark::Counter(
      Passes, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(Sweep)->Arg(100)->Arg(150)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
