#include "forms/surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "forms/units.h"
#include "tests/support/failure_of.h"

namespace clinorama::tests {
namespace {

using forms::Raster;
using forms::Surface;

using forms::Dotted;

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
    if (y > 0) {
      text += ' ';
    }
    for (int x = 0; x < raster.Width(); ++x) {
      text += raster.At(x, y) == forms::White ? '.' : '#';
    }
  }
  return text;
}

bool Blank(const Raster& raster) { return Seen(raster).find('#') == std::string::npos; }

TEST(Surface, MapsTheScaleToItsCornersAtEveryDensity) {
  for (const double density : {1.0, 1.5, 2.0}) {
    Surface surface(9500, 6000, density);
    EXPECT_EQ(surface.Screen().Width(), std::lround(9500 / 15.0 * density));
    surface.ScaleInPixels();
    EXPECT_EQ(surface.ScaleWidth(), 633);
    surface.Scale(-1, 10, 10, -1);
    EXPECT_EQ(surface.ScaleHeight(), -11);
    EXPECT_EQ(surface.LogicalX(-1), 0);
    EXPECT_NEAR(surface.LogicalX(10), 9500 / 15.0, 0.5);
    EXPECT_NEAR(surface.LogicalY(4.5), 200, 0.01);
  }
}

TEST(Surface, PaintsLinesWithBothTheirEnds) {
  struct Case {
    Segment Line;
    int Width;
    int Style;
    std::string Expected;
  };
  const Case cases[] = {
      {{1.5, 1.5, 5.5, 1.5}, 1, 0, "........ .#####.. ........ ........"},
      {{5.5, 1.5, 1.5, 1.5}, 1, 0, "........ .#####.. ........ ........"},
      {{2.5, 1.5, 2.5, 3.5}, 1, 0, "........ ..#..... ..#..... ..#....."},
      {{4.5, 2.5, 4.5, 2.5}, 1, 0, "........ ........ ....#... ........"},
      {{0.5, 3.5, 3.5, 0.5}, 1, 0, "...#.... ..#..... .#...... #......."},
      {{1.5, 0.5, 6.5, 2.5}, 1, 0, ".##..... ...##... .....##. ........"},
      {{1.5, -5.5, 3.5, 2.5}, 1, 0, "...#.... ...#.... ...#.... ........"},
      {{3.5, 1.5, 4.5, 1.5}, 3, 0, "..####.. ..####.. ..####.. ........"},
      {{0.5, 1.5, 7.5, 1.5}, 1, Dotted, "........ ##..##.. ........ ........"},
      {{7.5, 1.5, 0.5, 1.5}, 1, Dotted, "........ ..##..## ........ ........"},
      {{0.5, 1.5, 7.5, 1.5}, 3, Dotted, "######## ######## ######## ........"},
  };
  for (const Case& test : cases) {
    PixelSurface surface(8, 4);
    surface.DrawWidth = test.Width;
    surface.DrawStyle = test.Style;
    test.Line.DrawOn(surface);
    EXPECT_EQ(Seen(surface.Screen()), test.Expected);
  }
  PixelSurface fine(6, 2, 2);
  fine.DrawStyle = Dotted;
  fine.Line(0, 1, 6, 1);
  EXPECT_EQ(Seen(fine.Screen()), "............ ####....#### ####....#### ............");
}

TEST(Surface, PaintsRoundDotsAndCircles) {
  const std::pair<int, std::string> dots[] = {
      {1, "....... ....... ....... ...#... ....... ....... ......."},
      {5, "....... ..###.. .#####. .#####. .#####. ..###.. ......."},
      {7, "..###.. .#####. ####### ####### ####### .#####. ..###.."}};
  for (const auto& [width, expected] : dots) {
    PixelSurface surface(7, 7);
    surface.DrawWidth = width;
    surface.PSet(3.5, 3.5);
    EXPECT_EQ(Seen(surface.Screen()), expected);
  }
  const std::pair<int, std::string> circles[] = {
      {1, "..###.. .#...#. #.....# #.....# #.....# .#...#. ..###.."},
      {2, ".#####. ####### ##...## ##...## ##...## ####### .#####."}};
  for (const auto& [width, expected] : circles) {
    PixelSurface surface(7, 7);
    surface.Scale(0, 0, 14, 7);  // the radius is measured along x
    surface.DrawWidth = width;
    surface.Circle(7, 3.5, 6);
    EXPECT_EQ(Seen(surface.Screen()), expected);
  }
}

