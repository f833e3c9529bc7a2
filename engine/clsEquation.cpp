#include "engine/clsEquation.h"

#include <utility>

#include "base/Module1.h"
#include "base/failure.h"
#include "engine/text.h"
#include "engine/tokeniser.h"

namespace clinorama {

namespace {

// The one place where failures of the engine become errors of the interpreter. What a user can do
// something about keeps its number; anything else means that the expression is no good.
[[noreturn]] void RaiseError(const base::Failure& failure) {
  const int number = failure.Number();
  const bool own = number >= base::WrongParentheses;
  if (own || number == base::InvalidArgument || number == base::Overflow ||
      number == base::DivisionByZero) {
    throw ErroInterpretador(number, failure.Description());
  }
  throw ErroInterpretador(base::InvalidExpression);
}

}  // namespace

void clsEquation::Graus(bool emGraus) {
  Alterada_ = Alterada_ || emGraus != EmGraus_;
  EmGraus_ = emGraus;
}

void clsEquation::VarClear() {
  Variaveis_.Clear();
  Alterada_ = true;
}

void clsEquation::Equation(std::string expressao) {
  Analisada_ = false;
  Alterada_ = true;
  Expressao_ = engine::LowerCase(std::move(expressao));
}

void clsEquation::VarRemove(std::string_view name) {
  Variaveis_.Remove(name);
  Alterada_ = true;
}

void clsEquation::Solve() {
  try {
    if (!Analisada_) {
      Interpretar();
    }
    ErroDominio_ = false;
    Resultado_ = ForaDoDominio;
    const double value = evaluator_.Evaluate();
    ErroDominio_ = !base::Finite(value);
    Resultado_ = ErroDominio_ ? Module1::CodigoDominio : value;
    Alterada_ = false;
  } catch (const base::Failure& failure) {
    RaiseError(failure);
  }
}

// Becomes valid only at its very end, so a text that is rejected here is rejected by every
// `Solve`.
void clsEquation::Interpretar() {
  evaluator_.Prepare(engine::Interpretar(Expressao_), Variaveis_);
  if (evaluator_.Empty()) {  // no text was ever set, or one without a single token
    base::Raise(base::IndexOutOfRange);
  }
  Analisada_ = true;
}

}  // namespace clinorama
