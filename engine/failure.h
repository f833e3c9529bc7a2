#pragma once

#include <exception>
#include <string>
#include <utility>

namespace clinorama::engine {

// The numbers of the failures that arise inside an evaluation. The first five are general; those
// from 1100 up belong to the interpreter. `clsEquation::Solve` decides which of them a caller sees.
constexpr int InvalidArgument = 5;
constexpr int Overflow = 6;
constexpr int IndexOutOfRange = 9;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;
constexpr int WrongParentheses = 1100;
constexpr int UndefinedFunction = 1101;
constexpr int UndefinedVariable = 1102;
constexpr int InvalidExpression = 1103;
constexpr int NoArgument = 1104;

// What an elementary step throws; it never leaves `clsEquation::Solve` in this form. It is a
// standard exception for the pages, which calculate with the same steps and let their own manner
// of handling failures catch it. A failure is rare, so the descriptions are made only when one is
// thrown.
struct Failure : std::exception {
  Failure(int code, std::string words) : number(code), description(std::move(words)) {}
  const char* what() const noexcept override { return description.c_str(); }

  int number;
  std::string description;
};

// The words for a failure whose description needs no part of the expression. Whatever has none of
// its own is an invalid expression to the user.
std::string DescriptionOf(int number);

// Throws the failure of that number with its standing description. It is a function of its own
// and not a part of every check, so that the code of the checks stays small.
[[noreturn]] void Raise(int number);

// Throws a failure whose description names a part of the expression.
[[noreturn]] void Raise(int number, std::string description);

}  // namespace clinorama::engine
