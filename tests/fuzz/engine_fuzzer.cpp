// Drives the interpreter by calls that are decoded from the input. After each evaluation a value is
// finite, an error is one that callers know, and a fresh interpreter, which makes a walk where the
// other may run its programme, comes to the same, bit for bit.

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
#include <tuple>

#include "base/Module1.h"
#include "engine/clsEquation.h"

using clinorama::clsEquation;
using clinorama::Module1::CodigoDominio;

namespace {

constexpr std::array<const char*, 3> Names = {"x", "Y", "_a1"};
using Values = std::array<std::optional<double>, Names.size()>;

// What a byte from 128 up stands for in a text; the others are characters.
constexpr const char* Parts[] = {
    "x",    "y",     "pi",   "rnd",  "sen(",    "tg(",   "ln(",      "logn(",    "sqr(",
    "exp(", "abs(",  "int(", "sgn(", "mod(",    "min(",  "max(",     "arcsen(",  "arcsec(",
    "sec(", "cotg(", "tgh(", "e",    "arctgh(", "1e-06", "arccosh(", "arcsech(", "rand("};

std::string Text(FuzzedDataProvider& input) {
  std::string text;
  for (const char c : input.ConsumeRandomLengthString(60)) {
    const auto byte = static_cast<unsigned char>(c);
    text += byte < 128 ? std::string(1, c) : Parts[(byte - 128U) % std::size(Parts)];
  }
  return input.ConsumeBool() ? text : input.ConsumeRandomLengthString(200);
}

double Number(FuzzedDataProvider& input) {
  constexpr double Special[] = {-0.0, 1e-6, 1e200, std::numeric_limits<double>::infinity()};
  const int kind = input.ConsumeIntegralInRange(0, 2);
  return kind == 0   ? input.PickValueInArray(Special)
         : kind == 1 ? input.ConsumeIntegral<std::int16_t>() / 1000.0
                     : input.ConsumeFloatingPoint<double>();
}

void Require(bool condition) {
  if (!condition) {
    std::abort();
  }
}

// What comes of an evaluation: error, its description, the bits of the value, and the code.
std::tuple<int, std::string, std::uint64_t, int> Evaluate(clsEquation& equation, bool solve) {
  try {
    if (solve) {
      equation.Solve();
    }
    const double value = equation.Solution();
    Require(std::isfinite(value));
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return {0, "", bits, CodigoDominio};
  } catch (const clinorama::ErroInterpretador& error) {
    constexpr int Known[] = {5, 6, 11, 1100, 1101, 1102, 1103, 1104};
    Require(std::count(std::begin(Known), std::end(Known), error.Number()) == 1);
    Require(error.Source() == "Interpretador" && !error.Description().empty());
    return {error.Number(), error.Description(), 0, CodigoDominio};
  }
}

void CompareWithAFreshOne(clsEquation& equation, const Values& values) {
  std::string letters = equation.Equation();
  std::erase_if(letters, [](char c) { return c < 'a' || c > 'z'; });
  const bool random = letters.find("rnd") != letters.npos || letters.find("rand") != letters.npos;
  const std::int16_t code = CodigoDominio;
  const auto outcome = Evaluate(equation, true);
  clsEquation fresh;
  fresh.Equation(equation.Equation());
  for (std::size_t i = 0; i < Names.size(); ++i) {
    if (values[i]) {
      fresh.Var(Names[i], *values[i]);
    }
  }
  CodigoDominio = code;
  Require(Evaluate(fresh, false) == outcome || random);
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
      default:
        values[name] = Number(input);
        equation.Var(Names[name], *values[name]);
        CompareWithAFreshOne(equation, values);
        break;
    }
  }
  return 0;
}
