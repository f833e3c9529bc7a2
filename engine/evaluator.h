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
// tokens in their order, each acts on the cells beside it, and cells that were used up are passed
// over from then on. A walk that comes to a value leaves its calculations as a programme, which is
// tried first at the next evaluation. That gives the same values, as the cells that a visit meets
// depend on the text alone; but for divisors: one that is too small leaves its operator in its
// cell, and what follows goes another way. Then there is no programme, and neither is there one for
// random numbers, as a programme that is given up has drawn some already.
class Evaluator {
 public:
  // Takes a new expression, whose names get their places in `variables`.
  void Prepare(Analysis analysis, Variables& variables);

  // Whether there is anything to evaluate.
  bool Empty() const { return simbolos_.empty(); }

  // The value for what the variables are now; not a number if the point is outside the domain.
  // Writes `CodigoDominio`; fails with the failures of the arithmetic, of names and of cells that
  // aren't numbers.
  double Evaluate() {
    const double value = program_.Run();
    return base::Finite(value) ? value : Walk();
  }

 private:
  // A cell of the working array. Cell 0 stands for every missing one.
  struct Cell {
    std::int32_t previous = 0;       // the nearest cell before that isn't null, 0 if there is none
    std::int32_t next = 0;           // the nearest cell behind that isn't null, 0 if there is none
    int failure = 0;                 // what reading it as a number fails with, 0 if it reads well
    const double* number = nullptr;  // where its number is, once it reads well
  };

  // What a token stands for, if it is a name.
  struct Meaning {
    const Function* function = nullptr;  // null also if the library does not know it
    const Variable* variable = nullptr;
  };

  Cell& At(std::int32_t cell) { return celulas_[static_cast<std::size_t>(cell)]; }
  const Simbolo& SimboloAt(std::int32_t p) const {
    return simbolos_[static_cast<std::size_t>(p) - 1];
  }
  std::int32_t ProximoValor(std::int32_t p) { return At(p).next; }
  std::int32_t ValorAnterior(std::int32_t p) { return At(p).previous; }

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
  bool repeatable_ = false;  // the walk may become a programme
  std::int16_t code_ = 0;    // that the walk has left in `CodigoDominio`, 0 for none
};

}  // namespace clinorama::engine
