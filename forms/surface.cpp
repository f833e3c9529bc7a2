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
  strokes_.Clear();
  MakePictures();
}

void Surface::MakePictures() {
  screen_ = Raster(RasterSize(width_, density_), RasterSize(height_, density_), backColor_);
  kept_ = screen_;
  Touch(screen_.Bounds());
}

void Surface::Density(double density) {
  if (density == density_ || !strokes_.Complete()) {
    return;
  }
  density_ = density;
  MakePictures();
  strokes_.ForEach(
      [this](const auto& stroke, auto places, auto* writing) { Paint(stroke, places, writing); });
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

double Surface::ShareOfWidth(double x) const { return (Reduced(x) - scaleX1_) / ScaleWidth(); }

double Surface::ShareOfHeight(double y) const { return (Reduced(y) - scaleY1_) / ScaleHeight(); }

double Surface::LogicalX(double x) const { return ShareOfWidth(x) * screen_.Width() / density_; }

double Surface::LogicalY(double y) const { return ShareOfHeight(y) * screen_.Height() / density_; }

// Rounded up, so that nothing gets thinner in proportion than it is at a density of 1.
int Surface::DevicePixels(double logical) const {
  constexpr double RoundingError = 1e-6;
  return std::max(1, static_cast<int>(std::ceil(logical * density_ - RoundingError)));
}

void Surface::ClearPicture() {
  strokes_.Clear();
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
  strokes_.DropPassing();
  screen_ = kept_;
  Touch(screen_.Bounds());
}

void Surface::Line(double x1, double y1, double x2, double y2, std::optional<Color> color) {
  const Color pen = color.value_or(ForeColor);
  const Place ends[] = {PlaceOf(x1, y1), PlaceOf(x2, y2)};
  Draw(Stroke::Figure::Line, pen, ends);
  if (Observer) {
    Tell(
        {.What = DrawingOperation::Kind::Line, .X1 = x1, .Y1 = y1, .X2 = x2, .Y2 = y2, .Pen = pen});
  }
}

void Surface::PSet(double x, double y, std::optional<Color> color) {
  const Color pen = color.value_or(ForeColor);
  const Place centre[] = {PlaceOf(x, y)};
  Draw(Stroke::Figure::Point, pen, centre);
  if (Observer) {
    Tell({.What = DrawingOperation::Kind::Point, .X1 = x, .Y1 = y, .Pen = pen});
  }
}

void Surface::Circle(double x, double y, double radius) {
  const Place places[] = {PlaceOf(x, y), PlaceOf(x + radius, y)};
  Draw(Stroke::Figure::Circle, ForeColor, places);
  if (Observer) {
    Tell(
        {.What = DrawingOperation::Kind::Circle, .X1 = x, .Y1 = y, .X2 = radius, .Pen = ForeColor});
  }
}

void Surface::Print(const std::string& text) {
  const Place corner[] = {PlaceOf(CurrentX, CurrentY)};
  const Writing writing{VisibleText(Font, text), Font};
  Draw(Stroke::Figure::Text, ForeColor, corner, &writing);
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

// Paints a figure with the pen as it is now, and remembers it.
void Surface::Draw(Stroke::Figure figure, Color pen, std::span<const Place> places,
                   const Writing* writing) {
  const Stroke stroke{figure, pen, DrawMode, DrawStyle, DrawWidth, AutoRedraw};
  Paint(stroke, places, writing);
  strokes_.Add(stroke, places, writing);
}

void Surface::Paint(const Stroke& stroke, std::span<const Place> places, const Writing* writing) {
  switch (stroke.What) {
    case Stroke::Figure::Line:
      return PaintLine(stroke, places[0], places[1]);
    case Stroke::Figure::Point:
      return PaintDot(stroke, places[0]);
    case Stroke::Figure::Circle:
      return PaintCircle(stroke, places[0], places[1]);
    case Stroke::Figure::Text:
      return PaintLetters(stroke, places[0], *writing);
  }
}

// A line goes along its longer direction: in each column (or row) of pixels it covers one run of
// pen pixels about its height there, so that no pixel is touched twice and the same call undoes
// an inversion exactly. Only columns of the raster are walked.
void Surface::PaintLine(const Stroke& stroke, const Place& from, const Place& to) {
  const double x1 = DeviceX(from);
  const double y1 = DeviceY(from);
  const double x2 = DeviceX(to);
  const double y2 = DeviceY(to);
  const bool steep = std::abs(y2 - y1) > std::abs(x2 - x1);
  const int width = DevicePixels(stroke.DrawWidth);
  const PixelLine line =
      steep ? PixelLine(y1, x1, y2, x2, width) : PixelLine(x1, y1, x2, y2, width);
  const double overhang = (width - 1) / 2.0;
  const int first = PixelOf(line.Left() - overhang);
  const int last = PixelOf(line.Right() + overhang);
  const int period = DevicePixels(DotLength);
  const bool dotted = stroke.DrawStyle != Solid && stroke.DrawWidth == 1;

  const int columns = steep ? screen_.Height() : screen_.Width();
  for (int i = std::max(first, 0); i <= std::min(last, columns - 1); ++i) {
    if (dotted && std::abs(i - line.Start()) / period % 2 != 0) {
      continue;
    }
    const auto [top, run] = line.In(i);
    if (run == 1) {
      steep ? PaintPixel(stroke, top, i) : PaintPixel(stroke, i, top);
    } else {
      PaintRect(stroke, steep ? PixelRect{top, i, run, 1} : PixelRect{i, top, 1, run});
    }
  }
}

void Surface::PaintDot(const Stroke& stroke, const Place& centre) {
  const int size = DevicePixels(stroke.DrawWidth);
  const int left = FirstPixel(DeviceX(centre), size);
  const int top = FirstPixel(DeviceY(centre), size);
  if (size == 1) {
    PaintPixel(stroke, left, top);
    return;
  }
  if (size <= 3) {  // the smallest dots are squares
    PaintRect(stroke, {left, top, size, size});
    return;
  }
  const double middle = (size - 1) / 2.0;
  const double radius = size / 2.0;
  for (int row = 0; row < size; ++row) {
    const double height = row - middle;
    const double half = std::sqrt(radius * radius - height * height);
    const int from = static_cast<int>(std::ceil(middle - half));
    const int to = static_cast<int>(std::floor(middle + half));
    PaintRect(stroke, {left + from, top + row, to - from + 1, 1});
  }
}

// All pixels whose centres lie within half a pen of the circle.
void Surface::PaintCircle(const Stroke& stroke, const Place& centre, const Place& right) {
  const double x = DeviceX(centre);
  const double y = DeviceY(centre);
  const double radius = std::abs(DeviceX(right) - x);
  const double half = DevicePixels(stroke.DrawWidth) / 2.0;
  const int reach = PixelOf(radius + half) + 1;
  const PixelRect box = Intersection(
      {PixelOf(x) - reach, PixelOf(y) - reach, 2 * reach + 1, 2 * reach + 1}, screen_.Bounds());
  for (int row = box.Y; row < box.Y + box.Height; ++row) {
    for (int column = box.X; column < box.X + box.Width; ++column) {
      if (std::abs(std::hypot(column + 0.5 - x, row + 0.5 - y) - radius) <= half) {
        PaintPixel(stroke, column, row);
      }
    }
  }
}

// The host paints the letters once, on a stencil around the text's corner; no letter is wider than
// two heights of its font, and no line is higher. A text wholly outside is not painted.
void Surface::PaintLetters(const Stroke& stroke, const Place& corner, const Writing& writing) {
  const auto& [text, font] = writing;
  const int height = DevicePixels(font.Size * PixelsToPoint);
  const PixelRect box = {NearestPixel(DeviceX(corner)) - height,
                         NearestPixel(DeviceY(corner)) - height,
                         (2 * static_cast<int>(text.size()) + 2) * height, 4 * height};
  const PixelRect inside = Intersection(box, screen_.Bounds());
  if (inside.Empty()) {
    return;
  }
  Raster stencil(box.Width, box.Height, White);
  PaintText(
      stencil,
      {.X = height, .Y = height, .Density = density_, .Text = text, .Font = font, .Ink = Black});
  screen_.Stamp(stencil, box.X, box.Y, stroke.Pen, backColor_);
  if (stroke.Kept) {
    kept_.Stamp(stencil, box.X, box.Y, stroke.Pen, backColor_);
  }
  Touch(inside);
}

// Nearly every drawing is of single pixels or of very few, so each is looked at alone, and nothing
// is told about one that lies where the screen has changed already.
void Surface::PaintRect(const Stroke& stroke, const PixelRect& rect) {
  for (int y = rect.Y; y < rect.Y + rect.Height; ++y) {
    for (int x = rect.X; x < rect.X + rect.Width; ++x) {
      PaintPixel(stroke, x, y);
    }
  }
}

void Surface::PaintPixel(const Stroke& stroke, int x, int y) {
  if (!Holds(screen_.Bounds(), x, y)) {
    return;
  }
  const auto operation = static_cast<RasterOperation>(stroke.DrawMode);
  screen_.Apply(x, y, stroke.Pen, operation);
  if (stroke.Kept) {
    kept_.Apply(x, y, stroke.Pen, operation);
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
