#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/instructions.h"
#include "engine/tokeniser.h"
#include "engine/variables.h"
#include "engine/walk.h"

namespace clinorama::engine {

// What an evaluation that didn't fail comes to.
struct Avaliacao {
  bool erroDominio;  // the point is outside the domain
  double resultado;  // the value, where it isn't
};

// Evaluates one expression for many values of its variables. When the text is set, the walk over
// its cells is made once without values and its steps are kept, so that a sample is one pass over
// a list of plain steps: it looks at no text, allocates nothing and searches no table. The walk
// itself is made again only where a divisor is too small, from there on, and where a variable of
// the programme has no value.
class Avaliador {
 public:
  // Takes a new expression, whose names get their slots in `variaveis`.
  void Prepare(Analise analise, Variables& variaveis);

  // Whether there is anything to evaluate.
  bool Empty() const { return programa_.empty(); }

  // Evaluates with the values that `variaveis` holds now. Writes `CodigoDominio`; fails with the
  // failures of the arithmetic, of names and of cells that aren't numbers.
  Avaliacao Evaluate(const Variables& variaveis) {
    if (changes_ != variaveis.Changes() && !Usable(variaveis)) [[unlikely]] {
      return Walk(0, 0, variaveis);  // it will fail at that variable, or before
    }
    const Instruction* const end = programa_.front().routine(programa_.data());
    if (end->step.op == Op::Result) [[likely]] {
      return {false, *end->left};
    }
    return Interrupted(end->step, variaveis);
  }

 private:
  class Gravador;
  class Calculo;
  class Repeticao;

  std::vector<Celula> PrepareCells();
  std::vector<Visita> PrepareVisits(const std::vector<std::int32_t>& ordem, Variables& variaveis);
  std::int32_t InitialPlace(std::int32_t position) const;
  Instruction Ready(const Step& step);
  Op PowerOf(std::int32_t exponent) const;

  bool Usable(const Variables& variaveis);
  Avaliacao Interrupted(const Step& by, const Variables& variaveis);
  Avaliacao Walk(std::size_t done, std::size_t first, const Variables& variaveis);
  [[noreturn]] void RaiseAbout(int number, std::int32_t position) const;

  std::vector<Simbolo> simbolos_;
  Passeio passeio_;
  std::vector<Instruction> programa_;
  std::vector<std::int32_t> slots_;  // of the variables that the programme uses
  std::uint64_t changes_ = 0;    // of the variables, when all of those were last seen to be usable
  std::vector<double> numbers_;  // by place: first the results, then what cells have at the start
  std::vector<const double*> sources_;  // by place: in `numbers_`, or among the variables
};

}  // namespace clinorama::engine
