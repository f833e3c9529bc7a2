#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "tests/engine/outcome.h"

namespace clinorama::tests {
namespace {

const std::string Overflow = "Excesso de capacidade.";
const std::string ByZero = "Divisão por zero.";
const std::string Argument = "Argumento inválido.";
const double Huge = 1e200;
const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Evaluation, GivesValues) {
  const Case rows[] = {
      {"2^3^2", 2, Value(64)},
      {"-x^2", 2, Value(-4)},
      {"2x^2", 2, Value(8)},
      {"3pi", 2, Value(9.42477796076937)},
      {"2e", 2, Value(5.436563656)},
      {"e^cos(2x)", 2, Value(std::pow(2.718281828, std::cos(4.0)))},
      {"2^(-1)", 2, Value(0.5)},
      {"2*-3", 2, Value(-6)},
      {"2--3", 2, Value(5)},
      {"7%3*2", 2, Value(1)},
      {"8-3-2", 2, Value(3)},
      {"8/4/2", 2, Value(1, 66)},
      {"7\\2", 2, Value(3)},
      {"-7\\2", 2, Value(-3)},
      {"7%3", 2, Value(1)},
      {"-7%3", 2, Value(-1)},
      {"7%-3", 2, Value(1)},
      {"7.5\\2", 2, Value(4)},
      {"6.5\\2", 2, Value(3)},
      {"(-2147483648)%(-1)", 2, Value(0)},
      {"()", 2, Value(0)},
      {"2*()", 2, Value(0)},
      {"(,)+1", 2, Value(1)},
      {".5+5.", 2, Value(5.5)},
      {"1 2   3 4", 2, Value(1234)},
      {"0.1+0.2", 2, Value(0.1 + 0.2)},
      {"4503599627370496.5000000000000000000000001", 2, Value(4503599627370497.0)},
      {"0^0", 2, Value(1)},
      {"(-8)^3", 2, Value(-512)},
      {"10^(-320)", 2, Value(1e-320)},
      {"tg(pi/2)", 2, Value(std::tan(3.14159265358979 / 2), 66)},
      {"SEN(X)", 2, Value(std::sin(2.0))},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Evaluation, TakesTheFirstCellThatIsLeft) {
  const Case rows[] = {
      {"sen(x)cos(x)", 2, Value(std::sin(2.0))},
      {"(x+1)(x-1)", 2, Value(3)},
      {"2(x+1)(x-1)", 2, Value(6)},
      {"1,7x", 2, Value(1)},
      {"(1,2)+3", 2, Value(1)},
      {"max(1,2,3)+1", 2, Value(3)},
      {"(x+1)2+5", 2, Value(3)},
      {",,x", 2, Value(2)},
      {"x)+(y", 2, Error(1102, "Variável não definida: y")},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Evaluation, LeavesADivisionByASmallNumberUndone) {
  const Case rows[] = {
      {"1/0", 2, Value(1, 18)},
      {"1/0+1", 2, Value(1, 18)},
      {"1/(x-2)", 2, Value(1, 18)},
      {"1/(x-2.0000001)", 2, Value(1, 66)},
      {"1/0.000001", 2, Value(1, 66)},
      {"1/0.0000011", 2, Value(1 / 0.0000011, 66)},
      {"1/(-0.0000011)", 2, Value(-1 / 0.0000011, 66)},
      {"5\\0", 2, Value(5)},
      {"5%0", 2, Value(5)},
      {"5\\0.0000001", 2, Value(5)},
      {"5sen(x)/x", 0, Value(0, 18)},
      {"1/0*5", 2, Value(1, 18)},
      {"(1/0)+2", 2, Value(1, 18)},
      {"2-(1/0)", 2, Value(1, 18)},
      {"3*(4/(x-2))/2", 2, Value(12, 66)},
      {"8/(1/0)", 2, Value(8, 66)},
      {"max(1/0,7)", 2, Value(7, 18)},
      {"x/0+y", 2, Error(1102, "Variável não definida: y")},
      {"(/0)", 2, Invalid()},
      {"1/(2/(x-2))/(x-2)", 2, Value(0.5, 18)},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Evaluation, StopsWhereADivisionLacksItsLeftOperand) {
  const Case rows[] = {
      {"/2", 2, Domain(66)},
      {"/0", 2, Domain(18)},
      {"\\2", 2, Domain()},
      {"%", 2, Domain()},
      {"2\\", 2, Domain()},
      {"2%", 2, Domain()},
      {"2/", 2, Invalid()},
      {"/", 2, Invalid()},
      {"/2+y", 2, Error(1102, "Variável não definida: y")},
      {"/2+", 2, Domain(66)},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Evaluation, RaisesErrors) {
  const Case rows[] = {
      {"2^-1", 2, Invalid()},
      {"+3", 2, Invalid()},
      {"2+", 2, Invalid()},
      {"2++3", 2, Invalid()},
      {"2*+3", 2, Invalid()},
      {"--3", 2, Invalid()},
      {"-", 2, Invalid()},
      {") (", 2, Invalid()},
      {"1.2.3", 2, Invalid()},
      {".", 2, Invalid()},
      {"", 2, Invalid()},
      {" é ", 2, Invalid()},
      {",", 2, Invalid()},
      {"abs(/0)", 2, Invalid()},
      {"(/5", 2, Error(1100, "Número de parênteses incorrecto.")},
      {"sen()", 2, Error(1104, "Argumento inválido na expressão: sen()")},
      {"foo()", 2, Error(1104, "Argumento inválido na expressão: foo()")},
      {"foo(,)", 2, Error(1104, "Argumento inválido na expressão: foo()")},
      {"foo(1)", 2, Error(1101, "Função não definida: foo()")},
      {"foo(1/0)", 2, Error(1101, "Função não definida: foo()")},
      {"foo(1.2.3)", 2, Invalid()},
      {"log5(2,7)", 2, Error(1101, "Função não definida: log5()")},
      {"x.5(2)", 2, Error(1101, "Função não definida: x,5()")},
      {"2pix", 2, Error(1102, "Variável não definida: pix")},
      {"x2", 2, Error(1102, "Variável não definida: x2")},
      {"sqr(-1)+y", 2, Domain(1)},
      {"y+sqr(z)", 2, Error(1102, "Variável não definida: z")},
      {"5\\0.4", 2, Error(11, ByZero)},
      {"(-8)^(1/3)", 2, Error(5, Argument)},
      {"0^(-1)", 2, Error(11, ByZero)},
      {"exp(1000)", 2, Error(6, Overflow)},
      {"x*x", Huge, Error(6, Overflow)},
      {"x^2", Huge, Error(6, Overflow)},
      {"x^3", -Huge, Error(6, Overflow)},
      {"x/0.00001", 1e306, Error(6, Overflow)},
      {"1\\3000000000", 2, Error(6, Overflow)},
      {"2147483647.5%2", 2, Error(6, Overflow)},
      {"(-2147483648)\\(-1)", 2, Error(6, Overflow)},
      {std::string(310, '9'), 2, Error(6, Overflow)},
      {"1,7" + std::string(310, '9'), 2, Value(1)},
      {"x", Infinity, Error(6, Overflow)},
      {"y", NotANumber, Error(1102, "Variável não definida: y")},
  };
  for (const Case& row : rows) {
    Check(row);
  }
}

TEST(Evaluation, AnswersAnewForEachValueOfTheVariable) {
  clsEquation equation;
  equation.Equation("6/(x-2)/(x-3)+ln(x)");
  const double ln4 = std::log(4.0);
  const Case rows[] = {
      {"both done", 4, Value(3 + ln4, 66)},
      {"first undone: the second acts on its divisor", 2, Value(6, 66)},
      {"second undone", 3, Value(6, 18)},
      {"again both done", 4, Value(3 + ln4, 66)},
      {"outside", -1, Domain(15)},
      {"inside again", 4, Value(3 + ln4, 66)},
      {"no number", NotANumber, Error(6, Overflow)},
      {"a number again", 4, Value(3 + ln4, 66)},
  };
  for (const Case& row : rows) {
    Check(row, equation);
  }
}

// A programme has the values of x = 4; what goes wrong at the other abscissa must not pass by it.
TEST(Evaluation, FailsAtAnAbscissaAsAtTheFirst) {
  const Case rows[] = {
      {"5-sqr(x)", -1, Domain(1)},
      {"sgn(sqr(x))", -1, Domain(1)},
      {"sen(x)sqr(x)", -1, Domain(1)},
      {"ln(1+arccosh(x))", 0, Domain()},
      {"sqr(5-x)+exp(x)", 1000, Domain(1)},
      {"atn(x*x)", Huge, Error(6, Overflow)},
      {"x*x", Huge, Error(6, Overflow)},
      {"min(x*x,1)", Huge, Error(6, Overflow)},
      {"abs(1,x*x)", Huge, Error(6, Overflow)},
      {"1/(x*x)", Huge, Error(6, Overflow)},
      {"(x*x)^0", Huge, Error(6, Overflow)},
      {"1^(x*x)", Huge, Error(6, Overflow)},
      {"3%(x*x)", Huge, Error(6, Overflow)},
      {"(x*x)\\3", Huge, Error(6, Overflow)},
      {"x*x*0", Huge, Error(6, Overflow)},
      {"1,x*x", Huge, Error(6, Overflow)},
      {"max(1,x*x,2)", Huge, Error(6, Overflow)},
      {"7%x", 0.3, Error(11, ByZero)},
      {"1,x", Infinity, Error(6, Overflow)},
      {"(x)^0", NotANumber, Error(6, Overflow)},
  };
  for (const Case& row : rows) {
    clsEquation equation;
    equation.Equation(row.text);
    for (const double x : {4.0, 5.0}) {
      equation.Var("x", x);
      OutcomeOf(equation);
    }
    Check(row, equation);
  }
}

TEST(Evaluation, RaisesToTwoAndThreeByProducts) {
  const struct {
    const char* text;
    double (*power)(double x);
  } rows[] = {
      {"x^2", [](double x) { return x * x; }},
      {"x^3", [](double x) { return x * x * x; }},
      {"x^4", [](double x) { return std::pow(x, 4.0); }},
      {"2^x", [](double x) { return std::pow(2.0, x); }},
  };
  std::mt19937 generator(5);
  std::uniform_real_distribution<double> abscissas(-12, 12);
  for (const auto& row : rows) {
    clsEquation equation;
    equation.Equation(row.text);
    for (int i = 0; i < 1000; ++i) {
      const double x = abscissas(generator);
      equation.Var("x", x);
      ASSERT_EQ(equation.Solution(), row.power(x)) << row.text << ", x = " << x;
    }
  }
}

TEST(Evaluation, HoldsTheLongestProgramme) {
  std::string text = "x";
  for (int i = 0; i < 10922; ++i) {
    text += "%-x";  // a sign, a test and a remainder
  }
  Check({text, 2, Value(0)});
}

}  // namespace
}  // namespace clinorama::tests
