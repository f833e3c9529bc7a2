#pragma once

#include <cstdint>

#include "forms/application.h"
#include "forms/controls.h"
#include "forms/page.h"

namespace clinorama {

// What tells one viewer from another. Sizes are in twips.
struct ViewerKind {
  const char* Name;
  const char* Caption;
  int Pages;
  double Width;  // of the window with its frame, as is Height
  double Height;
  double PageWidth;
  double PageHeight;
  const char* Pictures;             // "manual/sintaxe_" stands for manual/sintaxe_01 and so on
  const std::int16_t* OpeningPage;  // where the number of the opening page is; null: page 1
};

// A part of the manual: a stack of pictures, one to a page, that two arrows leaf through. All words
// of the manual are in the pictures. The viewers themselves stand in viewers.h.
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
  // Closes the viewer and makes it anew at once, hidden and at its opening page: to set a property
  // of a page that is not loaded loads it.
  template <class Viewer>
  void CloseAndRenew() {
    Unload();
    forms::The<Viewer>().Visible = false;
  }

 private:
  // A place in the row of controls, which runs along the middle of what the pages leave below them.
  forms::Rect InRow(double left, double width, double height) const;
  int OpeningPage() const;
  void SetaE_Click();
  void SetaD_Click();
  void Turn(int pages);

  const ViewerKind& kind_;
  int page_ = 1;
};

}  // namespace clinorama
