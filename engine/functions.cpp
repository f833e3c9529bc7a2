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
  constexpr std::minstd_rand::result_type Start = 20011;  // a small one begins with numbers near 0
  static std::minstd_rand generator(Start);
  return generator;
}

void SeedFromClock() {
  const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
  Generator().seed(static_cast<std::minstd_rand::result_type>(ticks));
  // Neighbouring ticks give neighbouring first numbers; a few steps on they are far apart.
  constexpr unsigned long long Steps = 4;
  Generator().discard(Steps);
}

double FreshRandom() {
  SeedFromClock();
  return NextRandom();
}

Guard Value(double& result, double value) {
  result = value;
  return Guard::Passed;
}

// 1 - a * a, written as the inverse functions need it.
double OneMinusSquare(double a) { return Add(Multiply(-a, a), 1); }
double SquareMinusOne(double a) { return Subtract(Multiply(a, a), 1); }
double SquarePlusOne(double a) { return Add(Multiply(a, a), 1); }

// Half a turn is 4 * atan(1) throughout; the inverse functions shift by a quarter.
double QuarterTurn() { return 2 * std::atan(1.0); }

// exp(a) - exp(-a) and exp(a) + exp(-a): twice the hyperbolic sine and cosine, and the stuff of
// the four others. Both fail where one of the exponentials does.
double TwiceSinh(double a) { return Subtract(Exp(a), Exp(-a)); }
double TwiceCosh(double a) { return Add(Exp(a), Exp(-a)); }

double Abs(double a) { return std::fabs(a); }
double Arctg(double a) { return std::atan(a); }
double Cos(double a) { return std::cos(a); }
double Fix(double a) { return std::trunc(a); }
double Int(double a) { return std::floor(a); }
double Sin(double a) { return std::sin(a); }
double Tan(double a) { return std::tan(a); }
double Mant(double a) { return a - std::floor(a); }
double Arccotg(double a) { return QuarterTurn() - std::atan(a); }

Guard Exponential(double a, double, double& y) { return Value(y, Exp(a)); }
Guard Min(double a, double b, double& y) { return Value(y, a < b ? a : b); }
Guard Max(double a, double b, double& y) { return Value(y, a > b ? a : b); }
Guard Mod(double a, double b, double& y) { return Value(y, IntegerRemainder(a, b)); }
Guard Graus(double a, double, double& y) { return Value(y, Multiply(a, 57.2957795131)); }
Guard Rad(double a, double, double& y) { return Value(y, Multiply(a, 0.01745329251995)); }

Guard Rnd(double, double, double& y) {
  // Both steps are of 32-bit reals, and the argument is only there to be read.
  return Value(y, static_cast<double>(static_cast<float>(FreshRandom() * 20 - 10)));
}
Guard Random(double a, double b, double& y) {
  return Value(y, Add(Multiply(FreshRandom(), Subtract(b, a)), a));
}
Guard Rand(double a, double, double& y) { return Value(y, std::floor(Multiply(FreshRandom(), a))); }

Guard NaturalLog(double a, double, double& y) {
  return a <= 0 ? Guard::Failed : Value(y, std::log(a));
}
Guard Log10(double a, double, double& y) {
  return a <= 0 ? Guard::Failed : Value(y, Divide(Log(a), Log(10)));
}
Guard Log2(double a, double, double& y) {
  return a <= 0 ? Guard::Failed : Value(y, Divide(Log(a), Log(2)));
}
Guard Logn(double a, double b, double& y) {
  return a <= 0 || b <= 0 ? Guard::Failed : Value(y, Divide(Log(a), Log(b)));
}
Guard Sqr(double a, double, double& y) { return a < 0 ? Guard::Failed : Value(y, std::sqrt(a)); }

Guard Sec(double a, double, double& y) { return Value(y, Divide(1, std::cos(a))); }
Guard Cosec(double a, double, double& y) { return Value(y, Divide(1, std::sin(a))); }
Guard Cotg(double a, double, double& y) { return Value(y, Divide(1, std::tan(a))); }

