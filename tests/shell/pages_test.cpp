// All pages of the program: the ways between them, and where their controls lie. Then the windows
// beside the work page: the viewers of the manual, and the examples.

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/Module1.h"
#include "base/number_text.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form2.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
#include "tests/support/scripted_host.h"
#include "workpage/Form12.h"

namespace clinorama::tests {

using forms::The;

template <class Kind>
forms::Page& Shown() {
  The<Kind>().Show();
  return The<Kind>();
}

constexpr forms::Page& (*Pages[])() = {Shown<Form2>,  Shown<Form3>,  Shown<Form4>,
                                       Shown<Form5>,  Shown<Form6>,  Shown<Form9>,
                                       Shown<Form11>, Shown<Form12>, Shown<Form13>};

using Effect = std::vector<std::string>;  // calls of the host, and shared variables that were set

class AllPages : public ApplicationTest {
 protected:
  Effect EffectOf(const std::function<void()>& action) {
    constexpr int Unset = 9;
    Module1::PaginaInstrucoes = Module1::PaginaComentarios = Module1::OrigemExemplos = Unset;
    host.PageCalls.clear();
    try {
      action();
    } catch (const ProgramEnded&) {
      host.PageCalls.emplace_back("End");
    }
    for (const auto& [name, value] : {std::pair("PaginaInstrucoes", Module1::PaginaInstrucoes),
                                      std::pair("PaginaComentarios", Module1::PaginaComentarios),
                                      std::pair("OrigemExemplos", Module1::OrigemExemplos)}) {
      if (value != Unset) {
        host.PageCalls.push_back(name + (" = " + std::to_string(value)));
      }
    }
    return host.PageCalls;
  }
};

// The items of the menu, the buttons that lead elsewhere, and the frame of the window.
std::map<std::string, std::function<void()>> WaysFrom(forms::Page& page) {
  std::map<std::string, std::function<void()>> ways;
  ways["frame"] = [&page] { page.UserClose(); };
  for (const char* name : {"Exemplos", "Fechar", "Relacionar", "Sair"}) {
    auto* button = dynamic_cast<forms::CommandButton*>(forms::FindControl(page, name));
    if (button != nullptr && button->Reachable()) {
      ways[name] = [button] { button->UserClick(); };
    }
  }
  for (forms::Menu* menu : page.MenuBar()) {
    ways[menu->Name] = [menu] { menu->UserClick(); };
    for (forms::Menu* item : menu->Items()) {
      ways[item->Name] = [item] { item->UserClick(); };
    }
  }
  return ways;
}

TEST_F(AllPages, HaveTheseWays) {
  std::map<Effect, std::set<std::string>> ways;
  for (const auto shown : Pages) {
    for (const auto& [name, unused] : WaysFrom(shown())) {
      ways[EffectOf(WaysFrom(shown()).at(name))].insert(shown().Name() + " " + name);
    }
  }
  const std::map<Effect, std::set<std::string>> expected = {
      {{}, {"Form2 Ficheiro", "Form9 Ficheiro", "Form12 Ficheiro"}},
      {{"End"},
       {"Form2 Sair", "Form2 frame", "Form9 AbandonarPrograma", "Form12 AbandonarPrograma"}},
      {{"Hidden Form5", "Unloaded Form5", "OrigemExemplos = 0"}, {"Form5 Fechar", "Form5 frame"}},
      {{"Hidden Form6", "Unloaded Form6"}, {"Form6 frame"}},
      {{"Hidden Form9", "Unloaded Form9"}, {"Form9 FecharPágina", "Form9 frame"}},
      {{"Hidden Form9", "Unloaded Form9", "Shown Form12"}, {"Form9 Clinorama"}},
      {{"Hidden Form12", "Unloaded Form12"}, {"Form12 FecharPágina", "Form12 frame"}},
      {{"Hidden Form12", "Unloaded Form12", "Shown Form9"}, {"Form12 ConceitoDerivada"}},
      {{"Hidden Form13"}, {"Form13 Sair"}},
      {{"Hidden Form13", "Unloaded Form13"}, {"Form13 frame"}},
      {{"Shown Form3"}, {"Form2 Sintaxe", "Form9 Sintaxe", "Form12 Sintaxe"}},
      {{"Shown Form4"},
       {"Form2 FunçõesDefinidas", "Form9 FunçõesDefinidas", "Form12 FunçõesDefinidas"}},
      {{"Shown Form5", "OrigemExemplos = 3"}, {"Form12 Exemplos"}},
      {{"Shown Form6"}, {"Form9 Instruções", "Form12 Instruções"}},
      {{"Shown Form6", "PaginaInstrucoes = 1"}, {"Form2 Instruções"}},
      {{"Shown Form9"}, {"Form2 ConceitoDerivada"}},
      {{"Shown Form11"}, {"Form9 Comentários", "Form12 Comentários"}},
      {{"Shown Form11", "PaginaComentarios = 1"}, {"Form2 Comentários"}},
      {{"Shown Form12"}, {"Form2 Clinorama"}},
      {{"Shown Form13", "Hidden Form12"}, {"Form12 Relacionar"}},
      {{"Unloaded Form3"}, {"Form3 frame"}},
      {{"Unloaded Form4"}, {"Form4 frame"}},
      {{"Unloaded Form11"}, {"Form11 frame"}},
  };
  EXPECT_EQ(ways, expected);
}

// The controls that reach beyond their container, and the pairs in one container that lie neither
// apart nor in the very same place with one of them hidden. Markers on a canvas lie anywhere.
void FindMisplaced(const forms::Control& container, std::set<std::string>& found) {
  if (dynamic_cast<const forms::PictureBox*>(&container) != nullptr) {
    return;
  }
  const auto box = [](const forms::Control& of) {
    return std::array{of.Left(), of.Top(), of.Left + of.Width, of.Top + of.Height};
  };
  const std::string page = container.OwnerPage().Name() + " ";
  for (const forms::Control* control : container.Children()) {
    const auto a = box(*control);
    if (a[0] < 0 || a[1] < 0 || a[2] > container.Width || a[3] > container.Height) {
      found.insert(page + control->Name());
    }
    for (const forms::Control* other : container.Children()) {
      const auto b = box(*other);
      const bool apart = a[2] <= b[0] || a[3] <= b[1] || b[2] <= a[0] || b[3] <= a[1];
      const bool twins = a == b && !(control->Visible && other->Visible);
      if (control->Name() < other->Name() && !apart && !twins) {
        found.insert(page + control->Name() + " " + other->Name());
      }
    }
    FindMisplaced(*control, found);
  }
}

// The pages lie on a screen of 1024x768, with room for a title bar above them.
TEST_F(AllPages, HaveAPlaceForEachControl) {
  Module1::OrigemExemplos = 3;
  std::set<std::string> found;
  for (const auto shown : Pages) {
    const forms::Page& page = shown();
    EXPECT_TRUE(page.Top >= 330 && page.Top + page.Height <= 768 * 15) << page.Name();
    EXPECT_TRUE(page.Left >= 0 && page.Left + page.Width <= 1024 * 15) << page.Name();
    FindMisplaced(page, found);
  }
  EXPECT_EQ(found, (std::set<std::string>{"Form9 Continuar Parar", "Form9 Opções"}));
}

// What the user sees of a viewer: which arrows can be pressed, the visible pages, and the number.
std::string SightOf(const PageViewer& viewer) {
  std::string sight = viewer.SetaE.Enabled ? "< " : "";
  for (int page = viewer.Image1.First(); page <= viewer.Image1.Last(); ++page) {
    sight += viewer.Image1(page).Visible ? viewer.Image1(page).Picture + " " : "";
  }
  return sight + viewer.Label2.Caption() + (viewer.SetaD.Enabled ? " >" : "");
}

template <class Viewer>
void Leaf(const std::string& pictures, int pages) {
  const auto expectPage = [&](int page) {
    EXPECT_EQ(SightOf(The<Viewer>()), (page == 1 ? "" : "< ") + pictures + base::TwoDigits(page) +
                                          " " + std::to_string(page) + (page == pages ? "" : " >"));
  };
  Viewer& viewer = The<Viewer>();
  viewer.Show();
  EXPECT_EQ(viewer.Label3.Caption, "de  " + std::to_string(pages));
  for (int page = 1; page < pages; ++page) {
    expectPage(page);
    viewer.SetaD.UserClick();
  }
  viewer.SetaD.Click();  // as an event that was on its way when the arrow was disabled
  viewer.Show();
  for (int page = pages; page > 1; --page) {
    expectPage(page);
    viewer.SetaE.UserClick();
  }
  viewer.SetaE.Click();
  expectPage(1);
  viewer.SetaD.UserClick();
  viewer.Image1(2).Visible = false;
  viewer.SetaD.UserClick();
  EXPECT_EQ(SightOf(viewer), "< 2 >") << "a hidden page is not turned";
  viewer.Command1.UserClick();
  EXPECT_FALSE(The<Viewer>().Visible);
  expectPage(1);
}

TEST_F(AllPages, LeafThroughTheManual) {
  Module1::PaginaInstrucoes = 0;
  Module1::PaginaComentarios = 7;  // which no viewer reads
  Leaf<Form3>("manual/sintaxe_", 4);
  Leaf<Form4>("manual/funcoes_", 23);
  Leaf<Form6>("manual/instrucoes_", 22);
  Leaf<Form11>("manual/comentarios_", 11);
}

// The instructions are gone when they are closed, so each opening reads the page anew. A page that
// they do not have stands for the first.
TEST_F(AllPages, OpenTheInstructionsAtThePageAskedFor) {
  for (const auto& [asked, sight] :
       {std::pair(-1, "manual/instrucoes_01 1 >"), std::pair(2, "< manual/instrucoes_02 2 >"),
        std::pair(22, "< manual/instrucoes_22 22 >"), std::pair(23, "manual/instrucoes_01 1 >")}) {
    Module1::PaginaInstrucoes = static_cast<std::int16_t>(asked);
    The<Form6>().Show();
    EXPECT_EQ(SightOf(The<Form6>()), sight) << asked;
    The<Form6>().SetaD.UserClick();
    EXPECT_EQ(The<Form6>().SetaD.Enabled, asked != 22);  // the first attempt to pass disables it
    The<Form6>().Command1.UserClick();
  }
}

TEST_F(AllPages, TransferTheExamplesOfThePicturesAboveTheButtons) {
  Shown<Form12>();
  The<Form12>().Exemplos.UserClick();
  int example = 0;
  for (const auto& [name, expression] :
       {std::pair("Command19", "3sen(x)-cos(2x)"),
        std::pair("Command18", "(x+5)*(x+1)*(x-3)*(x-6)/30"),
        std::pair("Command15", "x^2/(x^2+x-12)"), std::pair("Command17", "1/cos(x)"),
        std::pair("Command16", "3sen(x)-sen(3x)"), std::pair("Command14", "5sen(x)/x")}) {
    auto& button = dynamic_cast<forms::CommandButton&>(*forms::FindControl(The<Form5>(), name));
    button.UserClick();
    EXPECT_EQ(The<Form12>().Função1.Text, expression);
    ++example;
    for (const auto& [number, suffix] : {std::pair(example, ""),
                                         {17 + 2 * example, "_primeira"},
                                         {18 + 2 * example, "_segunda"}}) {
      const auto& image = dynamic_cast<forms::Image&>(
          *forms::FindControl(The<Form5>(), "Image" + std::to_string(number)));
      EXPECT_EQ(image.Picture, "examples/exemplo_" + std::to_string(example) + suffix);
      EXPECT_EQ(image.Left, button.Left + (number == example ? 0 : 2310)) << image.Picture;
      EXPECT_LE(image.Top + image.Height, button.Top) << image.Picture;
    }
  }
}

}  // namespace clinorama::tests
