#include <gtest/gtest.h>

#include <map>
#include <tuple>
#include <utility>

#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

// One side of a point, with the controls of the page that belong to it.
struct Side {
  int Direction;
  forms::OptionButton& Option;
  forms::Label& Value;
};

class LateralDerivative : public WorkPageTest {
 protected:
  // Plots the function, writes the abscissa and clicks the option; gives the value.
  std::string Derive(const Side& side, const std::string& function, const std::string& abscissa) {
    Plot(function);
    onKept.clear();
    host.MessageBoxes.clear();
    page.Abcissa.UserType(abscissa);
    side.Option.UserClick();
    EXPECT_TRUE(host.MessageBoxes.empty());
    return side.Value.Caption;
  }

  const Side left{-1, page.DerivadaEsquerda, page.Label2};
  const Side right{1, page.DerivadaDireita, page.Label3};
};

TEST_F(LateralDerivative, IsRefusedInThisOrder) {
  const MessageBox noFunction{"Não existe função.", 0, "Clinorama"};
  const MessageBox outsideDomain = Limits("Esse ponto não pertence ao domínio da função.");
  using Case = std::tuple<const Side&, std::string, std::string, MessageBox>;
  const Case cases[] = {
      {left, "", "", noFunction},
      {right, "", "", noFunction},
      {left, "  ", "", noFunction},
      {right, "  ", "", NotPlotted},
      {left, "1/x", "", NotPlotted},
      {left, "1/x", "", Limits("Tem de indicar a abcissa do ponto.")},
      {left, "1/x", "0", outsideDomain},
      {right, "sqr(x)", "-1", outsideDomain},
      // On one side of these points the values exceed 1000.
      {left, "1/x", "0.0010005", outsideDomain},
      {right, "1/x", "-0.0010005", outsideDomain},
      {left, "sqr(x)", "0", Limits("Esta função não tem derivada à esquerda desse ponto.")},
      {right, "sqr(-x)", "0", Limits("Esta função não tem derivada à direita desse ponto.")},
      // The code of the row before stays where the function has no guarded operation.
      {left, "x+1", "1", outsideDomain}};
  for (const auto& [side, function, abscissa, box] : cases) {
    SCOPED_TRACE(testing::Message() << function << " at " << abscissa);
    page.Função1.UserType(function);
    page.Abcissa.UserType(abscissa);
    if (box != noFunction && box != NotPlotted) {
      page.DesenharGráfico.UserClick();
    }
    page.Picture1.AutoRedraw = true;
    host.MessageBoxes.clear();
    side.Option.UserClick();
    side.Option.UserClick();  // no click while it is marked
    EXPECT_EQ(host.MessageBoxes, MessageBoxes(abscissa.empty() ? 2 : 1, box));
    const std::string mark = abscissa.empty() ? "" : side.Direction < 0 ? " left" : " right";
    EXPECT_EQ(State(), (side.Direction < 0 ? "|| kept unkept" : "|| kept") + mark);
  }
}

TEST_F(LateralDerivative, EndsAtTheLastQuotient) {
  const std::string cases[][4] = {
      // function, abscissa, value at left, at right
      {"x*(1-cos(x))/2", "2", "1,62", "1,62"},  // (1 - cos 2)/2 + sin 2
      {"abs(x)", "0", "-1", "1"},
      {"x^2", "pi/2", "3,14", "3,14"},
      {"x^2", "0.9", "1,8", "1,8"},  // here the walk from the left meets the point itself
      {"sqr(abs(x))/50", "0", "-6324,56", "6324,56"},  // at a distance of 1e-11
      {"x^2", "2+", "0", "0"},                         // what cannot be read counts as 0
      {"10^(100*x)", "0", "230,26", "230,26"},         // overflows on its way from the right
      // A divisor up to 1e-6 leaves the numerator. At the left neighbour the divisor is 0.
      {"0.0001/(x+0.000001)", "0", "0", "+ ¥"},
      {"10000.004*x", "0", "10000", "+ ¥"},  // the left one is compared when rounded
      {"100000*x", "0", "+ ¥", "+ ¥"},
      {"1/x", "0.001005", "- ¥", "- ¥"}};  // the values beside it do not exceed 1000
  for (const auto& [function, abscissa, atLeft, atRight] : cases) {
    EXPECT_EQ(Derive(left, function, abscissa), atLeft) << function;
    EXPECT_EQ(left.Value.Font().Name == "Symbol", atLeft.ends_with("¥"));
    EXPECT_EQ(Derive(right, function, abscissa), atRight) << function;
    EXPECT_EQ(right.Value.Font().Name == "Symbol", atRight.ends_with("¥"));
  }
  EXPECT_EQ(left.Value.SpokenName(), "Valor da derivada à esquerda: - ∞");
  EXPECT_EQ(Derive(right, "x/2", "1"), "0,5");
  EXPECT_EQ(right.Value.Font().Name, "Symbol") << "the font stays";
}

TEST_F(LateralDerivative, BringsTheKeptSurfaceBackWhereAnExpressionIsBad) {
  Plot("2+");
  page.MousePointer = forms::MousePointer::Hourglass;
  page.Picture1.DrawMode = forms::InvertPixel;
  right.Option.UserClick();
  EXPECT_EQ(State(), "|0| kept fixed");
  EXPECT_EQ(onKept.front().DrawMode, forms::CopyPen);
}

