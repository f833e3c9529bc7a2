#include <cmath>

#include "tests/engine/outcome.h"

namespace clinorama::tests {
namespace {

const double Half = 2 * std::atan(1.0);
const double Sinh2 = (std::exp(2.0) - std::exp(-2.0)) / 2;
const double Cosh2 = (std::exp(2.0) + std::exp(-2.0)) / 2;

TEST(Functions, GiveTheirValuesAndCodes) {
  const Case rows[] = {
      {"abs(-x)", 2, Value(2)},
      {"arctg(x)", 2, Value(std::atan(2.0))},
      {"atn(x)", 2, Value(std::atan(2.0))},
      {"cos(x)", 2, Value(std::cos(2.0))},
      {"exp(x)", 2, Value(std::exp(2.0))},
      {"fix(-1.5)", 2, Value(-1)},
      {"int(-1.5)", 2, Value(-2)},
      {"log(x)", 2, Value(std::log(2.0), 30)},
      {"sgn(-x)+10sgn(x)+sgn(0)", 2, Value(9)},
      {"sin(x)", 2, Value(std::sin(2.0))},
      {"sqr(0)", 2, Value(0, 31)},
      {"tg(x)", 2, Value(std::tan(2.0))},
      {"tan(x)", 2, Value(std::tan(2.0))},
      {"min(3,2)", 2, Value(2)},
      {"min(2,2)", 2, Value(2)},
      {"min(5)", 2, Value(5)},
      {"min(1 2)", 2, Value(12)},
      {"max(1,2,3)", 2, Value(3)},
      {"max(3,4,2)", 2, Value(3)},
      {"mod(7,3)", 2, Value(1)},
      {"mod(-7,3)", 2, Value(-1)},
      {"mod(7.5,3)", 2, Value(2)},
      {"logn(8,x)", 2, Value(std::log(8.0) / std::log(2.0), 32)},
      {"sec(x)", 2, Value(1 / std::cos(2.0))},
      {"cosec(x)", 2, Value(1 / std::sin(2.0))},
      {"cotan(x)+cotg(x)", 2, Value(2 / std::tan(2.0))},
      {"arcsin(0.5)", 2, Value(std::atan(0.5 / std::sqrt(0.75)), 33)},
      {"arcsen(0.5)", 2, Value(std::atan(0.5 / std::sqrt(0.75)), 34)},
      {"arccos(0.5)", 2, Value(std::atan(-0.5 / std::sqrt(0.75)) + Half, 35)},
      {"arcsec(1)", 2, Value(0, 36)},
      {"arcsec(-1)", 2, Value(2 * Half, 36)},
      {"arccosec(-x)", 2, Value(-std::atan(1 / std::sqrt(3.0)), 37)},
      {"arccotg(x)", 2, Value(Half - std::atan(2.0))},
      {"arccotan(x)", 2, Value(Half - std::atan(2.0))},
      {"sinh(x)+senh(x)", 2, Value(2 * Sinh2)},
      {"cosh(x)", 2, Value(Cosh2)},
      {"tgh(x)", 2, Value(Sinh2 / Cosh2)},
      {"tanh(x)", 2, Value(Sinh2 / Cosh2)},
      {"sech(x)", 2, Value(1 / Cosh2)},
      {"cosech(x)", 2, Value(1 / Sinh2, 38)},
      {"cotgh(x)", 2, Value(Cosh2 / Sinh2, 39)},
      {"cotanh(x)", 2, Value(Cosh2 / Sinh2, 39)},
      {"arcsinh(x)", 2, Value(std::asinh(2.0))},
      {"arcsenh(x)", 2, Value(std::asinh(2.0))},
      {"arccosh(x)", 2, Value(std::acosh(2.0), 40)},
      {"arctgh(0.5)", 2, Value(std::atanh(0.5), 41)},
      {"arctanh(0.5)", 2, Value(std::atanh(0.5), 42)},
      {"arcsech(0.5)", 2, Value(std::acosh(2.0), 43)},
      {"arcsech(1)", 2, Value(0, 43)},
      {"arccosech(0.5)", 2, Value(std::asinh(2.0), 44)},
      {"arccotgh(x)", 2, Value(std::log(3.0) / 2, 45)},
      {"arccotanh(x)", 2, Value(std::log(3.0) / 2, 46)},
      {"log10(100)", 2, Value(2, 47)},
      {"log2(8)", 2, Value(std::log(8.0) / std::log(2.0), 48)},
      {"ln(x)", 2, Value(std::log(2.0), 49)},
      {"graus(pi)", 2, Value(3.14159265358979 * 57.2957795131)},
      {"rad(180)", 2, Value(180 * 0.01745329251995)},
      {"mant(-1.5)", 2, Value(0.5)},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Functions, FailAtTheirGuards) {
  const Case rows[] = {
      {"log(x)", 0, Domain(17)},
      {"sqr(x)", -1, Domain(1)},
      {"logn(x,2)", 0, Domain(16)},
      {"logn(2,x)", -1, Domain(16)},
      {"arcsin(x)", 1, Domain(2)},
      {"arcsen(x)", -1, Domain(2)},
      {"arccos(x)", 1, Domain(3)},
      {"arcsec(x)", 0.5, Domain(4)},
      {"arccosec(x)", 1, Domain(5)},
      {"cosech(x)", 0, Domain(6)},
      {"cotgh(x)", 0, Domain(7)},
      {"arccosh(x)", 0.5, Domain()},
      {"arccosh(x)", -1e10, Domain(8)},
      {"arctgh(x)", 1, Domain()},
      {"arctgh(x)", 2, Domain(9)},
      {"arctanh(x)", -1, Domain(9)},
      {"arcsech(x)", 0, Domain()},
      {"arcsech(x)", 2, Domain()},
      {"arcsech(x)", -0.5, Domain(10)},
      {"arccosech(x)", 0, Domain()},
      {"arccosech(x)", -1e-10, Domain(11)},
      {"arccotgh(x)", 1, Domain()},
      {"arccotgh(x)", 0, Domain(12)},
      {"arccotanh(x)", 1, Domain()},
      {"log10(x)", 0, Domain(13)},
      {"log2(x)", -1, Domain(14)},
      {"ln(x)", 0, Domain(15)},
      {"ln(4)+arctgh(x)", 1, Domain(49)},
      {"1+sqr(x)+ln(x)", -1, Domain(1)},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Functions, FailInTheMiddleOfTheirFormulas) {
  const std::string overflow = "Excesso de capacidade.";
  const std::string byZero = "Divisão por zero.";
  const Case rows[] = {
      {"sinh(x)", 1000, Error(6, overflow)},
      {"tgh(x)", -1000, Error(6, overflow)},
      {"arcsin(x)", 1e200, Error(6, overflow)},
      {"arcsec(x)", 1e200, Error(6, overflow)},
      {"arccosech(x)", 1e200, Error(6, overflow)},
      {"graus(x)", 1e308, Error(6, overflow)},
      {"random(-x,x)", 1e308, Error(6, overflow)},
      {"logn(1,x)", 1, Error(6, overflow)},
      {"mod(x,2)", 3e9, Error(6, overflow)},
      {"logn(5,x)", 1, Error(11, byZero)},
      {"mod(5,x)", 0.4, Error(11, byZero)},
      {"cosec(x)", 0, Error(11, byZero)},
      {"cotg(x)", 0, Error(11, byZero)},
      {"cosech(x)", 1e-20, Error(11, byZero)},
      {"arcsenh(x)", -1e10, Error(5, "Argumento inválido.")},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Functions, DrawRandomNumbersFromTheirRanges) {
  const struct {
    const char* text;
    double first;
    double past;
  } rows[] = {{"rnd", 0, 1},
              {"rnd(0)", -10, 10},
              {"random(2,3)", 2, 3},
              {"rand(6)", 0, 6},
              {"rand(-6)", -6, 0.5}};
  constexpr int Draws = 2000;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    clsEquation equation;
    equation.Equation(row.text);
    const bool whole = std::string(row.text).rfind("rand(", 0) == 0;
    double least = row.past;
    double most = row.first;
    for (int i = 0; i < Draws; ++i) {
      equation.Solve();
      ASSERT_TRUE(!whole || equation.Solution() == std::floor(equation.Solution()));
      least = std::fmin(least, equation.Solution());
      most = std::fmax(most, equation.Solution());
    }
    const double width = row.past - row.first;
    EXPECT_GE(least, row.first);
    EXPECT_LT(least, row.first + 0.2 * width);
    EXPECT_LT(most, row.past);
    EXPECT_GE(most, row.past - 0.25 * width);
  }
}

TEST(Functions, DrawOnceForADivisorThatIsLeftUndone) {
  // A walk that goes another way must not draw again: half of the divisors are 0 and leave the 3,
  // the others are 1 and give 3 - 5.
  clsEquation equation;
  equation.Equation("3/int(2*rnd)-5");
  int undone = 0;
  constexpr int Draws = 4000;
  for (int i = 0; i < Draws; ++i) {
    equation.Solve();
    undone += equation.Solution() == 3 ? 1 : 0;
    ASSERT_TRUE(equation.Solution() == 3 || equation.Solution() == -2);
  }
  EXPECT_NEAR(undone, Draws / 2.0, 200);
}

}  // namespace
}  // namespace clinorama::tests
