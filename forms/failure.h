#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

namespace clinorama::forms {

// A numbered failure of a statement of a page: 5 invalid argument, 6 overflow, 9 index out of
// range, 11 division by zero, 13 type mismatch, 91 object absent.
class Failure : public std::runtime_error {
 public:
  Failure(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  int Number() const { return number_; }
  std::string Description() const { return what(); }

 private:
  int number_;
};

// Failure 6: a number too large for the place where it is to be stored.
inline Failure Overflow() { return {6, "Excesso de capacidade."}; }

// Failure 13: a value that is not of the kind asked for.
inline Failure TypeMismatch() { return {13, "Tipos incompatíveis."}; }

// The mode of ignored failures: a statement that fails has no effect, and the next one runs. What
// is no failure of a statement (the end of the page or of the program) passes through.
template <class Statement>
void Ignorar(Statement&& statement) {
  try {
    statement();
  } catch (const std::exception&) {
    // Without effect, and without a word.
  }
}

}  // namespace clinorama::forms
