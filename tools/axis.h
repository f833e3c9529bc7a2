#pragma once

#include <string>
#include <vector>

#include "tools/graph.h"

namespace clinorama::tools {

// A mark of the graduation of an axis. Zero has none.
struct Mark {
  double Value = 0;
  std::string Number;  // empty where there is no room for it
};

// The marks of an axis that shows an interval, with `unit` pixels to 1 and at least `space` pixels
// from a number to the next.
std::vector<Mark> MarksOf(const Interval& interval, const Graduation& graduation, double unit,
                          double space);

// Numbers, and the names x and y, are drawn and not written, so that they look alike wherever the
// picture is shown, and a page of the manual may hold it: the height and the width of one, in
// pixels, and its strokes as the data of a path, from its upper left corner.
constexpr double NumberHeight = 6;
double NumberWidth(const std::string& number);
std::string NumberStrokes(const std::string& number, const Point& corner);

}  // namespace clinorama::tools
