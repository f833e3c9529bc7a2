#pragma once

#include <functional>
#include <string>

#include "engine/clsEquation.h"
#include "relations/recovery.h"

namespace clinorama::relations {

// The function that an operation samples, with its convention for failures. Each press makes one.
class Sampler {
 public:
  Sampler(const std::string& expression, Convention convention);

  relations::Recovery Recovery;

  // Evaluates the function at x; Solution then returns the value. Returns false on a failure.
  bool Solve(double x);
  // Evaluates the function at x and sets y to its value; on a failure y keeps the value it had.
  // Outside the domain the value is 1000.
  void Evaluate(double x, double& y);
  // The value at the last abscissa. Raises the failure again where the evaluation failed.
  double Solution() { return equation_.Solution(); }

 private:
  clsEquation equation_;
};

// The bounds and the step of a counted loop on the abscissa.
struct Range {
  double From;
  double To;
  double Step;
};

// What a strategy computes in each pass: the ordinate to be plotted at X, and the values that it is
// compared with.
struct Sample {
  double X;
  double Value;
  double Reference = 0;        // what Value is compared with
  double SecondReference = 0;  // where there are two neighbours, the right one
};

using Take = std::function<void(const Sample&)>;

// Goes through a range and calls `take` for each sample. Derivatives are backward difference
// quotients of the function's values, with a step of 0.001.
using Strategy = void (*)(Sampler& f, const Range& range, const Take& take);

// The function.
void Values(Sampler& f, const Range& range, const Take& take);
// The function at x + 0.001, against its value at x.
void ForwardPairs(Sampler& f, const Range& range, const Take& take);
// The function, against its left and right neighbours.
void Neighbours(Sampler& f, const Range& range, const Take& take);
// The function at the middle of a chord 0.001 wide, against the chord's height there.
void Chords(Sampler& f, const Range& range, const Take& take);
// The samples of Chords at which the curve has changed from one side of its chord to the other.
void TurningChords(Sampler& f, const Range& range, const Take& take);
// The first derivative, against 0.
void FirstQuotients(Sampler& f, const Range& range, const Take& take);
// The first derivative, against that of the sample before. The function is evaluated again at
// x - 0.001, so Solution returns the value there.
void AdjacentQuotients(Sampler& f, const Range& range, const Take& take);
// The second derivative, against 0. A first loop stores the first derivative; the second loop
// evaluates the function again, only so that a failure at x leaves out the point.
void SecondQuotients(Sampler& f, const Range& range, const Take& take);
// The same without the second evaluation: only a failure of the arithmetic leaves out a point.
void StoredSecondQuotients(Sampler& f, const Range& range, const Take& take);

}  // namespace clinorama::relations
