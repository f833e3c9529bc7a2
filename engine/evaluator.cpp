#include "engine/evaluator.h"

#include <algorithm>
#include <string>

#include "base/checked.h"

namespace clinorama::engine {

using namespace base;

// Brings the cells to where the programme has come to, without calculating anything again.
class Avaliador::Repeticao final : public Executante {
 public:
  Outcome Perform(const Step&) override { return Outcome::Next; }
};

// Carries the steps of a walk out at once.
class Avaliador::Calculo final : public Executante {
 public:
  Calculo(Avaliador& avaliador, const Variables& variaveis)
      : avaliador_(avaliador), variaveis_(variaveis) {}

  Outcome Perform(const Step& step) override {
    switch (step.op) {
      case Op::Variable:
        if (!variaveis_.Defined(step.left)) {
          avaliador_.RaiseAbout(UndefinedVariable, step.right);
        }
        Guarded(*variaveis_.Value(step.left));
        return Outcome::Next;
      case Op::Fail:
        avaliador_.RaiseAbout(step.left, step.target);
      case Op::Result:
        avaliacao_ = {false, *avaliador_.Ready(step).left};
        return Outcome::End;
      default:
        return Calculate(step);
    }
  }

  const Avaliacao& Come() const { return avaliacao_; }

 private:
  // The step is a programme of its own, with an end behind it.
  Outcome Calculate(const Step& step) {
    const Instruction programa[] = {avaliador_.Ready(step), avaliador_.Ready({.op = Op::Stop})};
    if (programa->routine(programa) != programa) {
      return Outcome::Next;
    }
    const bool test = step.op == Op::TestDivisor || step.op == Op::TestIntegerDivisor;
    return test ? Outcome::Undone : Outcome::End;
  }

  Avaliador& avaliador_;
  const Variables& variaveis_;
  Avaliacao avaliacao_{true, 0};  // outside the domain, unless the walk comes to a result
};

// Whether the programme can be carried out with the values that there are now.
bool Avaliador::Usable(const Variables& variaveis) {
  const bool usable = std::all_of(slots_.begin(), slots_.end(),
                                  [&](std::int32_t slot) { return variaveis.Usable(slot); });
  if (usable) {
    changes_ = variaveis.Changes();
  }
  return usable;
}

// What comes of a programme that ended before its result.
Avaliacao Avaliador::Interrupted(const Step& by, const Variables& variaveis) {
  switch (by.op) {
    case Op::TestDivisor:
    case Op::TestIntegerDivisor:
    case Op::TestAndDivide: {
      const auto visit = static_cast<std::size_t>(by.visit);
      return Walk(visit, visit + 1, variaveis);
    }
    case Op::Fail:
      RaiseAbout(by.left, by.target);
    default:
      return {true, 0};
  }
}

// Makes the walk from the visit `first` on, where the programme has made the first `done` visits:
// their results are in place, but the cells have to be brought there.
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
  std::string description = Failure(number).Description();
  if (number == UndefinedFunction || number == UndefinedVariable || number == NoArgument) {
    const Simbolo& token = simbolos_[static_cast<std::size_t>(position) - 1];
    description += token.text + (token.kind == TokenKind::Function ? ")" : "");
  }
  throw Failure(number, description);
}

}  // namespace clinorama::engine
