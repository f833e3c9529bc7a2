#include "tools/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <sstream>
#include <vector>

#include "tools/axis.h"
#include "tools/curve.h"

namespace clinorama::tools {
namespace {

constexpr const char* Ink = "#2b2f3a";
constexpr const char* Edge = "#c3cde2";
constexpr const char* Grid = "#e3e8f3";
constexpr const char* AsymptoteColor = "#b06a00";
constexpr const char* PaleAsymptoteColor = "#e0b67a";  // where it is an axis
constexpr const char* InverseColor = "#8a93a6";        // and of the line y = x
// Of a function and of its first and second derivative.
constexpr std::array<const char*, 3> CurveColors = {"#1f4fd8", "#2a9d3a", "#d62828"};

constexpr double ArrowLength = 5;
constexpr double ArrowWidth = 4;
constexpr double MarkLength = 4;
constexpr double NumberGap = 3;     // pixels between an axis and a number below or above it
constexpr double NumberAside = 4;   // and one beside it, or beside its mark
constexpr double NumberAir = 1.5;   // kept free around a number
constexpr double SpaceAcross = 21;  // from a number of the x axis to the next, at the least
constexpr double SpaceInPi = 26;    // as much, for the longer ones such as -3π/2
constexpr double SpaceDown = 17;
constexpr double ClosestGrid = 7;  // pixels
constexpr double EndRadius = 2.4;

struct Box {
  double Left;
  double Top;
  double Right;
  double Bottom;
  bool Holds(const Point& point) const {
    return point.X >= Left && point.X <= Right && point.Y >= Top && point.Y <= Bottom;
  }
  bool Meets(const Box& other) const {
    return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
  }
};

// Writes the parts of one picture, from the ground up.
class Drawing {
 public:
  explicit Drawing(const Graph& graph)
      : graph_(graph),
        frame_(graph),
        curve_(CurveOf(graph, graph.X)),
        originX_(Sharp(frame_.Across(std::clamp(0.0, graph.X.From, graph.X.To)))),
        originY_(Sharp(frame_.Down(std::clamp(0.0, graph.Y.From, graph.Y.To)))) {
    if (graph.Inverse) {
      Graph inverse = graph;
      inverse.Expression = graph.Inverse->Expression;
      inverse_ = CurveOf(inverse, {std::max(graph.Inverse->X.From, graph.X.From),
                                   std::min(graph.Inverse->X.To, graph.X.To)})
                     .Lines;
    }
  }

  std::string Text() {
    const std::string width = Length(frame_.Width());
    const std::string height = Length(frame_.Height());
    out_ << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\""
         << height << "\" viewBox=\"0 0 " << width << " " << height << "\">\n";
    out_ << "  <rect x=\"0.5\" y=\"0.5\" width=\"" << Length(frame_.Width() - 1) << "\" height=\""
         << Length(frame_.Height() - 1) << "\" rx=\"3\" fill=\"#ffffff\" stroke=\"" << Edge
         << "\"/>\n";
    DrawGrid();
    DrawAuxiliaryLines();
    DrawAxes();
    DrawNamesAndMarks();
    Stroke(PathOf(inverse_), InverseColor, 1.5);
    DrawCurve();
    out_ << "</svg>\n";
    return out_.str();
  }

 private:
  // Lines one pixel wide stand on the middle of pixels.
  static double Sharp(double pixels) { return std::floor(pixels) + 0.5; }

  void Stroke(const std::string& path, const char* color, double width,
              const std::string& dashes = {}) {
    if (path.empty()) {
      return;
    }
    out_ << "  <path d=\"" << path << "\" fill=\"none\" stroke=\"" << color << "\" stroke-width=\""
         << Length(width) << "\"";
    if (dashes.empty()) {
      out_ << " stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n";
    } else {
      out_ << " stroke-dasharray=\"" << dashes << "\"/>\n";
    }
  }

  // At each mark, or, where these are dense, at each that has a number.
  void DrawGrid() {
    if (frame_.Small()) {
      return;
    }
    const auto places = [](const std::vector<Mark>& marks, double unit) {
      const bool dense = marks.size() > 1 && (marks[1].Value - marks[0].Value) * unit < ClosestGrid;
      std::vector<double> values;
      for (const Mark& mark : marks) {
        if (!dense || !mark.Number.empty()) {
          values.push_back(mark.Value);
        }
      }
      return values;
    };
    std::string lines;
    const std::string across = "H" + Length(frame_.Across(graph_.X.To));
    const std::string down = "V" + Length(frame_.Down(graph_.Y.From));
    for (const double x : places(MarksAcross(), frame_.UnitX())) {
      lines += "M" + Place({Sharp(frame_.Across(x)), frame_.Down(graph_.Y.To)}) + down;
    }
    for (const double y : places(MarksDown(), frame_.UnitY())) {
      lines += "M" + Place({frame_.Across(graph_.X.From), Sharp(frame_.Down(y))}) + across;
    }
    Stroke(lines, Grid, 1);
  }

