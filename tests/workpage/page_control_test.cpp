#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form5.h"
#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

using Action = std::function<void()>;

// The motions of these tests walk from the left towards 2, in 300 steps of 5 milliseconds.
class WorkPage : public WorkPageTest {
 protected:
  static constexpr int Steps = 300;

  // Clicks the left option, for a function that has been plotted.
  void Move() {
    Plot("x^2");
    page.DerivadaEsquerda.UserClick();
  }

  void ExpectMotionEnded() {
    EXPECT_EQ(page.Label2.Caption, "4");
    EXPECT_EQ(LockedCommands(), 0);
    EXPECT_FALSE(page.Image1(1).Visible);
  }

  struct PauseButtons {
    forms::CommandButton& Stop;
    forms::CommandButton& Resume;
    bool MayStop() const { return Stop.Reachable() && !Resume.Reachable(); }
    bool MayResume() const { return Resume.Reachable() && !Stop.Reachable(); }
  };
  const PauseButtons first{page.Parar, page.Continuar};
  const PauseButtons second{page.Parar1, page.Continuar1};
};

TEST_F(WorkPage, ForgetsValuesWhenATextChanges) {
  Plot("x");
  const Raster graph = page.Picture1.Screen();
  for (forms::TextBox* box : {&page.Função1, &page.Abcissa}) {
    page.Label2.Caption = "1";
    page.Label3.Caption = "2";
    page.Label6.Caption = "3";
    page.DerivadaDireita.Value = true;
    box->UserType(box->Text() + "+1");
    EXPECT_EQ(page.Label2.Caption() + page.Label3.Caption() + page.Label6.Caption(), "3");
    EXPECT_FALSE(page.DerivadaDireita.Value) << box->Name();
  }
  EXPECT_EQ(Differences(page.Picture1.Screen(), graph), 0);
}

TEST_F(WorkPage, EmptiesAValueThatIsClicked) {
  for (forms::Label* value : {&page.Label2, &page.Label3, &page.Label6}) {
    for (void (forms::Label::*click)() :
         {&forms::Label::UserClick, &forms::Label::UserDoubleClick}) {
      value->Caption = "1";
      (value->*click)();
      EXPECT_EQ(value->Caption, "") << value->Name();
    }
  }
}

TEST_F(WorkPage, PausesAMotionAndGoesOnFromTheSameStep) {
  for (const PauseButtons& pair : {first, second}) {
    const int before = host.Steps;
    host.WaitedMilliseconds = 0;
    EXPECT_TRUE(pair.MayStop());
    std::string slope;
    host.AtStep(before + 10, [&] {
      slope = page.Label2.Caption;
      pair.Stop.UserClick();
    });
    host.AtStep(before + 20, [&] {
      EXPECT_TRUE(pair.MayResume());
      EXPECT_EQ(page.Label2.Caption, slope);
      EXPECT_EQ(LockedCommands(), 12);
      pair.Resume.UserClick();
      EXPECT_TRUE(pair.MayStop());
    });
    Move();
    EXPECT_EQ(host.Steps - before, Steps + 10);
    EXPECT_EQ(host.WaitedMilliseconds, 5 * Steps);
    ExpectMotionEnded();
  }
}

TEST_F(WorkPage, EndsAllPausesWithOneContinuation) {
  host.AtStep(10, [&] { page.Parar.UserClick(); });
  host.AtStep(12, [&] { page.Parar1.UserClick(); });
  host.AtStep(15, [&] { page.Continuar.UserClick(); });
  Move();
  EXPECT_EQ(host.Steps, Steps + 5);
  EXPECT_TRUE(first.MayStop());
  EXPECT_TRUE(second.MayResume()) << "each click sets its own pair only";
  ExpectMotionEnded();
}

TEST_F(WorkPage, PausesWithoutAMotionUntilContinued) {
  host.AtStep(4, [&] { page.Continuar1.UserClick(); });
  page.Parar1.UserClick();
  EXPECT_EQ(host.Steps, 4);
  EXPECT_TRUE(second.MayStop());
  Move();
  ExpectMotionEnded();
}

