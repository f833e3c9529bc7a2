#include "engine/program.h"

#include "base/checked.h"

namespace clinorama::engine {

using namespace base;

namespace {

double Sum(const Step&, double l, double r) { return l + r; }
double Difference(const Step&, double l, double r) { return l - r; }
double Product(const Step&, double l, double r) { return l * r; }
double Negative(const Step&, double l, double) { return -l; }
double Left(const Step&, double l, double) { return l; }
double LeftIfFinite(const Step&, double l, double r) { return Finite(r) ? l : NotANumber; }

double Quotient(const Step&, double l, double r) {
  return Divides(r) && Finite(r) ? l / r : NotANumber;
}

// A failure that a calculation raises becomes a value.
template <class Calculation, class Value>
Value OrElse(Calculation calculation, Value ofFailure) {
  try {
    return calculation();
  } catch (const Failure&) {
    return ofFailure;
  }
}

// These two need no test of their own: an operand that is not finite cannot be rounded, and a
// divisor that is too small rounds to 0, so the calculation fails.
double WholeQuotient(const Step&, double l, double r) {
  return OrElse([=] { return IntegerQuotient(l, r); }, NotANumber);
}
double WholeRemainder(const Step&, double l, double r) {
  return OrElse([=] { return IntegerRemainder(l, r); }, NotANumber);
}

double Raised(const Step&, double l, double r) {
  return Finite(l) && Finite(r) ? PlainPower(l, r) : NotANumber;
}

double Called(const Step& step, double l, double r) {
  if (!Finite(l) || !Finite(r)) {
    return NotANumber;
  }
  const Returned returned =
      OrElse([&] { return step.Compute(l, r); }, Returned(GuardResult::Failed));
  return returned.Guard == GuardResult::Passed ? returned.Value : NotANumber;
}

// Most operands are the result of the step before, which is passed in a register. It is stored in
// memory only where the next step has other operands.
template <double (*Calculate)(const Step&, double, double), bool LeftIsValue, bool RightIsValue>
double Carry(const Step& step, double value) noexcept {
  if constexpr (!LeftIsValue && !RightIsValue) {
    *step.Kept = value;
  }
  return Calculate(step, LeftIsValue ? value : *step.Left, RightIsValue ? value : *step.Right);
}

template <double (*Calculate)(const Step&, double, double)>
constexpr Step::Routine Routines[] = {
    Carry<Calculate, false, false>,
    Carry<Calculate, true, false>,
    Carry<Calculate, false, true>,
    Carry<Calculate, true, true>,
};

const Step::Routine* RoutinesOf(TokenKind kind) {
  switch (kind) {
    case TokenKind::Add:
      return Routines<Sum>;
    case TokenKind::Subtract:
      return Routines<Difference>;
    case TokenKind::Multiply:
      return Routines<Product>;
    case TokenKind::Divide:
      return Routines<Quotient>;
    case TokenKind::IntegerDivide:
      return Routines<WholeQuotient>;
    case TokenKind::Remainder:
      return Routines<WholeRemainder>;
    case TokenKind::Power:
      return Routines<Raised>;
    case TokenKind::Negate:
      return Routines<Negative>;
    default:
      return Routines<Called>;
  }
}

}  // namespace

void Program::Clear() {
  steps_.clear();
  recorded_.clear();
  last_ = nullptr;
}

void Program::Add(TokenKind kind, const double* left, const double* right, double* target,
                  Formula formula) {
  Append(RoutinesOf(kind), left, right, target, formula);
}

void Program::Result(const double* number, double* spare) {
  if (number != last_) {
    Append(Routines<Left>, number, number, spare);
  }
}

void Program::Check(const double* number) { Append(Routines<LeftIfFinite>, last_, number, last_); }

void Program::Append(const Step::Routine* routines, const double* left, const double* right,
                     double* target, Formula formula) {
  const int which = (left == last_ ? 1 : 0) + (right == last_ ? 2 : 0);
  double* const kept = last_ == nullptr ? target : last_;
  recorded_.push_back({routines[which], left, right, kept, formula});
  last_ = target;
}

void Program::Finish(std::int16_t code) {
  steps_.swap(recorded_);
  code_ = code;
}

}  // namespace clinorama::engine
