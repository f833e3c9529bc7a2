#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace clinorama::base {

// The numbers of failures. The first five are general; those from 1100 up belong to the interpreter
// of expressions.
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

// A statement that could not be carried out, for one of the numbered reasons above: the only kind
// of exception that a page may ignore or show. Any other one is an error of the program itself.
class Failure : public std::runtime_error {
 public:
  // With the standing description of that number.
  explicit Failure(int number);
  // With a description that names what failed, in UTF-8, for the user to read.
  Failure(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  int Number() const { return number_; }
  std::string Description() const { return what(); }

 private:
  int number_;
};

// Throws the failure of that number with its standing description. It is a function of its own
// and not a part of every check, so that the code of the checks stays small.
[[noreturn]] void Raise(int number);

// The mode of ignored failures: a statement that fails has no effect, and the next one runs. What
// is no failure of a statement (the end of the page or of the program, an error of the program)
// passes through.
template <class Statement>
void Ignorar(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const Failure&) {
    // Without effect, and without a word.
  }
}

}  // namespace clinorama::base
