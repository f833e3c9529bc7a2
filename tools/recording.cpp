#include "tools/recording.h"

#include <algorithm>
#include <cmath>

namespace clinorama::tools {
namespace {

// Points of a curve are joined when they lie so near, in user units: wider than the samples of any
// page, and narrower than a jump that is to be seen.
constexpr double NearAcross = 0.0025;
constexpr double NearUpwards = 0.5;
// Dots of one place; those of inflexions are sampled more widely than those of zeros.
constexpr double NearDots = 0.1;

bool Near(const Trace& trace, const Point& point) {
  const Point& last = trace.Points.back();
  const double across = std::abs(point.X - last.X);
  return trace.What == Trace::Kind::Dot
             ? across < NearDots
             : across < NearAcross && std::abs(point.Y - last.Y) < NearUpwards;
}

// Whether two lines are drawn one over the other.
bool SamePlace(const Trace& a, const Trace& b) {
  return std::equal(a.Points.begin(), a.Points.end(), b.Points.begin(), b.Points.end(),
                    [](const Point& p, const Point& q) { return p.X == q.X && p.Y == q.Y; });
}

}  // namespace

Recording::Recording(forms::Surface& surface) : surface_(surface) {
  surface_.Observer = [this](const forms::DrawingOperation& operation) { Take(operation); };
}

std::vector<Trace> Recording::Now() const {
  std::vector<Trace> traces = traces_;
  traces.insert(traces.end(), passing_.begin(), passing_.end());
  return traces;
}

void Recording::Take(const forms::DrawingOperation& operation) {
  using Kind = forms::DrawingOperation::Kind;
  switch (operation.What) {
    case Kind::Clear:
      traces_.clear();
      passing_.clear();
      break;
    case Kind::Point:
      TakePoint(operation);
      break;
    case Kind::Line:
      TakeLine(operation);
      break;
    case Kind::Circle:
    case Kind::Text:
      break;
  }
}

void Recording::TakePoint(const forms::DrawingOperation& operation) {
  const Point point = {operation.X1, operation.Y1};
  const auto kind = operation.DrawWidth > 1 ? Trace::Kind::Dot : Trace::Kind::Curve;
  if (traces_.empty() || traces_.back().What != kind || traces_.back().Pen != operation.Pen ||
      !Near(traces_.back(), point)) {
    traces_.push_back({kind, operation.Pen, {}});
  }
  traces_.back().Points.push_back(point);
}

void Recording::TakeLine(const forms::DrawingOperation& operation) {
  Trace line = {Trace::Kind::Line,
                operation.Pen,
                {{operation.X1, operation.Y1}, {operation.X2, operation.Y2}}};
  const bool dotted = operation.DrawStyle == forms::Dotted;
  line.What = dotted ? Trace::Kind::Guide : Trace::Kind::Line;
  if (operation.DrawMode == forms::NotMergePen) {
    line.Pen = forms::Black;
    passing_.push_back(line);
    return;
  }
  if (operation.DrawMode == forms::InvertPixel) {
    passing_.clear();
    std::erase_if(traces_, [&](const Trace& trace) { return SamePlace(trace, line); });
    return;
  }
  if (!dotted && operation.Pen == forms::Black) {
    return;  // of an axis
  }
  traces_.push_back(line);
}

void Studio::Wait(int /*milliseconds*/) {
  ++step_;
  if (eachStep_) {
    eachStep_();
  }
}

}  // namespace clinorama::tools
