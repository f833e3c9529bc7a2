#pragma once

#include <vector>

#include "tools/graph.h"

namespace clinorama::tools {

using Polyline = std::vector<Point>;

// Where a curve jumps or its domain ends, in the picture. Open: no point of the curve.
struct End {
  Point Place;
  bool Open = false;
};

struct Curve {
  std::vector<Polyline> Lines;
  std::vector<End> Ends;  // also the points of the curve that stand alone in a jump
};

// The curve of a graph between two abscissas as lines in its picture, which break where the curve
// leaves the window, jumps, or has no value. Throws ErroInterpretador for an expression that cannot
// be evaluated.
Curve CurveOf(const Graph& graph, const Interval& range);

// The line with the points left out that lie where the others lead anyway.
Polyline Simplified(const Polyline& line);

}  // namespace clinorama::tools
