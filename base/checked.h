#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/failure.h"

// The checked steps that every formula is made of. No value may be an infinity or a not-a-number,
// so each step tests its result and fails where the result leaves the range of the reals. The
// arguments are always finite. A result that is too small for a normal number is no failure.
namespace clinorama::base {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

// Whether the value is neither an infinity nor a not-a-number.
inline bool Finite(double value) { return std::fabs(value) <= std::numeric_limits<double>::max(); }

// The value; an infinity or a not-a-number is an `Overflow`.
inline double Guarded(double value) {
  if (!Finite(value)) [[unlikely]] {
    Raise(Overflow);
  }
  return value;
}

inline double Add(double a, double b) { return Guarded(a + b); }
inline double Subtract(double a, double b) { return Guarded(a - b); }
inline double Multiply(double a, double b) { return Guarded(a * b); }

// A division by an exact zero of either sign is a `DivisionByZero`, but 0/0 is an `Overflow`.
inline double Divide(double a, double b) {
  if (b == 0) [[unlikely]] {
    Raise(a == 0 ? Overflow : DivisionByZero);
  }
  return Guarded(a / b);
}

// e to the power `a`.
inline double Exp(double a) { return Guarded(std::exp(a)); }

// The natural logarithm; `InvalidArgument` unless `a` is above 0.
inline double Log(double a) {
  if (a <= 0) [[unlikely]] {
    Raise(InvalidArgument);
  }
  return std::log(a);
}

// `InvalidArgument` below 0.
inline double Sqrt(double a) {
  if (a < 0) [[unlikely]] {
    Raise(InvalidArgument);
  }
  return std::sqrt(a);
}

// `base` raised to `exponent`, unchecked. Squares and cubes are products: they are much quicker
// than the power function and differ from it by the last bit at most.
inline double PlainPower(double base, double exponent) {
  return exponent == 2   ? base * base
         : exponent == 3 ? base * base * base
                         : std::pow(base, exponent);
}

// A negative base with a non-integer exponent is an `InvalidArgument`, and zero with a negative
// exponent a `DivisionByZero`.
inline double Power(double base, double exponent) {
  const double result = PlainPower(base, exponent);
  if (!Finite(result)) [[unlikely]] {
    Raise(result != result ? InvalidArgument : base == 0 ? DivisionByZero : Overflow);
  }
  return result;
}

// -1, 0 or 1, as `a` is negative, zero or positive.
inline double Sign(double a) { return a > 0 ? 1 : a < 0 ? -1 : 0; }

// Rounds to a 32-bit integer, ties to the even neighbour; outside the range it is an `Overflow`.
// The result type is wider, so that no quotient and no remainder of two results can overflow.
inline std::int64_t Round32(double a) {
  const double rounded = std::nearbyint(a);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) [[unlikely]] {
    Raise(Overflow);
  }
  return static_cast<std::int64_t>(rounded);
}

// The rounded operands of an integer division. Their divisor is never 0.
struct RoundedPair {
  std::int64_t Dividend;
  std::int64_t Divisor;
};

// A divisor that rounds to 0 is a `DivisionByZero`.
inline RoundedPair RoundForDivision(double a, double b) {
  const RoundedPair pair{Round32(a), Round32(b)};
  if (pair.Divisor == 0) [[unlikely]] {
    Raise(DivisionByZero);
  }
  return pair;
}

// The quotient of the rounded operands, truncated towards zero. The least integer divided by -1
// does not fit in 32 bits and is an `Overflow`.
inline double IntegerQuotient(double a, double b) {
  const RoundedPair pair = RoundForDivision(a, b);
  const std::int64_t quotient = pair.Dividend / pair.Divisor;
  if (quotient > std::numeric_limits<std::int32_t>::max()) [[unlikely]] {
    Raise(Overflow);
  }
  return static_cast<double>(quotient);
}

// The remainder of the rounded operands, with the sign of the first.
inline double IntegerRemainder(double a, double b) {
  const RoundedPair pair = RoundForDivision(a, b);
  return static_cast<double>(pair.Dividend % pair.Divisor);
}

}  // namespace clinorama::base
