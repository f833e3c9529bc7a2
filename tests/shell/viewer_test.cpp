#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "shell/viewers.h"
#include "shell/window_frame.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {

using forms::The;

// What the table of the viewers has to say, and how to reach each of them.
struct Viewer {
  std::string Name;
  std::string Caption;
  std::string Total;
  int Pages;
  double WindowWidth;
  double WindowHeight;
  std::string LastPicture;
  bool RenewedOnClosing;  // made anew at once, and not only when it is shown again
  std::function<PageViewer&()> Page;
};

const std::vector<Viewer> Viewers = {
    {"Form3", "SINTAXE", "de  4", 4, 7260, 11310, "manual/sintaxe_04", true,
     []() -> PageViewer& { return The<Form3>(); }},
    {"Form4", "FUNÇÕES DEFINIDAS", "de  23", 23, 7245, 10965, "manual/funcoes_23", true,
     []() -> PageViewer& { return The<Form4>(); }},
    {"Form6", "INSTRUÇÕES", "de  22", 22, 9200, 11115, "manual/instrucoes_22", false,
     []() -> PageViewer& { return The<Form6>(); }},
    {"Form11", "COMENTÁRIOS", "de  11", 11, 9200, 11115, "manual/comentarios_11", true,
     []() -> PageViewer& { return The<Form11>(); }},
};

void PrintTo(const Viewer& viewer, std::ostream* out) { *out << viewer.Name; }

// What the user sees of a viewer: the visible pages, the number, and which arrows can be pressed.
struct Sight {
  std::vector<int> Pages;
  std::string Number;
  bool Back;
  bool Forward;
  friend bool operator==(const Sight&, const Sight&) = default;
};

void PrintTo(const Sight& sight, std::ostream* out) {
  *out << testing::PrintToString(sight.Pages) << " \"" << sight.Number << "\""
       << (sight.Back ? " back" : "") << (sight.Forward ? " forward" : "");
}

Sight SightOf(const PageViewer& viewer) {
  std::vector<int> pages;
  for (int page = viewer.Image1.First(); page <= viewer.Image1.Last(); ++page) {
    if (viewer.Image1(page).Visible) {
      pages.push_back(page);
    }
  }
  return {pages, viewer.Label2.Caption, viewer.SetaE.Enabled, viewer.SetaD.Enabled};
}

// As it should look at a page that was reached by leafing through.
Sight At(int page, int pages) { return {{page}, std::to_string(page), page != 1, page != pages}; }

class ViewerTest : public ApplicationTest, public testing::WithParamInterface<Viewer> {
 protected:
  ViewerTest() {
    Module1::PaginaInstrucoes = 0;
    Module1::PaginaComentarios = 7;  // which no viewer reads
  }
};

TEST_P(ViewerTest, ShowsItsNamesAndItsFirstPage) {
  const Viewer& expected = GetParam();
  PageViewer& viewer = expected.Page();
  EXPECT_EQ(viewer.Name(), expected.Name);
  EXPECT_EQ(viewer.Caption, expected.Caption);
  EXPECT_EQ(viewer.Label3.Caption, expected.Total);
  EXPECT_EQ(viewer.Width + WindowFrameWidth, expected.WindowWidth);
  EXPECT_EQ(viewer.Height + WindowFrameHeight, expected.WindowHeight);
  EXPECT_EQ(viewer.Image1.First(), 1);
  EXPECT_EQ(viewer.Image1.Last(), expected.Pages);
  EXPECT_EQ(viewer.Image1(expected.Pages).Picture, expected.LastPicture);
  EXPECT_EQ(SightOf(viewer), At(1, expected.Pages));
}

// All of it lies in the window, nothing upon anything else, and the window on the screen.
TEST_P(ViewerTest, HasRoomForThePageAndTheRowBelowIt) {
  constexpr double ScreenHeight = 768 * 15;
  const PageViewer& viewer = GetParam().Page();
  EXPECT_GE(viewer.Top, WindowFrameHeight);
  EXPECT_LT(viewer.Top + viewer.Height, ScreenHeight);
  double right = 0;
  for (const forms::Control* control : std::vector<const forms::Control*>{
           &viewer.SetaE, &viewer.SetaD, &viewer.Label1, &viewer.Label2, &viewer.Label3,
           &viewer.Label4, &viewer.Command1}) {
    EXPECT_GE(control->Left, right) << control->Name();
    EXPECT_GE(control->Top, viewer.Image1(1).Top + viewer.Image1(1).Height) << control->Name();
    EXPECT_LE(control->Top + control->Height, viewer.Height) << control->Name();
    right = control->Left + control->Width;
  }
  EXPECT_LE(right, viewer.Width);
}

