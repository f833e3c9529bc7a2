#include "tools/axis.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <stdexcept>
#include <string_view>

#include "base/number_text.h"
#include "tools/picture.h"

namespace clinorama::tools {
namespace {

constexpr double HalfPi = std::numbers::pi / 2;
constexpr double ClosestMarks = 6;  // pixels
constexpr double Tracking = 1.1;    // pixels between characters

// A character as strokes from its upper left corner.
struct Glyph {
  std::string_view Character;
  double Width;
  const char* Strokes;
};

constexpr std::array<Glyph, 16> Glyphs = {{
    {"0", 3.6, "m1.8 0c-1.2 0-1.8 1.1-1.8 3s.6 3 1.8 3 1.8-1.1 1.8-3-.6-3-1.8-3z"},
    {"1", 3.6, "m.6 1.2 1.5-1.2v6m-1.4 0h2.8"},
    {"2", 3.6, "m.1 1.4c.2-.9.8-1.4 1.6-1.4 1 0 1.7.6 1.7 1.6 0 1.3-1.2 2.2-3.3 4.4h3.5"},
    {"3", 3.6,
     "m.2.4c.4-.3.9-.4 1.5-.4 1 0 1.7.5 1.7 1.4s-.7 1.4-1.8 1.4c1.2 0 2 .6 2 1.6s-.8 1.6-2 "
     "1.6c-.6 0-1.1-.1-1.5-.4"},
    {"4", 3.6, "m2.7 6v-6l-2.7 4.1h3.6"},
    {"5", 3.6,
     "m3.2 0h-2.6l-.2 2.7c.4-.3.9-.4 1.4-.4 1.2 0 1.8.7 1.8 1.8s-.8 1.9-1.9 1.9c-.6 "
     "0-1.1-.1-1.5-.4"},
    {"6", 3.6,
     "m3.2.4c-.4-.3-.8-.4-1.2-.4-1.4 0-2 1.2-2 3.2 0 1.8.6 2.8 1.8 2.8s1.8-.8 1.8-1.9-.7-1.8-1.8"
     "-1.8-1.5.5-1.8 1.3"},
    {"7", 3.6, "m0 0h3.5l-2.3 6"},
    {"8", 3.6,
     "m1.8 2.8c-1 0-1.6-.6-1.6-1.4s.6-1.4 1.6-1.4 1.6.6 1.6 1.4-.6 1.4-1.6 1.4c-1.1 0-1.8.6-1.8 "
     "1.6s.7 1.6 1.8 1.6 1.8-.6 1.8-1.6-.7-1.6-1.8-1.6z"},
    {"9", 3.6,
     "m.4 5.6c.4.3.8.4 1.2.4 1.4 0 2-1.2 2-3.2 0-1.8-.6-2.8-1.8-2.8s-1.8.8-1.8 1.9.7 1.8 1.8 1.8 "
     "1.5-.5 1.8-1.3"},
    {"-", 3.2, "m.2 3.2h2.8"},
    {",", .8, "m.6 5.5-.5 1.6"},
    {"/", 2.2, "m0 6.8 2.2-7.4"},
    {"x", 3.4, "m0 2 3.4 4m0-4-3.4 4"},
    {"y", 3.4, "m0 2 1.8 3.8m1.6-3.8-2.5 5.9"},
    {"π", 4.4, "m.1 2.1h4.2m-3 0c0 1.8-.2 3-.8 3.9m2.8-3.9v2.9c0 .7.4 1 1 .9"},
}};

template <class Visit>
void VisitGlyphs(std::string_view number, Visit visit) {
  while (!number.empty()) {
    const Glyph* found = nullptr;
    for (const Glyph& glyph : Glyphs) {
      if (number.substr(0, glyph.Character.size()) == glyph.Character) {
        found = &glyph;
      }
    }
    if (found == nullptr) {
      throw std::logic_error("no strokes for " + std::string(number));
    }
    visit(*found);
    number.remove_prefix(found->Character.size());
  }
}

// A number of halves of pi: "-π", "3π/2".
std::string HalvesOfPi(int halves) {
  const bool whole = halves % 2 == 0;
  const int count = whole ? halves / 2 : halves;
  const std::string factor = count == 1 ? "" : count == -1 ? "-" : std::to_string(count);
  return factor + (whole ? "π" : "π/2");
}

// 1, 2 or 5 times a power of ten, and not below a length.
double RoundStep(double least) {
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least) {
      return factor * power;
    }
  }
  return 10 * power;
}

}  // namespace

std::vector<Mark> MarksOf(const Interval& interval, const Graduation& graduation, double unit,
                          double space) {
  const double least = ClosestMarks / unit;
  const double step = graduation.InPi       ? HalfPi
                      : graduation.Step > 0 ? graduation.Step
                                            : RoundStep(least);
  // Every how many marks there is a number.
  int every = 1;
  for (const int count : {1, 2, 4, 5, 10, 20}) {
    every = count;
    if (count * step * unit >= space) {
      break;
    }
  }
  std::vector<Mark> marks;
  const double tolerance = step / 1000;
  for (int i = static_cast<int>(std::ceil((interval.From - tolerance) / step));
       i * step <= interval.To + tolerance; ++i) {
    if (i == 0) {
      continue;
    }
    Mark mark = {.Value = i * step, .Number = {}};
    if (i % every == 0) {
      mark.Number = graduation.InPi ? HalvesOfPi(i) : base::NumberText(base::Round(mark.Value, 6));
    }
    marks.push_back(mark);
  }
  return marks;
}

double NumberWidth(const std::string& number) {
  double width = -Tracking;
  VisitGlyphs(number, [&](const Glyph& glyph) { width += glyph.Width + Tracking; });
  return width;
}

std::string NumberStrokes(const std::string& number, const Point& corner) {
  std::string strokes;
  double x = corner.X;
  VisitGlyphs(number, [&](const Glyph& glyph) {
    strokes += "M" + Place({x, corner.Y}) + glyph.Strokes;
    x += glyph.Width + Tracking;
  });
  return strokes;
}

}  // namespace clinorama::tools
