#include "tools/sheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

#include "base/number_text.h"
#include "tools/axis.h"
#include "tools/curve.h"
#include "tools/picture.h"

namespace clinorama::tools {
namespace {

constexpr const char* Ink = "#2b2f3a";
constexpr const char* Edge = "#c3cde2";
constexpr const char* Pale = "#6b7690";

constexpr double ArrowLength = 6;
constexpr double ArrowHalfWidth = 2.5;
constexpr double MarkHalf = 2;
constexpr double NumberScale = 1.35;  // of the strokes of numbers
constexpr double NumberGap = 4;
constexpr double LineWidth = 2;  // of semi-secants and tangents
constexpr double DotWidth = 6;
constexpr double GuideWidth = 1.2;
constexpr const char* Dashes = "2 3";

// Where a number may stand.
struct Box {
  double Left;
  double Top;
  double Width;
};

// A colour of the program and how it is drawn here.
struct Shade {
  int Number;  // of QBColor
  const char* Drawn;
};
constexpr std::array<Shade, 6> Shades = {
    {{0, Ink}, {9, "#1f4fd8"}, {10, "#2a9d3a"}, {11, "#0bb4cf"}, {12, "#d62828"}, {13, "#cf1fb4"}}};

std::string ShadeOf(forms::Color color) {
  for (const Shade& shade : Shades) {
    if (forms::QBColor(shade.Number) == color) {
      return shade.Drawn;
    }
  }
  return Ink;
}

// Lines one pixel wide stand on the middle of pixels.
double Sharp(double pixels) { return std::floor(pixels) + 0.5; }

std::string PathOf(const Polyline& line) {
  std::string path;
  const char* command = "M";
  for (const Point& point : Simplified(line)) {
    path += command + Place(point);
    command = path.back() == 'M' ? " " : "L";
  }
  return path + (line.size() == 1 ? "h.01" : "");
}

// The parts of a cloud of points that the panel shows.
std::string CloudIn(const Panel& panel, const std::vector<Point>& points) {
  std::string path;
  Polyline run;
  const auto end = [&] {
    if (!run.empty()) {
      path += PathOf(run);
    }
    run.clear();
  };
  for (const Point& point : points) {
    if (panel.Holds(point)) {
      run.push_back(panel.Place(point));
    } else {
      end();
    }
  }
  end();
  return path;
}

// The part of a line that the panel shows.
std::string SegmentIn(const Panel& panel, const Trace& line) {
  const Point& a = line.Points.front();
  const Point& b = line.Points.back();
  double from = 0;  // of the way from a to b, as the next
  double to = 1;
  const auto cut = [&](double start, double change, const Interval& interval) {
    if (change == 0) {
      return interval.Holds(start);
    }
    const double first = (interval.From - start) / change;
    const double second = (interval.To - start) / change;
    from = std::max(from, std::min(first, second));
    to = std::min(to, std::max(first, second));
    return from < to;
  };
  if (!cut(a.X, b.X - a.X, panel.X) || !cut(a.Y, b.Y - a.Y, panel.Y)) {
    return {};
  }
  const auto at = [&](double part) {
    return Place(panel.Place({a.X + part * (b.X - a.X), a.Y + part * (b.Y - a.Y)}));
  };
  return "M" + at(from) + "L" + at(to);
}

}  // namespace

Sheet::Sheet(double width, double height) : width_(width), height_(height) {}

void Sheet::DrawPlane(const Panel& panel, double unit) {
  out_ << "  <rect x=\"" << Length(panel.Left + 0.5) << "\" y=\"" << Length(panel.Top + 0.5)
       << "\" width=\"" << Length(panel.Width - 1) << "\" height=\"" << Length(panel.Height - 1)
       << "\" rx=\"3\" fill=\"#ffffff\" stroke=\"" << Edge << "\"/>\n";
  const double right = panel.Left + panel.Width - Panel::Rim;
  const double top = panel.Top + Panel::Rim;
  const double originX = Sharp(panel.Across(0));
  const double originY = Sharp(panel.Down(0));
  std::string axes = "M" + Place({panel.Left + 3, originY}) + "H" + Length(right - 2) + "M" +
                     Place({originX, panel.Top + panel.Height - 3}) + "V" + Length(top + 2);
  for (double x = std::ceil(panel.X.From / unit) * unit; panel.Across(x) < right - ArrowLength;
       x += unit) {
    if (x != 0 && panel.Across(x) > panel.Left + 3) {
      axes +=
          "M" + Place({Sharp(panel.Across(x)), originY - MarkHalf}) + "v" + Length(2 * MarkHalf);
    }
  }
  for (double y = std::ceil(panel.Y.From / unit) * unit; panel.Down(y) > top + ArrowLength;
       y += unit) {
    if (y != 0 && panel.Down(y) < panel.Top + panel.Height - 3) {
      axes += "M" + Place({originX - MarkHalf, Sharp(panel.Down(y))}) + "h" + Length(2 * MarkHalf);
    }
  }
  Stroke(axes, Ink, 1);
  out_ << "  <path d=\"M" << Place({right, originY}) << "l" << -ArrowLength << " "
       << -ArrowHalfWidth << "v" << 2 * ArrowHalfWidth << "zM" << Place({originX, top}) << "l"
       << -ArrowHalfWidth << " " << ArrowLength << "h" << 2 * ArrowHalfWidth << "z\" fill=\"" << Ink
       << "\"/>\n";
}

void Sheet::DrawNumbers(const Panel& panel, const std::vector<Trace>& traces,
                        const std::vector<double>& numbers) {
  constexpr double Air = 2;  // pixels kept free around a number
  constexpr double VerticalAir = 4;
  const double height = NumberHeight * NumberScale;
  const auto crossed = [&](const Box& box) {
    const bool byVertical =
        std::any_of(verticals_.begin(), verticals_.end(), [&](const Vertical& vertical) {
          return vertical.X > box.Left - VerticalAir &&
                 vertical.X < box.Left + box.Width + VerticalAir &&
                 vertical.Top < box.Top + height + Air && vertical.Bottom > box.Top - Air;
        });
    return byVertical || std::any_of(traces.begin(), traces.end(), [&](const Trace& trace) {
             return trace.What != Trace::Kind::Guide &&
                    std::any_of(trace.Points.begin(), trace.Points.end(), [&](const Point& point) {
                      const Point place = panel.Place(point);
                      return place.X > box.Left - Air && place.X < box.Left + box.Width + Air &&
                             place.Y > box.Top - Air && place.Y < box.Top + height + Air;
                    });
           });
  };
  for (const double x : numbers) {
    const std::string number = base::NumberText(x);
    const double width = NumberWidth(number) * NumberScale;
    for (const double top : {panel.Down(0) + NumberGap, panel.Down(0) - NumberGap - height}) {
      const Box box = {panel.Across(x) - width / 2, top, width};
      if (box.Left < panel.Left + Air || box.Left + width > panel.Left + panel.Width - Air ||
          top < panel.Top + Air || top + height > panel.Top + panel.Height - Air || crossed(box)) {
        continue;
      }
      out_ << "  <path transform=\"matrix(" << NumberScale << " 0 0 " << NumberScale << " "
           << Place({box.Left, top}) << ")\" d=\"" << NumberStrokes(number, {0, 0})
           << "\" fill=\"none\" stroke=\"" << Ink
           << "\" stroke-width=\"0.8\" stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n";
      break;
    }
  }
}

void Sheet::Draw(const Panel& panel, const std::vector<Trace>& traces, double width) {
  // All that has one colour is one path.
  const auto drawClouds = [&](Trace::Kind kind, double pen) {
    std::map<std::string, std::string> paths;
    for (const Trace& trace : traces) {
      if (trace.What == kind) {
        paths[ShadeOf(trace.Pen)] += CloudIn(panel, trace.Points);
      }
    }
    for (const auto& [color, path] : paths) {
      Stroke(path, color, pen);
    }
  };
  drawClouds(Trace::Kind::Curve, width);
  for (const Trace& trace : traces) {
    if (trace.What == Trace::Kind::Line) {
      Stroke(SegmentIn(panel, trace), ShadeOf(trace.Pen), LineWidth);
    } else if (trace.What == Trace::Kind::Guide) {
      Stroke(SegmentIn(panel, trace), Pale, GuideWidth, Dashes);
    }
  }
  drawClouds(Trace::Kind::Dot, DotWidth);
}

void Sheet::DrawDot(const Point& place, forms::Color color) {
  Stroke("M" + Place(place) + "h.01", ShadeOf(color), DotWidth);
}

void Sheet::DrawVertical(double x, double top, double bottom) {
  verticals_.push_back({x, std::min(top, bottom), std::max(top, bottom)});
  Stroke("M" + Place({x, top}) + "V" + Length(bottom), Pale, GuideWidth, Dashes);
}

void Sheet::Write(const Point& place, double size, const std::string& text) {
  out_ << "  <text x=\"" << Length(place.X) << "\" y=\"" << Length(place.Y)
       << "\" font-family=\"DejaVu Sans\" font-size=\"" << Length(size) << "\" fill=\"" << Ink
       << "\" text-anchor=\"middle\">" << text << "</text>\n";
}

std::string Sheet::Text() const {
  const std::string width = Length(width_);
  const std::string height = Length(height_);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
         "\" viewBox=\"0 0 " + width + " " + height + "\">\n" + out_.str() + "</svg>\n";
}

void Sheet::Stroke(const std::string& path, const std::string& color, double width,
                   const std::string& dashes) {
  if (path.empty()) {
    return;
  }
  out_ << "  <path d=\"" << path << "\" fill=\"none\" stroke=\"" << color << "\" stroke-width=\""
       << Length(width) << "\" stroke-linejoin=\"round\""
       << (dashes.empty() ? " stroke-linecap=\"round\"" : " stroke-dasharray=\"" + dashes + "\"")
       << "/>\n";
}

}  // namespace clinorama::tools
