#pragma once

#include <optional>
#include <string>
#include <vector>

namespace clinorama::tools {

struct Interval {
  double From = 0;
  double To = 0;
  double Length() const { return To - From; }
  bool Holds(double value) const { return value >= From && value <= To; }
};

// How an axis is graduated.
struct Graduation {
  double Step = 0;    // 0: chosen by the size of the picture
  bool InPi = false;  // in halves of pi
};

// A line parallel to an axis that the curve approaches.
struct Asymptote {
  bool Vertical = false;
  double Value = 0;  // of x where it is vertical, of y where not
};

// The inverse of a function, or of a part of it.
struct InverseCurve {
  std::string Expression;
  Interval X;
};

// A picture of a graph, as it is asked for.
struct Graph {
  std::string File;
  std::string Expression;
  int Order = 0;  // of the derivative: 0, 1 or 2
  Interval X;
  Interval Y;
  int Width = 0;  // pixels
  int Height = 0;
  Graduation GraduationX;
  Graduation GraduationY;
  std::vector<Asymptote> Asymptotes;
  bool ShowsEnds = false;               // with discs and rings, where the curve breaks
  std::optional<InverseCurve> Inverse;  // shown with the line y = x
};

// A place in the picture: pixels from the upper left corner.
struct Point {
  double X = 0;
  double Y = 0;
};

// Where the window of a graph lies in its picture.
class Frame {
 public:
  explicit Frame(const Graph& graph)
      : x_(graph.X), y_(graph.Y), width_(graph.Width), height_(graph.Height) {}

  // Pixels between the window and the edge of the picture: room for the arrow heads.
  double Margin() const { return width_ < SmallPicture ? 5 : 9; }
  bool Small() const { return width_ < SmallPicture; }
  double UnitX() const { return (width_ - 2 * Margin()) / x_.Length(); }
  double UnitY() const { return (height_ - 2 * Margin()) / y_.Length(); }
  double Across(double x) const { return Margin() + (x - x_.From) * UnitX(); }
  double Down(double y) const { return Margin() + (y_.To - y) * UnitY(); }
  int Width() const { return width_; }
  int Height() const { return height_; }

 private:
  static constexpr int SmallPicture = 100;  // below it there is no room for numbers

  Interval x_;
  Interval y_;
  int width_;
  int height_;
};

}  // namespace clinorama::tools
