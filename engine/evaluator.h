#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/functions.h"
#include "engine/program.h"
#include "engine/tokeniser.h"
#include "engine/variables.h"

namespace clinorama::engine {

// Evaluates one expression for many values of its variables. There is no tree: a walk visits the
// tokens in order, and each of them acts on the cells beside it. Cells that are used up are null.
//
// A walk that reaches a value records its calculations as a programme, and the next evaluation runs
// that programme first. It gives the same value, as the cells that a visit finds depend on the text
// alone. There are two exceptions, and they leave no programme. A divisor that is too small leaves
// its operator in the cell, so later visits find other cells. With random numbers a programme that
// does not reach its end would have drawn some numbers already.
class Evaluator {
 public:
  // Takes a new expression. The values of its names are kept in `variables`.
  void Prepare(Analysis analysis, Variables& variables);

  // Whether the expression has no token.
  bool Empty() const { return simbolos_.empty(); }

  // The value for the present values of the variables; a not-a-number if the point is outside the
  // domain. Writes `CodigoDominio`. Raises a `base::Failure` for an undefined name, a cell that is
  // no number, or a calculation that fails.
  double Evaluate() {
    const double value = program_.Run();
    return base::Finite(value) ? value : Walk();
  }

 private:
  // A cell of the working array. Cell 0 stands for every missing one.
  struct Cell {
    std::int32_t Previous = 0;       // the nearest cell before that is not null, or 0
    std::int32_t Next = 0;           // the nearest cell behind that is not null, or 0
    int FailureNumber = 0;           // of reading it as a number; 0 if it is one
    const double* Number = nullptr;  // where its number is, if it is one
  };

  // What the name of a token stands for.
  struct Meaning {
    const LibraryFunction* Function = nullptr;  // null if the library has none of that name
    const engine::Variable* Variable = nullptr;
  };

  Cell& At(std::int32_t cell) { return celulas_[static_cast<std::size_t>(cell)]; }
  const Simbolo& SimboloAt(std::int32_t p) const {
    return simbolos_[static_cast<std::size_t>(p) - 1];
  }
  std::int32_t ProximoValor(std::int32_t p) { return At(p).Next; }
  std::int32_t ValorAnterior(std::int32_t p) { return At(p).Previous; }

  double Walk();
  bool Visit(std::int32_t p, std::int32_t q);
  void Name(std::int32_t p);
  bool Division(TokenKind kind, std::int32_t p);
  void Combine(TokenKind kind, std::int32_t p);
  void Parentheses(std::int32_t p, std::int32_t q);
  bool Call(std::int32_t p, std::int32_t q);
  double Conclude();

  const double* Read(std::int32_t cell);
  double* Receive(std::int32_t cell, double value);
  void Null(std::int32_t cell);
  void Note(std::int16_t code);
  [[noreturn]] void RaiseAbout(int number, std::int32_t p) const;

  std::vector<Simbolo> simbolos_;
  std::vector<std::int32_t> ordemAvaliacao_;
  // By position, from 1.
  std::vector<Meaning> meanings_;
  std::vector<double> constants_;  // of numerals and of names that are constants; else 0
  std::vector<double> results_;
  std::vector<Cell> initial_;
  std::vector<Cell> celulas_;

  Program program_;
  bool repeatable_ = false;  // the walk may leave a programme
  std::int16_t code_ = 0;    // the last code that the walk has written, 0 if it wrote none
};

}  // namespace clinorama::engine
