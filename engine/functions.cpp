#include "engine/functions.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iterator>
#include <random>

#include "base/checked.h"

namespace clinorama::engine {

using namespace base;

namespace {

std::minstd_rand& Generator() {
  constexpr std::minstd_rand::result_type Start = 20011;  // a small seed begins with numbers near 0
  static std::minstd_rand generator(Start);
  return generator;
}

void SeedFromClock() {
  const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
  Generator().seed(static_cast<std::minstd_rand::result_type>(ticks));
  // Seeds that are close give first numbers that are close. After a few steps they are far apart.
  constexpr unsigned long long Steps = 4;
  Generator().discard(Steps);
}

double FreshRandom() {
  SeedFromClock();
  return NextRandom();
}

constexpr Returned Outside = GuardResult::Failed;
constexpr Returned OutsideSilently = GuardResult::FailedSilently;

// 1 - a * a, in the order of steps that the inverse functions have.
double OneMinusSquare(double a) { return Add(Multiply(-a, a), 1); }
double SquareMinusOne(double a) { return Subtract(Multiply(a, a), 1); }
double SquarePlusOne(double a) { return Add(Multiply(a, a), 1); }

// A quarter of a turn in radians, by which the inverse functions are shifted.
double QuarterTurn() { return 2 * std::atan(1.0); }

// exp(a) - exp(-a) and exp(a) + exp(-a), of which all hyperbolic functions are made. Both fail
// where one of the exponentials overflows.
double TwiceSinh(double a) { return Subtract(Exp(a), Exp(-a)); }
double TwiceCosh(double a) { return Add(Exp(a), Exp(-a)); }

Returned Abs(double a, double) { return std::fabs(a); }
Returned Arctg(double a, double) { return std::atan(a); }
Returned Cos(double a, double) { return std::cos(a); }
Returned Fix(double a, double) { return std::trunc(a); }
Returned Int(double a, double) { return std::floor(a); }
Returned Sgn(double a, double) { return Sign(a); }
Returned Sin(double a, double) { return std::sin(a); }
Returned Tan(double a, double) { return std::tan(a); }
Returned Mant(double a, double) { return a - std::floor(a); }
Returned Arccotg(double a, double) { return QuarterTurn() - std::atan(a); }

Returned Exponential(double a, double) { return Exp(a); }
Returned Min(double a, double b) { return a < b ? a : b; }
Returned Max(double a, double b) { return a > b ? a : b; }
Returned Mod(double a, double b) { return IntegerRemainder(a, b); }
Returned Graus(double a, double) { return Multiply(a, 57.2957795131); }
Returned Rad(double a, double) { return Multiply(a, 0.01745329251995); }

Returned Rnd(double, double) {
  // The number drawn and the result are both 32-bit reals. The argument has no effect.
  return static_cast<double>(static_cast<float>(FreshRandom() * 20 - 10));
}
Returned Random(double a, double b) { return Add(Multiply(FreshRandom(), Subtract(b, a)), a); }
Returned Rand(double a, double) { return std::floor(Multiply(FreshRandom(), a)); }

Returned NaturalLog(double a, double) { return a <= 0 ? Outside : std::log(a); }
Returned Log10(double a, double) { return a <= 0 ? Outside : Divide(Log(a), Log(10)); }
Returned Log2(double a, double) { return a <= 0 ? Outside : Divide(Log(a), Log(2)); }
Returned Logn(double a, double b) { return a <= 0 || b <= 0 ? Outside : Divide(Log(a), Log(b)); }
Returned Sqr(double a, double) { return a < 0 ? Outside : std::sqrt(a); }

Returned Sec(double a, double) { return Divide(1, std::cos(a)); }
Returned Cosec(double a, double) { return Divide(1, std::sin(a)); }
Returned Cotg(double a, double) { return Divide(1, std::tan(a)); }

Returned Arcsen(double a, double) {
  const double t = OneMinusSquare(a);
  return t <= 0 ? Outside : std::atan(Divide(a, Sqrt(t)));
}
Returned Arccos(double a, double) {
  const double t = OneMinusSquare(a);
  return t <= 0 ? Outside : std::atan(Divide(-a, Sqrt(t))) + QuarterTurn();
}
Returned Arcsec(double a, double) {
  const double t = SquareMinusOne(a);
  return t < 0 ? Outside : (std::atan(Sqrt(t)) - QuarterTurn()) * Sign(a) + QuarterTurn();
}
Returned Arccosec(double a, double) {
  const double t = SquareMinusOne(a);
  return t <= 0 ? Outside : Sign(a) * std::atan(Divide(1, Sqrt(t)));
}

Returned Senh(double a, double) { return TwiceSinh(a) / 2; }
Returned Cosh(double a, double) { return TwiceCosh(a) / 2; }
Returned Tgh(double a, double) {
  // Each exponential is computed once, as it takes most of the time.
  const double up = Exp(a);
  const double down = Exp(-a);
  return Divide(Subtract(up, down), Add(up, down));
}
Returned Sech(double a, double) { return Divide(2, TwiceCosh(a)); }
Returned Cosech(double a, double) { return a == 0 ? Outside : Divide(2, TwiceSinh(a)); }
Returned Cotgh(double a, double) {
  if (a == 0) {
    return Outside;
  }
  const double up = Exp(a);
  const double down = Exp(-a);
  return Divide(Add(up, down), Subtract(up, down));
}

Returned Arcsenh(double a, double) {
  // There is no guard: for a very negative `a` the sum is rounded to 0, whose logarithm fails.
  return Log(Add(a, Sqrt(SquarePlusOne(a))));
}
Returned Arccosh(double a, double) {
  const double t = SquareMinusOne(a);
  if (t < 0) {
    return OutsideSilently;
  }
  const double sum = Add(a, Sqrt(t));
  return sum <= 0 ? Outside : Log(sum);
}
Returned Arctgh(double a, double) {
  const double divisor = Subtract(1, a);
  if (divisor == 0) {
    return OutsideSilently;
  }
  const double t = Divide(Add(1, a), divisor);
  return t <= 0 ? Outside : Log(t) / 2;
}
Returned Arcsech(double a, double) {
  const double square = OneMinusSquare(a);
  if (square < 0 || a == 0) {
    return OutsideSilently;
  }
  const double t = Divide(Add(Sqrt(square), 1), a);
  return t <= 0 ? Outside : Log(t);
}
Returned Arccosech(double a, double) {
  if (a == 0) {
    return OutsideSilently;
  }
  const double t = Divide(Add(Sign(a) * Sqrt(SquarePlusOne(a)), 1), a);
  return t <= 0 ? Outside : Log(t);
}
Returned Arccotgh(double a, double) {
  const double divisor = Subtract(a, 1);
  if (divisor == 0) {
    return OutsideSilently;
  }
  const double t = Divide(Add(a, 1), divisor);
  return t <= 0 ? Outside : Log(t) / 2;
}

// Two names of one formula may have different codes.
constexpr LibraryFunction Library[] = {
    {"abs(", Abs},
    {"arctg(", Arctg},
    {"atn(", Arctg},
    {"cos(", Cos},
    {"exp(", Exponential},
    {"fix(", Fix},
    {"int(", Int},
    {"log(", NaturalLog, 17, 30},
    {"rnd(", Rnd, 0, 0, true},
    {"sgn(", Sgn},
    {"sin(", Sin},
    {"sen(", Sin},
    {"sqr(", Sqr, 1, 31},
    {"tg(", Tan},
    {"tan(", Tan},
    {"min(", Min},
    {"max(", Max},
    {"random(", Random, 0, 0, true},
    {"mod(", Mod},
    {"logn(", Logn, 16, 32},
    {"rand(", Rand, 0, 0, true},
    {"sec(", Sec},
    {"cosec(", Cosec},
    {"cotan(", Cotg},
    {"cotg(", Cotg},
    {"arcsin(", Arcsen, 2, 33},
    {"arcsen(", Arcsen, 2, 34},
    {"arccos(", Arccos, 3, 35},
    {"arcsec(", Arcsec, 4, 36},
    {"arccosec(", Arccosec, 5, 37},
    {"arccotg(", Arccotg},
    {"arccotan(", Arccotg},
    {"sinh(", Senh},
    {"senh(", Senh},
    {"cosh(", Cosh},
    {"tgh(", Tgh},
    {"tanh(", Tgh},
    {"sech(", Sech},
    {"cosech(", Cosech, 6, 38},
    {"cotgh(", Cotgh, 7, 39},
    {"cotanh(", Cotgh, 7, 39},
    {"arcsinh(", Arcsenh},
    {"arcsenh(", Arcsenh},
    {"arccosh(", Arccosh, 8, 40},
    {"arctgh(", Arctgh, 9, 41},
    {"arctanh(", Arctgh, 9, 42},
    {"arcsech(", Arcsech, 10, 43},
    {"arccosech(", Arccosech, 11, 44},
    {"arccotgh(", Arccotgh, 12, 45},
    {"arccotanh(", Arccotgh, 12, 46},
    {"log10(", Log10, 13, 47},
    {"log2(", Log2, 14, 48},
    {"ln(", NaturalLog, 15, 49},
    {"graus(", Graus},
    {"rad(", Rad},
    {"mant(", Mant},
};

}  // namespace

const LibraryFunction* FindFunction(std::string_view name) {
  const auto* found = std::find_if(std::begin(Library), std::end(Library),
                                   [name](const LibraryFunction& row) { return row.Name == name; });
  return found == std::end(Library) ? nullptr : found;
}

double NextRandom() {
  // The generator gives numbers of 31 bits, from 1 to 2^31 - 2. The upper 24 bits are kept.
  constexpr double Scale = 1 << 24;
  return static_cast<double>((Generator()() - 1) >> 7) / Scale;
}

}  // namespace clinorama::engine
