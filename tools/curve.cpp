#include "tools/curve.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "base/failure.h"
#include "base/number_text.h"
#include "engine/clsEquation.h"

namespace clinorama::tools {
namespace {

constexpr double Step = 0.001;  // of the difference quotients
constexpr int SamplesPerPixel = 8;
constexpr int Halvings = 40;          // from a sample to the next, until nothing is left between
constexpr double SmallChange = 1;     // pixels from a sample to the next that need no closer look
constexpr double ShortestLine = 0.5;  // pixels; a single point of another value is no line
constexpr double Precision = 0.03;    // pixels by which a simplified line may be off
constexpr int Decimals = 6;           // of the abscissas of jumps and of ends of domains

// A function or a derivative of it, as the program computes it.
class Function {
 public:
  explicit Function(const Graph& graph) : order_(graph.Order) {
    equation_.Equation(graph.Expression);
  }

  // Nothing where there is no value, and where the arithmetic fails.
  std::optional<double> At(double x) { return Derivative(order_, x); }

  // How wide a jump of the function comes out.
  double JumpWidth() const { return order_ * Step; }

 private:
  std::optional<double> Derivative(int order, double x) {
    if (order == 0) {
      return Value(x);
    }
    const double before = x - Step;
    const std::optional<double> ya = Derivative(order - 1, before);
    const std::optional<double> yb = Derivative(order - 1, x);
    if (!ya || !yb) {
      return {};
    }
    return (*yb - *ya) / (x - before);
  }

  std::optional<double> Value(double x) {
    try {
      equation_.Var("x", x);
      equation_.Solve();
      const double y = equation_.Solution();
      if (y == clsEquation::ForaDoDominio) {
        return {};
      }
      return y;
    } catch (const ErroInterpretador& error) {
      if (error.Number() == base::Overflow || error.Number() == base::DivisionByZero) {
        return {};
      }
      throw;
    }
  }

  clsEquation equation_;
  int order_;
};

struct Sample {
  double X = 0;
  std::optional<double> Y;
};

// Follows the curve from sample to sample and takes it apart where it is not joined.
class Tracer {
 public:
  explicit Tracer(const Graph& graph) : function_(graph), frame_(graph), window_(graph.Y) {}

  void Visit(double x) {
    const Sample next = At(x);
    if (last_ && !GoesOn(*last_, next)) {
      Break(*last_, next);
    }
    Add(next);
    last_ = next;
  }

  Curve Take() {
    EndLine();
    return {std::move(lines_), std::move(ends_)};
  }

 private:
  Sample At(double x) { return {x, function_.At(x)}; }

  // In pixels of the window: what happens outside it is not seen.
  double Change(const Sample& a, const Sample& b) const {
    const auto seen = [this](double y) { return std::clamp(y, window_.From, window_.To); };
    return std::abs(seen(*a.Y) - seen(*b.Y)) * frame_.UnitY();
  }

  // Whether neither a branch nor a gap of the domain ends between two samples.
  bool GoesOn(const Sample& a, const Sample& b) { return a.Y && b.Y ? Joined(a, b) : !a.Y && !b.Y; }

  // Whether the change becomes small on the way, however steep it is.
  bool Joined(Sample a, Sample b) {
    while (Change(a, b) > SmallChange) {
      if (b.X - a.X <= std::max(function_.JumpWidth(), Narrowest())) {
        return false;
      }
      const Sample middle = At((a.X + b.X) / 2);
      if (!middle.Y) {
        return false;
      }
      (Change(a, middle) > Change(middle, b) ? b : a) = middle;
    }
    return true;
  }

  double Narrowest() const { return std::ldexp(1 / frame_.UnitX(), -Halvings); }

  // Ends the line as near to the break between two samples as it can be told, and begins the next
  // as near to it on the other side.
  void Break(const Sample& left, const Sample& right) {
    Sample a = left;
    Sample b = right;
    const bool jump = a.Y && b.Y;
    while (b.X - a.X > Narrowest()) {
      const Sample middle = At((a.X + b.X) / 2);
      if (jump && !middle.Y) {
        break;
      }
      const bool onTheLeft =
          jump ? Change(a, middle) < Change(middle, b) : middle.Y.has_value() == a.Y.has_value();
      (onTheLeft ? a : b) = middle;
    }
    const bool endsLeft = left.Y && Joined(left, a);
    const bool endsRight = right.Y && Joined(b, right);
    if (endsLeft) {
      Add(a);
    }
    EndLine();
    if (endsRight) {
      Add(b);
    }
    AddEnds(endsLeft ? a.Y : std::nullopt, endsRight ? b.Y : std::nullopt, (a.X + b.X) / 2);
  }

