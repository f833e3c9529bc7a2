#include <gtest/gtest.h>

#include <utility>

#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

using WorkPage = WorkPageTest;

TEST_F(WorkPage, EmptiesValuesThatAreClickedOrBelongToAnotherText) {
  for (forms::Label* value : {&page.Label2, &page.Label3, &page.Label6}) {
    for (const auto click : {&forms::Label::UserClick, &forms::Label::UserDoubleClick}) {
      value->Caption = "3";
      (value->*click)();
      EXPECT_EQ(State(), "|| kept") << value->Name();
    }
  }
  for (forms::TextBox* box : {&page.Função1, &page.Abcissa}) {
    Disturb();
    box->UserType("1");
    EXPECT_EQ(State(), "||3 kept fixed moving") << box->Name();
  }
}

TEST_F(WorkPage, PausesAMotionAndGoesOnFromTheSameStep) {
  std::string before;
  host.AtStep(10, [&] { before = State(); });
  host.AtStep(14, [&] {
    EXPECT_TRUE(page.Continuar.Reachable() && page.Continuar1.Reachable());
    EXPECT_FALSE(page.Parar.Reachable() || page.Parar1.Reachable());
    EXPECT_EQ(State(), before);
  });
  // The second pause runs within the first one, and one click ends both.
  for (const auto& [step, button] :
       {std::pair(10, &page.Parar), std::pair(12, &page.Parar1), std::pair(15, &page.Continuar),
        std::pair(308, &page.Continuar1)}) {
    host.AtStep(step, [clicked = button] { clicked->UserClick(); });
  }
  Plot("x^2");
  page.DerivadaEsquerda.UserClick();
  EXPECT_EQ(host.Steps, 305);
  EXPECT_TRUE(page.Parar.Reachable() && page.Continuar1.Reachable());
  page.Parar.UserClick();  // without a motion
  EXPECT_EQ(host.Steps, 308);
  host.Depth = 1;
  page.Parar1.UserClick();  // a pause that nothing could end is none
  EXPECT_EQ(host.Steps, 308);
}

TEST_F(WorkPage, EndsItsMotionAndPausesWhenClosed) {
  for (const bool toLesson : {false, true}) {
    Form12& closed = The<Form12>();
    const int before = host.Steps;
    closed.Show();
    closed.DesenharGráfico.UserClick();
    host.AtStep(before + 10, [&] { closed.Parar.UserClick(); });
    host.AtStep(before + 20, [&] {
      (toLesson ? closed.ConceitoDerivada : closed.FecharPágina).UserClick();
      EXPECT_EQ(The<Form9>().Visible, toLesson);
    });
    closed.DerivadaEsquerda.UserClick();
    EXPECT_EQ(host.Steps, before + 20);
  }
}

TEST_F(WorkPage, HandsItsFunctionToTheRelationsPage) {
  page.Função1.UserType("x^2");
  Disturb();
  page.Relacionar.UserClick();
  EXPECT_TRUE(The<Form13>().Visible && !page.Visible);
  EXPECT_EQ(The<Form13>().Função1.Text, "x^2");
  EXPECT_EQ(State(), "||3 kept");
}

}  // namespace
}  // namespace clinorama::tests
