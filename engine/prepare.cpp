// What the evaluator does when it takes a new expression: texts become numbers, codes and slots,
// and the walk over the cells becomes a programme.

#include <utility>

#include "base/failure.h"
#include "engine/evaluator.h"
#include "engine/numeral.h"

namespace clinorama::engine {

using namespace base;

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

// Keeps the steps of a walk in which every division is done.
class Avaliador::Gravador final : public Executante {
 public:
  explicit Gravador(Avaliador& avaliador) : avaliador_(avaliador) {}

  Outcome Perform(const Step& step) override {
    std::vector<Instruction>& programa = avaliador_.programa_;
    Step kept = step;
    switch (step.op) {
      case Op::Variable:  // its value is looked for before the programme begins
        avaliador_.slots_.push_back(step.left);
        return Outcome::Next;
      case Op::Divide:  // a test has gone before: the two are one step
        kept.op = Op::TestAndDivide;
        kept.visit = programa.back().step.visit;
        programa.pop_back();
        break;
      case Op::Power:
        kept.op = avaliador_.PowerOf(step.right);
        break;
      default:
        break;
    }
    programa.push_back(avaliador_.Ready(kept));
    return Outcome::Next;
  }

 private:
  Avaliador& avaliador_;
};

void Avaliador::Prepare(Analise analise, Variables& variaveis) {
  simbolos_ = std::move(analise.Simbolos);
  programa_.clear();
  slots_.clear();
  changes_ = 0;
  if (simbolos_.empty()) {
    return;
  }
  numbers_.assign(2 * (simbolos_.size() + 1), 0);
  sources_.clear();
  for (const double& number : numbers_) {
    sources_.push_back(&number);
  }
  std::vector<Celula> cells = PrepareCells();
  std::vector<Visita> visitas = PrepareVisits(analise.OrdemAvaliacao, variaveis);
  passeio_ = Passeio(std::move(cells), std::move(visitas));
  Gravador gravador(*this);
  if (passeio_.Visit(0, passeio_.Visits(), gravador)) {
    passeio_.Conclude(gravador);
  }
}

// The numbers that cells have at the start stand behind those of the results, in the same order.
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
                                             Variables& variaveis) {
  std::vector<Visita> visitas;
  for (std::size_t i = 0; i < ordem.size(); ++i) {
    const Simbolo& simbolo = simbolos_[static_cast<std::size_t>(ordem[i]) - 1];
    Visita visita{.kind = simbolo.kind, .p = ordem[i], .op = OpOf(simbolo.kind)};
    if (simbolo.kind == TokenKind::Open || simbolo.kind == TokenKind::Function) {
      visita.q = ordem[++i];
      visita.function = FindFunction(simbolo.text);
    } else if (simbolo.kind == TokenKind::Name) {
      const auto place = static_cast<std::size_t>(InitialPlace(visita.p));
      visita.constant = simbolo.text == "pi" || simbolo.text == "e";
      if (visita.constant) {
        numbers_[place] = simbolo.text == "e" ? E : Pi;
      } else if (simbolo.text == "rnd") {
        visita.op = Op::Random;
      } else {
        visita.op = Op::Variable;
        visita.slot = variaveis.Slot(simbolo.text);
        sources_[place] = variaveis.Value(visita.slot);
      }
    }
    visitas.push_back(visita);
  }
  return visitas;
}

// The step with its operands found. The fields of those that calculate nothing are no places, but
// for the one of a result.
Instruction Avaliador::Ready(const Step& step) {
  Instruction instruction{.routine = RoutineOf(step.op), .step = step};
  if (step.op < Op::Variable || step.op == Op::Result) {
    instruction.target = &numbers_[static_cast<std::size_t>(step.target)];
    instruction.left = sources_[static_cast<std::size_t>(step.left)];
    instruction.right = sources_[static_cast<std::size_t>(step.right)];
  }
  return instruction;
}

// How to raise to the exponent at that place: squares and cubes are what pupils write most.
Op Avaliador::PowerOf(std::int32_t exponent) const {
  const std::int32_t first = InitialPlace(1);
  if (exponent < first ||
      simbolos_[static_cast<std::size_t>(exponent - first)].kind != TokenKind::Numeral) {
    return Op::Power;
  }
  const double value = numbers_[static_cast<std::size_t>(exponent)];
  return value == 2 ? Op::Square : value == 3 ? Op::Cube : Op::Power;
}

}  // namespace clinorama::engine
