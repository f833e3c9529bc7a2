#include "engine/clsEquation.h"

#include <utility>

#include "base/Module1.h"
#include "base/failure.h"
#include "engine/text.h"
#include "engine/tokeniser.h"

namespace clinorama {

namespace {

// Turns a failure into the error that callers see. The interpreter's own failures and those of the
// arithmetic keep their number; every other one becomes 1103.
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
  alterada_ = alterada_ || emGraus != emGraus_;
  emGraus_ = emGraus;
}

void clsEquation::VarClear() {
  variaveis_.Clear();
  alterada_ = true;
}

void clsEquation::Equation(std::string expressao) {
  analisada_ = false;
  alterada_ = true;
  expressao_ = engine::LowerCase(std::move(expressao));
}

void clsEquation::VarRemove(std::string_view name) {
  variaveis_.Remove(name);
  alterada_ = true;
}

void clsEquation::Solve() {
  try {
    if (!analisada_) {
      Interpretar();
    }
    erroDominio_ = false;
    resultado_ = ForaDoDominio;
    const double value = evaluator_.Evaluate();
    erroDominio_ = !base::Finite(value);
    resultado_ = erroDominio_ ? Module1::CodigoDominio : value;
    alterada_ = false;
  } catch (const base::Failure& failure) {
    RaiseError(failure);
  }
}

// Takes the text apart. The flag is set last, so a text that fails here fails at every `Solve`.
void clsEquation::Interpretar() {
  evaluator_.Prepare(engine::Interpretar(expressao_), variaveis_);
  if (evaluator_.Empty()) {  // no text was set, or the text has no token
    base::Raise(base::IndexOutOfRange);
  }
  analisada_ = true;
}

}  // namespace clinorama
