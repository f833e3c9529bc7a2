#pragma once

#include <cstdint>
#include <string_view>

namespace clinorama::engine {

// What the guard of a function says of the arguments.
enum class GuardResult : std::uint8_t {
  Passed,
  Failed,
  FailedSilently,  // the point is outside the domain, but no code is written
};

// What a call returns: a value, or the guard that did not pass.
struct Returned {
  constexpr Returned(double y) : Value(y) {}
  constexpr Returned(GuardResult failed) : Guard(failed) {}

  double Value = 0;
  GuardResult Guard = GuardResult::Passed;
};

// Computes a function of `a`, the first cell inside the parentheses, and `b`, the last one. With
// one argument both are the same. Raises a `base::Failure` where a step of the formula fails.
using Formula = Returned (*)(double a, double b);

// A row of the library.
struct LibraryFunction {
  std::string_view Name;  // with its "(", as the cell holds it
  Formula Compute;
  std::int16_t FailureCode = 0;  // goes to `CodigoDominio` if the guard fails
  std::int16_t SuccessCode = 0;  // goes there if it passes; 0: nothing is written
  bool Random = false;           // the value differs from call to call
};

// The function of that name, which ends in "(", or null. All angles are in radians.
const LibraryFunction* FindFunction(std::string_view name);

// The next random number in [0, 1), with the 24 bits of a 32-bit real. The whole program has one
// generator, so a second drawing differs from the first.
double NextRandom();

}  // namespace clinorama::engine