// At each density: how many device pixels a pen of 1 is wide, and a dash of a dotted line long.
TEST(Surface, WidensPensAndDashesToWholePixels) {
  const std::pair<int, int> expected[] = {{1, 2}, {1, 2}, {2, 3}, {2, 3}, {2, 3}, {2, 4}, {3, 6}};
  for (std::size_t i = 0; i < std::size(Densities); ++i) {
    const auto blackRows = [&](int style, const Segment& line) {
      PixelSurface surface(20, 20, Densities[i]);
      surface.DrawStyle = style;
      line.DrawOn(surface);
      const std::string seen = Seen(surface.Screen());
      const std::string rows = seen.substr(seen.find('#'));
      const std::size_t row = static_cast<std::size_t>(surface.Screen().Width()) + 1;
      int count = 0;
      while (rows[static_cast<std::size_t>(count) * row] == '#') {
        ++count;
      }
      return count;
    };
    EXPECT_EQ(blackRows(0, {0, 10, 20, 10}), expected[i].first) << Densities[i];
    EXPECT_EQ(blackRows(Dotted, {10, 0, 10, 20}), expected[i].second) << Densities[i];
  }
}

// Lines long and short in all directions, with ends anywhere in their pixels.
TEST(Surface, CoversThePixelsOfEndsWithoutAGap) {
  for (const double density : Densities) {
    for (int i = 0; i < 900; ++i) {
      const double half = i % 3 == 0 ? 15 : 0.3 * (i % 5);
      const double x = 20 + 0.4 * std::cos(7 * i);
      const Segment line = {x - half * std::cos(i), 20 - half * std::sin(i), x + half * std::cos(i),
                            20.3 + half * std::sin(i)};
      PixelSurface surface(40, 40, density);
      line.DrawOn(surface);
      const auto pixel = [&](double endX, double endY) {
        return std::pair(static_cast<int>(surface.LogicalX(endX) * density),
                         static_cast<int>(surface.LogicalY(endY) * density));
      };
      const auto ends = {pixel(line.X1, line.Y1), pixel(line.X2, line.Y2)};
      const int atLeast = *ends.begin() == *std::rbegin(ends) ? 1 : 2;
      for (const auto& [column, row] : ends) {
        int around = 0;
        for (int place = 0; place < 9; ++place) {
          around +=
              surface.Screen().At(column + place % 3 - 1, row + place / 3 - 1) == forms::Black;
        }
        ASSERT_EQ(surface.Screen().At(column, row), forms::Black) << density << ": " << i;
        ASSERT_GE(around, atLeast) << density << ": " << i;
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
        for (int y = -8; y <= 8; ++y) {
          surface.PSet(near, y);
        }
      }
      EXPECT_EQ(Seen(surface.Screen()), line) << size << " at " << density;
    }
  }
}

TEST(Surface, ReducesCoordinatesTo32BitReals) {
  PixelSurface surface(4, 3);
  surface.Scale(16777216, 0, 16777220, 3);
  surface.PSet(16777217, 0);  // lies halfway between two such reals, and goes to the even one
  surface.Line(16777217, 1, 16777219, 1);
  EXPECT_EQ(surface.LogicalX(16777217), 0);
  EXPECT_EQ(Seen(surface.Screen()), "#... #### ....");
}

