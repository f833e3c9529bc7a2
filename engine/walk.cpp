#include "engine/walk.h"

#include <algorithm>
#include <utility>

#include "base/failure.h"

namespace clinorama::engine {

using namespace base;

Passeio::Passeio(std::vector<Celula> celulas, std::vector<Visita> visitas)
    : initial_(std::move(celulas)), celulas_(initial_), visitas_(std::move(visitas)) {}

void Passeio::Restart() { std::copy(initial_.begin(), initial_.end(), celulas_.begin()); }

bool Passeio::Visit(std::size_t first, std::size_t last, Executante& by) {
  for (std::size_t i = first; i < last; ++i) {
    if (VisitOne(i, by) == Outcome::End) {
      return false;
    }
  }
  return true;
}

void Passeio::Conclude(Executante& by) {
  const std::int32_t cell = ProximoValor(0);
  if (Readable(cell, by)) {
    by.Perform({.op = Op::Result, .left = At(cell).place});
  }
}

// Reads the cell as a number: where that fails, the failure is the step to perform. Whoever is
// told so ends the walk.
bool Passeio::Readable(std::int32_t cell, Executante& by) {
  const std::int32_t failure = At(cell).failure;
  if (failure != 0) {
    by.Perform({.op = Op::Fail, .left = failure});
  }
  return failure == 0;
}

// The cell holds a result from now on.
void Passeio::Receive(std::int32_t cell) {
  At(cell).place = cell;
  At(cell).failure = 0;
}

// Its neighbours become neighbours of each other. Cell 0 is on both ends of the row.
void Passeio::Null(std::int32_t cell) {
  const Celula gone = At(cell);
  At(gone.anterior).proximo = gone.proximo;
  At(gone.proximo).anterior = gone.anterior;
}

Outcome Passeio::VisitOne(std::size_t index, Executante& by) {
  const Visita& visita = visitas_[index];
  switch (visita.kind) {
    case TokenKind::Negate:
      return Minus(visita, by);
    case TokenKind::Name:
      return Name(visita, by);
    case TokenKind::Divide:
    case TokenKind::IntegerDivide:
    case TokenKind::Remainder:
      return Division(visita, index, by);
    case TokenKind::Open:
      return Parentheses(visita);
    case TokenKind::Function:
      return Call(visita, by);
    default:
      return Binary(visita, by);
  }
}

Outcome Passeio::Minus(const Visita& visita, Executante& by) {
  const std::int32_t r = ProximoValor(visita.p);
  if (!Readable(r, by)) {
    return Outcome::End;
  }
  by.Perform({.op = Op::Negate, .target = visita.p, .left = At(r).place});
  Receive(visita.p);
  Null(r);
  return Outcome::Next;
}

Outcome Passeio::Name(const Visita& visita, Executante& by) {
  Celula& cell = At(visita.p);
  if (visita.op == Op::Variable) {
    by.Perform({.op = Op::Variable, .left = visita.slot, .right = visita.p});
  } else if (!visita.constant) {
    by.Perform({.op = visita.op, .target = visita.p});
    cell.place = visita.p;
  }
  cell.failure = 0;
  return Outcome::Next;
}

Outcome Passeio::Binary(const Visita& visita, Executante& by) {
  if (!Readable(ValorAnterior(visita.p), by) || !Readable(ProximoValor(visita.p), by)) {
    return Outcome::End;
  }
  return Combine(visita, by);
}

Outcome Passeio::Division(const Visita& visita, std::size_t index, Executante& by) {
  const std::int32_t l = ValorAnterior(visita.p);
  const std::int32_t r = ProximoValor(visita.p);
  const bool real = visita.kind == TokenKind::Divide;
  // The real division reads its divisor first of all, and tells what it found even where the left
  // operand is missing; the integer ones look first whether both operands are there.
  if (real) {
    if (!Readable(r, by)) {
      return Outcome::End;
    }
    if (l == 0) {
      by.Perform({.op = Op::NoteDivisor, .right = At(r).place});
    }
  }
  if (l == 0 || r == 0) {
    by.Perform({.op = Op::Stop});
    return Outcome::End;
  }
  if (!Readable(r, by)) {
    return Outcome::End;
  }
  const Outcome test = by.Perform({.op = real ? Op::TestDivisor : Op::TestIntegerDivisor,
                                   .right = At(r).place,
                                   .visit = static_cast<std::int32_t>(index)});
  if (test == Outcome::Undone) {
    return Outcome::Next;  // the operator and both operands stay, whatever is in the left cell
  }
  return Readable(l, by) ? Combine(visita, by) : Outcome::End;
}

// The result of a binary operation takes the left cell.
Outcome Passeio::Combine(const Visita& visita, Executante& by) {
  const std::int32_t l = ValorAnterior(visita.p);
  const std::int32_t r = ProximoValor(visita.p);
  by.Perform({.op = visita.op, .target = l, .left = At(l).place, .right = At(r).place});
  Receive(l);
  Null(r);
  Null(visita.p);
  return Outcome::Next;
}

// Takes the first cell inside as it stands, be it a number or an operator that was left there.
Outcome Passeio::Parentheses(const Visita& visita) {
  const std::int32_t r = ProximoValor(visita.p);
  if (r < visita.q) {
    At(visita.p).place = At(r).place;
    At(visita.p).failure = At(r).failure;
    Null(r);
  } else {  // nothing inside is 0, and that is what the place of "(" holds from the start
    At(visita.p).failure = 0;
  }
  Null(visita.q);
  return Outcome::Next;
}

Outcome Passeio::Call(const Visita& visita, Executante& by) {
  const std::int32_t first = ProximoValor(visita.p);
  const std::int32_t last = ValorAnterior(visita.q);
  // An empty call is told before the name is looked at, and so is an argument that isn't a number.
  if (first >= visita.q) {
    by.Perform({.op = Op::Fail, .target = visita.p, .left = NoArgument});
    return Outcome::End;
  }
  if (!Readable(first, by) || !Readable(last, by)) {
    return Outcome::End;
  }
  if (visita.function == nullptr) {
    by.Perform({.op = Op::Fail, .target = visita.p, .left = UndefinedFunction});
    return Outcome::End;
  }
  const Outcome outcome = by.Perform({.op = visita.function->plain ? Op::Apply : Op::Call,
                                      .target = visita.p,
                                      .left = At(first).place,
                                      .right = At(last).place,
                                      .function = visita.function});
  Receive(visita.p);
  if (last != first) {  // what stands between them is left behind
    Null(last);
  }
  Null(first);
  Null(visita.q);
  return outcome;
}

}  // namespace clinorama::engine
