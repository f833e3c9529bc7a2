#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "base/Module1.h"
#include "base/checked.h"
#include "engine/functions.h"
#include "engine/tokeniser.h"

namespace clinorama::engine {

// Whether "/", "\" and "%" divide by that number. They leave a smaller one undivided.
inline bool Divides(double divisor) {
  constexpr double SmallestDivisor = 0.000001;
  return std::fabs(divisor) > SmallestDivisor;
}

// One calculation and the places of its operands.
struct Step {
  // Returns the result; `value` is the result of the step before. It raises nothing: where a
  // compiler makes every call that may raise something slow, these calls are quick all the same.
  using Routine = double (*)(const Step& step, double value) noexcept;

  Routine Run;
  const double* Left;
  const double* Right;
  double* Kept;     // where `value` is stored if this step does not use it
  Formula Compute;  // of a function
};

// The calculations of one walk over an expression, as a list of steps that a loop runs. With it the
// next values of the variables need no walk. It has no cells and reads no text.
//
// A step that fails gives an infinity or a not-a-number. Sums, differences and products of such a
// number are infinite or not-a-number again, and all other steps test their operands. So every
// failure (also of a guard, a divisor that is too small, a variable without a value) is seen in the
// last value, which alone is tested. A walk then finds out what has failed.
class Program {
 public:
  // Forgets all steps.
  void Clear();

  // Records the calculation of an operator or a function. `left` and `right`, the same for a single
  // operand, and `target` must outlive the steps. A target is read by one later step at most.
  void Add(TokenKind kind, const double* left, const double* right, double* target,
           Formula formula = nullptr);

  // Records where the value of the expression is; `spare` is a place that no step uses.
  void Result(const double* number, double* spare);
  // Records a number that is not the value, but must not have failed. Is called after `Result`.
  void Check(const double* number);

  // Ends the recording; before, there are no steps to run. A run writes `code` to `CodigoDominio`
  // unless it is 0.
  void Finish(std::int16_t code);

  // The value of the expression. If a step has failed, or there are none, it is not finite and
  // nothing was written.
  double Run() const noexcept {
    double value = base::NotANumber;
    // A step is so short that the loop itself takes a good part of the time.
#pragma GCC unroll 4
    for (const Step& step : steps_) {
      value = step.Run(step, value);
    }
    if (code_ != 0 && base::Finite(value)) {
      Module1::CodigoDominio = code_;
    }
    return value;
  }

 private:
  void Append(const Step::Routine* routines, const double* left, const double* right,
              double* target, Formula formula = nullptr);

  std::vector<Step> steps_;
  std::vector<Step> recorded_;
  double* last_ = nullptr;  // the target of the step recorded last
  std::int16_t code_ = 0;
};

}  // namespace clinorama::engine