Guard Arcsen(double a, double, double& y) {
  const double t = OneMinusSquare(a);
  return t <= 0 ? Guard::Failed : Value(y, std::atan(Divide(a, Sqrt(t))));
}
Guard Arccos(double a, double, double& y) {
  const double t = OneMinusSquare(a);
  return t <= 0 ? Guard::Failed : Value(y, std::atan(Divide(-a, Sqrt(t))) + QuarterTurn());
}
Guard Arcsec(double a, double, double& y) {
  const double t = SquareMinusOne(a);
  return t < 0 ? Guard::Failed
               : Value(y, (std::atan(Sqrt(t)) - QuarterTurn()) * Sign(a) + QuarterTurn());
}
Guard Arccosec(double a, double, double& y) {
  const double t = SquareMinusOne(a);
  return t <= 0 ? Guard::Failed : Value(y, Sign(a) * std::atan(Divide(1, Sqrt(t))));
}

Guard Senh(double a, double, double& y) { return Value(y, TwiceSinh(a) / 2); }
Guard Cosh(double a, double, double& y) { return Value(y, TwiceCosh(a) / 2); }
Guard Tgh(double a, double, double& y) {
  // The exponentials are taken once: they are what the time goes into.
  const double up = Exp(a);
  const double down = Exp(-a);
  return Value(y, Divide(Subtract(up, down), Add(up, down)));
}
Guard Sech(double a, double, double& y) { return Value(y, Divide(2, TwiceCosh(a))); }
Guard Cosech(double a, double, double& y) {
  return a == 0 ? Guard::Failed : Value(y, Divide(2, TwiceSinh(a)));
}
Guard Cotgh(double a, double, double& y) {
  if (a == 0) {
    return Guard::Failed;
  }
  const double up = Exp(a);
  const double down = Exp(-a);
  return Value(y, Divide(Add(up, down), Subtract(up, down)));
}

Guard Arcsenh(double a, double, double& y) {
  // Unguarded: far to the left the sum comes out as 0, and its logarithm is a failure.
  return Value(y, Log(Add(a, Sqrt(SquarePlusOne(a)))));
}
Guard Arccosh(double a, double, double& y) {
  const double t = SquareMinusOne(a);
  if (t < 0) {
    return Guard::FailedSilently;
  }
  const double sum = Add(a, Sqrt(t));
  return sum <= 0 ? Guard::Failed : Value(y, Log(sum));
}
Guard Arctgh(double a, double, double& y) {
  const double divisor = Subtract(1, a);
  if (divisor == 0) {
    return Guard::FailedSilently;
  }
  const double t = Divide(Add(1, a), divisor);
  return t <= 0 ? Guard::Failed : Value(y, Log(t) / 2);
}
Guard Arcsech(double a, double, double& y) {
  const double square = OneMinusSquare(a);
  if (square < 0 || a == 0) {
    return Guard::FailedSilently;
  }
  const double t = Divide(Add(Sqrt(square), 1), a);
  return t <= 0 ? Guard::Failed : Value(y, Log(t));
}
Guard Arccosech(double a, double, double& y) {
  if (a == 0) {
    return Guard::FailedSilently;
  }
  const double t = Divide(Add(Sign(a) * Sqrt(SquarePlusOne(a)), 1), a);
  return t <= 0 ? Guard::Failed : Value(y, Log(t));
}
Guard Arccotgh(double a, double, double& y) {
  const double divisor = Subtract(a, 1);
  if (divisor == 0) {
    return Guard::FailedSilently;
  }
  const double t = Divide(Add(a, 1), divisor);
  return t <= 0 ? Guard::Failed : Value(y, Log(t) / 2);
}

// Names that share a formula may still differ in their codes.
constexpr Function Library[] = {
    {"abs(", Abs},
    {"arctg(", Arctg},
    {"atn(", Arctg},
    {"cos(", Cos},
    {"exp(", Exponential},
    {"fix(", Fix},
    {"int(", Int},
    {"log(", NaturalLog, 17, 30},
    {"rnd(", Rnd},
    {"sgn(", Sign},
    {"sin(", Sin},
    {"sen(", Sin},
    {"sqr(", Sqr, 1, 31},
    {"tg(", Tan},
    {"tan(", Tan},
    {"min(", Min},
    {"max(", Max},
    {"random(", Random},
    {"mod(", Mod},
    {"logn(", Logn, 16, 32},
    {"rand(", Rand},
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

const Function* FindFunction(std::string_view name) {
  const auto* found = std::find_if(std::begin(Library), std::end(Library),
                                   [name](const Function& row) { return row.name == name; });
  return found == std::end(Library) ? nullptr : found;
}

double NextRandom() {
  // The generator gives 31 bits, from 1 to 2^31 - 2; the upper 24 of them are kept.
  constexpr double Scale = 1 << 24;
  return static_cast<double>((Generator()() - 1) >> 7) / Scale;
}

}  // namespace clinorama::engine
