// Random calls of the interpreter. A value is finite, an error a known one, and a new interpreter,
// which makes a walk where the other one may run its programme, gives exactly the same.

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <tuple>

#include "base/Module1.h"
#include "engine/clsEquation.h"

using clinorama::clsEquation;
using clinorama::Module1::CodigoDominio;

namespace {

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
  const int kind = input.ConsumeIntegralInRange(0, 2);
  return kind == 0   ? input.PickValueInArray({-0.0, 1e-6, 1e200, HUGE_VAL})
         : kind == 1 ? input.ConsumeIntegral<std::int16_t>() / 1000.0
                     : input.ConsumeFloatingPoint<double>();
}

void Require(bool condition) { condition ? void() : std::abort(); }

// What comes of an evaluation: error and description, value and its sign (of a zero too), and code.
std::tuple<int, std::string, double, bool, int> Evaluate(clsEquation& equation, bool solve) {
  try {
    if (solve) {
      equation.Solve();
    }
    const double value = equation.Solution();
    Require(std::isfinite(value));
    return {0, "", value, std::signbit(value), CodigoDominio};
  } catch (const clinorama::ErroInterpretador& error) {
    const int number = error.Number();
    Require(number == 5 || number == 6 || number == 11 || (number >= 1100 && number <= 1104));
    Require(error.Source() == "Interpretador" && !error.Description().empty());
    return {number, error.Description(), 0, false, CodigoDominio};
  }
}

void CompareWithANewOne(clsEquation& equation, const std::map<std::string, double>& values) {
  std::string letters = equation.Equation();
  std::erase_if(letters, [](char c) { return c < 'a' || c > 'z'; });
  const bool random = letters.find("rnd") != letters.npos || letters.find("rand") != letters.npos;
  const std::int16_t code = CodigoDominio;
  const auto outcome = Evaluate(equation, true);
  clsEquation fresh;
  fresh.Equation(equation.Equation());
  for (const auto& [name, value] : values) {
    fresh.Var(name, value);
  }
  CodigoDominio = code;
  Require(Evaluate(fresh, false) == outcome || random);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  clsEquation equation;
  std::map<std::string, double> values;
  while (input.remaining_bytes() > 0) {
    const std::string name = input.PickValueInArray({"x", "Y", "_a1"});
    const int call = input.ConsumeIntegralInRange(0, 9);
    if (call == 0) {
      equation.Equation(Text(input));
    } else if (call == 1) {
      equation.VarRemove(name);
      values.erase(name);
    } else if (call == 2) {
      equation.VarClear();
      values.clear();
    } else if (call == 3) {
      equation.Graus(input.ConsumeBool());
    } else {
      values[name] = Number(input);
      equation.Var(name, values[name]);
      CompareWithANewOne(equation, values);
    }
  }
  return 0;
}
