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
// Of a function and of its first and second derivative.
constexpr std::array<const char*, 3> CurveColors = {"#1f4fd8", "#2a9d3a", "#d62828"};

constexpr double ArrowLength = 5;
constexpr double ArrowWidth = 4;
constexpr double MarkLength = 4;
constexpr double NumberGap = 3;     // pixels between an axis and a number below or above it
constexpr double NumberAside = 4;   // and one beside it, or beside its mark
constexpr double NumberAir = 1.5;   // kept free around a number
constexpr double SpaceAcross = 26;  // from a number of the x axis to the next, at the least
constexpr double SpaceDown = 17;

struct Box {
  double Left;
  double Top;
  double Right;
  double Bottom;
  bool Holds(const Point& point) const {
    return point.X >= Left && point.X <= Right && point.Y >= Top && point.Y <= Bottom;
  }
};

// Writes the parts of one picture, from the ground up.
class Drawing {
 public:
  explicit Drawing(const Graph& graph)
      : graph_(graph),
        frame_(graph),
        curve_(CurveOf(graph)),
        originX_(Sharp(frame_.Across(std::clamp(0.0, graph.X.From, graph.X.To)))),
        originY_(Sharp(frame_.Down(std::clamp(0.0, graph.Y.From, graph.Y.To)))) {}

  std::string Text() {
    const std::string width = Length(frame_.Width());
    const std::string height = Length(frame_.Height());
    out_ << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\""
         << height << "\" viewBox=\"0 0 " << width << " " << height << "\">\n";
    out_ << "  <rect x=\"0.5\" y=\"0.5\" width=\"" << Length(frame_.Width() - 1) << "\" height=\""
         << Length(frame_.Height() - 1) << "\" rx=\"3\" fill=\"#ffffff\" stroke=\"" << Edge
         << "\"/>\n";
    DrawAxes();
    DrawMarks();
    DrawCurve();
    out_ << "</svg>\n";
    return out_.str();
  }

 private:
  // Lines one pixel wide stand on the middle of pixels.
  static double Sharp(double pixels) { return std::floor(pixels) + 0.5; }

  void Stroke(const std::string& path, const char* color, double width) {
    if (path.empty()) {
      return;
    }
    out_ << "  <path d=\"" << path << "\" fill=\"none\" stroke=\"" << color << "\" stroke-width=\""
         << Length(width) << "\" stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n";
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

  void DrawMarks() {
    std::string marks;
    std::string numbers;
    const double half = frame_.Small() ? MarkLength / 4 : MarkLength / 2;
    for (const Mark& mark : MarksOf(graph_.X, graph_.GraduationX, frame_.UnitX(), SpaceAcross)) {
      const double x = Sharp(frame_.Across(mark.Value));
      if (x > frame_.Width() - frame_.Margin() - ArrowLength / 2) {
        continue;
      }
      marks += "M" + Place({x, originY_ - half}) + "v" + Length(2 * half);
      const double away = NumberGap + NumberHeight / 2;
      const double aside = NumberAside + NumberWidth(mark.Number) / 2;
      numbers += NumberAt(mark.Number, {{x, originY_ + away},
                                        {x, originY_ - away},
                                        {x + aside, originY_ + away},
                                        {x + aside, originY_ - away},
                                        {x - aside, originY_ + away},
                                        {x - aside, originY_ - away}});
    }
    for (const Mark& mark : MarksOf(graph_.Y, graph_.GraduationY, frame_.UnitY(), SpaceDown)) {
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
                                        {originX_ + aside, y - away}});
    }
    Stroke(marks, Ink, 1);
    Stroke(numbers, Ink, 0.9);
  }

  // The number about the first of the places where it is free; nothing where none is.
  std::string NumberAt(const std::string& number, std::initializer_list<Point> places) const {
    if (number.empty() || frame_.Small()) {
      return {};
    }
    const double width = NumberWidth(number);
    for (const Point& place : places) {
      const Box box = {place.X - width / 2, place.Y - NumberHeight / 2, place.X + width / 2,
                       place.Y + NumberHeight / 2};
      if (Free(box)) {
        return NumberStrokes(number, {box.Left, box.Top});
      }
    }
    return {};
  }

  // Whether the curve, the axes and the edge of the picture are clear of a box.
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
    for (const Polyline& line : curve_) {
      if (std::any_of(line.begin(), line.end(),
                      [&](const Point& point) { return air.Holds(point); })) {
        return false;
      }
    }
    return true;
  }

  void DrawCurve() {
    std::string path;
    for (const Polyline& line : curve_) {
      const char* command = "M";
      for (const Point& point : Simplified(line)) {
        path += command + Place(point);
        command = path.back() == 'M' ? " " : "L";
      }
    }
    const std::size_t order = static_cast<std::size_t>(graph_.Order);
    Stroke(path, CurveColors.at(order), frame_.Small() ? 1.4 : 1.8);
  }

  const Graph& graph_;
  Frame frame_;
  std::vector<Polyline> curve_;  // with all its samples
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
