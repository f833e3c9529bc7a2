#pragma once

#include <vector>

#include "tools/graph.h"

namespace clinorama::tools {

using Polyline = std::vector<Point>;

// The curve of a graph as lines in its picture, which break where the curve leaves the window,
// jumps, or has no value. Throws ErroInterpretador for an expression that cannot be evaluated.
std::vector<Polyline> CurveOf(const Graph& graph);

// The line with the points left out that lie where the others lead anyway.
Polyline Simplified(const Polyline& line);

}  // namespace clinorama::tools
