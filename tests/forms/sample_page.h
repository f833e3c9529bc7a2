#pragma once

#include "forms/application.h"
#include "forms/controls.h"
#include "forms/page.h"
#include "forms/picture_box.h"

namespace clinorama::tests {

// A page with controls of most kinds, whose handlers the tests bind.
class SamplePage : public forms::Page {
 public:
  SamplePage() : Page("SamplePage", {0, 0, 9000, 6000}, "Exemplo") { ++Alive; }
  ~SamplePage() override { --Alive; }

  using Page::CanPause, Page::Wait, Page::WaitFor;
  void Form_Activate() override { ++Activations; }

  static inline int Alive = 0;
  int Activations = 0;

  forms::Frame Frame1{*this, "Frame1", {}, "Opções"};
  forms::OptionButton OptionA{Frame1, "OptionA", {}, "A"};
  forms::OptionButton OptionB{Frame1, "OptionB", {}, "B"};
  forms::Frame Frame2{Frame1, "Frame2", {}};
  forms::OptionButton OptionC{Frame2, "OptionC", {}, "C"};
  forms::TextBox Text1{Frame1, "Text1", {}, "1", "Um número."};
  forms::HScrollBar HScroll1{Frame1, "HScroll1", {}, 10, 0, 5, "Rapidez"};
  forms::Label Label1{Frame1, "Label1", {}, "Legenda"};
  forms::CommandButton Command1{Frame1, "Command1", {}, "Começar"};
  forms::CommandButton Command2{*this, "Command2", {}, ""};
  forms::PictureBox Picture1{*this, "Picture1", {4500, 0, 3000, 3000}, "Gráfico"};
  forms::ControlArray<forms::Image> Image1{Picture1, "Image1", 2, 3, forms::Rect{}, "disc"};
  forms::Menu Ficheiro{*this, "Ficheiro", "Ficheiro"};
  forms::Menu Sair{Ficheiro, "Sair", "Sair"};
  forms::Menu Ajuda{*this, "Ajuda", "Ajuda"};
};

// A second page, to go to and come back from.
class OtherPage : public SamplePage {};

}  // namespace clinorama::tests
