#pragma once

#include "base/checked.h"
#include "base/failure.h"
#include "engine/clsEquation.h"

// What the motions along the graph share. Each of their statements is ignored when it fails, and a
// value that cannot be found stays as it was.
namespace clinorama {

// The value of an equation for one x; fails as `clsEquation::Solve` does.
inline double ValueAt(clsEquation& equation, double x) {
  equation.Var("x", x);
  equation.Solve();
  return equation.Solution();
}

// The end of a segment that begins at one point and has the direction of another.
class SegmentEnd {
 public:
  // The length is in user units, above 0.
  explicit SegmentEnd(double length) : length_(length) {}

  double X = 0;
  double Y = 0;

  // Puts the end at the length from (fromX, fromY) towards (toX, toY). Where both points are one
  // there is no direction, and the end stays where it was.
  void Aim(double fromX, double fromY, double toX, double toY) {
    using namespace base;
    Ignorar([&] {
      const double height = Subtract(toY, fromY);
      distance_ = Sqrt(Add(Multiply(toX - fromX, toX - fromX), Multiply(height, height)));
    });
    Ignorar([&] { X = fromX + Divide(Multiply(toX - fromX, length_), distance_); });
    Ignorar([&] { Y = Add(fromY, Divide(Multiply(Subtract(toY, fromY), length_), distance_)); });
  }

 private:
  double length_;
  double distance_ = 0;  // between the two points
};

}  // namespace clinorama
