#include "forms/controls.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/forms/sample_page.h"
#include "tests/support/failure_of.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {
namespace {

class Controls : public ApplicationTest {
 protected:
  Controls() { page.Show(); }

  SamplePage& page = forms::The<SamplePage>();
};

TEST_F(Controls, TellTheHostOnlyOfNewValues) {
  host.Changes.clear();
  page.Label1.Caption = "Legenda";
  page.Label1.Left = 0;
  page.Label1.Caption = "Outra";
  page.Label1.Font = forms::Font{.Bold = true};
  std::string texts;
  page.Text1.Change = [&] { texts += page.Text1.Text(); };
  page.Text1.Text = "2";
  page.Text1.UserType("2"), page.Text1.UserType("3");
  EXPECT_EQ(texts, "23");
  page.OptionA.Value = true;
  page.Picture1.Enabled = false;
  page.MousePointer = forms::MousePointer::Hourglass;
  EXPECT_EQ(host.Changes, (std::vector<const forms::Control*>{
                              &page.Label1, &page.Label1, &page.Text1, &page.Text1, &page.OptionA,
                              &page.Picture1, &page}));
  page.Picture1.TakeDirty();
  host.DrawnCalls = 0;
  page.Picture1.PSet(0, 0), page.Picture1.PSet(9000, 9000);
  EXPECT_EQ(host.DrawnCalls, 1) << "until the changed pixels are taken";
}

TEST_F(Controls, MarkOneOptionOfAContainer) {
  int clicks = 0;
  page.OptionA.Click = [&] { ++clicks; };
  page.OptionB.Click = [&] { EXPECT_FALSE(page.OptionA.Value) << "unmarked before the handler"; };
  page.OptionC.UserClick();
  page.OptionA.UserClick(), page.OptionA.UserClick();
  EXPECT_EQ(clicks, 1) << "a click on a marked option is none";
  page.OptionB.UserClick();
  EXPECT_TRUE(page.OptionB.Value);
  EXPECT_TRUE(page.OptionC.Value) << "it stands in a container of its own";
  for (const bool marked : {true, false}) {
    page.OptionA.Value = marked;
    EXPECT_FALSE(page.OptionB.Value);
  }
  page.OptionA.UserClick();
  EXPECT_EQ(clicks, 2) << "an option that the page unmarked can be clicked again";
}

TEST_F(Controls, AreOutOfReachWhenTheyOrAContainerAreLockedOrHidden) {
  int acts = 0;
  for (auto* event : {&page.Command1.Click, &page.OptionA.Click, &page.Text1.Change,
                      &page.Label1.Click, &page.Label1.DblClick, &page.Sair.Click}) {
    *event = [&acts] { ++acts; };
  }
  const std::pair<forms::Property<bool>*, int> locks[] = {
      {&page.Frame1.Enabled, 1},  // the menu belongs to the page alone
      {&page.Frame1.Visible, 1},   {&page.Enabled, 0},        {&page.Visible, 0},
      {&page.Command1.Enabled, 5}, {&page.Label1.Visible, 4},
  };
  for (const auto& [property, left] : locks) {
    acts = 0;
    page.OptionA.Value = false;
    page.HScroll1.Value = 5;
    *property = false;
    page.Command1.UserClick(), page.OptionA.UserClick();
    page.Text1.UserType(page.Text1.Text() + "1");
    page.Label1.UserClick(), page.Label1.UserDoubleClick();
    page.Sair.UserClick();
    page.HScroll1.UserScroll(99);
    EXPECT_EQ(acts, left);
    EXPECT_EQ(page.HScroll1.Value, left < 2 ? 5 : 10) << "held within its bounds";
    *property = true;
  }
}

TEST_F(Controls, FormTreesOfMenusAndControls) {
  EXPECT_EQ(page.MenuBar(), (std::vector<forms::Menu*>{&page.Ficheiro, &page.Ajuda}));
  EXPECT_EQ(page.Ficheiro.Items(), std::vector<forms::Menu*>{&page.Sair});
  EXPECT_EQ(forms::FindControl(page, "Image1(4)"), &page.Image1(4));
  EXPECT_EQ(forms::FindControl(page.Frame2, "OptionA"), nullptr);
  EXPECT_EQ(page.Image1(3).Parent(), &page.Picture1);
  std::string spoken;
  for (const auto* control : std::initializer_list<const forms::Control*>{
           &page.Command1, &page.Text1, &page.HScroll1, &page.Picture1, &page.Command2}) {
    spoken += control->SpokenName() + "; ";
  }
  EXPECT_EQ(spoken, "Começar; Um número.; Rapidez; Gráfico; Command2; ");
  EXPECT_THROW(page.Image1(1), std::out_of_range);
  EXPECT_THROW(page.Image1(5), std::out_of_range);
}

TEST_F(Controls, MoveImagesInTheCoordinatesOfTheirSurface) {
  host.DeviceDensity = 1.5;
  auto& fine = forms::The<OtherPage>();
  EXPECT_EQ(fine.Picture1.Screen().Width(), 300);
  fine.Picture1.Scale(-10, 10, 10, -10);
  forms::Image& image = fine.Image1(2);
  image.Move(-5, 2.5);
  EXPECT_EQ(FailureOf([&] { image.Move(0, 1e39); }), 6) << "a move that fails moves nothing";
  EXPECT_DOUBLE_EQ(image.Left, 750);
  EXPECT_DOUBLE_EQ(image.Top, 1120) << "in pixels of the screen";
}

TEST_F(Controls, LoseWhatASurfaceDidNotKeepWhenItIsShownAgain) {
  forms::PictureBox& picture = page.Picture1;
  picture.Height = 1500;
  picture.ScaleInPixels();
  picture.PSet(20, 20);
  picture.Visible = false;
  picture.PSet(30, 30);
  picture.Visible = true;
  EXPECT_EQ(picture.Screen().At(20, 20), forms::White);
  EXPECT_EQ(picture.Screen().At(30, 30), forms::White);
  EXPECT_EQ(picture.Screen().Width(), 2 * picture.Screen().Height());
}

TEST(SymbolFont, ShowsItsSignsForTheLettersWritten) {
  const char* const cases[][3] = {{"symbol", "-3p/2", "-3π/2"}, {"SYMBOL", "pp", "ππ"},
                                  {"Symbol", "-¥", "-∞"},       {"Symbol", "0,5", "0,5"},
                                  {"Symbo", "p", "p"},          {"MS Serif", "p¥", "p¥"}};
  for (const auto& [font, text, shown] : cases) {
    EXPECT_EQ(forms::VisibleText({.Name = font}, text), shown) << font;
  }
}

}  // namespace
}  // namespace clinorama::tests