TEST(Surface, PaintsTicksAsLongAboveTheAxisAsBelow) {
  struct Canvas {
    double Size, Range, HalfTick;  // in twips, and in user units
  };
  for (const auto& [size, range, half] :
       {Canvas{9500, 12.96, 2 * 25.92 / 633}, {8000, 10, 0.1}, {5000, 10, 0.1}}) {
    Surface surface(size, size, 1);
    surface.Scale(-range, range, range, -range);
    const Raster& screen = surface.Screen();
    const int axis = screen.Height() / 2;
    for (int i = -8; i <= 8; ++i) {
      surface.Line(i, -half, i, half);
      const int column = static_cast<int>(surface.LogicalX(i));
      EXPECT_EQ(screen.At(column, axis), forms::Black);
      for (int y = 1; y < 6; ++y) {
        EXPECT_EQ(screen.At(column, axis - y), screen.At(column, axis + y)) << i << ", " << y;
      }
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
  for (const auto& [farLine, nearLine] : cases) {
    Surface farSurface(3000, 3000, 1);
    Surface nearSurface(3000, 3000, 1);
    for (Surface* surface : {&farSurface, &nearSurface}) {
      surface->Scale(-10, 10, 10, -10);
    }
    farLine.DrawOn(farSurface);
    nearLine.DrawOn(nearSurface);
    EXPECT_TRUE(Seen(farSurface.Screen()) == Seen(nearSurface.Screen())) << farLine.X2;
  }
}

TEST(Surface, RefusesCoordinatesBeyond32BitReals) {
  PixelSurface surface(8, 8);
  for (const double bad : {1e39, -1e39, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(FailureOf([&] { surface.Line(0, 0, bad, 1); }), 6);
    EXPECT_EQ(FailureOf([&] { surface.Line(0, bad, 1, 1); }), 6);
    EXPECT_EQ(FailureOf([&] { surface.PSet(bad, 0); }), 6);
    EXPECT_EQ(FailureOf([&] { surface.Circle(0, 0, bad); }), 6);
    EXPECT_EQ(FailureOf([&] { static_cast<void>(surface.LogicalY(bad)); }), 6);
  }
  surface.PSet(3e38, -3e38);
  surface.Circle(1e30, 1e30, 1);
  EXPECT_TRUE(Blank(surface.Screen()));
}

// One step of a motion: the figure is drawn by operation 2 and drawn again by operation 6. Counts
// the pixels that differ from what bits say: pen OR pixel where the line runs.
int WrongPixelsOfAStep(Surface& surface, Surface& mask, const Segment& line) {
  surface.AutoRedraw = true;
  surface.Line(0, 20, 40, 20, forms::QBColor(10));
  surface.Line(20, 0, 20, 40, forms::QBColor(13));
  const Raster before = surface.Screen();
  line.DrawOn(mask);
  surface.DrawMode = forms::NotMergePen;
  line.DrawOn(surface);
  const Raster drawn = surface.Screen();
  surface.DrawMode = forms::InvertPixel;
  line.DrawOn(surface);
  int wrong = 0;
  for (int y = 0; y < before.Height(); ++y) {
    for (int x = 0; x < before.Width(); ++x) {
      const bool covered = mask.Screen().At(x, y) != forms::White;
      const std::uint32_t ground = before.At(x, y).Rgb;
      const std::uint32_t left = covered ? ground | surface.ForeColor.Rgb : ground;
      wrong += drawn.At(x, y).Rgb != (covered ? left ^ 0xFFFFFF : ground);
      wrong += surface.Screen().At(x, y).Rgb != left || surface.Kept().At(x, y).Rgb != left;
    }
  }
  return wrong;
}

TEST(Surface, LeavesPenOrPixelWhereALineWasDrawnAndTakenAway) {
  const Segment lines[] = {{2, 3, 37, 3},   {5, 38, 5, 1}, {1, 1, 38, 38},      {1, 30, 38, 21},
                           {33, 2, 21, 39}, {7, 7, 7, 7},  {-50, -20, 60, 70.3}};
  for (const double density : Densities) {
    for (const auto& [style, width] : {std::pair{0, 1}, {Dotted, 1}, {0, 2}}) {
      for (const forms::Color pen : {forms::Black, forms::Red, forms::Blue}) {
        for (const Segment& line : lines) {
          PixelSurface surface(40, 40, density);
          PixelSurface mask(40, 40, density);
          surface.DrawStyle = mask.DrawStyle = style;
          surface.DrawWidth = mask.DrawWidth = width;
          surface.ForeColor = pen;
          EXPECT_EQ(WrongPixelsOfAStep(surface, mask, line), 0) << density << style << width;
        }
      }
    }
  }
}

TEST(Surface, KeepsWhatIsDrawnWithAutoRedraw) {
  PixelSurface surface(3, 1);
  const auto expect = [&surface](const std::string& kept, const std::string& screen) {
    EXPECT_EQ(Seen(surface.Kept()), kept);
    EXPECT_EQ(Seen(surface.Screen()), screen);
  };
  surface.PSet(2, 0);
  surface.AutoRedraw = true;
  surface.PSet(0, 0);
  surface.AutoRedraw = false;
  expect("#..", "#.#");
  surface.Cls();
  expect("#..", "#..");
  surface.ClearPicture();
  expect("...", "...");
  surface.AutoRedraw = true;
  surface.PSet(1, 0);
  surface.Cls();
  expect("...", "...");
  surface.AutoRedraw = false;
  surface.BackColor(forms::Blue);
  surface.PSet(1, 0);
  surface.Restore();
  EXPECT_EQ(surface.Screen().At(1, 0), forms::Blue);
}

// A surface whose texts are two pixels: the corner, covered wholly, and its neighbour, by half.
struct PrintedSurface : PixelSurface {
  PrintedSurface() : PixelSurface(4, 1) {}
  void PaintText(Raster& raster, const forms::TextRun& run) override {
    raster.Apply(run.X, run.Y, run.Ink, forms::RasterOperation::Copy);
    raster.Apply(run.X + 1, run.Y, forms::Color{0x808080}, forms::RasterOperation::Copy);
    ++Painted;
  }
  int Painted = 0;
};

TEST(Surface, PrintsATextOverItselfAsOnce) {
  struct Case {
    forms::Color Ground, There, Ink;
    std::uint32_t Edge;
  };
  using forms::Black, forms::Blue, forms::Red, forms::White;
  const Case cases[] = {
      {White, White, Black, 0x808080}, {White, Black, Black, 0x000000},
      {White, White, Blue, 0x8080FF},  {White, Blue, Blue, 0x0000FF},
      {White, Black, Red, 0x7F0000},   {White, Blue, Red, 0x7F0080},
      {Blue, White, Black, 0x808080},  {Blue, Blue, White, 0x7F7FFF},
  };
  for (const auto& [ground, there, ink, edge] : cases) {
    PrintedSurface surface;
    surface.BackColor(ground);
    surface.Line(0, 0, 3, 0, there);
    surface.ForeColor = ink;
    for (int time = 0; time < 3; ++time) {
      surface.PrintAt(1, 0, "a");
      EXPECT_EQ(surface.Screen().At(0, 0), there);
      EXPECT_EQ(surface.Screen().At(1, 0), ink);
      EXPECT_EQ(surface.Screen().At(2, 0), forms::Color{edge}) << time;
      EXPECT_EQ(surface.Screen().At(3, 0), there);
    }
  }
}

TEST(Surface, KeepsATextAsADrawingAndClipsIt) {
  PrintedSurface surface;
  surface.TakeDirty();
  surface.PrintAt(-1, 0, "a");
  EXPECT_FALSE(surface.TakeDirty().Empty());
  EXPECT_EQ(Seen(surface.Screen()), "#...");
  EXPECT_TRUE(Blank(surface.Kept())) << "without AutoRedraw";
  surface.AutoRedraw = true;
  surface.PrintAt(2.5, 0, "a");  // halfway: the first of two pixels
  EXPECT_EQ(Seen(surface.Kept()), "..##");
  surface.PrintAt(3, 0, "a");
  surface.PrintAt(1e30, -1e30, "a");
  EXPECT_EQ(surface.Painted, 3) << "a text far away is not painted";
}

TEST(Surface, TellsWhichPixelsChangedAndWhatWasDrawn) {
  PixelSurface surface(20, 20);
  std::vector<forms::DrawingOperation> told;
  surface.Observer = [&told](const auto& operation) { told.push_back(operation); };
  surface.TakeDirty();
  EXPECT_TRUE(surface.TakeDirty().Empty());
  surface.DrawMode = forms::NotMergePen;
  surface.PSet(3, 4, forms::Red);
  surface.Line(7, 9, 30, 9);
  const auto [x, y, width, height] = surface.TakeDirty();
  EXPECT_EQ((std::vector{x, y, width, height}), (std::vector{3, 4, 17, 6}));
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0].Pen, forms::Red);
  EXPECT_EQ(told[0].DrawMode, forms::NotMergePen);
  EXPECT_EQ(told[1].X2, 30);
  surface.PSet(19, 19);
  surface.Resize(150, 75);
  EXPECT_EQ(surface.TakeDirty().Width, 10) << "changes that a smaller size cut off";
}

}  // namespace
}  // namespace clinorama::tests
