#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/tokeniser.h"
#include "engine/variables.h"
#include "engine/walk.h"

namespace clinorama::engine {

/// What an evaluation that didn't fail comes to.
struct Avaliacao {
  bool erroDominio;  ///< the point is outside the domain
  double resultado;  ///< the value, where it isn't
};

/// Evaluates one expression for many values of its variables. When the text is set, the walk over
/// its cells is made once without values and its steps are kept, so that a sample is one pass over
/// a list of plain steps: it looks at no text, allocates nothing and searches no table. The walk
/// itself is made again only where a divisor is too small, from there on, and where a variable of
/// the programme has no value.
class Avaliador {
 public:
  /// Takes a new expression, whose names get their slots in `variaveis`.
  void Prepare(Analise analise, Variables& variaveis);

  /// Whether there is anything to evaluate.
  bool Empty() const { return programa_.empty(); }

  /// Evaluates with the values that `variaveis` holds now. Writes `CodigoDominio`; fails with the
  /// failures of the arithmetic, of names and of cells that aren't numbers.
  Avaliacao Evaluate(const Variables& variaveis);

 private:
  class Gravador;
  class Calculo;
  class Repeticao;

  /// A variable of the programme: where its value comes from and where it goes.
  struct Uso {
    std::int32_t slot;
    std::int32_t place;
  };

  std::vector<Celula> PrepareCells();
  std::vector<Visita> PrepareVisits(const std::vector<std::int32_t>& ordem,
                                    std::vector<Celula>& cells, Variables& variaveis);
  std::int32_t InitialPlace(std::int32_t position) const;
  static std::int32_t PlaceOf(const Uso& uso, std::vector<Uso>& usos);

  Avaliacao Walk(std::size_t done, std::size_t first, const Variables& variaveis);
  [[noreturn]] void RaiseAbout(int number, std::int32_t position) const;

  std::vector<Simbolo> simbolos_;
  Passeio passeio_;
  std::vector<Step> programa_;
  std::vector<Uso> usos_;
  std::vector<double> numbers_;  // by place: first the results, then what cells have at the start
};

}  // namespace clinorama::engine