  // Dashed: the asymptotes, and y = x. An asymptote that is an axis shows on both sides of it.
  void DrawAuxiliaryLines() {
    for (const Asymptote& asymptote : graph_.Asymptotes) {
      const double x = Sharp(frame_.Across(asymptote.Value));
      const double y = Sharp(frame_.Down(asymptote.Value));
      const Polyline line =
          asymptote.Vertical
              ? AddObstacle({x, frame_.Down(graph_.Y.From)}, {x, frame_.Down(graph_.Y.To)})
              : AddObstacle({frame_.Across(graph_.X.From), y}, {frame_.Across(graph_.X.To), y});
      const bool axis = asymptote.Value == 0;
      Stroke(PathOf({line}), axis ? PaleAsymptoteColor : AsymptoteColor, axis ? 3 : 1.2, "4 2.5");
    }
    if (graph_.Inverse) {
      const double from = std::max(graph_.X.From, graph_.Y.From);
      const double to = std::min(graph_.X.To, graph_.Y.To);
      const Polyline line = AddObstacle({frame_.Across(from), frame_.Down(from)},
                                        {frame_.Across(to), frame_.Down(to)});
      Stroke(PathOf({line}), InverseColor, 1, "2 2");
    }
  }

  // Keeps numbers and names off a segment. Returns it with a point at each pixel.
  Polyline AddObstacle(const Point& from, const Point& to) {
    const int pixels = static_cast<int>(std::hypot(to.X - from.X, to.Y - from.Y));
    Polyline line;
    for (int i = 0; i <= pixels; ++i) {
      line.push_back(
          {from.X + (to.X - from.X) * i / pixels, from.Y + (to.Y - from.Y) * i / pixels});
    }
    obstacles_.push_back(line);
    return line;
  }

  void DrawAxes() {
    const double tip = frame_.Width() - 2;
    Stroke("M2 " + Length(originY_) + "H" + Length(tip - 1) + "M" + Length(originX_) + " " +
               Length(frame_.Height() - 2) + "V3",
           Ink, 1);
    out_ << "  <path d=\"M" << Place({tip, originY_}) << "l" << -ArrowLength << " "
         << -ArrowWidth / 2 << "v" << ArrowWidth << "zM" << Place({originX_, 2}) << "l"
         << -ArrowWidth / 2 << " " << ArrowLength << "h" << ArrowWidth << "z\" fill=\"" << Ink
         << "\"/>\n";
  }

  std::vector<Mark> MarksAcross() const {
    return MarksOf(graph_.X, graph_.GraduationX, frame_.UnitX(),
                   graph_.GraduationX.InPi ? SpaceInPi : SpaceAcross);
  }
  std::vector<Mark> MarksDown() const {
    return MarksOf(graph_.Y, graph_.GraduationY, frame_.UnitY(), SpaceDown);
  }

  // The names of the axes stand beside their arrow heads.
  std::string Names() {
    const double away = NumberGap + NumberHeight / 2;
    const double aside = NumberAside + NumberWidth("y") / 2;
    const double right = frame_.Width() - 6;
    const double top = 7;
    std::string names = NumberAt("x", {{right, originY_ + away}, {right, originY_ - away}});
    names += NumberAt("y", {{originX_ - aside, top}, {originX_ + aside, top}});
    // A number close by would read as a factor.
    for (Box& box : written_) {
      box.Left -= NumberAside;
      box.Bottom += NumberGap;
    }
    return names;
  }

