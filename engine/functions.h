#pragma once

#include <cstdint>
#include <string_view>

namespace clinorama::engine {

// How a call of a function ends, unless it fails.
enum class Guard : std::uint8_t {
  Passed,
  Failed,
  FailedSilently,  // the point is outside the domain, but no code tells so
};

// Computes a function of `a`, the first cell inside the parentheses, and `b`, the last one (the
// same cell where there is one argument), into `result`, which a guard that fails leaves alone.
using Formula = Guard (*)(double a, double b, double& result);

// A function of `a` alone that is defined everywhere and cannot fail.
using PlainFormula = double (*)(double a);

// A row of the library. It has one of the two kinds of formula.
struct Function {
  constexpr Function(std::string_view rowName, PlainFormula rowPlain)
      : name(rowName), plain(rowPlain) {}
  constexpr Function(std::string_view rowName, Formula rowFormula, std::int16_t failure = 0,
                     std::int16_t success = 0)
      : name(rowName), formula(rowFormula), failureCode(failure), successCode(success) {}

  std::string_view name;  // with its "(", as the cell holds it
  PlainFormula plain = nullptr;
  Formula formula = nullptr;
  std::int16_t failureCode = 0;  // what a failed guard leaves in `CodigoDominio`
  std::int16_t successCode = 0;  // what a computed value leaves there; 0 leaves it untouched
};

// The function under that name, or null. All angles are in radians.
const Function* FindFunction(std::string_view name);

// The next random number in [0, 1), with the 24 bits that a 32-bit real holds. The generator is
// one for the whole program, so that a second drawing is not a copy of the first.
double NextRandom();

}  // namespace clinorama::engine
