#include "engine/evaluator.h"

#include <string>
#include <utility>

#include "base/Module1.h"
#include "base/checked.h"
#include "engine/numeral.h"

namespace clinorama::engine {

using namespace base;

namespace {

// The constants of the language have exactly these digits, which a user sees: tg(pi/2) comes out
// large and finite, and e^x is not quite exp(x).
constexpr double Pi = 3.14159265358979;
constexpr double E = 2.718281828;

constexpr const char* RandomName = "rnd";

// What the operator "/" leaves in `CodigoDominio`.
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
  simbolos_ = std::move(analysis.simbolos);
  ordemAvaliacao_ = std::move(analysis.ordemAvaliacao);
  program_.Clear();
  const std::size_t size = simbolos_.size() + 1;
  meanings_.assign(size, {});
  constants_.assign(size, 0);
  results_.assign(size, 0);
  initial_.assign(size, {});
  initial_[0].failure = IndexOutOfRange;

  std::int32_t previous = 0;
  for (std::size_t p = 1; p < size; ++p) {
    const auto& [kind, text] = simbolos_[p - 1];
    if (kind == TokenKind::Comma) {
      continue;  // a null cell from the start
    }
    const NumeralReading reading = ReadNumeral(text);
    constants_[p] = reading.value;
    Cell& cell = initial_[p];
    cell = {.previous = previous, .failure = reading.failure, .number = &constants_[p]};
    if (kind == TokenKind::Function) {
      meanings_[p].function = FindFunction(text);
    } else if (text == "pi" || text == "e") {
      constants_[p] = text == "e" ? E : Pi;
    } else if (text == RandomName) {
      cell.number = &results_[p];
    } else if (kind == TokenKind::Name) {
      meanings_[p].variable = &variables.At(text);
      cell.number = &meanings_[p].variable->value;
    }
    initial_[static_cast<std::size_t>(previous)].next = static_cast<std::int32_t>(p);
    previous = static_cast<std::int32_t>(p);
  }
  initial_[0].previous = previous;
}

double Evaluator::Walk() {
  celulas_ = initial_;  // of the same size from the second time on, so nothing is allocated
  program_.Clear();
  repeatable_ = true;
  code_ = 0;
  for (std::size_t i = 0; i < ordemAvaliacao_.size(); ++i) {
    const std::int32_t p = ordemAvaliacao_[i];
    const TokenKind kind = SimboloAt(p).kind;
    const bool opens = kind == TokenKind::Open || kind == TokenKind::Function;
    if (!Visit(p, opens ? ordemAvaliacao_[++i] : 0)) {
      return NotANumber;
    }
  }
  return Conclude();
}

// Visits the token at p; q is the position of the ")" of one that opens. False if the point is
// outside the domain.
bool Evaluator::Visit(std::int32_t p, std::int32_t q) {
  const TokenKind kind = SimboloAt(p).kind;
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
  const Variable* const variable = meanings_[static_cast<std::size_t>(p)].variable;
  if (variable != nullptr) {
    if (!variable->defined) {
      RaiseAbout(UndefinedVariable, p);
    }
    Guarded(variable->value);
  } else if (SimboloAt(p).text == RandomName) {
    repeatable_ = false;
    Receive(p, NextRandom());
  }
  At(p).failure = 0;
}

// The real division reads its divisor first of all, and tells what it found even where the left
// operand is missing; the integer ones look first whether both operands are there.
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
  } else {  // the operator and both operands stay, whatever is in the left cell
    repeatable_ = false;
  }
  return true;
}

// The result of a binary operation takes the left cell.
void Evaluator::Combine(TokenKind kind, std::int32_t p) {
  const std::int32_t l = ValorAnterior(p);
  const std::int32_t r = ProximoValor(p);
  const double* const left = Read(l);
  const double* const right = Read(r);
  program_.Add(kind, left, right, Receive(l, Calculate(kind, *left, *right)));
  Null(r);
  Null(p);
}

// Takes the first cell inside as it stands, be it a number or an operator that was left there.
void Evaluator::Parentheses(std::int32_t p, std::int32_t q) {
  const std::int32_t r = ProximoValor(p);
  if (r < q) {
    At(p).number = At(r).number;
    At(p).failure = At(r).failure;
    Null(r);
  } else {  // nothing inside is 0, which is what the number of "(" is from the start
    At(p).failure = 0;
  }
  Null(q);
}

bool Evaluator::Call(std::int32_t p, std::int32_t q) {
  const std::int32_t first = ProximoValor(p);
  const std::int32_t last = ValorAnterior(q);
  // An empty call is told before the name is looked at, and so is an argument that isn't a number.
  if (first >= q) {
    RaiseAbout(NoArgument, p);
  }
  const double* const a = Read(first);
  const double* const b = Read(last);
  const Function* const function = meanings_[static_cast<std::size_t>(p)].function;
  if (function == nullptr) {
    RaiseAbout(UndefinedFunction, p);
  }
  const Returned returned = function->formula(*a, *b);
  if (returned.guard != Guard::Passed) {
    if (returned.guard == Guard::Failed) {
      Note(function->failureCode);
    }
    return false;
  }
  if (function->successCode != 0) {
    Note(function->successCode);
  }
  repeatable_ = repeatable_ && !function->random;
  program_.Add(TokenKind::Function, a, b, Receive(p, returned.value), function->formula);
  Null(last);  // which may be the first too; what stands between them is left behind
  Null(first);
  Null(q);
  return true;
}

// The value is the first cell left, whatever stands behind it. What does stand there may have been
// calculated too, and the programme has to see that it can be.
double Evaluator::Conclude() {
  std::int32_t cell = ProximoValor(0);
  const double* const value = Read(cell);
  if (repeatable_) {
    program_.Result(value, results_.data());
    while ((cell = ProximoValor(cell)) != 0) {
      if (At(cell).failure == 0) {
        program_.Check(At(cell).number);
      }
    }
    program_.Finish(code_);
  }
  return *value;
}

// Where the number of the cell is; fails if it holds none.
const double* Evaluator::Read(std::int32_t cell) {
  if (At(cell).failure != 0) {
    Raise(At(cell).failure);
  }
  return At(cell).number;
}

// The cell holds that result from now on.
double* Evaluator::Receive(std::int32_t cell, double value) {
  double* const result = &results_[static_cast<std::size_t>(cell)];
  *result = value;
  At(cell).number = result;
  At(cell).failure = 0;
  return result;
}

// Its neighbours become neighbours of each other. Cell 0 is on both ends of the row.
void Evaluator::Null(std::int32_t cell) {
  const Cell gone = At(cell);
  At(gone.previous).next = gone.next;
  At(gone.next).previous = gone.previous;
}

void Evaluator::Note(std::int16_t code) {
  Module1::CodigoDominio = code;
  code_ = code;
}

void Evaluator::RaiseAbout(int number, std::int32_t p) const {
  const auto& [kind, text] = SimboloAt(p);
  const char* const end = kind == TokenKind::Function ? ")" : "";
  throw Failure(number, Failure(number).Description() + text + end);
}

}  // namespace clinorama::engine
