#include "forms/surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "forms/units.h"
#include "tests/support/failure_of.h"

namespace clinorama::tests {
namespace {

using forms::Dotted, forms::Raster, forms::Surface;

// A surface of so many logical pixels, measured in them.
struct PixelSurface : Surface {
  PixelSurface(int width, int height, double density = 1)
      : Surface(width * forms::TwipsToPixel, height * forms::TwipsToPixel, density) {
    ScaleInPixels();
  }
};

// Device pixels to a logical one on screens from small to large.
constexpr double Densities[] = {0.94, 1, 1.25, 1.41, 1.5, 1.75, 2.81};

struct Segment {
  double X1, Y1, X2, Y2;
  void DrawOn(Surface& surface) const { surface.Line(X1, Y1, X2, Y2); }
};

// A picture as text, row by row: "#" where a pixel is not white.
std::string Seen(const Raster& raster) {
  std::string text;
  for (int y = 0; y < raster.Height(); ++y) {
    text += y > 0 ? " " : "";
    for (int x = 0; x < raster.Width(); ++x) {
      text += raster.At(x, y) == forms::White ? '.' : '#';
    }
  }
  return text;
}

bool Alike(const Raster& a, const Raster& b) {
  return a.Width() == b.Width() && std::equal(a.Data(), a.Data() + a.Width() * a.Height(), b.Data(),
                                              b.Data() + b.Width() * b.Height());
}

TEST(Surface, PaintsLinesWithBothTheirEnds) {
  const std::tuple<Segment, int, int, std::string> cases[] = {
      {{1.5, 1.5, 5.5, 1.5}, 1, 0, "........ .#####.. ........ ........"},
      {{5.5, 1.5, 1.5, 1.5}, 1, 0, "........ .#####.. ........ ........"},
      {{2.5, 1.5, 2.5, 3.5}, 1, 0, "........ ..#..... ..#..... ..#....."},
      {{4.5, 2.5, 4.5, 2.5}, 1, 0, "........ ........ ....#... ........"},
      {{0.5, 3.5, 3.5, 0.5}, 1, 0, "...#.... ..#..... .#...... #......."},
      {{1.5, 0.5, 6.5, 2.5}, 1, 0, ".##..... ...##... .....##. ........"},
      {{1.5, -5.5, 3.5, 2.5}, 1, 0, "...#.... ...#.... ...#.... ........"},
      {{3.5, 1.5, 4.5, 1.5}, 3, 0, "..####.. ..####.. ..####.. ........"},
      {{8.5, 0.5, 8.5, 2.5}, 1, 0, "........ ........ ........ ........"},
      {{3.5, 0.5, 5.5, 2.5}, 2, 0, "...##... ...####. ....###. .....##."},
      {{0.5, 1.5, 7.5, 1.5}, 1, Dotted, "........ ##..##.. ........ ........"},
      {{7.5, 1.5, 0.5, 1.5}, 1, Dotted, "........ ..##..## ........ ........"},
      {{0.5, 1.5, 7.5, 1.5}, 3, Dotted, "######## ######## ######## ........"},
  };
  for (const auto& [line, width, style, expected] : cases) {
    PixelSurface surface(8, 4);
    surface.DrawWidth = width;
    surface.DrawStyle = style;
    line.DrawOn(surface);
    EXPECT_EQ(Seen(surface.Screen()), expected);
  }
}

TEST(Surface, PaintsRoundDotsAndCircles) {
  // Widths of the pen, and radii of circles; 0 is a dot.
  const std::tuple<int, int, std::string> cases[] = {
      {1, 0, "....... ....... ....... ...#... ....... ....... ......."},
      {5, 0, "....... ..###.. .#####. .#####. .#####. ..###.. ......."},
      {7, 0, "..###.. .#####. ####### ####### ####### .#####. ..###.."},
      {1, 6, "..###.. .#...#. #.....# #.....# #.....# .#...#. ..###.."},
      {2, 6, ".#####. ####### ##...## ##...## ##...## ####### .#####."}};
  for (const auto& [width, radius, expected] : cases) {
    PixelSurface surface(7, 7);
    surface.Scale(0, 0, 14, 7);  // the radius is measured along x
    surface.DrawWidth = width;
    radius == 0 ? surface.PSet(7, 3.5) : surface.Circle(7, 3.5, radius);
    EXPECT_EQ(Seen(surface.Screen()), expected);
  }
}

TEST(Surface, WidensPensDashesAndDotsToWholePixels) {
  // Densities, with the device pixels of pens of 1 and 10, and of a dash.
  const std::tuple<double, int, int, std::size_t> cases[] = {
      {0.94, 1, 10, 2}, {1, 1, 10, 2}, {1 + 1e-9, 1, 10, 2}, {1.41, 2, 15, 3}, {2.81, 3, 29, 6}};
  for (const auto& [density, thin, wide, dash] : cases) {
    PixelSurface surface(40, 40, density);
    std::string seen;
    const auto painted = [&](int width, int style, double x) {
      surface.Cls();
      surface.DrawWidth = width;
      surface.DrawStyle = style;
      x > 0 ? surface.Line(0, 20, x, 20) : surface.PSet(20, 20);
      seen = Seen(surface.Screen());
      return std::count(seen.begin(), seen.end(), '#');
    };
    EXPECT_EQ(painted(1, 0, 40), thin * surface.Screen().Width());
    EXPECT_EQ(painted(10, 0, 40), wide * surface.Screen().Width());
    EXPECT_EQ(painted(1, 0, 0), thin * thin);
    painted(1, Dotted, 40);
    EXPECT_EQ(seen.find('.', seen.find('#')) - seen.find('#'), dash);
  }
}

// Lines long and short in all directions, with ends anywhere in their pixels.
TEST(Surface, CoversThePixelsOfEndsWithoutAGap) {
  for (const double density : Densities) {
    for (int i = 0; i < 900; ++i) {
      const double half = i % 3 == 0 ? 15 : 0.3 * (i % 5);
      const double x = 20 + 0.4 * std::cos(7 * i);
      const auto [dx, dy] = std::pair(half * std::cos(i), half * std::sin(i));
      PixelSurface surface(40, 40, density);
      surface.Line(x - dx, 20 - dy, x + dx, 20.3 + dy);
      for (const auto& [endX, endY] : {std::pair(x - dx, 20 - dy), {x + dx, 20.3 + dy}}) {
        const int column = static_cast<int>(surface.LogicalX(endX) * density);
        const int row = static_cast<int>(surface.LogicalY(endY) * density);
        int around = 0;
        for (int at = 0; at < 9; ++at) {
          around += surface.Screen().At(column + at % 3 - 1, row + at / 3 - 1) == forms::Black;
        }
        ASSERT_EQ(surface.Screen().At(column, row), forms::Black) << density << ": " << i;
        ASSERT_GE(around, half > 0.8 ? 2 : 1) << density << ": " << i;
      }
    }
  }
}

// The vertical in the middle of a surface falls on a tie at some of these sizes and densities.
TEST(Surface, DrawsLinesOnOneVerticalOverEachOther) {
  for (const double density : Densities) {
    for (int size = 200; size < 208; ++size) {
      PixelSurface surface(size, 100, density);
      surface.Scale(-10, 10, 10, -10);
      surface.Line(0, -9, 0, 9);
      const std::string line = Seen(surface.Screen());
      for (const double near : {3e-13, -3e-13, 1e-9, -1e-9}) {
        surface.Line(0, 2, near, 9);
        surface.Line(near, -8, near, 8);
        surface.PSet(near, 1);
      }
      EXPECT_EQ(Seen(surface.Screen()), line) << size << " at " << density;
    }
  }
}

TEST(Surface, ClipsFarEndsWithoutBendingTheLine) {
  const std::pair<Segment, Segment> cases[] = {
      {{0, 0, 1e30, 1e30}, {0, 0, 20, 20}},   {{1e30, 1e30, 0, 0}, {20, 20, 0, 0}},
      {{1e38, -5e37, 0, 0}, {20, -10, 0, 0}}, {{0, 0, 5e29, -1e30}, {0, 0, 10, -20}},
      {{0, -1e30, 0, 1e30}, {0, -20, 0, 20}}, {{1e30, 3, -1e30, 3}, {20, 3, -20, 3}},
      {{-1e30, 3, 2, 3}, {-20, 3, 2, 3}},     {{30, 0, 1e30, 1e30}, {30, 0, 40, 10}},
  };
  const auto picture = [](const Segment& line) {
    Surface surface(3000, 3000, 1);
    surface.Scale(-10, 10, 10, -10);
    line.DrawOn(surface);
    return Seen(surface.Screen());
  };
  for (const auto& [farLine, nearLine] : cases) {
    EXPECT_TRUE(picture(farLine) == picture(nearLine)) << farLine.X2;
  }
}

TEST(Surface, ReducesCoordinatesTo32BitRealsAndRefusesThoseBeyond) {
  PixelSurface surface(4, 3);
  surface.PSet(3e38, -3e38);
  surface.Circle(1e30, 1e30, 1e30);
  surface.Scale(16777216, 0, 16777220, 3);
  surface.PSet(16777217, 0);  // lies halfway between two such reals, and goes to the even one
  surface.Line(16777217, 1, 16777219, 1);
  EXPECT_EQ(surface.LogicalX(16777217), 0);
  for (const double bad : {1e39, -1e39, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(FailureOf([&] { surface.Line(0, 0, bad, 1); }), 6);
    EXPECT_EQ(FailureOf([&] { surface.PSet(bad, 0); }), 6);
    EXPECT_EQ(FailureOf([&] { surface.Circle(0, 0, bad); }), 6);
    EXPECT_EQ(FailureOf([&] { static_cast<void>(surface.LogicalY(bad)); }), 6);
  }
  EXPECT_EQ(Seen(surface.Screen()), "#... #### ....");
}

// Where a line runs, one drawing makes NOT (pen OR pixel) of a pixel, and the second pen OR pixel.
TEST(Surface, LeavesPenOrPixelWhereALineWasDrawnAndTakenAway) {
  const Segment lines[] = {{2, 3, 37, 3},   {5, 38, 5, 1}, {1, 1, 38, 38},      {1, 30, 38, 21},
                           {33, 2, 21, 39}, {7, 7, 7, 7},  {-50, -20, 60, 70.3}};
  for (const double density : Densities) {
    for (const auto& [style, width] : {std::pair{0, 1}, {Dotted, 1}, {0, 2}}) {
      for (const Segment& line : lines) {
        PixelSurface surface(40, 40, density);
        surface.AutoRedraw = true;
        surface.Line(0, 20, 40, 20, forms::QBColor(10));
        surface.Line(20, 0, 20, 40, forms::QBColor(13));
        surface.DrawStyle = style;
        surface.DrawWidth = width;
        surface.ForeColor = forms::Red;
        const Raster before = surface.Screen();
        Raster drawn;
        forms::ShowInPassing(
            surface, [&] { line.DrawOn(surface); }, [&] { drawn = surface.Screen(); });
        EXPECT_FALSE(Seen(drawn) == Seen(before));
        int wrong = 0;
        for (int i = 0; i < before.Width() * before.Height(); ++i) {
          const auto pixel = [i](const Raster& raster) { return raster.Data()[i]; };
          const bool covered = pixel(drawn) != pixel(before);
          const std::uint32_t left = pixel(before) | (covered ? forms::Red.Rgb : 0);
          wrong += covered && pixel(drawn) != (left ^ 0xFFFFFF);
          wrong += pixel(surface.Screen()) != left || pixel(surface.Kept()) != left;
        }
        EXPECT_EQ(wrong, 0) << density << style << width;
      }
    }
  }
}

TEST(Surface, KeepsWhatIsDrawnWithAutoRedraw) {
  PixelSurface surface(3, 1);
  const auto pictures = [&] { return Seen(surface.Kept()) + " " + Seen(surface.Screen()); };
  surface.PSet(2, 0);
  surface.AutoRedraw = true;
  surface.PSet(0, 0);
  surface.AutoRedraw = false;
  EXPECT_EQ(pictures(), "#.. #.#");
  surface.Cls();
  EXPECT_EQ(pictures(), "#.. #..");
  surface.AutoRedraw = true;
  surface.Cls();
  EXPECT_EQ(pictures(), "... ...");
  surface.PSet(1, 0);
  surface.AutoRedraw = false;
  surface.ClearPicture();
  EXPECT_EQ(pictures(), "... ...");
  surface.BackColor(forms::Blue);
  surface.PSet(1, 0);
  surface.Restore();
  EXPECT_EQ(surface.Screen().At(1, 0), forms::Blue);
}

// A surface whose texts are three pixels: the corner, covered wholly, its neighbour, by half, and
// one below, which is cut off.
struct PrintedSurface : PixelSurface {
  PrintedSurface() : PixelSurface(4, 1) {}
  void PaintText(Raster& raster, const forms::TextRun& run) override {
    EXPECT_EQ(run.Y, 11) << "the height of letters of 8,25 points";
    raster.Apply(run.X, run.Y, run.Ink, forms::RasterOperation::Copy);
    raster.Apply(run.X + 1, run.Y, forms::Color{0x808080}, forms::RasterOperation::Copy);
    raster.Apply(run.X, run.Y + 1, run.Ink, forms::RasterOperation::Copy);
    ++Painted;
  }
  int Painted = 0;
};

TEST(Surface, PrintsATextOverItselfAsOnce) {
  using forms::Black, forms::Blue, forms::Red, forms::White;
  // The ground, the pixels that are there, the ink, and the edge of the text.
  const std::tuple<forms::Color, forms::Color, forms::Color, std::uint32_t> cases[] = {
      {White, White, Black, 0x808080}, {White, Black, Black, 0x000000},
      {White, White, Blue, 0x8080FF},  {White, Blue, Blue, 0x0000FF},
      {White, Black, Red, 0x7F0000},   {White, Blue, Red, 0x7F0080},
      {Blue, White, Black, 0x808080},  {{0x808080}, {0x808080}, White, 0xBFBFBF},
  };
  for (const auto& [ground, there, ink, edge] : cases) {
    PrintedSurface surface;
    surface.AutoRedraw = true;
    surface.BackColor(ground);
    surface.Line(0, 0, 3, 0, there);
    surface.ForeColor = ink;
    for (int time = 0; time < 3; ++time) {
      surface.PrintAt(1, 0, "a");
      for (const auto& [x, color] : {std::pair{0, there}, {1, ink}, {2, {edge}}, {3, there}}) {
        EXPECT_EQ(surface.Screen().At(x, 0), color) << x;
        EXPECT_EQ(surface.Kept().At(x, 0), color) << x;
      }
    }
  }
}

TEST(Surface, KeepsATextAsADrawingAndClipsIt) {
  PrintedSurface surface;
  surface.TakeDirty();
  surface.PrintAt(-1.4, -0.4, "a");
  EXPECT_FALSE(surface.TakeDirty().Empty());
  EXPECT_EQ(Seen(surface.Screen()), "#...");
  EXPECT_EQ(Seen(surface.Kept()), "....") << "without AutoRedraw";
  surface.AutoRedraw = true;
  surface.PrintAt(2.5, 0, "a");  // halfway: the first of two pixels
  EXPECT_EQ(Seen(surface.Kept()), "..##");
  surface.PrintAt(3, 0, "a");
  surface.PrintAt(1e30, -1e30, "a");
  EXPECT_EQ(surface.Painted, 3) << "a text far away is not painted";
}

// Its letters are blocks of their size.
struct BlockSurface : PixelSurface {
  explicit BlockSurface(double density) : PixelSurface(40, 30, density) {}
  void PaintText(Raster& raster, const forms::TextRun& run) override {
    const int size = static_cast<int>(run.Font.Size * run.Density);
    for (int i = 0; i < size * size * static_cast<int>(run.Text.size()); ++i) {
      raster.Apply(run.X + i / size, run.Y + i % size, run.Ink, forms::RasterOperation::Copy);
    }
  }
};

TEST(Surface, LooksAtAnotherDensityAsIfItHadAlwaysBeenThere) {
  const auto blueLine = [](Surface& surface) { surface.Line(-9, 3, 8, -7, forms::Blue); };
  const std::vector<std::function<void(Surface&)>> steps = {
      [](Surface& surface) { surface.BackColor(forms::QBColor(14)); },
      [](Surface& surface) { surface.AutoRedraw = true; },
      [](Surface& surface) { surface.PSet(3, 3); },
      [](Surface& surface) { surface.Resize(600, 450); },
      [](Surface& surface) { surface.Scale(-10, 10, 10, -10); },
      [](Surface& surface) {
        for (double x = -9; x < 9; x += 0.01) {
          surface.PSet(x, x * x / 8 - 5, forms::Red);
        }
      },
      [](Surface& surface) { surface.DrawStyle = Dotted; },
      [](Surface& surface) { surface.Line(-10, 0, 10, 1); },
      [](Surface& surface) { surface.PrintAt(-4, 4, "ab"); },
      [](Surface& surface) { surface.AutoRedraw = false; },
      [](Surface& surface) { surface.Font.Size = 3; },
      [](Surface& surface) { surface.PrintAt(6, 2, "c"); },
      [](Surface& surface) { surface.Cls(); },
      [](Surface& surface) { surface.AutoRedraw = true; },
      [](Surface& surface) { surface.PrintAt(-2, -3, "d"); },
      [](Surface& surface) { surface.DrawMode = forms::NotMergePen; },
      blueLine,
      [](Surface& surface) { surface.DrawMode = forms::InvertPixel; },
      blueLine,
      [](Surface& surface) { surface.DrawMode = forms::NotMergePen; },
      [](Surface& surface) { surface.Line(-3, 9, 9, 5); },
      [](Surface& surface) { surface.DrawMode = forms::InvertPixel; },
      [](Surface& surface) { surface.Line(-3, 9, 9, 4); },
      [](Surface& surface) { surface.Scale(0, 0, 40, 30); },
      [](Surface& surface) { surface.DrawMode = forms::CopyPen; },
      [](Surface& surface) { surface.DrawWidth = 2; },
      [](Surface& surface) { surface.Circle(20, 12, 9.5); },
      [](Surface& surface) { surface.AutoRedraw = false; },
      [](Surface& surface) { surface.PSet(33, 7); },
  };
  const std::pair<double, double> changes[] = {{1, 1.41}, {2.81, 0.94}, {1.5, 2}};
  for (const auto& [from, to] : changes) {
    for (std::size_t change = 0; change <= steps.size(); ++change) {
      BlockSurface changed(from);
      BlockSurface other(to);
      for (std::size_t i = 0; i <= steps.size(); ++i) {
        if (i == change) {
          changed.TakeDirty();
          changed.Density(to);
          EXPECT_EQ(changed.TakeDirty().Width, other.Screen().Width());
        }
        if (i < steps.size()) {
          steps[i](changed);
          steps[i](other);
        }
      }
      EXPECT_TRUE(Alike(changed.Screen(), other.Screen())) << from << ", " << change;
      EXPECT_TRUE(Alike(changed.Kept(), other.Kept())) << from << ", " << change;
    }
  }
}

TEST(Surface, KeepsItsDensityWhereTooMuchWasDrawn) {
  PixelSurface surface(4, 1);
  surface.PSet(1.5, 0.5);
  for (std::size_t i = 0; i < forms::Strokes::MostPlaces / 4; ++i) {
    forms::ShowInPassing(
        surface, [&] { surface.Line(0, 0, 3, 0); }, [] {});
  }
  surface.Density(2);
  EXPECT_EQ(Seen(surface.Screen()), "..##.... ..##....")
      << "a black line in passing leaves nothing";
  for (std::size_t i = 0; i < forms::Strokes::MostPlaces; ++i) {
    surface.PSet(0, 0);
  }
  surface.Density(1);
  surface.Restore();
  EXPECT_EQ(surface.Density(), 2);
  surface.Cls();
  surface.Density(1);
  EXPECT_EQ(surface.Density(), 2) << "nothing was wiped";
  surface.ClearPicture();
  surface.PSet(3.5, 0.5);
  surface.Density(1);
  EXPECT_EQ(Seen(surface.Screen()), "...#");
}

TEST(Surface, TellsWhichPixelsChangedAndWhatWasDrawn) {
  PixelSurface surface(20, 20);
  std::vector<forms::DrawingOperation> told;
  surface.Observer = [&told](const auto& operation) { told.push_back(operation); };
  surface.ClearPicture();
  surface.TakeDirty();
  EXPECT_TRUE(surface.TakeDirty().Empty());
  surface.DrawMode = forms::NotMergePen;
  surface.PSet(3, 4, forms::Red);
  surface.Line(8, 9, 30, 9);
  surface.Line(8, 10, 8, 18);
  const auto [x, y, width, height] = surface.TakeDirty();
  EXPECT_EQ((std::vector{x, y, width, height}), (std::vector{3, 4, 17, 15}));
  ASSERT_EQ(told.size(), 4U);
  EXPECT_TRUE(told[0].Kept) << "wiped";
  EXPECT_EQ(told[1].Pen, forms::Red);
  EXPECT_EQ(told[1].DrawMode, forms::NotMergePen);
  EXPECT_EQ(told[2].X2, 30);
  surface.PSet(19, 19);
  surface.Resize(150, 75);
  EXPECT_EQ(surface.TakeDirty().Width, 10) << "changes that a smaller size cut off";
}

}  // namespace
}  // namespace clinorama::tests
