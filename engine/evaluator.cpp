#include "engine/evaluator.h"

#include <cmath>
#include <string>

#include "engine/checked.h"
#include "shell/Module1.h"

namespace clinorama::engine {

namespace {

/// A divisor must be larger than this, without its sign, to be divided by.
constexpr double SmallestDivisor = 0.000001;

// What the operator "/" leaves in `CodigoDominio`.
constexpr std::int16_t ZeroDivisor = 18;
constexpr std::int16_t NonZeroDivisor = 66;

void Note(double divisor) { Module1::CodigoDominio = divisor == 0 ? ZeroDivisor : NonZeroDivisor; }

Outcome Test(double divisor) {
  return std::fabs(divisor) > SmallestDivisor ? Outcome::Next : Outcome::Undone;
}

Outcome Call(const Function& function, double a, double b, double& result) {
  const Guard guard = function.formula(a, b, result);
  if (guard == Guard::Passed) [[likely]] {
    if (function.successCode != 0) {
      Module1::CodigoDominio = function.successCode;
    }
    return Outcome::Next;
  }
  if (guard == Guard::Failed) {
    Module1::CodigoDominio = function.failureCode;
  }
  return Outcome::End;
}

/// Carries out a step that needs nothing but the numbers; the programme and the walk both calculate
/// by it. The others end it, and so does a guard that fails.
/// It is made a part of both, since a call for each step would take longer than most steps do.
[[gnu::always_inline]] inline Outcome Calculate(const Step& step, double* numbers) {
  const auto left = [&] { return numbers[step.left]; };
  const auto right = [&] { return numbers[step.right]; };
  double& target = numbers[step.target];
  switch (step.op) {
    case Op::Negate:
      target = -left();
      break;
    case Op::Add:
      target = Add(left(), right());
      break;
    case Op::Subtract:
      target = Subtract(left(), right());
      break;
    case Op::Multiply:
      target = Multiply(left(), right());
      break;
    case Op::Divide:
      target = Divide(left(), right());
      break;
    case Op::IntegerDivide:
      target = IntegerQuotient(left(), right());
      break;
    case Op::Remainder:
      target = IntegerRemainder(left(), right());
      break;
    case Op::Power:
      target = Power(left(), right());
      break;
    case Op::Random:
      target = NextRandom();
      break;
    case Op::Apply:
      target = step.function->plain(left());
      break;
    case Op::Call:
      return Call(*step.function, left(), right(), target);
    case Op::NoteDivisor:
      Note(right());
      break;
    case Op::TestDivisor:
      Note(right());
      return Test(right());
    case Op::TestIntegerDivisor:
      return Test(right());
    case Op::TestAndDivide:
      Note(right());
      if (Test(right()) == Outcome::Undone) {
        return Outcome::Undone;
      }
      target = Guarded(left() / right());
      break;
    case Op::Variable:
    case Op::Stop:
    case Op::Fail:
    case Op::Result:
      return Outcome::End;
  }
  return Outcome::Next;
}

}  // namespace

/// Brings the cells to where the programme has come to, without calculating anything again.
class Avaliador::Repeticao final : public Executante {
 public:
  Outcome Perform(const Step&) override { return Outcome::Next; }
};

/// Carries the steps of a walk out at once.
class Avaliador::Calculo final : public Executante {
 public:
  Calculo(Avaliador& avaliador, const Variables& variaveis)
      : avaliador_(avaliador), variaveis_(variaveis) {}

  Outcome Perform(const Step& step) override {
    double* const numbers = avaliador_.numbers_.data();
    switch (step.op) {
      case Op::Variable:
        if (!variaveis_.Defined(step.left)) {
          avaliador_.RaiseAbout(UndefinedVariable, step.right);
        }
        numbers[step.target] = Guarded(variaveis_.Value(step.left));
        return Outcome::Next;
      case Op::Fail:
        avaliador_.RaiseAbout(step.left, step.target);
      case Op::Result:
        avaliacao_ = {false, numbers[step.left]};
        return Outcome::End;
      default:
        return Calculate(step, numbers);
    }
  }

  const Avaliacao& Come() const { return avaliacao_; }

 private:
  Avaliador& avaliador_;
  const Variables& variaveis_;
  Avaliacao avaliacao_{true, 0};  // outside the domain, unless the walk comes to a result
};

Avaliacao Avaliador::Evaluate(const Variables& variaveis) {
  double* const numbers = numbers_.data();
  for (const Uso& uso : usos_) {
    if (!variaveis.Usable(uso.slot)) [[unlikely]] {
      return Walk(0, 0, variaveis);  // it will fail at that variable, or before
    }
    numbers[uso.place] = variaveis.Value(uso.slot);
  }
  const Step* step = programa_.data();
  Outcome outcome = Outcome::Next;
  // Four to a pass, since each of the four then has a jump of its own that the machine can foresee.
  while ((outcome = Calculate(*step, numbers)) == Outcome::Next &&
         (outcome = Calculate(*++step, numbers)) == Outcome::Next &&
         (outcome = Calculate(*++step, numbers)) == Outcome::Next &&
         (outcome = Calculate(*++step, numbers)) == Outcome::Next) {
    ++step;
  }
  if (outcome == Outcome::Undone) {
    const auto visit = static_cast<std::size_t>(step->visit);
    return Walk(visit, visit + 1, variaveis);
  }
  if (step->op == Op::Fail) {
    RaiseAbout(step->left, step->target);
  }
  return step->op == Op::Result ? Avaliacao{false, numbers[step->left]} : Avaliacao{true, 0};
}

/// Makes the walk from the visit `first` on, where the programme has made the first `done` visits:
/// their results are in place, but the cells have to be brought there.
Avaliacao Avaliador::Walk(std::size_t done, std::size_t first, const Variables& variaveis) {
  Repeticao repeticao;
  Calculo calculo(*this, variaveis);
  passeio_.Restart();
  passeio_.Visit(0, done, repeticao);
  if (passeio_.Visit(first, passeio_.Visits(), calculo)) {
    passeio_.Conclude(calculo);
  }
  return calculo.Come();
}

void Avaliador::RaiseAbout(int number, std::int32_t position) const {
  const auto token = [&] { return simbolos_[static_cast<std::size_t>(position) - 1].text; };
  switch (number) {
    case UndefinedFunction:
      Raise(number, "Função não definida: " + token() + ")");
    case UndefinedVariable:
      Raise(number, "Variável não definida: " + token());
    case NoArgument:
      Raise(number, "Argumento inválido na expressão: " + token() + ")");
    default:
      Raise(number);
  }
}

}  // namespace clinorama::engine
