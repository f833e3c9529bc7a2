#pragma once

#include <string>

#include "tools/graph.h"

namespace clinorama::tools {

// A length or a place as it is written in a picture.
std::string Length(double pixels);
std::string Place(const Point& point);

// The picture of a graph as a document of SVG Tiny 1.2: a grid, axes with arrow heads, names, marks
// and numbers, and the curve. Throws ErroInterpretador for an expression that cannot be evaluated.
std::string PictureOf(const Graph& graph);

}  // namespace clinorama::tools
