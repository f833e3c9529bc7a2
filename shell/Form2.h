#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/page.h"
#include "shell/version.h"

namespace clinorama {

// The presentation page: the program starts with it, and its menu opens the other pages. Closing
// its window ends the program.
class Form2 : public forms::Page {
 public:
  Form2();

  forms::Label Label1{*this, "Label1", {0, 300, 15240, 1080}, "CLINORAMA"};
  forms::Image Image2{*this,
                      "Image2",
                      {570, 1770, 9000, 6450},
                      "pictures/apresentacao_grafico",
                      "Gráfico de uma função com a recta tangente num ponto"};
  forms::Image Image1{*this,
                      "Image1",
                      {10170, 1770, 4500, 6450},
                      "pictures/apresentacao_derivadas",
                      "Gráficos de uma função e das suas derivadas"};
  forms::Image Image8{*this,
                      "Image8",
                      {570, 8850, 3900, 660},
                      "pictures/versao",
                      std::string("Versão ") + Version + ". Resolução 1024x768."};
  forms::Image Image7{*this,
                      "Image7",
                      {8370, 9000, 6300, 360},
                      "pictures/creditos",
                      "Clinorama: um programa para compreender a derivada"};

  forms::Menu Ficheiro{*this, "Ficheiro", "Ficheiro"};
  forms::Menu Sair{Ficheiro, "Sair", "Abandonar o programa"};
  forms::Menu ConceitoDerivada{*this, "ConceitoDerivada", "Conceito de derivada"};
  forms::Menu Clinorama{*this, "Clinorama", "Clinorama"};
  forms::Menu Instruções{*this, "Instruções", "Instruções"};
  forms::Menu Comentários{*this, "Comentários", "Comentários"};
  forms::Menu Sintaxe{*this, "Sintaxe", "Sintaxe"};
  forms::Menu FunçõesDefinidas{*this, "FunçõesDefinidas", "Funções definidas"};

  void UserClose() override;
};

}  // namespace clinorama
