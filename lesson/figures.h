#pragma once

#include <cmath>
#include <cstddef>

namespace clinorama::lesson {

// What the scenes and motions of the lesson share: its functions, the two sides of the point a,
// and the numbers of pictures.

// From a point to the corner of the marker that shows it, in user units: half a marker in the
// scale -1..10, and in the scale -10..10.
inline constexpr double QuadrantCorner = 0.12;
inline constexpr double MarginCorner = 0.24;

// The row of a page in the table of a family, which must have one.
template <class Row, std::size_t Count>
const Row& RowOfPage(const Row (&table)[Count], int page) {
  const Row* row = table;
  while (row->Page != page) {
    ++row;
  }
  return *row;
}

// The function of the pages about one point: the upper half of a circle, from 0 to 16.
inline double FuncaoF(double x) { return std::sqrt(16 * x - x * x) - 1; }

// The functions of the examples. All have a = 0.
inline double Parabola(double x) { return x * x / 4 - 3; }
inline double Cubic(double x) { return (x * x * x - 10 * x) / 15; }
inline double LeftBranch(double x) { return x * x / 5 - 2; }
inline double RightBranch(double x) { return -x * x / 5 + 3; }
inline double Cusp(double x) { return 4 * std::pow(std::abs(x), 1.0 / 3) - 4; }
inline double Corner(double x) { return -std::abs(x) + 3; }

// The point of the pages about FuncaoF, and the length of their semi-secants.
inline constexpr double PointA = 4;
inline constexpr double SemiSecantLength = 5;

// A side of the point a: where x starts, its step towards a, and the markers of the moving point
// with the rings that keep its start in view.
struct Side {
  struct Markers {
    int OnGraph;  // X
    int OnAxisX;  // x
    int OnAxisY;  // f(x)
  };
  double Start;
  double Step;
  Markers Moving;
  Markers Rings;
};
inline constexpr Side RightSide = {.Start = 7,
                                   .Step = -0.01,
                                   .Moving = {.OnGraph = 1, .OnAxisX = 5, .OnAxisY = 12},
                                   .Rings = {.OnGraph = 3, .OnAxisX = 7, .OnAxisY = 13}};
inline constexpr Side LeftSide = {.Start = 1.5,
                                  .Step = 0.01,
                                  .Moving = {.OnGraph = 2, .OnAxisX = 6, .OnAxisY = 14},
                                  .Rings = {.OnGraph = 4, .OnAxisX = 8, .OnAxisY = 15}};

struct Point {
  double X;
  double Y;
};

// Where the six labels of the pages about FuncaoF are written.
struct LabelPlaces {
  Point a;
  Point x;
  Point fa;
  Point fx;
  Point A;
  Point X;
};
// A label that is left out is written outside the surface.
inline constexpr Point Outside = {20, 20};

}  // namespace clinorama::lesson
