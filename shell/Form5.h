#pragma once

#include <array>
#include <deque>

#include "forms/controls.h"
#include "forms/page.h"

namespace clinorama {

// The examples: six functions, each with pictures of its graph and of the graphs of its
// derivatives, and a button that writes its expression into the function box of the work page.
class Form5 : public forms::Page {
 public:
  Form5();

  // Only FrameClinorama is ever shown.
  static constexpr forms::Rect FramePlace = {120, 60, 11490, 6780};
  forms::Frame FrameFinitos{*this, "FrameFinitos", FramePlace};
  forms::Frame FrameInfinitos{*this, "FrameInfinitos", FramePlace};
  forms::Frame FrameClinorama{*this, "FrameClinorama", FramePlace, "Exemplos"};
  forms::Label Label1{FrameFinitos, "Label1", {240, 240, 7200, 255}, Advice};
  forms::Label Label2{FrameFinitos, "Label2", {240, 510, 7200, 255}, CloseAdvice};
  forms::Label Label3{FrameInfinitos, "Label3", {240, 240, 7200, 255}, Advice};
  forms::Label Label4{FrameInfinitos, "Label4", {240, 510, 7200, 255}, CloseAdvice};
  forms::Label Label5{FrameClinorama, "Label5", {240, 270, 7200, 255}, Advice};
  forms::Label Label6{FrameClinorama, "Label6", {240, 540, 3600, 255}, CloseAdvice};
  forms::Label Label7{FrameClinorama,
                      "Label7",
                      {6750, 540, 4425, 255},
                      "(As imagens pequenas são das funções clinorama)"};
  forms::CommandButton Fechar{*this,    "Fechar", {9240, 6900, 2370, 450},
                              "Fechar", "",       "Fechar esta janela."};

  void Form_Load() override;
  void UserClose() override;

 private:
  static constexpr const char* Advice =
      "Clique no botão para transferir o exemplo para a outra página.";
  static constexpr const char* CloseAdvice = "Depois, feche esta janela.";

  void AddExamples();
  void AddUnseenControls(forms::Frame& frame, int firstImage, const std::array<int, 6>& buttons);
  forms::CommandButton& AddButton(forms::Frame& frame, int number, double left, double top);

  std::deque<forms::Image> images_;           // Image1 to Image30
  std::deque<forms::CommandButton> buttons_;  // Command1, Command3 to Command19
};

}  // namespace clinorama
