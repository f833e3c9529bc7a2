// The order of the pages: texts, buttons, ways back, pauses, other pages called into a motion, and
// leaving.

#include <set>

#include "tests/lesson/lesson_test.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

constexpr const char* Still = "AS";
constexpr const char* Moving = "PC";

TEST_F(LessonTest, OpensWithTheDefinition) {
  EXPECT_EQ(page.Label3.Caption(), "0");
  EXPECT_EQ(Texts(), "definition 0");
  EXPECT_EQ(EnabledButtons(), "S");
  EXPECT_TRUE(page.Parar.Visible && page.Continuar.Visible);
  EXPECT_EQ(page.Image4(7).Picture, "lesson/pagina_07");
  EXPECT_EQ(page.Image4(33).Picture, "");
}

TEST_F(LessonTest, ShowsEachPageWithItsTextAndButtons) {
  const std::set<int> moving = {7, 8, 12, 13, 17, 19, 21, 22, 25, 27, 29, 30};
  for (int number = 1; number <= 31; ++number) {
    std::string during;
    page.Picture1.Observer = [&](const forms::DrawingOperation&) {
      if (during.empty()) {
        during = EnabledButtons() + " " + page.Label3.Caption();
      }
    };
    host.Steps = 0;
    page.Seguinte.UserClick();

    const std::string name = std::to_string(number);
    const bool draws = number != 1 && number != 15;
    const char* before = number == 23 ? "ASPC" : moving.contains(number % 31) ? Moving : Still;
    if (number == 31) {
      before = Moving;
    }
    EXPECT_EQ(during, draws ? before + (" " + name) : "");
    EXPECT_EQ(EnabledButtons(), number == 1 ? "S" : number == 23 ? "ASPC" : Still) << name;
    EXPECT_EQ(page.Label3.Caption(), number < 30 ? name : "Final");
    EXPECT_EQ(Texts(), number == 1 ? "definition 1" : number == 31 ? "30" : name);
  }
}

TEST_F(LessonTest, LeadsBackToTheStartOfADrawing) {
  struct Way {
    int From;
    int To;
  };
  // Each from further on than the last, and then the way back from the end.
  for (const auto& [from, to] :
       {Way{2, 1}, {3, 2}, {5, 4}, {6, 5}, {7, 5}, {13, 5}, {15, 5}, {17, 16}, {19, 18}}) {
    GoTo(from);
    page.Anterior.UserClick();
    EXPECT_EQ(page.Label3.Caption(), std::to_string(to)) << from;
  }
  GoTo(30);
  for (const int to : {28, 26, 24, 22, 20, 18, 16, 15, 5, 4, 3, 2, 1}) {
    page.Anterior.UserClick();
    EXPECT_EQ(page.Label3.Caption(), std::to_string(to));
    EXPECT_EQ(Texts(), (to == 1 ? "definition " : "") + std::to_string(to));
  }
  EXPECT_EQ(EnabledButtons(), "S");
}

TEST_F(LessonTest, PausesAMotionWithItsFigureStanding) {
  GoTo(6);
  std::vector<double> places;
  AtStep(100, [&] {
    places.push_back(page.Image1(5).Left);
    page.Parar.UserClick();
  });
  AtStep(101, [&] {
    EXPECT_FALSE(page.Parar.Visible);
    EXPECT_TRUE(page.Continuar.Reachable());
    EXPECT_EQ(drawn.back().DrawMode, 2);
  });
  AtStep(120, [&] {
    places.push_back(page.Image1(5).Left);
    EXPECT_EQ(drawn.back().DrawMode, 2);
    page.Continuar.UserClick();
    EXPECT_FALSE(page.Continuar.Visible || page.Continuar.Enabled);
    EXPECT_TRUE(page.Parar.Visible);
  });
  page.Seguinte.UserClick();
  EXPECT_EQ(places[0], places[1]);
  EXPECT_EQ(host.Steps, 301 + 20);
  EXPECT_EQ(host.WaitedMilliseconds, 301 * 5);
}

TEST_F(LessonTest, TakesTheWaitOfEachStepFromTheSlider) {
  GoTo(6);
  AtStep(100, [&] { page.HScroll1.UserScroll(10); });
  AtStep(200, [&] { page.HScroll1.UserScroll(0); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 301);
  EXPECT_EQ(host.WaitedMilliseconds, 100 * 5 + 100 * 10);
}

TEST_F(LessonTest, ShowsALaterPageOnceMoreAfterTheMotionItWasCalledInto) {
  GoTo(22);
  AtStep(10, [&] {
    page.Seguinte.UserClick();
    EXPECT_EQ(Texts(), "24");
    EXPECT_EQ(page.Picture1.DrawMode, 2);  // as the motion has it
  });
  AtStep(11, [&] { EXPECT_EQ(drawn.back().DrawMode, 2); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 8002);
  EXPECT_EQ(Drawn(Kind::Clear).size(), 2U);
  EXPECT_EQ(page.Label3.Caption(), "24");
  EXPECT_EQ(EnabledButtons(), Still);
}

TEST_F(LessonTest, GoesOnWithAMotionOverAnEarlierPage) {
  GoTo(22);
  AtStep(10, [&] { page.Anterior.UserClick(); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 8002);
  EXPECT_EQ(Drawn(Kind::Clear).size(), 1U);
  EXPECT_EQ(Texts(), "22");
  EXPECT_EQ(EnabledButtons(), Still);
  const auto last = Drawn(Kind::Line).back();
  EXPECT_EQ(last.Pen, forms::Red);
  EXPECT_EQ(last.DrawMode, 13);
}

TEST_F(LessonTest, LetsAMotionInAMotionMoveItsGround) {
  GoTo(22);
  AtStep(10, [&] {
    page.Seguinte.UserClick();
    page.Seguinte.UserClick();
    EXPECT_EQ(host.Steps, 10 + 8002);
    EXPECT_EQ(drawn.back().Y1, -2);
  });
  AtStep(10 + 8002 + 1, [&] { EXPECT_EQ(drawn.back().Y1, -2); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 3 * 8002);  // the later page once more
  EXPECT_EQ(Texts(), "25");
}

TEST_F(LessonTest, EndsWhatIsUnderWayWhenThePageIsLeft) {
  struct Exit {
    forms::Menu Form9::*Item;
    std::string LastCall;
  };
  for (const auto& [item, lastCall] :
       {Exit{&Form9::FecharPágina, "Unloaded Form9"}, {&Form9::Clinorama, "Shown Form12"}}) {
    for (const bool paused : {false, true}) {
      auto& lesson = forms::The<Form9>();
      lesson.Show();
      for (int i = 1; i < 7; ++i) {
        lesson.Seguinte.UserClick();
      }
      host.Steps = 0;
      if (paused) {
        host.AtStep(40, [&lesson] { lesson.Parar.UserClick(); });
      }
      host.AtStep(50, [&lesson, leave = item] { (lesson.*leave).UserClick(); });
      lesson.Seguinte.UserClick();
      EXPECT_EQ(host.Steps, 50);
      EXPECT_EQ(host.PageCalls.back(), lastCall);
      EXPECT_EQ(forms::The<Form9>().Label3.Caption(), "0");
    }
  }
}

TEST_F(LessonTest, EndsTheProgramFromAPauseInsideAMotion) {
  GoTo(6);
  AtStep(40, [&] { page.Parar.UserClick(); });
  AtStep(50, [&] { page.AbandonarPrograma.UserClick(); });
  EXPECT_THROW(page.Seguinte.UserClick(), ProgramEnded);
}

}  // namespace
}  // namespace clinorama::tests
