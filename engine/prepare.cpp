// What the evaluator does when it takes a new expression: texts become numbers, codes and slots,
// and the walk over the cells becomes a programme.

#include <algorithm>
#include <utility>

#include "engine/evaluator.h"
#include "engine/failure.h"
#include "engine/numeral.h"

namespace clinorama::engine {

namespace {

// The constants of the language have exactly these digits, which a user sees: tg(pi/2) comes out
// large and finite, and e^x is not quite exp(x).
constexpr double Pi = 3.14159265358979;
constexpr double E = 2.718281828;

Op OpOf(TokenKind kind) {
  switch (kind) {
    case TokenKind::Add:
      return Op::Add;
    case TokenKind::Subtract:
      return Op::Subtract;
    case TokenKind::Multiply:
      return Op::Multiply;
    case TokenKind::Divide:
      return Op::Divide;
    case TokenKind::IntegerDivide:
      return Op::IntegerDivide;
    case TokenKind::Remainder:
      return Op::Remainder;
    case TokenKind::Power:
      return Op::Power;
    default:
      return Op::Negate;
  }
}

}  // namespace

/// Keeps the steps of a walk in which every division is done.
class Avaliador::Gravador final : public Executante {
 public:
  explicit Gravador(Avaliador& avaliador) : avaliador_(avaliador) {}

  Outcome Perform(const Step& step) override {
    std::vector<Step>& programa = avaliador_.programa_;
    if (step.op == Op::Variable) {  // its value is put in place before the programme begins
      Use({step.left, step.target});
    } else if (step.op == Op::Divide) {  // a test has gone before: the two are one step
      const std::int32_t visit = programa.back().visit;
      programa.back() = step;
      programa.back().op = Op::TestAndDivide;
      programa.back().visit = visit;
    } else {
      programa.push_back(step);
    }
    return Outcome::Next;
  }

 private:
  void Use(const Uso& uso) {
    std::vector<Uso>& usos = avaliador_.usos_;
    if (std::none_of(usos.begin(), usos.end(),
                     [&](const Uso& other) { return other.slot == uso.slot; })) {
      usos.push_back(uso);
    }
  }

  Avaliador& avaliador_;
};

void Avaliador::Prepare(Analise analise, Variables& variaveis) {
  simbolos_ = std::move(analise.Simbolos);
  programa_.clear();
  usos_.clear();
  if (simbolos_.empty()) {
    return;
  }
  numbers_.assign(2 * (simbolos_.size() + 1), 0);
  std::vector<Celula> cells = PrepareCells();
  std::vector<Visita> visitas = PrepareVisits(analise.OrdemAvaliacao, cells, variaveis);
  passeio_ = Passeio(std::move(cells), std::move(visitas));
  Gravador gravador(*this);
  if (passeio_.Visit(0, passeio_.Visits(), gravador)) {
    passeio_.Conclude(gravador);
  }
}

/// The numbers that cells have at the start stand behind those of the results, in the same order.
std::int32_t Avaliador::InitialPlace(std::int32_t position) const {
  return static_cast<std::int32_t>(simbolos_.size()) + 1 + position;
}

std::vector<Celula> Avaliador::PrepareCells() {
  std::vector<Celula> cells(simbolos_.size() + 1);
  cells[0].failure = IndexOutOfRange;
  std::size_t previous = 0;
  for (std::size_t i = 1; i < cells.size(); ++i) {
    if (simbolos_[i - 1].kind == TokenKind::Comma) {
      continue;  // a null cell from the start
    }
    const NumeralReading reading = ReadNumeral(simbolos_[i - 1].text);
    cells[i].place = InitialPlace(static_cast<std::int32_t>(i));
    cells[i].failure = reading.failure;
    cells[i].anterior = static_cast<std::int32_t>(previous);
    cells[previous].proximo = static_cast<std::int32_t>(i);
    numbers_[static_cast<std::size_t>(cells[i].place)] = reading.value;
    previous = i;
  }
  cells[0].anterior = static_cast<std::int32_t>(previous);
  return cells;
}

std::vector<Visita> Avaliador::PrepareVisits(const std::vector<std::int32_t>& ordem,
                                             std::vector<Celula>& cells, Variables& variaveis) {
  std::vector<Visita> visitas;
  std::vector<Uso> usos;
  for (std::size_t i = 0; i < ordem.size(); ++i) {
    const Simbolo& simbolo = simbolos_[static_cast<std::size_t>(ordem[i]) - 1];
    Visita visita{.kind = simbolo.kind, .p = ordem[i], .op = OpOf(simbolo.kind)};
    if (simbolo.kind == TokenKind::Open || simbolo.kind == TokenKind::Function) {
      visita.q = ordem[++i];
      visita.function = FindFunction(simbolo.text);
    } else if (simbolo.kind == TokenKind::Name) {
      std::int32_t& place = cells[static_cast<std::size_t>(visita.p)].place;
      visita.constant = simbolo.text == "pi" || simbolo.text == "e";
      if (visita.constant) {
        numbers_[static_cast<std::size_t>(place)] = simbolo.text == "e" ? E : Pi;
      } else if (simbolo.text == "rnd") {
        visita.op = Op::Random;
      } else {
        visita.op = Op::Variable;
        visita.slot = variaveis.Slot(simbolo.text);
        place = PlaceOf({visita.slot, place}, usos);
      }
    }
    visitas.push_back(visita);
  }
  return visitas;
}

/// All cells of a variable share the place of the first of them.
std::int32_t Avaliador::PlaceOf(const Uso& uso, std::vector<Uso>& usos) {
  for (const Uso& other : usos) {
    if (other.slot == uso.slot) {
      return other.place;
    }
  }
  usos.push_back(uso);
  return uso.place;
}

}  // namespace clinorama::engine
