// Draws graphs as pictures with the program's own engine. Made for the manual and for the examples:
//
//   draw_graph [list]
//
// Each line of the list (or of the standard input) asks for one picture:
//
//   file | expression | order of the derivative | x range | y range | size | graduation | additions
//
// such as  graphs/arctg.svg | arctg(x) | 0 | -4 4 | -2 2 | 220 150 | 1 pi | y=pi/2; y=-pi/2
//
// The file is told from the folder of the list. Sizes are in pixels. The graduation is a step for
// the x axis and one for the y axis: a number, "pi" for halves of pi, or nothing, as it fits. Empty
// lines and those that begin with # are passed over. The additions stand between semicolons:
//
//   x=0, y=pi/2               an asymptote, dashed
//   ends                      discs and rings where the curve jumps or ends
//   inverse tg(x) -pi/2 pi/2  another curve between two abscissas, and the line y = x; this asks
//   for
//                             ranges with the same unit on both axes

#include <cmath>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/clsEquation.h"
#include "tools/file.h"
#include "tools/graph.h"
#include "tools/picture.h"

namespace clinorama::tools {
namespace {

std::vector<std::string> FieldsOf(const std::string& line, char separator) {
  std::vector<std::string> fields;
  std::istringstream in(line);
  for (std::string field; std::getline(in, field, separator);) {
    const std::size_t first = field.find_first_not_of(" \t");
    const std::size_t last = field.find_last_not_of(" \t\r");
    fields.push_back(first == std::string::npos ? "" : field.substr(first, last - first + 1));
  }
  return fields;
}

template <class Number>
void ReadPair(const std::string& field, Number& first, Number& second) {
  std::istringstream in(field);
  in >> first >> second;
  if (in.fail() || !(in >> std::ws).eof()) {
    throw std::runtime_error("not two numbers: " + field);
  }
}

Interval IntervalFrom(const std::string& field) {
  Interval interval;
  ReadPair(field, interval.From, interval.To);
  if (interval.Length() <= 0) {
    throw std::runtime_error("an empty range: " + field);
  }
  return interval;
}

Graduation GraduationFrom(const std::string& word) {
  if (word == "pi") {
    return {.InPi = true};
  }
  const double step = word.empty() ? 0 : std::stod(word);
  if (step < 0) {
    throw std::runtime_error("not a graduation: " + word);
  }
  return {.Step = step};
}

// An expression without x, such as -pi/2.
double ValueOf(const std::string& expression) {
  clsEquation equation;
  equation.Equation(expression);
  equation.Solve();
  return equation.Solution();
}

void Add(Graph& graph, const std::string& addition) {
  std::istringstream words(addition);
  std::string kind;
  words >> kind;
  if (kind == "ends") {
    graph.ShowsEnds = true;
  } else if (kind == "inverse") {
    std::string expression;
    std::string from;
    std::string to;
    words >> expression >> from >> to;
    graph.Inverse = {.Expression = expression, .X = {ValueOf(from), ValueOf(to)}};
  } else if (kind.rfind("x=", 0) == 0 || kind.rfind("y=", 0) == 0) {
    graph.Asymptotes.push_back({.Vertical = kind.front() == 'x', .Value = ValueOf(kind.substr(2))});
  } else {
    throw std::runtime_error("not an addition: " + addition);
  }
}

// A curve and its inverse are each other's image in y = x only where both units are the same.
void CheckUnits(const Graph& graph) {
  const Frame frame(graph);
  if (graph.Inverse && std::abs(frame.UnitX() / frame.UnitY() - 1) > 0.01) {
    throw std::runtime_error("the units of the axes differ");
  }
}

Graph GraphFrom(const std::string& line) {
  const std::vector<std::string> fields = FieldsOf(line, '|');
  if (fields.size() < 6 || fields.size() > 8) {
    throw std::runtime_error("not six to eight fields");
  }
  Graph graph;
  graph.File = fields[0];
  graph.Expression = fields[1];
  graph.Order = std::stoi(fields[2]);
  if (graph.Order < 0 || graph.Order > 2) {
    throw std::runtime_error("no such derivative");
  }
  graph.X = IntervalFrom(fields[3]);
  graph.Y = IntervalFrom(fields[4]);
  ReadPair(fields[5], graph.Width, graph.Height);
  std::istringstream steps(fields.size() > 6 ? fields[6] : "");
  std::string x;
  std::string y;
  steps >> x >> y;
  graph.GraduationX = GraduationFrom(x);
  graph.GraduationY = GraduationFrom(y);
  for (const std::string& addition : FieldsOf(fields.size() > 7 ? fields[7] : "", ';')) {
    Add(graph, addition);
  }
  CheckUnits(graph);
  return graph;
}

// Returns how many lines could not be drawn.
int DrawAll(std::istream& list, const std::string& name, const std::filesystem::path& folder) {
  int failures = 0;
  int number = 0;
  for (std::string line; std::getline(list, line);) {
    ++number;
    if (line.empty() || line.front() == '#') {
      continue;
    }
    try {
      const Graph graph = GraphFrom(line);
      WriteIfNew(folder / graph.File, PictureOf(graph));
    } catch (const std::exception& failure) {
      ++failures;
      std::cerr << name << ":" << number << ": " << failure.what() << "\n";
    }
  }
  return failures;
}

}  // namespace
}  // namespace clinorama::tools

int main(int argc, char* argv[]) {
  using clinorama::tools::DrawAll;
  if (argc > 2) {
    std::cerr << "usage: draw_graph [list]\n";
    return 2;
  }
  if (argc < 2) {
    return DrawAll(std::cin, "standard input", {}) == 0 ? 0 : 1;
  }
  std::ifstream list(argv[1]);
  if (!list) {
    std::cerr << "cannot read " << argv[1] << "\n";
    return 1;
  }
  return DrawAll(list, argv[1], std::filesystem::path(argv[1]).parent_path()) == 0 ? 0 : 1;
}
