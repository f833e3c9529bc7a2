// The motions: their last positions, the limits of the semi-secants, and what a passing figure
// leaves behind.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <vector>

#include "tests/lesson/lesson_test.h"

namespace clinorama::tests {
namespace {

TEST_F(LessonTest, StopsBesideThePointAndNeverAtIt) {
  struct Motion {
    int Page;
    int Steps;
    double LastX;
  };
  for (const auto& [number, steps, lastX] : {Motion{7, 301, 4.000000000000064},
                                             {8, 301, 4.000000000000064},
                                             {12, 251, 3.999999999999958},
                                             {13, 251, 3.999999999999958},
                                             {17, 2 * 801, 0},
                                             {19, 2 * 4001, 0}}) {
    GoTo(number - 1);
    page.Seguinte.UserClick();
    EXPECT_EQ(host.Steps, steps) << number;
    EXPECT_EQ(host.WaitedMilliseconds, 5 * steps);
    if (lastX == 0) {
      continue;
    }
    auto verticals = Drawn(Kind::Line);
    std::erase_if(verticals, [](const auto& line) { return line.Y2 != 0; });
    EXPECT_DOUBLE_EQ(verticals.back().X1, lastX) << number;
  }
}

TEST_F(LessonTest, TurnsTheSemiSecantsToTheirLimits) {
  struct Limit {
    double X;
    double Y;
  };
  struct Motion {
    int Page;
    Limit Right;
    Limit Left;
  };
  const double tangentX = 7 * 3 / std::sqrt(13.0);
  for (const auto& [number, right, left] :
       {Motion{17, {tangentX, tangentX * -2 / 3}, {-tangentX, tangentX * 2 / 3}},
        Motion{19, {0, -5}, {0, -5}}, Motion{21, {11, 3}, {0, -8}}, Motion{23, {0, 12}, {0, -7}},
        Motion{25, {0, 9}, {-8, -2}}, Motion{27, {0, 7}, {0, 4}}, Motion{29, {0, 7}, {0, 4}}}) {
    GoTo(number - 1);
    page.Seguinte.UserClick();
    auto limits = Drawn(Kind::Line);
    std::erase_if(limits, [](const auto& line) { return line.Pen != forms::Red; });
    ASSERT_EQ(limits.size(), 2U) << number;
    EXPECT_NEAR(limits[0].X2, right.X, 1e-6) << number;
    EXPECT_NEAR(limits[0].Y2, right.Y, 1e-6) << number;
    EXPECT_NEAR(limits[1].X2, left.X, 1e-6) << number;
    EXPECT_NEAR(limits[1].Y2, left.Y, 1e-6) << number;
  }
}

// The two pages start alike and do not do the same: where page 8 inverts the old semi-secant,
// page 13 erases it. Its pixel at a distance from A is seen before the motion and after its first
// line.
TEST_F(LessonTest, InvertsTheOldSemiSecantOnTheRightAndErasesItOnTheLeft) {
  struct Case {
    int Page;
    double X;
    double Distance;
    int Mode;
    forms::Color After;
  };
  for (const auto& [number, x, distance, mode, after] :
       {Case{8, 7, 4.6, 6, Yellow}, {13, 1.5, 2, 13, forms::White}}) {
    GoTo(number - 1);
    const double y = std::sqrt(16 * x - x * x) - 1;
    const double fa = std::sqrt(48.0) - 1;
    const double length = std::hypot(x - 4, y - fa);
    const double seenX = 4 + (x - 4) / length * distance;
    const double seenY = fa + (y - fa) / length * distance;
    EXPECT_EQ(PixelAt(seenX, seenY), forms::Blue) << number;
    bool first = true;
    page.Picture1.Observer = [&, expected = after, drawMode = mode](const auto& operation) {
      if (operation.What != Kind::Line || !first) {
        return;
      }
      first = false;
      EXPECT_EQ(operation.DrawMode, drawMode);
      EXPECT_EQ(operation.Pen, forms::White);
      EXPECT_EQ(PixelAt(seenX, seenY), expected);
    };
    page.Seguinte.UserClick();
    EXPECT_FALSE(first);
    Record();
  }
}

// The pixels that a segment covers, as indices into a picture of the lesson's surface.
std::vector<std::size_t> PixelsOf(forms::Surface& blank, const forms::DrawingOperation& line) {
  std::vector<std::size_t> pixels;
  blank.DrawStyle = line.DrawStyle;
  blank.TakeDirty();
  blank.Line(line.X1, line.Y1, line.X2, line.Y2, forms::Black);
  const forms::PixelRect box = blank.TakeDirty();
  for (int y = box.Y; y < box.Y + box.Height; ++y) {
    for (int x = box.X; x < box.X + box.Width; ++x) {
      if (blank.Screen().At(x, y) != forms::Black) {
        continue;
      }
      pixels.push_back(static_cast<std::size_t>(y * blank.Screen().Width() + x));
    }
  }
  blank.Line(line.X1, line.Y1, line.X2, line.Y2, forms::White);
  return pixels;
}

// What figures that pass leave: the bits of the pen are added where an odd number of a figure's
// segments run over a pixel, and taken away where an even number do, such as at a common end.
TEST_F(LessonTest, LeavesMarksOfThePenWhereAFigurePassed) {
  for (const int number : {7, 8, 12, 13, 17}) {
    GoTo(number - 1);
    const forms::PictureBox& picture = page.Picture1;
    forms::Surface blank(picture.Width, picture.Height, 1);
    const double margin = number == 17 ? -10 : -1;
    blank.Scale(margin, 10, 10, margin);
    const std::uint32_t* kept = picture.Kept().Data();
    std::vector<std::uint32_t> pixels(kept,
                                      kept + picture.Kept().Width() * picture.Kept().Height());
    page.Seguinte.UserClick();

    std::map<std::size_t, int> figure;  // how many segments cover a pixel
    int toTakeAway = 0;
    int added = 0;
    int lost = 0;
    for (const auto& line : Drawn(Kind::Line)) {
      if (line.DrawMode == 2) {
        for (const std::size_t pixel : PixelsOf(blank, line)) {
          ++figure[pixel];
        }
        ++toTakeAway;
      } else if (toTakeAway == 0) {
        for (const std::size_t pixel : PixelsOf(blank, line)) {
          pixels[pixel] = line.DrawMode == 6 ? pixels[pixel] ^ 0xFFFFFF : line.Pen.Rgb;
        }
      } else if (--toTakeAway == 0) {
        for (const auto& [pixel, times] : figure) {
          const std::uint32_t old = pixels[pixel];
          pixels[pixel] = times % 2 == 0 ? old & ~line.Pen.Rgb : old | line.Pen.Rgb;
          added += pixels[pixel] > old;
          lost += pixels[pixel] < old;
        }
        figure.clear();
      }
    }
    EXPECT_TRUE(std::equal(pixels.begin(), pixels.end(), picture.Kept().Data())) << number;
    EXPECT_GT(added, 0) << number;
    EXPECT_EQ(lost > 10, number != 17) << "a figure of one segment has no common end";
  }
}

TEST_F(LessonTest, DrawsTheSemiTangentWhereTheMotionHasLeftTheSemiSecant) {
  for (const int number : {9, 14}) {
    GoTo(number - 1);
    page.Seguinte.UserClick();
    ASSERT_EQ(drawn.size(), 1U);
    EXPECT_EQ(drawn[0].Pen, forms::Red);
    EXPECT_EQ(drawn[0].DrawMode, 13);
    EXPECT_EQ(drawn[0].DrawWidth, 2);
    EXPECT_EQ(page.Picture1.DrawWidth, 1);
    // The slope of the graph at a, on either side.
    EXPECT_NEAR((drawn[0].Y2 - drawn[0].Y1) / (drawn[0].X2 - drawn[0].X1), 1 / std::sqrt(3.0),
                0.02);
    EXPECT_NEAR(std::hypot(drawn[0].X2 - drawn[0].X1, drawn[0].Y2 - drawn[0].Y1), 5, 1e-9);
  }
}

}  // namespace
}  // namespace clinorama::tests
