#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace clinorama::base {

// The numbers of failures. Those from 1100 up belong to the interpreter of expressions.
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

// A statement could not be carried out, for one of the reasons above. A page may ignore or show
// this kind of exception and no other, as any other is an error of the program.
class Failure : public std::runtime_error {
 public:
  // With the usual description of that number.
  explicit Failure(int number);
  // With a description that names what failed, in UTF-8, for the user to read.
  Failure(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  int Number() const { return number_; }
  std::string Description() const { return what(); }

 private:
  int number_;
};

// Throws the failure of that number with its usual description. The checks call this function so
// that their own code stays small enough to be inlined.
[[noreturn]] void Raise(int number);

// Runs a statement and ignores its failure: a statement that fails has no effect. Other exceptions,
// such as the end of the page or an error of the program, are not caught.
template <class Statement>
void Ignorar(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const Failure&) {
    // The next statement runs.
  }
}

}  // namespace clinorama::base
