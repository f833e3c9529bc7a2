#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "forms/color.h"

namespace clinorama::forms {

// How pen and pixel are joined, bit by bit in 24 bits. The numbers are those of the toolkit.
enum class RasterOperation {
  NotMerge = 2,  // pixel = NOT (pen OR pixel)
  Invert = 6,    // pixel = NOT pixel
  Copy = 13,     // pixel = pen
};

// A rectangle of device pixels, by its upper left corner.
struct PixelRect {
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;
  bool Empty() const { return Width <= 0 || Height <= 0; }
};

// The part that two rectangles have in common; empty where there is none.
PixelRect Intersection(const PixelRect& a, const PixelRect& b);
// The smallest rectangle around both; an empty one does not count.
PixelRect Union(const PixelRect& a, const PixelRect& b);
// Whether a pixel lies in the rectangle.
constexpr bool Holds(const PixelRect& rect, int x, int y) {
  return x >= rect.X && y >= rect.Y && x < rect.X + rect.Width && y < rect.Y + rect.Height;
}

// The bits of a pixel that hold its colour, 0xRRGGBB; a host's text painter may use the others.
inline constexpr std::uint32_t ColorBits = 0x00FFFFFF;

// What becomes of a pixel under a pen.
constexpr std::uint32_t Joined(std::uint32_t pixel, Color pen, RasterOperation operation) {
  switch (operation) {
    case RasterOperation::Copy:
      return pen.Rgb;
    case RasterOperation::NotMerge:
      return ~(pen.Rgb | pixel) & ColorBits;
    case RasterOperation::Invert:
      return ~pixel & ColorBits;
  }
  return pixel;
}

// A picture of device pixels, row after row from the top.
class Raster {
 public:
  Raster() = default;
  // Width and height in device pixels; all pixels take the colour.
  Raster(int width, int height, Color ground);

  int Width() const { return width_; }
  int Height() const { return height_; }
  PixelRect Bounds() const { return {0, 0, width_, height_}; }
  const std::uint32_t* Data() const { return pixels_.data(); }
  std::uint32_t* Data() { return pixels_.data(); }
  // The pixel at a place inside the picture.
  Color At(int x, int y) const { return Color{pixels_[Index(x, y)] & ColorBits}; }

  void Fill(Color color);
  // Joins the pen with a pixel inside the picture.
  void Apply(int x, int y, Color pen, RasterOperation operation) {
    std::uint32_t& pixel = pixels_[Index(x, y)];
    pixel = Joined(pixel, pen, operation);
  }
  // Prints a text in an ink. The stencil holds it black on white, and its upper left corner lies at
  // (left, top) of this picture. The same text printed again at the same place changes nothing.
  void Stamp(const Raster& stencil, int left, int top, Color ink, Color ground);

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace clinorama::forms
