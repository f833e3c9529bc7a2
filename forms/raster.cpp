#include "forms/raster.h"

#include <algorithm>

namespace clinorama::forms {
namespace {

// One channel of a pixel, 0 to 255, where the stencil lets `cover` of 255 parts of the ink through.
// On the bare ground that is the usual mixture. The pixel moves to this mixture only if that brings
// it nearer to the ink; so a second print of the same text finds nothing to do. Where the ground is
// not on the pixel's side of the ink, the mixture is one with black or white.
int Inked(int pixel, int cover, int ink, int ground) {
  constexpr int Full = 255;
  const auto mixed = [=](int from) { return from + (ink - from) * cover / Full; };
  if (pixel < ink) {
    return std::max(pixel, mixed(ground < ink ? ground : 0));
  }
  if (pixel > ink) {
    return std::min(pixel, mixed(ground > ink ? ground : Full));
  }
  return ink;
}

std::uint32_t Inked(std::uint32_t pixel, std::uint32_t stencil, Color ink, Color ground) {
  std::uint32_t inked = 0;
  for (const int shift : {0, 8, 16}) {
    const auto channel = [shift](std::uint32_t color) {
      return static_cast<int>(color >> shift & 0xFF);
    };
    const int cover = 0xFF - channel(stencil);
    const int value = Inked(channel(pixel), cover, channel(ink.Rgb), channel(ground.Rgb));
    inked |= static_cast<std::uint32_t>(value) << shift;
  }
  return inked;
}

}  // namespace

PixelRect Intersection(const PixelRect& a, const PixelRect& b) {
  const int left = std::max(a.X, b.X);
  const int top = std::max(a.Y, b.Y);
  return {left, top, std::min(a.X + a.Width, b.X + b.Width) - left,
          std::min(a.Y + a.Height, b.Y + b.Height) - top};
}

PixelRect Union(const PixelRect& a, const PixelRect& b) {
  if (a.Empty()) {
    return b;
  }
  if (b.Empty()) {
    return a;
  }
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

void Raster::Stamp(const Raster& stencil, int left, int top, Color ink, Color ground) {
  const PixelRect box = Intersection({left, top, stencil.Width(), stencil.Height()}, Bounds());
  for (int y = box.Y; y < box.Y + box.Height; ++y) {
    for (int x = box.X; x < box.X + box.Width; ++x) {
      const Color cut = stencil.At(x - left, y - top);
      if (cut == White) {
        continue;
      }
      std::uint32_t& pixel = pixels_[Index(x, y)];
      pixel = Inked(pixel, cut.Rgb, ink, ground);
    }
  }
}

}  // namespace clinorama::forms
