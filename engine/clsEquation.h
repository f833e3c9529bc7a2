#pragma once

#include <string>
#include <string_view>

#include "base/failure.h"
#include "engine/evaluator.h"
#include "engine/variables.h"

namespace clinorama {

// The error that `clsEquation::Solve` raises. The numbers: 1100 wrong count of parentheses, 1101
// undefined function, 1102 undefined variable, 1103 invalid expression, 1104 function without
// argument; 5 invalid argument, 6 overflow, 11 division by zero. The description is what the user
// reads, in UTF-8.
class ErroInterpretador : public base::Failure {
 public:
  using Failure::Failure;
  std::string Source() const { return "Interpretador"; }
};

// The expression interpreter: holds one expression in some variables, most often `x`, and gives
// its value for what the variables are at the time. The text is taken apart once, at the first
// `Solve` after it was set; the evaluations that follow repeat cheaply.
//
// A page sets `Equation`, and for each abscissa writes `Var` "x", calls `Solve` and reads
// `Solution`. The class shows nothing and draws nothing. Its one effect outside is
// `Module1::CodigoDominio`.
class clsEquation {
 public:
  // What `Solution` gives for a point outside the domain; the drawing routines let their bounds
  // throw it out.
  static constexpr double ForaDoDominio = 1000.0;

  // A flag that is only kept: the trigonometric functions work in radians whatever it says.
  void Graus(bool emGraus);
  bool Graus() const { return EmGraus_; }

  // Removes all variables.
  void VarClear();

  // Sets the expression, a UTF-8 text. Nothing is checked before the next `Solve`.
  void Equation(std::string expressao);
  // The expression in lower case.
  const std::string& Equation() const { return Expressao_; }

  // Removes a variable; a name that isn't there is ignored.
  void VarRemove(std::string_view name);

  // The value of the expression, `ForaDoDominio` if the point is outside its domain. Evaluates only
  // if something has changed since the last `Solve` that raised nothing, and then raises what that
  // `Solve` raises.
  double Solution() {
    if (Alterada_) {
      Solve();
    }
    return ErroDominio_ ? ForaDoDominio : Resultado_;
  }

  // Evaluates the expression. A point outside the domain raises nothing: it is told by `Solution`
  // and, for most of the guarded operations, by `Module1::CodigoDominio`. Raises
  // `ErroInterpretador`.
  void Solve();

  // The value of a variable, 0 for a name that isn't there. Names compare without regard to case.
  double Var(std::string_view name) const { return Variaveis_.Read(name); }
  void Var(std::string_view name, double value) {
    Alterada_ = true;
    Variaveis_.Write(name, value);
  }

 private:
  void Interpretar();

  bool Alterada_ = false;   // something changed since the last `Solve` that came to its end
  bool Analisada_ = false;  // `evaluator_` belongs to `Expressao_`, which is no empty one
  bool ErroDominio_ = false;
  bool EmGraus_ = false;
  double Resultado_ = 0;
  engine::Variables Variaveis_;
  std::string Expressao_;
  engine::Evaluator evaluator_;
};

}  // namespace clinorama
