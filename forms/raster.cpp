#include "forms/raster.h"

#include <algorithm>

namespace clinorama::forms {
PixelRect Intersection(const PixelRect& a, const PixelRect& b) {
  const int left = std::max(a.X, b.X);
  const int top = std::max(a.Y, b.Y);
  return {left, top, std::min(a.X + a.Width, b.X + b.Width) - left,
          std::min(a.Y + a.Height, b.Y + b.Height) - top};
}

PixelRect Union(const PixelRect& a, const PixelRect& b) {
  if (a.Empty()) return b;
  if (b.Empty()) return a;
  const int left = std::min(a.X, b.X);
  const int top = std::min(a.Y, b.Y);
  return {left, top, std::max(a.X + a.Width, b.X + b.Width) - left,
          std::max(a.Y + a.Height, b.Y + b.Height) - top};
}

Raster::Raster(int width, int height, Color ground)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), ground.Rgb) {}

void Raster::Fill(Color color) { std::fill(pixels_.begin(), pixels_.end(), color.Rgb); }

}  // namespace clinorama::forms
