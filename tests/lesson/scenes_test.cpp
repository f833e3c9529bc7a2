// The still drawings: how far their curves go, where their markers lie, and what they leave to the
// next page.

#include <algorithm>
#include <cmath>

#include "tests/lesson/lesson_test.h"

namespace clinorama::tests {
namespace {

double Largest(const std::vector<forms::DrawingOperation>& points) {
  double largest = 0;
  for (const auto& point : points) {
    largest = std::max(largest, std::abs(point.Y1));
  }
  return largest;
}

TEST_F(LessonTest, DrawsCurvesPointByPointWithinTheirBounds) {
  struct Curve {
    int Page;
    double Points;
    double LastX;
    double Largest;  // of all ordinates
  };
  const Curve curves[] = {
      {2, 10000, 7.999, 4 * std::sqrt(2.0) + 2},
      {3, 13857, std::sqrt(48.0), 9},
      {4, 11209 + 10000, 4.999, 8},
      {5, 7000, 7.999, 7},
      {16, 11209, 5.604, 8},
      {18, 7072 + 7417, std::sqrt(55.0), 8},
      {28, 16000 + 10, 0, 4},
      {30, 16000 + 10000, 4.999, 5},
  };
  for (const auto& [number, count, lastX, largest] : curves) {
    GoTo(number - 1);
    page.Seguinte.UserClick();
    const auto points = Drawn(Kind::Point);
    EXPECT_NEAR(static_cast<double>(points.size()), count, 1) << number;
    EXPECT_NEAR(points.back().X1, lastX, 0.001) << number;
    EXPECT_NEAR(Largest(points), largest, 0.005) << number;
    EXPECT_LE(Largest(points), largest + 1e-9) << number;
    EXPECT_EQ(points.front().Pen, forms::Blue) << number;
  }
}

TEST_F(LessonTest, ClosesTheCuspWithTenDots) {
  GoTo(27);
  page.Seguinte.UserClick();
  auto dots = Drawn(Kind::Point);
  std::erase_if(dots, [](const auto& point) { return point.X1 != 0; });
  ASSERT_EQ(dots.size(), 10U);
  EXPECT_EQ(dots.front().Y1, -3);
  EXPECT_EQ(dots.back().Y1, -3.900000000000001);
}

struct Marker {
  int Index;
  double X;
  double Y;
};

TEST_F(LessonTest, PutsTheMarkersOnTheirPoints) {
  const double fa = std::sqrt(48.0) - 1;
  const double right = std::sqrt(63.0) - 1;
  const double left = std::sqrt(21.75) - 1;
  struct Scene {
    int Page;
    std::vector<Marker> Markers;
  };
  const Scene scenes[] = {
      {1, {}},
      {2, {{5, 2.96, 2.69}}},  // beside the point of contact
      {3, {{5, 4, 1}}},
      {4, {{5, 0, 0}}},
      {5, {{0, 4, fa}, {1, 7, right}, {5, 7, 0}, {9, 4, 0}, {11, 0, fa}, {12, 0, right}}},
      {6, {{1, 7, right}, {5, 7, 0}, {12, 0, right}}},
      {7, {{1, 7, right}, {5, 7, 0}, {12, 0, right}}},
      {8, {}},
      {10, {{0, 4, fa}, {2, 1.5, left}, {6, 1.5, 0}, {9, 4, 0}, {11, 0, fa}, {14, 0, left}}},
      {12,
       {{0, 4, fa},
        {2, 1.5, left},
        {4, 1.5, left},
        {6, 1.5, 0},
        {9, 4, 0},
        {11, 0, fa},
        {14, 0, left}}},
      {13,
       {{0, 4, fa}, {2, 4, fa}, {4, 1.5, left}, {6, 4, 0}, {9, 4, 0}, {11, 0, fa}, {14, 0, fa}}},
      {16, {{10, 0, 0}}},
      {18, {{16, 0, 6}, {17, 0, 3}, {18, 0, -2}}},
      {20, {{16, 0, 3}, {18, 0, -2}}},
      {22, {{16, 0, 1}, {17, 0, 3}, {18, 0, -2}}},
      {24, {{16, 0, -2}, {17, 0, 3}}},
      {26, {{16, 0, -4}, {17, 0, 3}, {18, 0, -2}}},
      {28, {{10, -0.05, -4}, {16, 0, -4}}},
      {30, {{16, 0, 3}}},
  };
  for (const auto& [number, markers] : scenes) {
    GoTo(number);
    std::vector<int> visible;
    for (int i = 0; i <= 18; ++i) {
      if (page.Image1(i).Visible) {
        visible.push_back(i);
      }
    }
    std::vector<int> expected;
    for (const auto& [index, x, y] : markers) {
      expected.push_back(index);
      const double middle = 8;  // pixels from a marker's corner
      EXPECT_NEAR(page.Image1(index).Left / 15 + middle, page.Picture1.LogicalX(x), 1.2) << number;
      EXPECT_NEAR(page.Image1(index).Top / 15 + middle, page.Picture1.LogicalY(y), 1.2) << number;
    }
    EXPECT_EQ(visible, expected) << number;
  }
}

TEST_F(LessonTest, ShowsTheGreenDiscOfTheCuspOverTheBlueOne) {
  const auto& children = page.Picture1.Children();
  const auto place = [&](int marker) {
    return std::find(children.begin(), children.end(), &page.Image1(marker)) - children.begin();
  };
  EXPECT_GT(place(10), place(16));
}

TEST_F(LessonTest, DrawsOverThePageBeforeWithItsPen) {
  GoTo(5);
  for (int number = 6; number <= 11; ++number) {
    page.Seguinte.UserClick();
    EXPECT_TRUE(Drawn(Kind::Clear).empty()) << number;
  }
  // The labels of the right side are written once more on page 8, three of them out of sight.
  const auto texts = Drawn(Kind::Text);
  ASSERT_EQ(texts.size(), 12U);
  for (const auto& text : texts) {
    EXPECT_EQ(text.Pen, forms::Blue);
  }
  EXPECT_EQ(texts[2].Text, "f(a)");
  EXPECT_EQ(texts[3].X1, 20);
  EXPECT_EQ(texts[11].Y1, 4.2);
  EXPECT_EQ(page.Picture1.DrawStyle, 2);
  EXPECT_EQ(PixelAt(0, 7.5), forms::Black);  // the axis of page 5
}

TEST_F(LessonTest, KeepsADrawingUnderAnEarlierText) {
  GoTo(2);
  page.Anterior.UserClick();
  EXPECT_TRUE(page.Image5.Visible);
  EXPECT_EQ(PixelAt(-4, 0), forms::Blue);  // of the circle
  GoTo(16);
  page.Anterior.UserClick();
  EXPECT_EQ(Texts(), "15");
  EXPECT_EQ(PixelAt(-9, 5), forms::Black);  // of the axis in the margin
  page.Anterior.UserClick();
  EXPECT_EQ(page.Picture1.ScaleWidth(), 11);
  page.Anterior.UserClick();
  EXPECT_EQ(page.Picture1.ScaleWidth(), 20);
}

}  // namespace
}  // namespace clinorama::tests
