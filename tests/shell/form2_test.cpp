#include "shell/Form2.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "base/Module1.h"
#include "tests/support/scripted_host.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using forms::The;

// Before any page is made.
const std::array<std::int16_t, 4> InitialVariables = {
    Module1::PaginaInstrucoes, Module1::PaginaComentarios, Module1::CodigoDominio,
    Module1::OrigemExemplos};

class Presentation : public ApplicationTest {
 protected:
  Presentation() {
    Module1::PaginaInstrucoes = 0;
    Module1::PaginaComentarios = 0;
    page.Show();
  }

  Form2& page = The<Form2>();
};

TEST(SharedVariables, AreZeroAtTheStart) {
  EXPECT_EQ(InitialVariables, (std::array<std::int16_t, 4>{}));
}

TEST_F(Presentation, OffersItsPagesInThisOrder) {
  std::vector<std::string> captions;
  for (const forms::Menu* menu : page.MenuBar()) {
    captions.push_back(menu->Caption);
    for (const forms::Menu* item : menu->Items()) {
      captions.push_back("- " + item->Caption);
    }
  }
  EXPECT_EQ(captions, (std::vector<std::string>{"Ficheiro", "- Abandonar o programa",
                                                "Conceito de derivada", "Clinorama", "Instruções",
                                                "Comentários", "Sintaxe", "Funções definidas"}));
}

TEST_F(Presentation, StaysOpenUnderTheWorkPageWhichKeepsItsState) {
  page.Clinorama.UserClick();
  The<Form12>().Função1.UserType("x");
  page.Clinorama.UserClick();
  EXPECT_EQ(The<Form12>().Função1.Text, "x");
  EXPECT_TRUE(page.Visible);
  EXPECT_EQ(host.PageCalls,
            (std::vector<std::string>{"Shown Form2", "Shown Form12", "Shown Form12"}));
}

TEST_F(Presentation, TellsTheViewersToOpenAtTheirFirstPage) {
  page.Sintaxe.UserClick();
  page.FunçõesDefinidas.UserClick();
  page.ConceitoDerivada.UserClick();
  EXPECT_EQ(std::pair(Module1::PaginaInstrucoes, Module1::PaginaComentarios),
            std::pair(std::int16_t{0}, std::int16_t{0}));
  page.Instruções.UserClick();
  EXPECT_EQ(std::pair(Module1::PaginaInstrucoes, Module1::PaginaComentarios),
            std::pair(std::int16_t{1}, std::int16_t{0}));
  page.Comentários.UserClick();
  EXPECT_EQ(Module1::PaginaComentarios, 1);
}

TEST_F(Presentation, EndsTheProgramWithWhateverIsOpen) {
  page.Clinorama.UserClick();
  EXPECT_THROW(page.Sair.UserClick(), ProgramEnded);
  EXPECT_THROW(page.UserClose(), ProgramEnded);
  EXPECT_TRUE(host.MessageBoxes.empty());
}

}  // namespace
}  // namespace clinorama::tests