  // The ends of two branches where they come nearest to each other, and the point between them.
  void AddEnds(std::optional<double> left, std::optional<double> right, double nearly) {
    const double x = base::Round(nearly, Decimals);
    const std::optional<double> y = function_.At(x);
    for (const std::optional<double>& end : {left, right, y}) {
      if (end && window_.Holds(*end)) {
        const bool meets = y && std::abs(*y - *end) * frame_.UnitY() < SmallChange;
        AddEnd({.Place = {frame_.Across(x), frame_.Down(meets ? *y : *end)}, .Open = !meets});
      }
    }
  }

  void AddEnd(const End& end) {
    const bool known = std::any_of(ends_.begin(), ends_.end(), [&](const End& other) {
      return std::hypot(other.Place.X - end.Place.X, other.Place.Y - end.Place.Y) < SmallChange;
    });
    if (!known) {
      ends_.push_back(end);
    }
  }

  // What leaves the window is drawn up to its edge.
  void Add(const Sample& sample) {
    if (!sample.Y) {
      return;
    }
    const Point point = {sample.X, *sample.Y};
    const bool inside = window_.Holds(point.Y);
    if (previous_ && inside != window_.Holds(previous_->Y)) {
      AddCrossing(inside ? *previous_ : point, inside ? point : *previous_);
    } else if (previous_ && !inside && (point.Y > window_.To) != (previous_->Y > window_.To)) {
      const bool upwards = point.Y > previous_->Y;
      AddPoint(At(*previous_, point, upwards ? window_.From : window_.To));
      AddPoint(At(*previous_, point, upwards ? window_.To : window_.From));
    }
    if (inside) {
      AddPoint(point);
    } else {
      EndRun();
    }
    previous_ = point;
  }

  void AddCrossing(const Point& outside, const Point& inside) {
    AddPoint(At(outside, inside, outside.Y > window_.To ? window_.To : window_.From));
  }

  // The point of a segment at a height.
  static Point At(const Point& a, const Point& b, double y) {
    return {a.X + (b.X - a.X) * (y - a.Y) / (b.Y - a.Y), y};
  }

  void AddPoint(const Point& point) {
    line_.push_back({frame_.Across(point.X), frame_.Down(point.Y)});
  }

  void EndLine() {
    EndRun();
    previous_.reset();
  }

  void EndRun() {
    double length = 0;
    for (std::size_t i = 1; i < line_.size(); ++i) {
      length += std::hypot(line_[i].X - line_[i - 1].X, line_[i].Y - line_[i - 1].Y);
    }
    if (length >= ShortestLine) {
      lines_.push_back(line_);
    }
    line_.clear();
  }

  Function function_;
  Frame frame_;
  Interval window_;
  std::optional<Sample> last_;
  std::optional<Point> previous_;  // of the line that is being followed, in the window or not
  Polyline line_;
  std::vector<Polyline> lines_;
  std::vector<End> ends_;
};

double Distance(const Point& point, const Point& a, const Point& b) {
  const double dx = b.X - a.X;
  const double dy = b.Y - a.Y;
  const double length = std::hypot(dx, dy);
  if (length == 0) {
    return std::hypot(point.X - a.X, point.Y - a.Y);
  }
  return std::abs(dx * (point.Y - a.Y) - dy * (point.X - a.X)) / length;
}

// Keeps the point of a stretch that is farthest from its chord, as long as that is too far.
void Simplify(const Polyline& line, std::size_t first, std::size_t last, Polyline& result) {
  std::size_t farthest = first;
  double distance = Precision;
  for (std::size_t i = first + 1; i < last; ++i) {
    const double d = Distance(line[i], line[first], line[last]);
    if (d > distance) {
      distance = d;
      farthest = i;
    }
  }
  if (farthest == first) {
    result.push_back(line[last]);
    return;
  }
  Simplify(line, first, farthest, result);
  Simplify(line, farthest, last, result);
}

}  // namespace

Curve CurveOf(const Graph& graph, const Interval& range) {
  Tracer tracer(graph);
  const int samples = graph.Width * SamplesPerPixel;
  for (int i = 0; i <= samples; ++i) {
    tracer.Visit(range.From + range.Length() * i / samples);
  }
  return tracer.Take();
}

Polyline Simplified(const Polyline& line) {
  Polyline result = {line.front()};
  Simplify(line, 0, line.size() - 1, result);
  return result;
}

}  // namespace clinorama::tools
