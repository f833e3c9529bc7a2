#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "engine/failure.h"

/// The elementary steps of every calculation. No infinity and no not-a-number may ever stay in a
/// value, so each step tests its own result: a formula is written as a chain of these steps, and
/// fails at the very step that leaves the range. Their arguments are always finite. A result too
/// small for a normal number passes.
namespace clinorama::engine {

/// The value, unless it is an infinity or not a number, which is an overflow.
inline double Guarded(double value) {
  // Written so that a not-a-number, which compares as false, takes the failing side.
  if (!(std::fabs(value) <= std::numeric_limits<double>::max())) [[unlikely]] {
    Raise(Overflow);
  }
  return value;
}

inline double Add(double a, double b) { return Guarded(a + b); }
inline double Subtract(double a, double b) { return Guarded(a - b); }
inline double Multiply(double a, double b) { return Guarded(a * b); }

/// A division by an exact zero, whatever its sign, is a failure of its own, but 0/0 is an overflow.
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

/// Whether the power function's square of `a` is sure to be the plain product, which is much
/// quicker: squares are what pupils write most. A power function comes closer to the exact value
/// than 0.53 units of the last place, so it can differ from the product, which is the nearest
/// number there is, only where the exact square lies almost in the middle between two numbers.
inline bool SquareIsProduct(double a) {
  constexpr std::uint64_t LeadingBit = std::uint64_t{1} << 52;
  constexpr std::uint64_t RootOfTwo = 0x16A09E667F3BCD;  // times 2^52: its square is a digit longer
  constexpr std::uint64_t Middle = std::uint64_t{1} << 63;
  constexpr std::uint64_t Margin = std::uint64_t{1} << 59;  // a 32nd of a unit of the last place
  // Only for sizes from 2^-50 to 2^50: beyond them the power function loses some of its accuracy.
  constexpr std::uint64_t LeastExponent = 1023 - 50;
  constexpr std::uint64_t Exponents = 100;

  std::uint64_t bits = 0;
  std::memcpy(&bits, &a, sizeof bits);
  const std::uint64_t exponent = (bits << 1) >> 53;
  const std::uint64_t digits = (bits & (LeadingBit - 1)) | LeadingBit;
  // The square has 105 or 106 binary digits, of which rounding takes the last 52 or 53 away. The
  // product of the digits is right in its lowest 64, and so in all of those.
  const int rounded = digits < RootOfTwo ? 52 : 53;
  const std::uint64_t rest = (digits * digits) << (64 - rounded);
  return rest - (Middle - Margin) > 2 * Margin && exponent - LeastExponent < Exponents;
}

/// `base` raised to `exponent`. A negative base with a non-integer exponent is an invalid argument;
/// zero with a negative exponent is the division by zero that it amounts to.
inline double Power(double base, double exponent) {
  if (exponent == 2 && SquareIsProduct(base)) [[likely]] {
    return base * base;
  }
  const double result = std::pow(base, exponent);
  if (!(std::fabs(result) <= std::numeric_limits<double>::max())) [[unlikely]] {
    Raise(result != result ? InvalidArgument : base == 0 ? DivisionByZero : Overflow);
  }
  return result;
}

/// -1, 0 or 1.
inline double Sign(double a) { return a > 0 ? 1 : a < 0 ? -1 : 0; }

/// Rounds to a 32-bit integer, ties to the even neighbour; outside the range it is an overflow. The
/// result is wider than that so that quotients and remainders of it cannot overflow in the machine.
inline std::int64_t Round32(double a) {
  const double rounded = std::nearbyint(a);
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) [[unlikely]] {
    Raise(Overflow);
  }
  return static_cast<std::int64_t>(rounded);
}

/// Both operands rounded, for a division of integers; a rounded divisor of 0 is a failure.
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

/// Quotient of the rounded operands, truncated towards zero. The one quotient that does not fit
/// in 32 bits, that of the least integer by -1, is an overflow.
inline double IntegerQuotient(double a, double b) {
  const RoundedPair pair = RoundForDivision(a, b);
  const std::int64_t quotient = pair.dividend / pair.divisor;
  if (quotient > std::numeric_limits<std::int32_t>::max()) [[unlikely]] {
    Raise(Overflow);
  }
  return static_cast<double>(quotient);
}

/// Remainder of the rounded operands, with the sign of the first.
inline double IntegerRemainder(double a, double b) {
  const RoundedPair pair = RoundForDivision(a, b);
  return static_cast<double>(pair.dividend % pair.divisor);
}

}  // namespace clinorama::engine
