// The ways through the lesson: its opening, ways back, pauses, other pages called into a motion,
// and leaving.

#include <algorithm>
#include <cstdint>

#include "tests/lesson/lesson_test.h"

namespace clinorama::tests {
namespace {

TEST_F(LessonTest, OpensWithTheDefinition) {
  EXPECT_EQ(page.Label3.Caption(), "0");
  EXPECT_EQ(Texts(), "definition 0");
  EXPECT_EQ(EnabledButtons(), "S");
  EXPECT_TRUE(page.Parar.Visible && page.Continuar.Visible);
  EXPECT_EQ(page.Image4(7).Picture, "lesson/pagina_07");
  EXPECT_EQ(page.Image4(33).Picture, "");
  // The green disc of the cusp lies over the blue one.
  const auto& children = page.Picture1.Children();
  EXPECT_GT(std::find(children.begin(), children.end(), &page.Image1(10)),
            std::find(children.begin(), children.end(), &page.Image1(16)));
}

TEST_F(LessonTest, LeadsBackToTheStartOfADrawing) {
  // From further and further on; the other ways back are walked from the end.
  for (const auto& [from, to] : {std::pair{2, 1}, {6, 5}, {7, 5}, {13, 5}, {15, 5}, {17, 16}}) {
    GoTo(from);
    page.Anterior.UserClick();
    EXPECT_EQ(page.Label3.Caption(), std::to_string(to)) << from;
    EXPECT_TRUE(page.Picture1.DrawMode == forms::CopyPen || to > 5) << from;
  }
}

TEST_F(LessonTest, PausesAMotionWithItsFigureStanding) {
  GoTo(6);
  double place = 0;
  host.AtStep(100, [&] {
    place = page.Image1(5).Left;
    page.Parar.UserClick();
  });
  host.AtStep(101, [&] {
    EXPECT_FALSE(page.Parar.Visible);
    EXPECT_TRUE(page.Continuar.Reachable());
    EXPECT_TRUE(page.Image1(7).Visible && page.Image1(13).Visible) << "the rings";
  });
  host.AtStep(120, [&] {
    EXPECT_EQ(page.Image1(5).Left(), place);
    EXPECT_EQ(drawn.back().DrawMode, forms::NotMergePen);
    page.Continuar.UserClick();
    EXPECT_FALSE(page.Continuar.Visible || page.Continuar.Enabled);
    EXPECT_TRUE(page.Parar.Visible);
    page.HScroll1.UserScroll(10);
  });
  host.AtStep(220, [&] { page.HScroll1.UserScroll(0); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 301 + 20);
  EXPECT_EQ(host.WaitedMilliseconds, 100 * 5 + 100 * 10) << "the slider acts from the next step on";
}

// Page 23 leaves the buttons free.
TEST_F(LessonTest, IgnoresAPauseThatNothingCouldEnd) {
  host.Depth = 2;
  GoTo(6);
  host.AtStep(100, [&] { page.Parar.UserClick(); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 301);
  EXPECT_TRUE(page.Parar.Visible);
}

TEST_F(LessonTest, CallsOtherPagesIntoAMotion) {
  GoTo(22);
  // A later page: it is shown once more after the motion.
  host.AtStep(10, [&] {
    page.Seguinte.UserClick();
    EXPECT_EQ(Texts(), "24");
    EXPECT_EQ(page.Picture1.DrawMode, forms::NotMergePen) << "as the motion has it";
  });
  host.AtStep(11, [&] { EXPECT_EQ(drawn.back().DrawMode, forms::NotMergePen); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 8002);
  EXPECT_EQ(Drawn(Kind::Clear).size(), 2U);
  EXPECT_EQ(page.Label3.Caption(), "24");
  EXPECT_EQ(EnabledButtons(), "AS");

  // An earlier page: the motion goes on over its drawing.
  page.Anterior.UserClick();
  Record();
  host.AtStep(10, [&] { page.Anterior.UserClick(); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 8002);
  EXPECT_EQ(Drawn(Kind::Clear).size(), 1U);
  EXPECT_EQ(Texts(), "22");
  EXPECT_EQ(EnabledButtons(), "AS");
  EXPECT_EQ(Drawn(Kind::Line).back().Pen, forms::Red);

  // A motion in the motion: it changes the point A, and its page is shown once more.
  Record();
  host.AtStep(10, [&] {
    page.Seguinte.UserClick();
    page.Seguinte.UserClick();
    EXPECT_EQ(host.Steps, 10 + 8002);
  });
  host.AtStep(10 + 8002 + 1, [&] { EXPECT_EQ(drawn.back().Y1, -2); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 3 * 8002);
  EXPECT_EQ(Texts(), "25");
}

// What the raster operations of all lines of a page leave, pixel by pixel: the marks of its
// figures.
TEST_F(LessonTest, LeavesTheMarksOfItsPassingFigures) {
  for (const int number : {7, 8, 12, 13}) {
    GoTo(number - 1);
    const forms::PictureBox& picture = page.Picture1;
    const auto width = static_cast<std::size_t>(picture.Kept().Width());
    const auto height = static_cast<std::size_t>(picture.Kept().Height());
    std::vector<std::uint32_t> pixels(picture.Kept().Data(),
                                      picture.Kept().Data() + width * height);
    const auto before = pixels;
    page.Seguinte.UserClick();

    forms::Surface mask(picture.Width, picture.Height, 1);  // white but for one line at a time
    mask.Scale(-1, 10, 10, -1);
    for (const Drawing& line : Drawn(Kind::Line)) {
      mask.DrawStyle = line.DrawStyle;
      mask.TakeDirty();
      mask.Line(line.X1, line.Y1, line.X2, line.Y2, forms::Black);
      const forms::PixelRect box = mask.TakeDirty();
      for (int i = 0; i < box.Width * box.Height; ++i) {
        const int x = box.X + i % box.Width;
        const int y = box.Y + i / box.Width;
        if (mask.Screen().At(x, y) == forms::Black) {
          std::uint32_t& pixel =
              pixels[static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)];
          pixel = line.DrawMode == forms::CopyPen ? line.Pen.Rgb
                  : line.DrawMode == forms::InvertPixel
                      ? ~pixel & forms::ColorBits
                      : ~(line.Pen.Rgb | pixel) & forms::ColorBits;
        }
      }
      mask.Line(line.X1, line.Y1, line.X2, line.Y2, forms::White);
    }
    EXPECT_TRUE(std::equal(pixels.begin(), pixels.end(), picture.Kept().Data())) << number;
    EXPECT_NE(pixels, before) << number;
  }
}

}  // namespace
}  // namespace clinorama::tests
