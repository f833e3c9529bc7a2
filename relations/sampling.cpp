#include "relations/sampling.h"

#include <cstddef>
#include <vector>

#include "base/checked.h"
#include "base/counted_loop.h"
#include "base/failure.h"

namespace clinorama::relations {

using base::CountedLoop;

namespace {

constexpr double Step = 0.001;  // of quotients, chords and neighbours; the loop's step may differ
// The first value of a derivative is taken here, also when the loop begins at -8.1.
constexpr double FirstAbscissa = -8.001;

// The divisor is the computed difference, which by rounding is not always equal to Step.
double Quotient(double yb, double ya, double xb, double xa) {
  return base::Guarded((yb - ya) / (xb - xa));
}

// One value for each sample of a loop, counted from 0. A cell that was not set counts as 0. An
// index outside is failure 9.
class Cells {
 public:
  double& operator()(int index) {
    if (index < 0 || index > LastIndex) {
      base::Raise(base::IndexOutOfRange);
    }
    return values_[static_cast<std::size_t>(index)];
  }

 private:
  static constexpr int LastIndex = 16500;  // the longest loop that uses cells has 16200 passes
  std::vector<double> values_ = std::vector<double>(LastIndex + 1);
};

template <class Pass>
void Walk(const Range& range, Pass pass) {
  CountedLoop(range.From, range.To, range.Step, pass);
}

// A pass of WalkPairs: two adjacent samples, of which the one at Xb has the index.
struct Pair {
  int Index;
  double Xa;
  double Ya;
  double Xb;
  double Yb;
};

// The loop of all derivatives: visits each sample with its left neighbour. It keeps the values of
// the function in `values`, from that of FirstAbscissa on.
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
  Cells slopes;  // the first cell stays empty, as the first pass below is never plotted
  WalkPairs(f, range, values, [&](const Pair& pair) {
    f.Recovery.Statement(
        [&] { slopes(pair.Index) = Quotient(pair.Yb, pair.Ya, pair.Xb, pair.Xa); });
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

// After a failing evaluation the value is not read: that would fail again in the same way.
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
    f.Recovery.Statement([&] { s = Quotient(pair.Yb, pair.Ya, pair.Xb, pair.Xa); });
    take({.X = pair.Xb, .Value = s});
    f.Recovery.EndPass();
  });
}

// In the first pass the index i - 2 is -1, which fails; that pass is not plotted anyway.
void AdjacentQuotients(Sampler& f, const Range& range, const Take& take) {
  Cells values;
  double yc = 0;
  double yd = 0;
  double s1 = 0;
  double s2 = 0;
  WalkPairs(f, range, values, [&](const Pair& pair) {
    const double xc = pair.Xb - 2 * Step;
    f.Recovery.Statement([&] { yc = values(pair.Index - 2); });
    const double xd = pair.Xb - Step;
    f.Evaluate(xd, yd);
    f.Recovery.Statement([&] { s1 = Quotient(pair.Yb, pair.Ya, pair.Xb, pair.Xa); });
    f.Recovery.Statement([&] { s2 = Quotient(yd, yc, xd, xc); });
    take({.X = pair.Xb, .Value = s1, .Reference = s2});
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
