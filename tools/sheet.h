#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "tools/graph.h"
#include "tools/recording.h"

namespace clinorama::tools {

// A piece of the plane in a picture.
struct Panel {
  double Left = 0;  // pixels, as the next three
  double Top = 0;
  double Width = 0;
  double Height = 0;
  Interval X;
  Interval Y;

  static constexpr double Rim = 3;  // pixels that stay empty along the edge
  double Across(double x) const {
    return Left + Rim + (x - X.From) / X.Length() * (Width - 2 * Rim);
  }
  double Down(double y) const { return Top + Rim + (Y.To - y) / Y.Length() * (Height - 2 * Rim); }
  Point Place(const Point& point) const { return {Across(point.X), Down(point.Y)}; }
  bool Holds(const Point& point) const { return X.Holds(point.X) && Y.Holds(point.Y); }
};

// What a picture of the program's drawings is made of, as a document of SVG Tiny 1.2. The pure
// colours of the program are darkened, so that they can be read on white.
class Sheet {
 public:
  Sheet(double width, double height);

  // The ground of a panel with its axes, and a mark at each unit.
  void DrawPlane(const Panel& panel, double unit = 1);
  // Numbers of the x axis, those that find a place where neither curves nor edges are, nor a
  // vertical drawn before.
  void DrawNumbers(const Panel& panel, const std::vector<Trace>& traces,
                   const std::vector<double>& numbers);
  // What was drawn, as far as the panel shows it. `width` is that of curves, in pixels.
  void Draw(const Panel& panel, const std::vector<Trace>& traces, double width);
  void DrawDot(const Point& place, forms::Color color);
  // A dotted line, from above downwards.
  void DrawVertical(double x, double top, double bottom);
  // A text; only in a picture that the program itself shows.
  void Write(const Point& place, double size, const std::string& text);

  std::string Text() const;

 private:
  void Stroke(const std::string& path, const std::string& color, double width,
              const std::string& dashes = "");

  struct Vertical {
    double X;
    double Top;
    double Bottom;
  };

  double width_;
  double height_;
  std::vector<Vertical> verticals_;
  std::ostringstream out_;
};

}  // namespace clinorama::tools
