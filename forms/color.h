#pragma once

#include <array>
#include <cstdint>

namespace clinorama::forms {

// A colour as 0xRRGGBB; the upper byte is always zero.
struct Color {
  std::uint32_t Rgb = 0;
  friend constexpr bool operator==(Color, Color) = default;
};

// The colour of a number from 0 to 15 in the classic palette of sixteen; numbers outside are not
// allowed.
constexpr Color QBColor(int number) {
  constexpr std::array<std::uint32_t, 16> Palette = {
      0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
      0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
  return Color{Palette.at(static_cast<std::size_t>(number))};
}

constexpr Color Black = QBColor(0);
constexpr Color Blue = QBColor(9);
constexpr Color Red = QBColor(12);
constexpr Color White = QBColor(15);

}  // namespace clinorama::forms
