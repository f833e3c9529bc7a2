// Times one press of each of the twelve drawing buttons of the relations page, on a machine without
// windows: what is left is the page's own work. A line for each, and the slowest at the end. A
// press should be done before the user expects an answer, within some 100 milliseconds.

#include <algorithm>
#include <chrono>
#include <iomanip>
#include <iostream>
#include <string>

#include "benchmarks/null_host.h"
#include "forms/application.h"
#include "relations/Form13.h"

namespace {

using namespace clinorama;

constexpr forms::CommandButton Form13::*Buttons[] = {
    &Form13::DesenharGráfico,       &Form13::DesenharPrimeira,    &Form13::DesenharSegunda,
    &Form13::ColocarCoresFunção,    &Form13::ColocarCoresFunção2, &Form13::ColocarCoresPrimeira1,
    &Form13::ColocarCoresPrimeira2, &Form13::ColocarCoresSegunda, &Form13::ExtremosFunção,
    &Form13::InflexõesFunção,       &Form13::ZerosPrimeira,       &Form13::ZerosSegunda,
};

double MillisecondsOf(forms::CommandButton& button) {
  // The shortest of some presses, since what disturbs a measurement only ever makes it longer.
  constexpr int Presses = 7;
  double shortest = 0;
  for (int press = 0; press < Presses; ++press) {
    const auto start = std::chrono::steady_clock::now();
    button.UserClick();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    shortest = press == 0 ? time.count() : std::min(shortest, time.count());
  }
  return shortest;
}

}  // namespace

int main() {
  benchmarks::NullHost host;
  forms::Application application(host);
  auto& page = forms::The<Form13>();
  page.Show();
  page.Função1.Text = "x*(1-cos(x))";

  std::string slowest;
  double longest = 0;
  std::cout << std::fixed << std::setprecision(1);
  for (const auto button : Buttons) {
    const std::string& name = (page.*button).Name();
    const double time = MillisecondsOf(page.*button);
    std::cout << std::setw(6) << time << " ms  " << name << '\n';
    if (time > longest) {
      longest = time;
      slowest = name;
    }
  }
  std::cout << "slowest: " << slowest << ", " << longest << " ms\n";
}
