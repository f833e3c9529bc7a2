#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/failure.h"

// The elementary steps of every calculation. No infinity and no not-a-number may ever stay in a
// value, so each step tests its own result: a formula is written as a chain of these steps, and
// fails at the very step that leaves the range. Their arguments are always finite. A result too
// small for a normal number passes.
namespace clinorama::base {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

// Neither an infinity nor not a number.
inline bool Finite(double value) { return std::fabs(value) <= std::numeric_limits<double>::max(); }

// The value, unless it is an infinity or not a number, which is an overflow.
inline double Guarded(double value) {
  if (!Finite(value)) [[unlikely]] {
    Raise(Overflow);
  }
  return value;
}

inline double Add(double a, double b) { return Guarded(a + b); }
inline double Subtract(double a, double b) { return Guarded(a - b); }
inline double Multiply(double a, double b) { return Guarded(a * b); }

// A division by an exact zero, whatever its sign, is a failure of its own, but 0/0 is an overflow.
inline double Divide(double a, double b) {
  if (b == 0) [[unlikely]] {
    Raise(a == 0 ? Overflow : DivisionByZero);
  }
  return Guarded(a / b);
}

inline double Exp(double a) { return Guarded(std::exp(a)); }

inline double Log(double a) {
  if (a <= 0) [[unlikely]] {
    Raise(InvalidArgument);
  }
  return std::log(a);
}

inline double Sqrt(double a) {
  if (a < 0) [[unlikely]] {
    Raise(InvalidArgument);
  }
  return std::sqrt(a);
}

// `base` raised to `exponent`, unchecked. A square is a*a and a cube a*a*a, which are much quicker
// than the power function and differ from it in the last place at most.
inline double PlainPower(double base, double exponent) {
  return exponent == 2   ? base * base
         : exponent == 3 ? base * base * base
                         : std::pow(base, exponent);
}

// A negative base with a non-integer exponent is an invalid argument; zero with a negative exponent
// is the division by zero that it amounts to.
inline double Power(double base, double exponent) {
  const double result = PlainPower(base, exponent);
  if (!Finite(result)) [[unlikely]] {
    Raise(result != result ? InvalidArgument : base == 0 ? DivisionByZero : Overflow);
  }
  return result;
}

// -1, 0 or 1.
inline double Sign(double a) { return a > 0 ? 1 : a < 0 ? -1 : 0; }

// Rounds to a 32-bit integer, ties to the even neighbour; outside the range it is an overflow. The
// result is wider than that so that quotients and remainders of it cannot overflow in the machine.
inline std::int64_t Round32(double a) {
  const double rounded = std::nearbyint(a);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) [[unlikely]] {
    Raise(Overflow);
  }
  return static_cast<std::int64_t>(rounded);
}

// Both operands rounded, for a division of integers; a rounded divisor of 0 is a failure.
struct RoundedPair {
  std::int64_t dividend;
  std::int64_t divisor;
};

inline RoundedPair RoundForDivision(double a, double b) {
  const RoundedPair pair{Round32(a), Round32(b)};
  if (pair.divisor == 0) [[unlikely]] {
    Raise(DivisionByZero);
  }
  return pair;
}

// Quotient of the rounded operands, truncated towards zero. The one quotient that does not fit
// in 32 bits, that of the least integer by -1, is an overflow.
inline double IntegerQuotient(double a, double b) {
  const RoundedPair pair = RoundForDivision(a, b);
  const std::int64_t quotient = pair.dividend / pair.divisor;
  if (quotient > std::numeric_limits<std::int32_t>::max()) [[unlikely]] {
    Raise(Overflow);
  }
  return static_cast<double>(quotient);
}

// Remainder of the rounded operands, with the sign of the first.
inline double IntegerRemainder(double a, double b) {
  const RoundedPair pair = RoundForDivision(a, b);
  return static_cast<double>(pair.dividend % pair.divisor);
}

}  // namespace clinorama::base