  void DrawNamesAndMarks() {
    std::string marks;
    std::string numbers = Names();
    const double half = frame_.Small() ? MarkLength / 4 : MarkLength / 2;
    for (const Mark& mark : MarksAcross()) {
      const double x = Sharp(frame_.Across(mark.Value));
      if (x > frame_.Width() - frame_.Margin() - ArrowLength / 2) {
        continue;
      }
      marks += "M" + Place({x, originY_ - half}) + "v" + Length(2 * half);
      const double away = NumberGap + NumberHeight / 2 + (graph_.ShowsEnds ? EndRadius / 2 : 0);
      const double aside = NumberAside + NumberWidth(mark.Number) / 2;
      numbers += NumberAt(mark.Number, {{x, originY_ + away},
                                        {x, originY_ - away},
                                        {x + aside, originY_ + away},
                                        {x + aside, originY_ - away},
                                        {x - aside, originY_ + away},
                                        {x - aside, originY_ - away}});
    }
    for (const Mark& mark : MarksDown()) {
      const double y = Sharp(frame_.Down(mark.Value));
      if (y < frame_.Margin() + ArrowLength / 2) {
        continue;
      }
      marks += "M" + Place({originX_ - half, y}) + "h" + Length(2 * half);
      const double aside = NumberAside + NumberWidth(mark.Number) / 2;
      const double away = NumberGap + NumberHeight / 2;
      numbers += NumberAt(mark.Number, {{originX_ - aside, y},
                                        {originX_ + aside, y},
                                        {originX_ - aside, y - away},
                                        {originX_ + aside, y - away},
                                        {originX_ - aside, y + away},
                                        {originX_ + aside, y + away}});
    }
    Stroke(marks, Ink, 1);
    Stroke(numbers, Ink, 0.9);
  }

  // The number about the first of the places where it is free; nothing where none is.
  std::string NumberAt(const std::string& number, std::initializer_list<Point> places) {
    if (number.empty() || frame_.Small()) {
      return {};
    }
    const double width = NumberWidth(number);
    for (const Point& place : places) {
      const Box box = {place.X - width / 2, place.Y - NumberHeight / 2, place.X + width / 2,
                       place.Y + NumberHeight / 2};
      if (Free(box)) {
        written_.push_back(box);
        return NumberStrokes(number, {box.Left, box.Top});
      }
    }
    return {};
  }

  // Whether the lines, the axes, the edge of the picture and what is written are clear of a box.
  bool Free(const Box& box) const {
    if (box.Left < 2 || box.Top < 2 || box.Right > frame_.Width() - 2 ||
        box.Bottom > frame_.Height() - 2) {
      return false;
    }
    const Box air = {box.Left - NumberAir, box.Top - NumberAir, box.Right + NumberAir,
                     box.Bottom + NumberAir};
    if (air.Left < originX_ && originX_ < air.Right) {
      return false;
    }
    if (air.Top < originY_ && originY_ < air.Bottom) {
      return false;
    }
    for (const std::vector<Polyline>& lines : {curve_.Lines, inverse_, obstacles_}) {
      for (const Polyline& line : lines) {
        if (std::any_of(line.begin(), line.end(),
                        [&](const Point& point) { return air.Holds(point); })) {
          return false;
        }
      }
    }
    return std::none_of(written_.begin(), written_.end(),
                        [&](const Box& other) { return air.Meets(other); });
  }

  static std::string PathOf(const std::vector<Polyline>& lines) {
    std::string path;
    for (const Polyline& line : lines) {
      const char* command = "M";
      for (const Point& point : Simplified(line)) {
        path += command + Place(point);
        command = path.back() == 'M' ? " " : "L";
      }
    }
    return path;
  }

  void DrawCurve() {
    const char* color = CurveColors.at(static_cast<std::size_t>(graph_.Order));
    Stroke(PathOf(curve_.Lines), color, frame_.Small() ? 1.4 : 1.8);
    if (!graph_.ShowsEnds) {
      return;
    }
    for (const End& end : curve_.Ends) {
      out_ << "  <circle cx=\"" << Length(end.Place.X) << "\" cy=\"" << Length(end.Place.Y)
           << "\" r=\"" << Length(EndRadius) << "\" fill=\"" << (end.Open ? "#ffffff" : color)
           << "\" stroke=\"" << color << "\" stroke-width=\"1.2\"/>\n";
    }
  }

  const Graph& graph_;
  Frame frame_;
  Curve curve_;  // with all its samples
  std::vector<Polyline> inverse_;
  std::vector<Polyline> obstacles_;
  std::vector<Box> written_;
  double originX_;
  double originY_;
  std::ostringstream out_;
};

}  // namespace

std::string Length(double pixels) {
  std::ostringstream out;
  out << std::round(pixels * 100) / 100;
  return out.str();
}

std::string Place(const Point& point) { return Length(point.X) + " " + Length(point.Y); }

std::string PictureOf(const Graph& graph) { return Drawing(graph).Text(); }

}  // namespace clinorama::tools
