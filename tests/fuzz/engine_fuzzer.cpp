// Drives the interpreter by calls that are decoded from the input, and looks after each evaluation:
// a value is finite, an error is one that callers know, and a fresh interpreter, which walks over
// the cells where the other may run its programme, comes to the same, bit for bit.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <optional>
#include <string>

#include "base/Module1.h"
#include "engine/clsEquation.h"

namespace {

using clinorama::clsEquation;
using clinorama::Module1::CodigoDominio;

constexpr std::array<const char*, 3> Names = {"x", "Y", "_a1"};
using Values = std::array<std::optional<double>, Names.size()>;

// What a byte from 128 up stands for in a text; the others are characters.
constexpr const char* Parts[] = {
    "x",      "y",        "pi",     "e",         "0.000001", "1e5",     "sen(",     "cos(",
    "tg(",    "ln(",      "logn(",  "log10(",    "sqr(",     "exp(",    "abs(",     "int(",
    "fix(",   "sgn(",     "mod(",   "min(",      "max(",     "mant(",   "arcsen(",  "arccos(",
    "sec(",   "cosec(",   "cotg(",  "arcsec(",   "arccosh(", "arctgh(", "arcsech(", "tgh(",
    "cotgh(", "arcsenh(", "graus(", "arccosec(", "sinh(",    "rnd",     "rnd(",     "rand("};

std::string Text(FuzzedDataProvider& input) {
  std::string text;
  for (const char c : input.ConsumeRandomLengthString(60)) {
    const auto byte = static_cast<unsigned char>(c);
    text += byte < 128 ? std::string(1, c) : Parts[(byte - 128U) % std::size(Parts)];
  }
  return input.ConsumeBool() ? text : input.ConsumeRandomLengthString(200);
}

double Number(FuzzedDataProvider& input) {
  constexpr double Special[] = {0.0,
                                -0.0,
                                1,
                                1e-6,
                                1e200,
                                -1e308,
                                5e-324,
                                std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()};
  switch (input.ConsumeIntegralInRange(0, 2)) {
    case 0:
      return input.PickValueInArray(Special);
    case 1:
      return input.ConsumeIntegral<std::int16_t>() / 1000.0;
    default:
      return input.ConsumeFloatingPoint<double>();
  }
}

void Require(bool condition) {
  if (!condition) {
    std::abort();
  }
}

struct Outcome {
  int error = 0;
  std::string description;
  double value = 0;
  int code = 0;
};

Outcome Evaluate(clsEquation& equation, bool solve) {
  Outcome outcome;
  try {
    if (solve) {
      equation.Solve();
    }
    outcome.value = equation.Solution();
    Require(std::isfinite(outcome.value));
  } catch (const clinorama::ErroInterpretador& error) {
    constexpr int Known[] = {5, 6, 11, 1100, 1101, 1102, 1103, 1104};
    outcome.error = error.Number();
    outcome.description = error.Description();
    Require(std::count(std::begin(Known), std::end(Known), outcome.error) == 1);
    Require(error.Source() == "Interpretador" && !outcome.description.empty());
  }
  outcome.code = CodigoDominio;
  return outcome;
}

void CompareWithAFreshOne(clsEquation& equation, const Values& values, bool solve) {
  const std::int16_t codeBefore = CodigoDominio;
  const Outcome ours = Evaluate(equation, solve);
  std::string letters = equation.Equation();
  std::erase_if(letters, [](char c) { return c < 'a' || c > 'z'; });
  const bool random = letters.find("rnd") != letters.npos || letters.find("rand") != letters.npos;
  if (random || !solve) {  // a Solution alone may be that of an earlier evaluation
    return;
  }
  clsEquation fresh;
  fresh.Equation(equation.Equation());
  for (std::size_t i = 0; i < Names.size(); ++i) {
    if (values[i]) {
      fresh.Var(Names[i], *values[i]);
    }
  }
  CodigoDominio = codeBefore;
  const Outcome theirs = Evaluate(fresh, true);
  Require(ours.error == theirs.error && ours.description == theirs.description);
  Require(ours.code == theirs.code);
  Require(std::memcmp(&ours.value, &theirs.value, sizeof ours.value) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  clsEquation equation;
  Values values;
  while (input.remaining_bytes() > 0) {
    const auto name = input.ConsumeIntegralInRange<std::size_t>(0, Names.size() - 1);
    switch (input.ConsumeIntegralInRange(0, 9)) {
      case 0:
        equation.Equation(Text(input));
        break;
      case 1:
        equation.VarRemove(Names[name]);
        values[name].reset();
        break;
      case 2:
        equation.VarClear();
        values = {};
        break;
      case 3:
        equation.Graus(input.ConsumeBool());
        break;
      case 4:
        CompareWithAFreshOne(equation, values, false);
        break;
      default:
        values[name] = Number(input);
        equation.Var(Names[name], *values[name]);
        CompareWithAFreshOne(equation, values, true);
        break;
    }
  }
  return 0;
}
