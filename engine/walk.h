#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/functions.h"
#include "engine/tokeniser.h"

// How an expression is evaluated without a tree: every visited token acts on the cells beside it,
// and cells that were used up are passed over from then on. This file knows which cells those are
// and in which order things are checked; it knows no values. What is to be calculated it hands out
// as steps, which are either carried out at once or kept as a programme for the samples to come
// (evaluator.h). That works because the cells that a visit meets depend on the text alone, but for
// divisors: where one is too small the operator stays in its cell, and the walk goes another way.
namespace clinorama::engine {

enum class Op : std::uint8_t {
  Negate,  // target = -left
  Add,     // target = left + right, and so on down to `Power`
  Subtract,
  Multiply,
  Divide,
  IntegerDivide,
  Remainder,
  Power,
  Square,              // `Power` where right is sure to be 2
  Cube,                // `Power` where right is sure to be 3
  Random,              // target = a random number
  Apply,               // target = `function`, which is a plain one, of left
  Call,                // target = `function` of left and right
  NoteDivisor,         // tells by `CodigoDominio` whether right is zero
  TestDivisor,         // notes the divisor; then goes on unless right is too small to divide by
  TestIntegerDivisor,  // the same without noting it
  TestAndDivide,       // `TestDivisor` and `Divide` in one
  Variable,            // uses the value of the slot `left`, named by the token at `right`
  Stop,                // the point is outside the domain, as an operator lacks an operand
  Fail,                // fails with the number `left`, which is about the token at `target`
  Result,              // left is the value of the expression
};

// One thing to calculate. The operands are places (see `Celula`), except where the list above says
// otherwise.
struct Step {
  Op op;
  std::int32_t target = 0;
  std::int32_t left = 0;
  std::int32_t right = 0;
  std::int32_t visit = 0;  // index of the visit that a test belongs to
  const Function* function = nullptr;
};

enum class Outcome : std::uint8_t {
  Next,
  Undone,  // a test found its divisor too small
  End,     // nothing more is to be calculated
};

// Takes the steps of a walk.
class Executante {
 public:
  virtual Outcome Perform(const Step& step) = 0;

 protected:
  ~Executante() = default;
};

// A cell of the working array. Its number is kept at a *place*: the cell's own position where it
// is a result, and a place given beforehand where it is a numeral, a constant or a variable. No
// result ever overwrites those, so nothing has to be set up anew for the next sample.
struct Celula {
  std::int32_t anterior;  // the nearest cell before that isn't null, 0 if there is none
  std::int32_t proximo;   // the nearest cell behind that isn't null, 0 if there is none
  std::int32_t place;
  std::int32_t failure;  // what reading it as a number fails with, 0 if it reads well
};

// An entry of the order of evaluation, ready to be visited.
struct Visita {
  TokenKind kind = TokenKind::Name;
  std::int32_t p = 0;                  // position of the token
  std::int32_t q = 0;                  // position of the ")" that closes an opening token
  Op op{};                             // what an operator or a name calculates
  bool constant = false;               // a name that needs no calculation
  std::int32_t slot = 0;               // of a variable
  const Function* function = nullptr;  // null if the library does not know the name
};

// The walk over the cells.
class Passeio {
 public:
  Passeio() = default;

  // `celulas` begins with cell 0, which stands for every missing one.
  Passeio(std::vector<Celula> celulas, std::vector<Visita> visitas);

  std::size_t Visits() const { return visitas_.size(); }

  // Puts the cells back as the text has them; allocates nothing.
  void Restart();

  // Makes the visits from `first` to the one before `last`. False if the walk ended on the way.
  bool Visit(std::size_t first, std::size_t last, Executante& by);

  // Hands out the value of the expression: the first cell left, whatever stands behind it.
  void Conclude(Executante& by);

 private:
  Celula& At(std::int32_t cell) { return celulas_[static_cast<std::size_t>(cell)]; }
  std::int32_t ProximoValor(std::int32_t cell) { return At(cell).proximo; }
  std::int32_t ValorAnterior(std::int32_t cell) { return At(cell).anterior; }

  bool Readable(std::int32_t cell, Executante& by);
  void Receive(std::int32_t cell);
  void Null(std::int32_t cell);

  Outcome VisitOne(std::size_t index, Executante& by);
  Outcome Minus(const Visita& visita, Executante& by);
  Outcome Name(const Visita& visita, Executante& by);
  Outcome Binary(const Visita& visita, Executante& by);
  Outcome Division(const Visita& visita, std::size_t index, Executante& by);
  Outcome Combine(const Visita& visita, Executante& by);
  Outcome Parentheses(const Visita& visita);
  Outcome Call(const Visita& visita, Executante& by);

  std::vector<Celula> initial_;
  std::vector<Celula> celulas_;
  std::vector<Visita> visitas_;
};

}  // namespace clinorama::engine
