// The ways through the lesson: its opening, ways back, pauses, other pages called into a motion,
// and leaving.

#include <algorithm>

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
  host.AtStep(220, [&] {
    page.HScroll1.UserScroll(0);
    host.Depth = 2;
    page.Parar.UserClick();
    EXPECT_TRUE(page.Parar.Visible) << "a pause that nothing could end is none";
  });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 301 + 20);
  EXPECT_EQ(host.WaitedMilliseconds, 100 * 5 + 100 * 10) << "the slider acts from the next step on";
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

}  // namespace
}  // namespace clinorama::tests
