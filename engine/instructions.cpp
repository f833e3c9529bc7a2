#include "engine/instructions.h"

#include <cmath>
#include <cstddef>
#include <iterator>

#include "base/Module1.h"
#include "base/checked.h"

namespace clinorama::engine {

using namespace base;

namespace {

// A divisor must be larger than this, without its sign, to be divided by.
constexpr double SmallestDivisor = 0.000001;

// What the operator "/" leaves in `CodigoDominio`.
constexpr std::int16_t ZeroDivisor = 18;
constexpr std::int16_t NonZeroDivisor = 66;

void Note(double divisor) { Module1::CodigoDominio = divisor == 0 ? ZeroDivisor : NonZeroDivisor; }

bool Divides(double divisor) { return std::fabs(divisor) > SmallestDivisor; }

double Quotient(double a, double b) { return Guarded(a / b); }

const Instruction* Next(const Instruction* here) { return here[1].routine(here + 1); }

const Instruction* End(const Instruction* here) { return here; }

template <double (*Formula)(double, double)>
const Instruction* Binary(const Instruction* here) {
  *here->target = Formula(*here->left, *here->right);
  return Next(here);
}

const Instruction* Negate(const Instruction* here) {
  *here->target = -*here->left;
  return Next(here);
}

const Instruction* DrawRandom(const Instruction* here) {
  *here->target = NextRandom();
  return Next(here);
}

const Instruction* Apply(const Instruction* here) {
  *here->target = here->step.function->plain(*here->left);
  return Next(here);
}

const Instruction* Call(const Instruction* here) {
  const Function& function = *here->step.function;
  const Guard guard = function.formula(*here->left, *here->right, *here->target);
  if (guard != Guard::Passed) [[unlikely]] {
    if (guard == Guard::Failed) {
      Module1::CodigoDominio = function.failureCode;
    }
    return here;
  }
  if (function.successCode != 0) {
    Module1::CodigoDominio = function.successCode;
  }
  return Next(here);
}

const Instruction* NoteDivisor(const Instruction* here) {
  Note(*here->right);
  return Next(here);
}

const Instruction* TestIntegerDivisor(const Instruction* here) {
  return Divides(*here->right) ? Next(here) : here;
}

const Instruction* TestDivisor(const Instruction* here) {
  Note(*here->right);
  return TestIntegerDivisor(here);
}

const Instruction* TestAndDivide(const Instruction* here) {
  Note(*here->right);
  return Divides(*here->right) ? Binary<Quotient>(here) : here;
}

// In the order of `Op`.
constexpr Routine Routines[] = {
    Negate,
    Binary<Add>,
    Binary<Subtract>,
    Binary<Multiply>,
    Binary<Divide>,
    Binary<IntegerQuotient>,
    Binary<IntegerRemainder>,
    Binary<Power>,
    Binary<Square>,
    Binary<Cube>,
    DrawRandom,
    Apply,
    Call,
    NoteDivisor,
    TestDivisor,
    TestIntegerDivisor,
    TestAndDivide,
    End,
    End,
    End,
    End,
};
static_assert(std::size(Routines) == static_cast<std::size_t>(Op::Result) + 1);

}  // namespace

Routine RoutineOf(Op op) { return Routines[static_cast<std::size_t>(op)]; }

}  // namespace clinorama::engine
