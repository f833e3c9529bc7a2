#pragma once

#include "forms/font.h"
#include "forms/surface.h"

namespace clinorama::forms {

// How a host paints the letters of a font, in device pixels.
struct Letters {
  bool Comic = false;  // in the family that stands for "Comic Sans MS", not in the plain one
  int Pixels = 1;
  bool Bold = false;
  bool Narrow = false;  // by NarrowWidth
  bool Sharp = false;   // without grey edges
};

// The width of narrow letters, of that of usual ones.
inline constexpr double NarrowWidth = 0.87;

// Of a control, on a page of so many device pixels to a logical one.
Letters LettersFor(const Font& font, double density);

// Of a text on a surface, where small digits must be told apart.
Letters LettersFor(const TextRun& run);

}  // namespace clinorama::forms
