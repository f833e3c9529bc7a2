#include <cmath>
#include <utility>
#include <vector>

#include "tests/engine/outcome.h"

namespace clinorama::tests {
namespace {

const double Quarter = 2 * std::atan(1.0);
constexpr int Silent = Untouched;  // the code of a guard that has none

TEST(Functions, GiveTheirValuesAndGuardTheirDomains) {
  const struct {
    const char* Text;
    double X;  // inside the domain, at its end if the end belongs to it
    double Value;
    int SuccessCode = Untouched;
    std::vector<std::pair<double, int>> Outside = {};  // abscissas with the codes of their failures
  } rows[] = {
      {"abs(x)+10fix(x)+100int(x)+1000mant(x)", -1.5, 1.5 - 10 - 200 + 500},
      {"sgn(-x)+10sgn(x)+100sgn(0)", 2, 9},
      {"min(x,2)+10min(-x,2)+100max(x,2)+1000max(-x,2)", 3, 2 - 30 + 300 + 2000},
      {"min(1 2)", 2, 12},
      {"max(x,4,3)", 2, 3},
      {"mod(x,4)", -6.5, -2},
      {"graus(pi)+rad(180)", 2, 3.14159265358979 * 57.2957795131 + 180 * 0.01745329251995},
      {"exp(x)+100cosh(x)", 2, std::exp(2.0) + 100 * std::cosh(2.0)},
      {"sin(x)+10sen(x)+100cos(x)", 2, 11 * std::sin(2.0) + 100 * std::cos(2.0)},
      {"tg(x)+10tan(x)+100cotan(x)+1000cotg(x)", 2, 11 * std::tan(2.0) + 1100 / std::tan(2.0)},
      {"sec(x)+10cosec(x)", 2, 1 / std::cos(2.0) + 10 / std::sin(2.0)},
      {"arctg(x)+10atn(x)", 2, 11 * std::atan(2.0)},
      {"arccotg(x)+10arccotan(x)", 2, 11 * (Quarter - std::atan(2.0))},
      {"sinh(x)+10senh(x)+100sech(x)", 2, 11 * std::sinh(2.0) + 100 / std::cosh(2.0)},
      {"tgh(x)+10tanh(x)", 2, 11 * std::tanh(2.0)},
      {"arcsinh(x)+10arcsenh(x)", 2, 11 * std::asinh(2.0)},
      {"log(x)", 2, std::log(2.0), 30, {{0, 17}}},
      {"ln(x)", 2, std::log(2.0), 49, {{0, 15}}},
      {"log10(x)", 100, 2, 47, {{0, 13}}},
      {"log2(x)", 8, std::log(8.0) / std::log(2.0), 48, {{0, 14}}},
      {"logn(x,4)", 2, std::log(2.0) / std::log(4.0), 32, {{0, 16}}},
      {"logn(8,x)", 2, std::log(8.0) / std::log(2.0), 32, {{0, 16}, {-1, 16}}},
      {"sqr(x)", 0, 0, 31, {{-1, 1}}},
      {"arcsin(x)", 0.5, std::atan(0.5 / std::sqrt(0.75)), 33, {{1, 2}, {-1, 2}}},
      {"arcsen(x)", 0.5, std::atan(0.5 / std::sqrt(0.75)), 34, {{1, 2}, {-1, 2}}},
      {"arccos(x)", 0.5, std::atan(-0.5 / std::sqrt(0.75)) + Quarter, 35, {{1, 3}, {-1, 3}}},
      {"arcsec(x)", 1, 0, 36, {{0.5, 4}}},
      {"arcsec(x)", -1, 2 * Quarter, 36},
      {"arccosec(x)", -2, -std::atan(1 / std::sqrt(3.0)), 37, {{1, 5}, {-1, 5}}},
      {"cosech(x)", 2, 1 / std::sinh(2.0), 38, {{0, 6}}},
      {"cotgh(x)", 2, 1 / std::tanh(2.0), 39, {{0, 7}}},
      {"cotanh(x)", 2, 1 / std::tanh(2.0), 39, {{0, 7}}},
      {"arccosh(x)", 2, std::acosh(2.0), 40, {{0.5, Silent}, {-1e10, 8}}},
      {"arccosh(x)", 1, 0, 40},
      {"arctgh(x)", 0.5, std::atanh(0.5), 41, {{1, Silent}, {2, 9}, {-1, 9}}},
      {"arctanh(x)", 0.5, std::atanh(0.5), 42, {{1, Silent}, {2, 9}, {-1, 9}}},
      {"arcsech(x)", 0.5, std::acosh(2.0), 43, {{0, Silent}, {2, Silent}, {-0.5, 10}}},
      {"arcsech(x)", 1, 0, 43},
      {"arccosech(x)", 0.5, std::asinh(2.0), 44, {{0, Silent}, {-1e-10, 11}}},
      {"arccosech(x)", -0.5, -std::asinh(2.0), 44},
      {"arccotgh(x)", 2, std::log(3.0) / 2, 45, {{1, Silent}, {0, 12}, {-1, 12}}},
      {"arccotanh(x)", 2, std::log(3.0) / 2, 46, {{1, Silent}, {0, 12}, {-1, 12}}},
      {"ln(4)+arctgh(x)", 0.5, std::log(4.0) + std::atanh(0.5), 41, {{1, 49}}},
  };
  for (const auto& row : rows) {
    Check(Value(row.Value, row.SuccessCode), row.X, {row.Text});
    for (const auto& [x, code] : row.Outside) {
      Check(Domain(code), x, {row.Text});
    }
  }
}

TEST(Functions, FailInTheMiddleOfTheirFormulas) {
  Check(Overflow, 1000, {"exp(x)", "senh(-x)", "cosh(x)", "tgh(-x)", "cotgh(-x)"});
  Check(Overflow, 1e200, {"arcsin(x)", "arcsec(x)", "arccosech(x)", "mod(x,2)"});
  Check(Overflow, 1e308, {"graus(x)", "random(-x,x)"});
  Check(Overflow, 1, {"logn(1,x)"});
  Check(ByZero, 1, {"logn(5,x)", "mod(5,x*0.4)", "cosec(x-1)", "cotg(x-1)", "cosech(x*10^(-20))"});
  Check(Argument, -1e10, {"arcsenh(x)"});
}

TEST(Functions, DrawRandomNumbersFromTheirRanges) {
  const struct {
    const char* Text;
    double First, Past, Nearness;  // how close to both ends the draws come; 1 between whole numbers
  } rows[] = {{"rnd", 0, 1, 0.02},
              {"rnd(0)", -10, 10, 5},
              {"random(2,3)", 2, 3, 0.25},
              {"rand(6)", 0, 6, 1},
              {"rand(-6)", -6, 0, 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Text);
    clsEquation equation;
    equation.Equation(row.Text);
    double least = row.Past;
    double most = row.First;
    for (int i = 0; i < 2000; ++i) {
      const auto [draw, code, error] = OutcomeOf(equation);
      ASSERT_EQ(code, Untouched);
      ASSERT_TRUE(row.Nearness != 1 || draw == std::floor(draw));
      ASSERT_TRUE(row.Text[1] != 'n' || draw == static_cast<double>(static_cast<float>(draw)))
          << "32-bit reals";
      least = std::fmin(least, draw);
      most = std::fmax(most, draw);
    }
    EXPECT_TRUE(least >= row.First && least < row.First + row.Nearness) << least;
    EXPECT_TRUE(most <= row.Past && most >= row.Past - row.Nearness) << most;
  }
}

}  // namespace
}  // namespace clinorama::tests