TEST_F(WorkPage, EndsItsMotionAndPausesWhenClosed) {
  const Action waysOut[] = {[] { The<Form12>().UserClose(); },
                            [] { The<Form12>().FecharPágina.UserClick(); },
                            [] { The<Form12>().ConceitoDerivada.UserClick(); }};
  // Step 5 is in the motion alone, 15 in a pause of it and 25 in a pause within that pause.
  for (const Action& leave : waysOut) {
    for (const int step : {5, 15, 25}) {
      const int before = host.Steps;
      Form12& closed = The<Form12>();
      closed.Show();
      closed.DesenharGráfico.UserClick();
      if (step > 10) {
        host.AtStep(before + 10, [&] { closed.Parar.UserClick(); });
      }
      if (step > 20) {
        host.AtStep(before + 20, [&] { closed.Parar1.UserClick(); });
      }
      host.AtStep(before + step, leave);
      closed.DerivadaEsquerda.UserClick();
      EXPECT_EQ(host.Steps, before + step);
      for (const char* call : {"Hidden Form12", "Unloaded Form12"}) {
        EXPECT_EQ(std::count(host.PageCalls.begin(), host.PageCalls.end(), call), 1) << call;
      }
      host.PageCalls.clear();
      EXPECT_TRUE(The<Form12>().Calcular.Enabled) << "the page made anew";
      EXPECT_TRUE(The<Form12>().Parar.Visible);
    }
  }
  EXPECT_TRUE(The<Form9>().Visible);
  The<Form12>().Show();
  The<Form12>().Calcular.UserClick();
  EXPECT_EQ(host.MessageBoxes.size(), 1u) << "nothing is plotted on the page made anew";
}

TEST_F(WorkPage, EndsTheProgramFromAPause) {
  host.AtStep(3, [&] { page.Parar.UserClick(); });
  host.AtStep(5, [&] { page.AbandonarPrograma.UserClick(); });
  EXPECT_THROW(Move(), ProgramEnded);
  EXPECT_EQ(host.Steps, 5);
}

TEST_F(WorkPage, GoesOnMovingUnderOtherPagesAndOnWipedAxes) {
  host.AtStep(40, [&] { page.Instruções.UserClick(); });
  host.AtStep(50, [&] { The<Form2>().Show(); });
  host.AtStep(60, [&] {
    EXPECT_GT(PixelsOf(page.Picture1.Screen(), forms::Blue), 0);
    The<Form2>().Clinorama.UserClick();
    EXPECT_EQ(PixelsOf(page.Picture1.Screen(), forms::Blue), 0);
    EXPECT_EQ(page.Label2.Caption, "");
    EXPECT_TRUE(page.Picture1.AutoRedraw);
  });
  Move();
  EXPECT_EQ(host.Steps, Steps);
  ExpectMotionEnded();
}

TEST_F(WorkPage, OpensTheExamplesWindowInItsName) {
  page.Exemplos.UserClick();
  EXPECT_EQ(Module1::OrigemExemplos, 3);
  EXPECT_TRUE(The<Form5>().Visible);
  EXPECT_TRUE(page.Visible);
}

TEST_F(WorkPage, HandsItsFunctionToTheRelationsPage) {
  page.EixosRad.UserClick();
  Move();
  page.DerivadaDireita.Value = true;
  page.Relacionar.UserClick();
  EXPECT_TRUE(The<Form13>().Visible);
  EXPECT_EQ(The<Form13>().Função1.Text, "x^2");
  EXPECT_FALSE(page.Visible);
  EXPECT_FALSE(page.Image1(0).Visible);
  EXPECT_EQ(page.Label2.Caption() + page.Label3.Caption(), "");
  EXPECT_FALSE(page.DerivadaDireita.Value);

  The<Form13>().Visible = false;
  The<Form2>().Show();
  The<Form2>().Clinorama.UserClick();
  EXPECT_TRUE(page.Visible);
  EXPECT_EQ(page.Função1.Text, "x^2");
  EXPECT_EQ(page.EixosRad.Caption, "Unidades");
  EXPECT_EQ(PixelsOf(page.Picture1.Screen(), forms::Blue), 0);
  EXPECT_TRUE(PlottedOnce());
}

}  // namespace
}  // namespace clinorama::tests
