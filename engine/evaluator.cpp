#include "engine/evaluator.h"

#include <string>
#include <utility>

#include "base/Module1.h"
#include "base/checked.h"
#include "engine/numeral.h"

namespace clinorama::engine {

using namespace base;

namespace {

// The constants of the language have exactly these digits. The user sees it: tg(pi/2) is large and
// finite, and e^x differs a little from exp(x).
constexpr double Pi = 3.14159265358979;
constexpr double E = 2.718281828;

constexpr const char* RandomName = "rnd";

// What the operator "/" writes to `CodigoDominio`.
constexpr std::int16_t ZeroDivisor = 18;
constexpr std::int16_t NonZeroDivisor = 66;

double Calculate(TokenKind kind, double l, double r) {
  switch (kind) {
    case TokenKind::Add:
      return Add(l, r);
    case TokenKind::Subtract:
      return Subtract(l, r);
    case TokenKind::Multiply:
      return Multiply(l, r);
    case TokenKind::Divide:
      return Divide(l, r);
    case TokenKind::IntegerDivide:
      return IntegerQuotient(l, r);
    case TokenKind::Remainder:
      return IntegerRemainder(l, r);
    default:
      return Power(l, r);
  }
}

}  // namespace

void Evaluator::Prepare(Analysis analysis, Variables& variables) {
  simbolos_ = std::move(analysis.Simbolos);
  ordemAvaliacao_ = std::move(analysis.OrdemAvaliacao);
  program_.Clear();
  const std::size_t size = simbolos_.size() + 1;
  meanings_.assign(size, {});
  constants_.assign(size, 0);
  results_.assign(size, 0);
  initial_.assign(size, {});
  initial_[0].FailureNumber = IndexOutOfRange;

  std::int32_t previous = 0;
  for (std::size_t p = 1; p < size; ++p) {
    const auto& [kind, text] = simbolos_[p - 1];
    if (kind == TokenKind::Comma) {
      continue;  // its cell is null from the start
    }
    const NumeralReading reading = ReadNumeral(text);
    constants_[p] = reading.Value;
    Cell& cell = initial_[p];
    cell = {.Previous = previous, .FailureNumber = reading.FailureNumber, .Number = &constants_[p]};
    if (kind == TokenKind::Function) {
      meanings_[p].Function = FindFunction(text);
    } else if (text == "pi" || text == "e") {
      constants_[p] = text == "e" ? E : Pi;
    } else if (text == RandomName) {
      cell.Number = &results_[p];
    } else if (kind == TokenKind::Name) {
      meanings_[p].Variable = &variables.At(text);
      cell.Number = &meanings_[p].Variable->Value;
    }
    initial_[static_cast<std::size_t>(previous)].Next = static_cast<std::int32_t>(p);
    previous = static_cast<std::int32_t>(p);
  }
  initial_[0].Previous = previous;
}

double Evaluator::Walk() {
  celulas_ = initial_;  // of the same size from the second time on, so nothing is allocated
  program_.Clear();
  repeatable_ = true;
  code_ = 0;
  for (std::size_t i = 0; i < ordemAvaliacao_.size(); ++i) {
    const std::int32_t p = ordemAvaliacao_[i];
    const TokenKind kind = SimboloAt(p).Kind;
    const bool opens = kind == TokenKind::Open || kind == TokenKind::Function;
    if (!Visit(p, opens ? ordemAvaliacao_[++i] : 0)) {
      return NotANumber;
    }
  }
  return Conclude();
}

// Visits the token at p. If it opens a pair of parentheses, q is the position of its ")". False if
// the point is outside the domain.
bool Evaluator::Visit(std::int32_t p, std::int32_t q) {
  const TokenKind kind = SimboloAt(p).Kind;
  switch (kind) {
    case TokenKind::Negate: {
      const std::int32_t r = ProximoValor(p);
      const double* const operand = Read(r);
      program_.Add(kind, operand, operand, Receive(p, -*operand));
      Null(r);
      return true;
    }
    case TokenKind::Name:
      Name(p);
      return true;
    case TokenKind::Divide:
    case TokenKind::IntegerDivide:
    case TokenKind::Remainder:
      return Division(kind, p);
    case TokenKind::Open:
      Parentheses(p, q);
      return true;
    case TokenKind::Function:
      return Call(p, q);
    default:
      Combine(kind, p);
      return true;
  }
}

void Evaluator::Name(std::int32_t p) {
  const Variable* const variable = meanings_[static_cast<std::size_t>(p)].Variable;
  if (variable != nullptr) {
    if (!variable->Defined) {
      RaiseAbout(UndefinedVariable, p);
    }
    Guarded(variable->Value);
  } else if (SimboloAt(p).Text == RandomName) {
    repeatable_ = false;
    Receive(p, NextRandom());
  }
  At(p).FailureNumber = 0;
}

// The real division reads its divisor and writes the code before it looks for a missing operand.
// The integer divisions look for a missing operand first.
bool Evaluator::Division(TokenKind kind, std::int32_t p) {
  const std::int32_t l = ValorAnterior(p);
  const std::int32_t r = ProximoValor(p);
  if (kind == TokenKind::Divide) {
    Note(*Read(r) == 0 ? ZeroDivisor : NonZeroDivisor);
  }
  if (l == 0 || r == 0) {
    return false;
  }
  if (Divides(*Read(r))) {
    Combine(kind, p);
  } else {  // the operator and its operands stay in their cells
    repeatable_ = false;
  }
  return true;
}

// Carries a binary operation out. Its result goes to the left cell.
void Evaluator::Combine(TokenKind kind, std::int32_t p) {
  const std::int32_t l = ValorAnterior(p);
  const std::int32_t r = ProximoValor(p);
  const double* const left = Read(l);
  const double* const right = Read(r);
  program_.Add(kind, left, right, Receive(l, Calculate(kind, *left, *right)));
  Null(r);
  Null(p);
}

// Moves the first cell inside out as it is. It may hold a number or an operator that was left.
void Evaluator::Parentheses(std::int32_t p, std::int32_t q) {
  const std::int32_t r = ProximoValor(p);
  if (r < q) {
    At(p).Number = At(r).Number;
    At(p).FailureNumber = At(r).FailureNumber;
    Null(r);
  } else {  // nothing inside gives 0, the number that "(" has from the start
    At(p).FailureNumber = 0;
  }
  Null(q);
}

bool Evaluator::Call(std::int32_t p, std::int32_t q) {
  const std::int32_t first = ProximoValor(p);
  const std::int32_t last = ValorAnterior(q);
  // A call without an argument, or with one that is no number, fails before the name is looked at.
  if (first >= q) {
    RaiseAbout(NoArgument, p);
  }
  const double* const a = Read(first);
  const double* const b = Read(last);
  const LibraryFunction* const function = meanings_[static_cast<std::size_t>(p)].Function;
  if (function == nullptr) {
    RaiseAbout(UndefinedFunction, p);
  }
  const Returned returned = function->Compute(*a, *b);
  if (returned.Guard != GuardResult::Passed) {
    if (returned.Guard == GuardResult::Failed) {
      Note(function->FailureCode);
    }
    return false;
  }
  if (function->SuccessCode != 0) {
    Note(function->SuccessCode);
  }
  repeatable_ = repeatable_ && !function->Random;
  program_.Add(TokenKind::Function, a, b, Receive(p, returned.Value), function->Compute);
  Null(last);  // it may be the first cell too; the cells between the two are not used up
  Null(first);
  Null(q);
  return true;
}

// The value is the first cell left, whatever stands behind it. Numbers behind it were calculated
// too, and the programme must notice where one of them fails.
double Evaluator::Conclude() {
  std::int32_t cell = ProximoValor(0);
  const double* const value = Read(cell);
  if (repeatable_) {
    program_.Result(value, results_.data());
    while ((cell = ProximoValor(cell)) != 0) {
      if (At(cell).FailureNumber == 0) {
        program_.Check(At(cell).Number);
      }
    }
    program_.Finish(code_);
  }
  return *value;
}

// Where the number of the cell is; fails if the cell holds none.
const double* Evaluator::Read(std::int32_t cell) {
  if (At(cell).FailureNumber != 0) {
    Raise(At(cell).FailureNumber);
  }
  return At(cell).Number;
}

// Puts a result into the cell.
double* Evaluator::Receive(std::int32_t cell, double value) {
  double* const result = &results_[static_cast<std::size_t>(cell)];
  *result = value;
  At(cell).Number = result;
  At(cell).FailureNumber = 0;
  return result;
}

// Joins the neighbours of the cell to each other. Cell 0 is the neighbour of the first and of the
// last cell.
void Evaluator::Null(std::int32_t cell) {
  const Cell gone = At(cell);
  At(gone.Previous).Next = gone.Next;
  At(gone.Next).Previous = gone.Previous;
}

// Writes the code of a guarded operation.
void Evaluator::Note(std::int16_t code) {
  Module1::CodigoDominio = code;
  code_ = code;
}

// Raises a failure whose description ends with the token at p.
void Evaluator::RaiseAbout(int number, std::int32_t p) const {
  const auto& [kind, text] = SimboloAt(p);
  const char* const end = kind == TokenKind::Function ? ")" : "";
  throw Failure(number, Failure(number).Description() + text + end);
}

}  // namespace clinorama::engine
