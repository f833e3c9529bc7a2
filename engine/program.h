#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "base/Module1.h"
#include "base/checked.h"
#include "engine/functions.h"
#include "engine/tokeniser.h"

namespace clinorama::engine {

// Whether one may divide by that number: "/", "\" and "%" leave a smaller divisor alone.
inline bool Divides(double divisor) {
  constexpr double SmallestDivisor = 0.000001;
  return std::fabs(divisor) > SmallestDivisor;
}

// A calculation with its operands found.
struct Step {
  // Gives the result; `value` is the result of the step before.
  using Routine = double (*)(const Step& step, double value);

  Routine routine;
  const double* left;
  const double* right;
  double* kept;     // where `value` goes if this step does not use it
  Formula formula;  // of a function
};

// The calculations of one walk over an expression, kept so that the next values of its variables
// need no walk: a plain list of steps, which a loop carries out. It knows nothing of cells and
// looks at no text.
//
// A step that cannot be done gives an infinity or a not-a-number. Sums, differences and products
// hand that on by themselves, and all other steps look at their operands. So whatever goes wrong
// (a failure, a guard, a divisor that is too small, a variable without a value) shows in the last
// value, and there alone it is looked for. What it was only a walk can tell.
class Program {
 public:
  // Forgets all steps.
  void Clear();

  // Records the calculation of an operator or a function. `left` and `right`, which are the same
  // where there is one operand, and `target` stay where they are as long as the steps do. What an
  // earlier step has put into its target is read by one later step at most.
  void Add(TokenKind kind, const double* left, const double* right, double* target,
           Formula formula = nullptr);

  // Records where the value of the expression is; `spare` is a place that nothing else uses.
  void Result(const double* number, double* spare);
  // Records a number beside the value that must not have failed either. Comes after `Result`.
  void Check(const double* number);

  // Ends the recording: only now there is something to run. A run leaves `code` in `CodigoDominio`,
  // 0 for nothing.
  void Finish(std::int16_t code);

  // The value of the expression. Where it takes a walk to tell, the result is not finite, and
  // nothing has happened.
  double Run() const {
    double value = base::NotANumber;
    try {
      // A step takes so little time that the loop's own matters.
#pragma GCC unroll 4
      for (const Step& step : steps_) {
        value = step.routine(step, value);
      }
    } catch (const base::Failure&) {
      return base::NotANumber;
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
