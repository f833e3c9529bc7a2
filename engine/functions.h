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

// What a call gives: a value, or a guard that did not pass.
struct Returned {
  constexpr Returned(double y) : value(y) {}
  constexpr Returned(Guard failed) : guard(failed) {}

  double value = 0;
  Guard guard = Guard::Passed;
};

// Computes a function of `a`, the first cell inside the parentheses, and `b`, the last one (the
// same cell where there is one argument).
using Formula = Returned (*)(double a, double b);

// A row of the library.
struct Function {
  std::string_view name;  // with its "(", as the cell holds it
  Formula formula;
  std::int16_t failureCode = 0;  // what a failed guard leaves in `CodigoDominio`
  std::int16_t successCode = 0;  // what a computed value leaves there; 0 leaves it untouched
  bool random = false;           // another value each time
};

// The function under that name, or null. All angles are in radians.
const Function* FindFunction(std::string_view name);

// The next random number in [0, 1), with the 24 bits that a 32-bit real holds. The generator is
// one for the whole program, so that a second drawing is not a copy of the first.
double NextRandom();

}  // namespace clinorama::engine
