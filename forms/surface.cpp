#include "forms/surface.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/failure.h"
#include "forms/pixel_line.h"
#include "forms/units.h"

namespace clinorama::forms {
namespace {

// A dotted line is this many logical pixels on and as many off, counted from its first point.
constexpr int DotLength = 2;

// Coordinates are stored as 32-bit reals.
double Reduced(double coordinate) {
  constexpr auto Largest = static_cast<double>(std::numeric_limits<float>::max());
  if (!(std::abs(coordinate) <= Largest)) {
    base::Raise(base::Overflow);
  }
  return static_cast<double>(static_cast<float>(coordinate));
}

int RasterSize(double twips, double density) {
  return std::max(1, static_cast<int>(std::lround(twips / TwipsToPixel * density)));
}

}  // namespace

Surface::Surface(double width, double height, double density)
    : width_(width), height_(height), density_(density), scaleX2_(width), scaleY2_(height) {
  Resize(width, height);
}

void Surface::Resize(double width, double height) {
  width_ = width;
  height_ = height;
  screen_ = Raster(RasterSize(width, density_), RasterSize(height, density_), backColor_);
  kept_ = screen_;
  Touch(screen_.Bounds());
}

void Surface::BackColor(Color color) {
  backColor_ = color;
  ClearPicture();
}

void Surface::Scale(double x1, double y1, double x2, double y2) {
  scaleX1_ = x1;
  scaleY1_ = y1;
  scaleX2_ = x2;
  scaleY2_ = y2;
}

void Surface::ScaleInPixels() {
  Scale(0, 0, std::round(width_ / TwipsToPixel), std::round(height_ / TwipsToPixel));
}

double Surface::DeviceX(double x) const {
  return (Reduced(x) - scaleX1_) / ScaleWidth() * screen_.Width();
}

double Surface::DeviceY(double y) const {
  return (Reduced(y) - scaleY1_) / ScaleHeight() * screen_.Height();
}

double Surface::LogicalX(double x) const { return DeviceX(x) / density_; }

double Surface::LogicalY(double y) const { return DeviceY(y) / density_; }

// Rounded up, so that nothing gets thinner in proportion than it is at a density of 1.
int Surface::DevicePixels(double logical) const {
  constexpr double RoundingError = 1e-6;
  return std::max(1, static_cast<int>(std::ceil(logical * density_ - RoundingError)));
}

void Surface::ClearPicture() {
  kept_.Fill(backColor_);
  screen_.Fill(backColor_);
  Touch(screen_.Bounds());
  if (Observer) {
    Tell({.What = DrawingOperation::Kind::Clear, .Kept = true});
  }
}

void Surface::Cls() {
  if (AutoRedraw) {
    ClearPicture();
    return;
  }
  Restore();
  if (Observer) {
    Tell({.What = DrawingOperation::Kind::Clear});
  }
}

void Surface::Restore() {
  screen_ = kept_;
  Touch(screen_.Bounds());
}

void Surface::Line(double x1, double y1, double x2, double y2, std::optional<Color> color) {
  const Color pen = color.value_or(ForeColor);
  PaintLine(DeviceX(x1), DeviceY(y1), DeviceX(x2), DeviceY(y2), pen);
  if (Observer) {
    Tell(
        {.What = DrawingOperation::Kind::Line, .X1 = x1, .Y1 = y1, .X2 = x2, .Y2 = y2, .Pen = pen});
  }
}

void Surface::PSet(double x, double y, std::optional<Color> color) {
  const Color pen = color.value_or(ForeColor);
  PaintDot(DeviceX(x), DeviceY(y), DevicePixels(DrawWidth), pen);
  if (Observer) {
    Tell({.What = DrawingOperation::Kind::Point, .X1 = x, .Y1 = y, .Pen = pen});
  }
}

// A line goes along its longer direction: in each column (or row) of pixels it covers one run of
// pen pixels about its height there, so that no pixel is touched twice and the same call undoes
// an inversion exactly. Only columns of the raster are walked.
void Surface::PaintLine(double x1, double y1, double x2, double y2, Color pen) {
  const bool steep = std::abs(y2 - y1) > std::abs(x2 - x1);
  const int width = DevicePixels(DrawWidth);
  const PixelLine line =
      steep ? PixelLine(y1, x1, y2, x2, width) : PixelLine(x1, y1, x2, y2, width);
  const double overhang = (width - 1) / 2.0;
  const int first = PixelOf(line.Left() - overhang);
  const int last = PixelOf(line.Right() + overhang);
  const int period = DevicePixels(DotLength);
  const bool dotted = DrawStyle != Solid && DrawWidth == 1;

  const int columns = steep ? screen_.Height() : screen_.Width();
  for (int i = std::max(first, 0); i <= std::min(last, columns - 1); ++i) {
    if (dotted && std::abs(i - line.Start()) / period % 2 != 0) {
      continue;
    }
    const auto [top, run] = line.In(i);
    if (run == 1) {
      steep ? PaintPixel(top, i, pen) : PaintPixel(i, top, pen);
    } else {
      Paint(steep ? PixelRect{top, i, run, 1} : PixelRect{i, top, 1, run}, pen);
    }
  }
}

void Surface::PaintDot(double x, double y, int size, Color pen) {
  const int left = FirstPixel(x, size);
  const int top = FirstPixel(y, size);
  if (size == 1) {
    PaintPixel(left, top, pen);
    return;
  }
  if (size <= 3) {  // the smallest dots are squares
    Paint({left, top, size, size}, pen);
    return;
  }
  const double centre = (size - 1) / 2.0;
  const double radius = size / 2.0;
  for (int row = 0; row < size; ++row) {
    const double height = row - centre;
    const double half = std::sqrt(radius * radius - height * height);
    const int from = static_cast<int>(std::ceil(centre - half));
    const int to = static_cast<int>(std::floor(centre + half));
    Paint({left + from, top + row, to - from + 1, 1}, pen);
  }
}

// All pixels whose centres lie within half a pen of the circle.
void Surface::Circle(double x, double y, double radius) {
  const double centreX = DeviceX(x);
  const double centreY = DeviceY(y);
  const double deviceRadius = std::abs(DeviceX(x + radius) - centreX);
  const double half = DevicePixels(DrawWidth) / 2.0;
  const int reach = PixelOf(deviceRadius + half) + 1;
  const PixelRect box = Intersection(
      {PixelOf(centreX) - reach, PixelOf(centreY) - reach, 2 * reach + 1, 2 * reach + 1},
      screen_.Bounds());
  for (int row = box.Y; row < box.Y + box.Height; ++row) {
    for (int column = box.X; column < box.X + box.Width; ++column) {
      const double distance = std::hypot(column + 0.5 - centreX, row + 0.5 - centreY);
      if (std::abs(distance - deviceRadius) <= half) {
        Paint({column, row, 1, 1}, ForeColor);
      }
    }
  }
  if (Observer) {
    Tell(
        {.What = DrawingOperation::Kind::Circle, .X1 = x, .Y1 = y, .X2 = radius, .Pen = ForeColor});
  }
}

void Surface::Print(const std::string& text) {
  PaintLetters(VisibleText(Font, text));
  if (Observer) {
    Tell({.What = DrawingOperation::Kind::Text,
          .X1 = CurrentX,
          .Y1 = CurrentY,
          .Pen = ForeColor,
          .Text = text});
  }
}

void Surface::PrintAt(double x, double y, const std::string& text) {
  CurrentX = x;
  CurrentY = y;
  Print(text);
}

// The host paints the letters once, on a stencil around the text's corner; no letter is wider than
// two heights of its font, and no line is higher. A text wholly outside is not painted.
void Surface::PaintLetters(const std::string& text) {
  const int height = DevicePixels(Font.Size * PixelsToPoint);
  const PixelRect box = {NearestPixel(DeviceX(CurrentX)) - height,
                         NearestPixel(DeviceY(CurrentY)) - height,
                         (2 * static_cast<int>(text.size()) + 2) * height, 4 * height};
  const PixelRect inside = Intersection(box, screen_.Bounds());
  if (inside.Empty()) {
    return;
  }
  Raster stencil(box.Width, box.Height, White);
  PaintText(
      stencil,
      {.X = height, .Y = height, .Density = density_, .Text = text, .Font = Font, .Ink = Black});
  screen_.Stamp(stencil, box.X, box.Y, ForeColor, backColor_);
  if (AutoRedraw) {
    kept_.Stamp(stencil, box.X, box.Y, ForeColor, backColor_);
  }
  Touch(inside);
}

// Nearly every drawing is of single pixels or of very few, so each is looked at alone, and nothing
// is told about one that lies where the screen has changed already.
void Surface::Paint(const PixelRect& rect, Color pen) {
  for (int y = rect.Y; y < rect.Y + rect.Height; ++y) {
    for (int x = rect.X; x < rect.X + rect.Width; ++x) {
      PaintPixel(x, y, pen);
    }
  }
}

void Surface::PaintPixel(int x, int y, Color pen) {
  if (!Holds(screen_.Bounds(), x, y)) {
    return;
  }
  const auto operation = static_cast<RasterOperation>(DrawMode);
  screen_.Apply(x, y, pen, operation);
  if (AutoRedraw) {
    kept_.Apply(x, y, pen, operation);
  }
  if (!Holds(dirty_, x, y)) {
    Touch({x, y, 1, 1});
  }
}

// The rectangle lies in the raster.
void Surface::Touch(const PixelRect& rect) {
  const bool first = dirty_.Empty();
  dirty_ = Union(dirty_, rect);
  if (first) {
    ScreenChanged();
  }
}

PixelRect Surface::TakeDirty() {
  // A smaller size since then may have cut off some of it.
  return Intersection(std::exchange(dirty_, PixelRect{}), screen_.Bounds());
}

void Surface::Tell(DrawingOperation operation) const {
  operation.DrawMode = DrawMode;
  operation.DrawStyle = DrawStyle;
  operation.DrawWidth = DrawWidth;
  operation.Kept = operation.Kept || AutoRedraw;
  Observer(operation);
}

}  // namespace clinorama::forms
