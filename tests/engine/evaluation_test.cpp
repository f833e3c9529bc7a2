#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include "tests/engine/outcome.h"

namespace clinorama::tests {
namespace {

TEST(Evaluation, GivesValues) {
  Check(Value(64), 2, {"2^3^2", "4x^4", "4^x*4"});
  Check(Value(4), 2, {"7.5\\2", "10%6.5", "14%5*2", "4%-5", "2--2", "9-3-2"});
  Check(Value(4), 2, {"4+2*()", "(3)+1", "(,)+4", "8*2^(-1)", ".5+3.5", "3.+1", "4*0^0"});
  Check(Value(-4), 2, {"-x^2", "2*-2", "-9\\2", "-9%5"});
  Check(Value(1, 66), 2, {"8/4/2"});
  Check(Value(2147483647), 2, {"2147483647.4\\1"});
  Check(Value(0), 2, {"(-2147483648)%(-1)"});
  Check(Value(1e-320), 2, {"10^(-320)"});
  Check(Value(4503599627370497), 2, {"4503599627370496.5000000000000000000000001"});
  Check(Value(9.42477796076937), 2, {"3pi"});
  Check(Value(std::pow(2.718281828, std::cos(4.0))), 2, {"e^cos(2x)"});
  Check(Value(std::tan(3.14159265358979 / 2), 66), 2, {"tg(pi/2)"});
  std::setlocale(LC_NUMERIC, "pt_PT.UTF-8");  // has no effect where the system lacks it
  Check(Value(4), 2, {".5+3.5"});
  std::setlocale(LC_NUMERIC, "C");
  Check(Value(0), 2, {"x" + Repeated("%-x", 10922)});  // the longest programme
}

TEST(Evaluation, TakesTheFirstCellThatIsLeft) {
  Check(Value(std::sin(2.0)), 2, {"sen(x)cos(x)"});
  Check(Value(3), 2, {"(x+1)(x-1)", "1(x+1)(x-1)", "(x+1)2+5", "max(1,2)+1", "max(1,2,3)+1"});
  Check(Value(1), 2, {"1,7x", "(1,2)+3", ",,x-1", "1,7" + std::string(310, '9')});
}

TEST(Evaluation, LeavesADivisionByASmallNumberUndone) {
  Check(Value(1, 18), 2, {"1/0+1", "1/(x-2)", "1/0*5", "(1/0)+2", "2-(1/0)", "1,(/0)"});
  Check(Value(1, 66), 2, {"1/(x-2.0000001)", "1/0.000001"});
  Check(Value(-1 / 0.0000011, 66), 2, {"1/(-0.0000011)"});
  Check(Value(5), 2, {"5\\0", "5%0", "5\\0.0000001"});
  Check(Value(0, 18), 0, {"5sen(x)/x"});
  Check(Value(12, 66), 2, {"3*(4/(x-2))/2"});
  Check(Value(8, 66), 2, {"8/(1/0)"});
  Check(Value(7, 18), 2, {"max(1/0,7)"});
  Check(Value(0.5, 18), 2, {"1/(2/(x-2))/(x-2)"});
  Check(Error("1102 Variável não definida: y"), 2, {"x/0+y"});
  Check(Invalid, 2, {"(/0)", "abs(/0)"});
}

TEST(Evaluation, StopsWhereADivisionLacksAnOperand) {
  Check(Domain(66), 2, {"/2+"});
  Check(Domain(18), 2, {"/0"});
  Check(Domain(), 2, {"\\2", "%", "2\\", "2%"});
  Check(Invalid, 2, {"2/", "/"});
  Check(Error("1102 Variável não definida: y"), 2, {"/2+y"});
}

TEST(Evaluation, RaisesErrors) {
  Check(Invalid, 2,
        {"2^-1", "+3", "2+", "2*+3", "-", ") (", "1.2.3", ".", " é ", ",", "foo(1.2.3)"});
  Check(Unbalanced, 2, {"(/5"});
  Check(Error("1104 Argumento inválido na expressão: foo()"), 2, {"foo()", "foo(,)"});
  Check(Error("1101 Função não definida: log5()"), 2, {"log5(2,7)", "log5(1/0)"});
  Check(Error("1102 Variável não definida: pix"), 2, {"2pix", "y+sqr(pix)"});
  Check(Domain(1), 2, {"sqr(-1)+y"});
  Check(ByZero, 2, {"5\\0.4", "7%(x-1.8)", "0^(-1)"});
  Check(Argument, 2, {"(-8)^(1/3)"});
  Check(Overflow, 2, {"1\\3000000000", "2147483647.5%2", "(-2147483648)\\(-1)"});
  Check(Overflow, 2, {std::string(310, '9')});
}

// The walk must find it, and so must a programme of other values.
TEST(Evaluation, FindsEveryResultThatFails) {
  Check(Domain(1), -1, {"5-sqr(x)", "sgn(sqr(x))", "sen(x)sqr(x)"});
  Check(Domain(), 0, {"ln(1+arccosh(x))"});
  Check(Domain(1), 1000, {"sqr(5-x)+exp(x)"});
  Check(Overflow, 1e308, {"atn(x+x)", "atn(-x-x)", "x/0.00001"});
  Check(Overflow, 1e200, {"x^2", "(-x)^3", "atn(x*x)", "min(x*x,1)", "abs(1,x*x)"});
  Check(Overflow, 1e200, {"1/(x*x)", "(x*x)^0", "1^(x*x)", "3%(x*x)", "(x*x)\\3"});
  Check(Overflow, 1e200, {"1,x*x", "max(1,x*x,2)"});
  Check(Overflow, std::numeric_limits<double>::infinity(), {"1,x"});
  Check(Overflow, std::nan(""), {"(x)^0"});
}

TEST(Evaluation, RaisesToTwoAndThreeByProducts) {
  constexpr double X = 2.759;  // here the power function differs in the last bit
  clsEquation equation;
  equation.Var("x", X);
  equation.Equation("x^2");
  EXPECT_EQ(equation.Solution(), X * X);
  equation.Equation("x^3");
  EXPECT_EQ(equation.Solution(), X * X * X);
}

}  // namespace
}  // namespace clinorama::tests