TEST_F(LateralDerivative, WalksTowardsThePointWithTheCommandsLocked) {
  for (const Side& side : {right, left}) {
    const bool kept = side.Direction > 0;
    const std::size_t steps = kept ? 301 : 300;
    host.AtStep(host.Steps + 101, [&] {
      EXPECT_EQ(State(),
                (kept ? "|6| kept" : "2|4| kept unkept") + (" inverting fixed moving" + Locked));
      EXPECT_TRUE(Marks(page.Image1(0), 2, 4));
      EXPECT_TRUE(Marks(page.Image1(1), kept ? 4 : 0, kept ? 16 : 0));
      page.HScroll1.UserScroll(10);
    });
    host.AtStep(host.Steps + 103, [&] { page.HScroll1.UserScroll(5); });
    host.WaitedMilliseconds = 0;
    EXPECT_EQ(Derive(side, "x^2", "2"), "4");
    EXPECT_EQ(State(), kept ? "|4| kept fixed" : "4|4| kept unkept fixed");
    EXPECT_EQ(host.WaitedMilliseconds, 5 * (steps + 2));

    // Two guides, then each semi-secant twice, then the red segment.
    ASSERT_EQ(onKept.size(), 2 * steps + 3);
    const auto expectLine = [&](std::size_t i, forms::DrawingOperation line) {
      line.Kept = kept;
      EXPECT_EQ(Told(onKept[i]), Told(line)) << "drawing " << i;
    };
    expectLine(0, {Kind::Line, 2, 0, 2, 4, {}, forms::CopyPen, forms::Dotted});
    expectLine(1, {Kind::Line, 2, 4, 0, 4, {}, forms::CopyPen, forms::Dotted});
    for (std::size_t i = 2; i < 2 * steps + 2; i += 2) {
      const auto [x, y] = std::pair(onKept[i].X2, onKept[i].Y2);
      EXPECT_NEAR(std::hypot(x - 2, y - 4), 10, 1e-9);
      expectLine(i, {Kind::Line, 2, 4, x, y, {}, forms::NotMergePen});
      expectLine(i + 1, {Kind::Line, 2, 4, x, y, {}, forms::InvertPixel});
    }
    const forms::DrawingOperation& last = onKept.back();
    expectLine(2 * steps + 2, {Kind::Line, 2, 4, last.X2, last.Y2, forms::Red});
    EXPECT_NEAR(last.X2, 2 + side.Direction * 10 / std::sqrt(17), 1e-3);
  }
}

TEST_F(WorkPageTest, ShowsAndTakesAwayATangentInEachPassWhateverFails) {
  page.Calcular.UserClick();
  EXPECT_EQ(host.MessageBoxes, MessageBoxes{NotPlotted});
  constexpr std::size_t Passes = 24001;
  const std::pair<const char*, std::map<double, std::string>> slopesOf[] = {
      {"abs(x)+3", {{-0.001, "-1"}, {0, "0"}, {0.001, "1"}}},
      // Outside its domain all values are 1000. At 2 only the neighbour on the right is inside.
      {"sqr(x-2)", {{-12, "0"}, {1.999, "0"}, {2, "-1"}, {3, "0,5"}}},
      {"2+", {{-12, "0"}, {12, "0"}}},
      // Squares, coordinates and at last the values themselves go beyond their ranges.
      {"10^(100*x)", {{-1, "0"}, {0, "230,259"}}},
      {"x^2/3", {{-12, "-8"}, {-1.5, "-1"}, {1.234, "0,823"}, {12, "8"}}}};
  page.HScroll1.UserScroll(1);
  std::vector<std::string> shown;
  host.EachStep = [&] { shown.push_back(page.Label6.Caption); };
  host.AtStep(12001, [&] {
    EXPECT_EQ(State(), "||0 kept unkept inverting moving" + Locked);
    EXPECT_TRUE(Marks(page.Image1(1), 0, 3));
  });
  for (const auto& [function, slopes] : slopesOf) {
    SCOPED_TRACE(function);
    Plot(function);
    onKept.clear();
    host.MessageBoxes.clear();
    host.WaitedMilliseconds = host.Steps = 0;
    shown.clear();
    page.Calcular.UserClick();
    EXPECT_EQ(host.WaitedMilliseconds, Passes);
    EXPECT_TRUE(host.MessageBoxes.empty());
    for (const auto& [x, slope] : slopes) {
      EXPECT_EQ(shown.at(static_cast<std::size_t>(std::lround((x + 12) * 1000))), slope) << x;
    }
  }
  EXPECT_EQ(State(), "|| kept unkept");
  ASSERT_EQ(onKept.size(), 2 * Passes);
  for (std::size_t pass = 0; pass < Passes; pass += 500) {
    const forms::DrawingOperation& line = onKept[2 * pass];
    EXPECT_NEAR(std::hypot(line.X2 - line.X1, line.Y2 - line.Y1), 10, 1e-4);
    EXPECT_NEAR((line.X1 + line.X2) / 2, -12 + 0.001 * static_cast<double>(pass), 1e-4);
    for (const int mode : {forms::NotMergePen, forms::InvertPixel}) {
      EXPECT_EQ(Told(onKept[2 * pass + (mode == forms::InvertPixel)]),
                Told({Kind::Line, line.X1, line.Y1, line.X2, line.Y2, forms::Black, mode}));
    }
  }
}

TEST_F(WorkPageTest, EmptiesValuesThatAreClickedOrBelongToAnotherText) {
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

TEST_F(WorkPageTest, PausesAMotionAndGoesOnFromTheSameStep) {
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

TEST_F(WorkPageTest, EndsItsMotionAndPausesWhenClosed) {
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

TEST_F(WorkPageTest, HandsItsFunctionToTheRelationsPage) {
  page.Função1.UserType("x^2");
  Disturb();
  page.Relacionar.UserClick();
  EXPECT_TRUE(The<Form13>().Visible && !page.Visible);
  EXPECT_EQ(The<Form13>().Função1.Text, "x^2");
  EXPECT_EQ(State(), "||3 kept");
}

}  // namespace
}  // namespace clinorama::tests
