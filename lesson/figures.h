#pragma once

#include <cmath>
#include <cstddef>

namespace clinorama::lesson {

// What the scenes and motions of the lesson share: the functions, the two sides of the point a and
// the numbers of the markers.

// Distance from a point to the upper left corner of its marker, in user units: half the size of a
// marker, in the scale -1..10 and in the scale -10..10.
inline constexpr double QuadrantCorner = 0.12;
inline constexpr double MarginCorner = 0.24;

// The row of a page in a table; the table must have one.
template <class Row, std::size_t Count>
const Row& RowOfPage(const Row (&table)[Count], int page) {
  const Row* row = table;
  while (row->Page != page) {
    ++row;
  }
  return *row;
}

// The function of pages 5 to 15: a half circle of centre (8, -1) and radius 8, x from 0 to 16.
inline double FuncaoF(double x) { return std::sqrt(16 * x - x * x) - 1; }

// The functions of the other pages; the examples from page 16 on have a = 0.
inline double Parabola(double x) { return x * x / 4 - 3; }
inline double Cubic(double x) { return (x * x * x - 10 * x) / 15; }
inline double LeftBranch(double x) { return x * x / 5 - 2; }
inline double RightBranch(double x) { return -x * x / 5 + 3; }
inline double Cusp(double x) { return 4 * std::pow(std::abs(x), 1.0 / 3) - 4; }
inline double Corner(double x) { return -std::abs(x) + 3; }

// The point of the pages about FuncaoF, and the length of their semi-secants.
inline constexpr double PointA = 4;
inline constexpr double SemiSecantLength = 5;

// A side of the point a: where x starts, its step towards a, the markers of the moving point, and
// the rings that mark its start.
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

// One of the two semi-secants of an example: the function that its point moves on, and its length.
struct HalfMotion {
  double (*Function)(double);
  double Length;
};

struct Position {
  double X;
  double Y;
};

// Where the six labels of the pages about FuncaoF are written.
struct LabelPlaces {
  Position a;
  Position x;
  Position fa;
  Position fx;
  Position A;
  Position X;
};
// A label that is not to be seen is written here, outside the surface.
inline constexpr Position Outside = {20, 20};
// The label of a = 0 in an example, below the axis in the margin.
inline constexpr Position LabelOfA = {0, -9.4};

}  // namespace clinorama::lesson
