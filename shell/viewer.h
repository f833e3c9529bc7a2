#pragma once

#include <cstdint>

#include "forms/application.h"
#include "forms/controls.h"
#include "forms/page.h"

namespace clinorama {

// What differs between the viewers. Sizes are in twips.
struct ViewerKind {
  const char* Name;
  const char* Caption;
  int Pages;
  double Width;  // of the window with its frame
  double Height;
  double PageWidth;
  double PageHeight;
  const char* Pictures;             // "manual/sintaxe_": page 1 is manual/sintaxe_01
  const std::int16_t* OpeningPage;  // points to the number of the opening page; null: page 1
};

// A part of the manual: a stack of pictures, one for each page, and two arrows to turn the pages.
// All words of the manual are in the pictures. viewers.h holds the four viewers.
class PageViewer : public forms::Page {
 public:
  explicit PageViewer(const ViewerKind& kind);

  forms::ControlArray<forms::Image> Image1;
  forms::CommandButton SetaE{*this, "SetaE", InRow(60, 480, 480), "", "icons/pagina_anterior"};
  forms::CommandButton SetaD{*this, "SetaD", InRow(600, 480, 480), "", "icons/pagina_seguinte"};
  forms::Label Label1{*this, "Label1", InRow(1245, 630, 210), "Página"};
  forms::Label Label2{*this, "Label2", InRow(1875, 300, 210), "1"};
  forms::Label Label3{*this, "Label3", InRow(2175, 570, 210)};
  forms::Label Label4{*this, "Label4", InRow(2745, Width - 4035, 210),
                      "Feche esta janela quando terminar."};
  forms::CommandButton Command1{*this,    "Command1", InRow(Width - 1260, 1200, 420),
                                "Fechar", "",         "Fechar esta janela."};

  void Form_Load() override;

 protected:
  // Closes the viewer and makes it anew at once, hidden and at its opening page, as a page that is
  // not loaded is loaded by setting one of its properties.
  template <class Viewer>
  void CloseAndRenew() {
    Unload();
    forms::The<Viewer>().Visible = false;
  }

 private:
  // A place in the row of controls, which is centred between the pictures and the lower border.
  // Image1 must have been made.
  forms::Rect InRow(double left, double width, double height) const;
  int OpeningPage() const;
  void SetaE_Click();
  void SetaD_Click();
  void Turn(int pages);

  const ViewerKind& kind_;
  int page_ = 1;
};

}  // namespace clinorama