TEST_P(ViewerTest, LeafsToTheLastPageAndBack) {
  const int pages = GetParam().Pages;
  PageViewer& viewer = GetParam().Page();
  viewer.Show();
  for (int page = 2; page <= pages; ++page) {
    viewer.SetaD.UserClick();
    EXPECT_EQ(SightOf(viewer), At(page, pages));
  }
  viewer.SetaD.Click();  // as an event that was on its way when the arrow was disabled
  EXPECT_EQ(SightOf(viewer), At(pages, pages));
  for (int page = pages - 1; page >= 1; --page) {
    viewer.SetaE.UserClick();
    EXPECT_EQ(SightOf(viewer), At(page, pages));
  }
  viewer.SetaE.Click();
  EXPECT_EQ(SightOf(viewer), At(1, pages));
}

TEST_P(ViewerTest, DoesNotLeafWhileThePageIsHidden) {
  PageViewer& viewer = GetParam().Page();
  viewer.Show();
  viewer.Image1(1).Visible = false;
  viewer.SetaD.UserClick();
  EXPECT_EQ(SightOf(viewer), (Sight{{}, "1", false, true}));
}

TEST_P(ViewerTest, KeepsItsPageWhenItIsShownAgain) {
  GetParam().Page().Show();
  GetParam().Page().SetaD.UserClick();
  GetParam().Page().Show();
  EXPECT_EQ(SightOf(GetParam().Page()), At(2, GetParam().Pages));
}

TEST_P(ViewerTest, OpensAtItsFirstPageAfterItWasClosed) {
  const auto& [name, caption, total, pages, width, height, picture, renewed, page] = GetParam();
  for (const bool byItsFrame : {false, true}) {
    page().Show();
    page().SetaD.UserClick();
    page().SetaD.UserClick();
    host.PageCalls.clear();
    if (byItsFrame) {
      page().UserClose();
    } else {
      page().Command1.UserClick();
    }
    const std::vector<std::string> renewal = {"Unloaded " + name};
    const std::vector<std::string> leaving = {"Hidden " + name, "Unloaded " + name};
    EXPECT_EQ(host.PageCalls, renewed ? renewal : leaving);
    EXPECT_FALSE(page().Visible);
    page().Show();
    EXPECT_EQ(SightOf(page()), At(1, pages));
  }
}

INSTANTIATE_TEST_SUITE_P(All, ViewerTest, testing::ValuesIn(Viewers),
                         [](const auto& parameter) { return parameter.param.Name; });

using InstructionsTest = ApplicationTest;

// Page 0 stands for a program in which nobody has said yet where the instructions are to open. They
// are gone when they are closed, so each opening reads the page anew.
TEST_F(InstructionsTest, OpenWhereTheyAreAskedTo) {
  struct Case {
    std::int16_t Asked;
    Sight Expected;
  };
  const std::vector<Case> cases = {
      {0, {{1}, "1", false, true}},   {1, {{1}, "1", false, true}},  {2, {{2}, "2", true, true}},
      {22, {{22}, "22", true, true}}, {23, {{1}, "1", false, true}}, {-1, {{1}, "1", false, true}},
  };
  for (const auto& [asked, expected] : cases) {
    Module1::PaginaInstrucoes = asked;
    The<Form6>().Show();
    EXPECT_EQ(SightOf(The<Form6>()), expected) << asked;
    The<Form6>().Command1.UserClick();
  }
  EXPECT_TRUE(host.MessageBoxes.empty());
}

// The arrow of a viewer that opens at its last page is disabled by the first attempt to pass it.
TEST_F(InstructionsTest, DisableTheArrowWhenTheLastPageIsToBePassed) {
  Module1::PaginaInstrucoes = 22;
  Form6& viewer = The<Form6>();
  viewer.Show();
  viewer.SetaD.UserClick();
  EXPECT_EQ(SightOf(viewer), At(22, 22));
}

}  // namespace clinorama::tests
