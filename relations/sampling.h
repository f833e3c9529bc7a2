#pragma once

#include <functional>
#include <string>

#include "engine/clsEquation.h"
#include "relations/recovery.h"

namespace clinorama::relations {

// A function under a convention for failures: what an operation samples, made anew for each press.
class Sampler {
 public:
  Sampler(const std::string& expression, Convention convention);

  relations::Recovery Recovery;

  // Has the function evaluated at x, so that Solution is of there. Tells whether it could be.
  bool Solve(double x);
  // Solves, and y takes the value; where the function cannot be evaluated y keeps what it had. A
  // point outside the domain has the value 1000.
  void Evaluate(double x, double& y);
  // The value at the last abscissa. It fails again where the evaluation failed.
  double Solution() { return equation_.Solution(); }

 private:
  clsEquation equation_;
};

// A counted loop on the abscissa.
struct Range {
  double From;
  double To;
  double Step;
};

// What a strategy hands on in each pass: the ordinate that is to be plotted at x, and the values
// that tell what the curve does there.
struct Sample {
  double X;
  double Value;
  double Reference = 0;        // what Value is compared with
  double SecondReference = 0;  // where there are two neighbours, the right one
};

using Take = std::function<void(const Sample&)>;

// Walks a range, and has each of its samples taken. The derivatives are backward difference
// quotients with a step of 0.001, so they know nothing of formulas.
using Strategy = void (*)(Sampler& f, const Range& range, const Take& take);

// The function.
void Values(Sampler& f, const Range& range, const Take& take);
// The function 0.001 further on, against its value at x.
void ForwardPairs(Sampler& f, const Range& range, const Take& take);
// The function, against its left and right neighbours.
void Neighbours(Sampler& f, const Range& range, const Take& take);
// The function at the middle of a chord 0.001 wide, against the chord's height there.
void Chords(Sampler& f, const Range& range, const Take& take);
// Only those of Chords where the curve has gone from one side of the chord to the other.
void TurningChords(Sampler& f, const Range& range, const Take& take);
// The first derivative, against 0.
void FirstQuotients(Sampler& f, const Range& range, const Take& take);
// The first derivative, against that of the sample before, which is evaluated anew: Solution is
// then of x - 0.001.
void AdjacentQuotients(Sampler& f, const Range& range, const Take& take);
// The second derivative, against 0, from a first walk that stores the first derivative. The second
// walk evaluates the function again, for the sake of its failures only.
void SecondQuotients(Sampler& f, const Range& range, const Take& take);
// The same without another evaluation, so that only failures of arithmetic lose a point.
void StoredSecondQuotients(Sampler& f, const Range& range, const Take& take);

}  // namespace clinorama::relations
