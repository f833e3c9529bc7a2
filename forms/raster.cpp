#include "forms/raster.h"

#include <algorithm>

namespace clinorama::forms {
namespace {

template <class Join>
void ForEachPixel(std::uint32_t* first, int stride, const PixelRect& rect, Join join) {
  for (int y = 0; y < rect.Height; ++y, first += stride) {
    for (int x = 0; x < rect.Width; ++x) first[x] = join(first[x]);
  }
}

}  // namespace

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

void Raster::Apply(const PixelRect& rect, Color pen, RasterOperation operation) {
  const PixelRect inside = Intersection(rect, Bounds());
  if (inside.Empty()) return;
  std::uint32_t* first = pixels_.data() + Index(inside.X, inside.Y);
  switch (operation) {
    case RasterOperation::Copy:
      ForEachPixel(first, width_, inside, [pen](std::uint32_t) { return pen.Rgb; });
      break;
    case RasterOperation::NotMerge:
      ForEachPixel(first, width_, inside,
                   [pen](std::uint32_t pixel) { return ~(pen.Rgb | pixel) & ColorBits; });
      break;
    case RasterOperation::Invert:
      ForEachPixel(first, width_, inside, [](std::uint32_t pixel) { return ~pixel & ColorBits; });
      break;
  }
}

}  // namespace clinorama::forms
