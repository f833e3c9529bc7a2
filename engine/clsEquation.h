#pragma once

#include <string>
#include <string_view>

#include "base/failure.h"
#include "engine/evaluator.h"
#include "engine/variables.h"

namespace clinorama {

// The error that `clsEquation::Solve` raises. Its number is 1100 (wrong count of parentheses), 1101
// (undefined function), 1102 (undefined variable), 1103 (invalid expression), 1104 (function
// without argument), 5 (invalid argument), 6 (overflow) or 11 (division by zero). The description
// is the UTF-8 text that the user reads.
class ErroInterpretador : public base::Failure {
 public:
  using Failure::Failure;
  std::string Source() const { return "Interpretador"; }
};

// The expression interpreter: holds one expression and gives its value for the present values of
// its variables. The text is taken apart once, by the first `Solve` after it was set; the
// evaluations after that one are quick.
//
// A page sets `Equation`, and for each abscissa writes `Var` "x", calls `Solve` and reads
// `Solution`. The class shows nothing and draws nothing. Its one effect outside is
// `Module1::CodigoDominio`.
class clsEquation {
 public:
  // What `Solution` gives for a point outside the domain. Most drawing routines skip it, as it lies
  // outside their bounds.
  static constexpr double ForaDoDominio = 1000.0;

  // A flag without effect: the trigonometric functions always work in radians.
  void Graus(bool emGraus);
  bool Graus() const { return emGraus_; }

  // Removes all variables.
  void VarClear();

  // Sets the expression, a UTF-8 text. Nothing is checked before the next `Solve`.
  void Equation(std::string expressao);
  // The expression in lower case.
  const std::string& Equation() const { return expressao_; }

  // Removes a variable; a name that has no value is ignored.
  void VarRemove(std::string_view name);

  // The value of the expression, `ForaDoDominio` if the point is outside its domain. Calls `Solve`
  // first if something has changed since the last `Solve` that raised nothing.
  double Solution() {
    if (alterada_) {
      Solve();
    }
    return erroDominio_ ? ForaDoDominio : resultado_;
  }

  // Evaluates the expression; raises `ErroInterpretador`. A point outside the domain raises
  // nothing: `Solution` shows it and, for most guarded operations, `Module1::CodigoDominio`.
  void Solve();

  // The value of a variable, 0 for a name that has none. Names compare without regard to case.
  double Var(std::string_view name) const { return variaveis_.Read(name); }
  void Var(std::string_view name, double value) {
    alterada_ = true;
    variaveis_.Write(name, value);
  }

 private:
  void Interpretar();

  bool alterada_ = false;   // something changed since the last `Solve` that raised nothing
  bool analisada_ = false;  // `evaluator_` belongs to `expressao_`, which has tokens
  bool erroDominio_ = false;
  bool emGraus_ = false;
  double resultado_ = 0;
  engine::Variables variaveis_;
  std::string expressao_;
  engine::Evaluator evaluator_;
};

}  // namespace clinorama
