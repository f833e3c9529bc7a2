#include "relations/sampling.h"

#include <cstddef>
#include <vector>

#include "base/checked.h"
#include "base/counted_loop.h"
#include "base/failure.h"

namespace clinorama::relations {

using base::CountedLoop;

namespace {

constexpr double Step = 0.001;            // of every quotient, chord and pair, whatever the loop's
constexpr double FirstAbscissa = -8.001;  // of the value before all derivative loops, however early
                                          // they begin

// The quotient of the differences as they come out, not of the nominal step.
double Quotient(double yb, double ya, double xb, double xa) {
  return base::Guarded((yb - ya) / (xb - xa));
}

// One value for each sample of a walk, counted from 0. A cell holds nothing at first, and nothing
// counts as 0.
class Cells {
 public:
  double& operator()(int index) {
    if (index < 0 || index > LastIndex) {
      base::Raise(base::IndexOutOfRange);
    }
    return values_[static_cast<std::size_t>(index)];
  }

 private:
  static constexpr int LastIndex = 16500;  // the longest walk with cells has 16200 passes
  std::vector<double> values_ = std::vector<double>(LastIndex + 1);
};

template <class Pass>
void Walk(const Range& range, Pass pass) {
  CountedLoop(range.From, range.To, range.Step, pass);
}

// A pass of the walk below: the samples at xa and xb, of which the second has the index i.
struct Pair {
  int i;
  double xa;
  double ya;
  double xb;
  double yb;
};

// The walk of all derivatives: it keeps the values of the function in cells, which start with the
// one at the first abscissa, and visits each sample with its neighbour on the left.
template <class Visit>
void WalkPairs(Sampler& f, const Range& range, Cells& values, Visit visit) {
  f.Evaluate(FirstAbscissa, values(0));
  int i = 1;
  double y = 0;
  Walk(range, [&](double x) {
    const double xa = x - Step;
    const double ya = values(i - 1);
    f.Evaluate(x, y);
    values(i) = y;
    visit(Pair{i, xa, ya, x, y});
    ++i;
  });
}

template <class Evaluation>
void WalkSecondQuotients(Sampler& f, const Range& range, const Take& take,
                         Evaluation evaluateAgain) {
  Cells values;
  Cells slopes;  // its first cell stays empty: the first pass below is never plotted
  WalkPairs(f, range, values, [&](const Pair& pair) {
    f.Recovery.Statement([&] { slopes(pair.i) = Quotient(pair.yb, pair.ya, pair.xb, pair.xa); });
  });
  int i = 1;
  double q = 0;
  Walk(range, [&](double x) {
    const double xa = x - Step;
    evaluateAgain(x);
    f.Recovery.Statement([&] { q = Quotient(slopes(i), slopes(i - 1), x, xa); });
    take({.X = x, .Value = q});
    ++i;
    f.Recovery.EndPass();
  });
}

}  // namespace

Sampler::Sampler(const std::string& expression, Convention convention) : Recovery(convention) {
  equation_.Equation(expression);
}

bool Sampler::Solve(double x) {
  equation_.Var("x", x);
  return Recovery.Statement([this] { equation_.Solve(); });
}

// Where the evaluation fails, to read its value would only fail in the same way once more.
void Sampler::Evaluate(double x, double& y) {
  if (Solve(x)) {
    y = Solution();
  }
}

void Values(Sampler& f, const Range& range, const Take& take) {
  double y = 0;
  Walk(range, [&](double x) {
    f.Evaluate(x, y);
    take({.X = x, .Value = y});
  });
}

void ForwardPairs(Sampler& f, const Range& range, const Take& take) {
  double ya = 0;
  double yb = 0;
  Walk(range, [&](double x) {
    f.Evaluate(x, ya);
    f.Evaluate(x + Step, yb);
    take({.X = x, .Value = yb, .Reference = ya});
  });
}

void Neighbours(Sampler& f, const Range& range, const Take& take) {
  double y = 0;
  double ya = 0;
  double yb = 0;
  Walk(range, [&](double x) {
    f.Evaluate(x, y);
    f.Evaluate(x - Step, ya);
    f.Evaluate(x + Step, yb);
    take({.X = x, .Value = y, .Reference = ya, .SecondReference = yb});
  });
}

void Chords(Sampler& f, const Range& range, const Take& take) {
  double y1 = 0;
  double y2 = 0;
  double ym = 0;
  double yc = 0;
  Walk(range, [&](double x1) {
    f.Evaluate(x1, y1);
    const double x2 = x1 + Step;
    f.Evaluate(x2, y2);
    const double xm = x1 + (x2 - x1) / 2;
    f.Evaluate(xm, ym);
    f.Recovery.Statement([&] { yc = base::Guarded(y1 + ((y2 - y1) * (xm - x1)) / (x2 - x1)); });
    take({.X = x1, .Value = ym, .Reference = yc});
  });
}

void TurningChords(Sampler& f, const Range& range, const Take& take) {
  enum class Sense { None, Above, NotAbove };  // of the curve at the middle of its chord
  Sense before = Sense::None;
  Chords(f, range, [&](const Sample& sample) {
    const Sense sense = sample.Value > sample.Reference ? Sense::Above : Sense::NotAbove;
    if (before != Sense::None && sense != before) {
      take(sample);
    }
    before = sense;
  });
}

void FirstQuotients(Sampler& f, const Range& range, const Take& take) {
  Cells values;
  double s = 0;
  WalkPairs(f, range, values, [&](const Pair& pair) {
    f.Recovery.Statement([&] { s = Quotient(pair.yb, pair.ya, pair.xb, pair.xa); });
    take({.X = pair.xb, .Value = s});
    f.Recovery.EndPass();
  });
}

// In the first pass there is no cell two before, which fails; that pass plots nothing anyway.
void AdjacentQuotients(Sampler& f, const Range& range, const Take& take) {
  Cells values;
  double yc = 0;
  double yd = 0;
  double s1 = 0;
  double s2 = 0;
  WalkPairs(f, range, values, [&](const Pair& pair) {
    const double xc = pair.xb - 2 * Step;
    f.Recovery.Statement([&] { yc = values(pair.i - 2); });
    const double xd = pair.xb - Step;
    f.Evaluate(xd, yd);
    f.Recovery.Statement([&] { s1 = Quotient(pair.yb, pair.ya, pair.xb, pair.xa); });
    f.Recovery.Statement([&] { s2 = Quotient(yd, yc, xd, xc); });
    take({.X = pair.xb, .Value = s1, .Reference = s2});
    f.Recovery.EndPass();
  });
}

void SecondQuotients(Sampler& f, const Range& range, const Take& take) {
  WalkSecondQuotients(f, range, take, [&f](double x) { f.Solve(x); });
}

void StoredSecondQuotients(Sampler& f, const Range& range, const Take& take) {
  WalkSecondQuotients(f, range, take, [](double) {});
}

}  // namespace clinorama::relations
