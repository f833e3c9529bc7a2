#pragma once

#include <algorithm>
#include <cmath>

namespace clinorama::forms {

// The number of the pixel that holds a position in device pixels. A position a trifle before the
// next pixel counts as there: ends that differ in their last digits only would stand a pixel apart
// otherwise. What lies far outside is brought just near enough for sums of such numbers to stay
// within the range of an integer.
inline int PixelOf(double position) {
  constexpr double Trifle = 1e-6;
  constexpr double Far = 1 << 28;
  const double near = std::clamp(position + Trifle, -Far, Far);
  const int pixel = static_cast<int>(near);  // towards 0, and without a call
  return pixel > near ? pixel - 1 : pixel;
}

// The pixel that a position is nearest to; halfway between two it is the first of them.
inline int NearestPixel(double position) { return -PixelOf(0.5 - position); }

// The first of `size` pixels that lie as evenly as they can about a position.
inline int FirstPixel(double position, int size) { return PixelOf(position - (size - 1) / 2.0); }

// The pixels of a line, column by column of its longer direction. For a steep line columns are
// rows, and a height is a place along a row.
class PixelLine {
 public:
  // The pixels that the line covers in a column.
  struct Run {
    int First;
    int Count;
  };

  // From (x1, y1) to (x2, y2) with a pen of so many pixels.
  PixelLine(double x1, double y1, double x2, double y2, int pen)
      : x1_(x1),
        y1_(y1),
        x2_(x2),
        y2_(y2),
        slope_(x1 == x2 ? 0 : (y2 - y1) / (x2 - x1)),
        // Wide oblique pens are measured across the line.
        run_(pen == 1 ? 1 : static_cast<int>(std::lround(pen * std::sqrt(1 + slope_ * slope_)))),
        start_(PixelOf(x1)),
        end_(PixelOf(x2)) {}

  double Left() const { return std::min(x1_, x2_); }
  double Right() const { return std::max(x1_, x2_); }
  int Start() const { return start_; }

  // A thin line goes by its heights in the middles of columns, but covers the pixels of its ends. A
  // wide one covers them anyway.
  Run In(int column) const {
    if (run_ == 1 && column == start_) {
      return FromEnd(y1_, y2_, column, end_);
    }
    if (run_ == 1 && column == end_) {
      return FromEnd(y2_, y1_, column, start_);
    }
    return {Row(column), run_};
  }

 private:
  // Heights are taken on the whole line, and counted from the end nearer to the raster: from a very
  // far one they would be lost in rounding.
  int Row(int column) const {
    const double x = std::clamp(column + 0.5, Left(), Right());
    const double height =
        std::abs(x1_) <= std::abs(x2_) ? y1_ + slope_ * (x - x1_) : y2_ + slope_ * (x - x2_);
    return FirstPixel(height, run_);
  }

  // From the pixel of an end as far as the next column's touches; or all the way to the other end
  // where the two stand in one column.
  static Run Between(int a, int b) { return {std::min(a, b), std::abs(a - b) + 1}; }
  Run FromEnd(double y, double otherY, int column, int otherColumn) const {
    const int end = PixelOf(y);
    if (column == otherColumn) {
      return Between(end, PixelOf(otherY));
    }
    const int next = column < otherColumn ? column + 1 : column - 1;
    const int beside = next == otherColumn ? PixelOf(otherY) : Row(next);
    return Between(end, std::clamp(end, beside - 1, beside + 1));
  }

  double x1_;
  double y1_;
  double x2_;
  double y2_;
  double slope_;
  int run_;
  int start_;  // columns of the two ends
  int end_;
};

}  // namespace clinorama::forms
