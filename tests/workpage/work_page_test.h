#pragma once

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "base/Module1.h"
#include "shell/Form2.h"
#include "tests/support/scripted_host.h"
#include "workpage/Form12.h"

namespace clinorama::tests {

using forms::The;
using Kind = forms::DrawingOperation::Kind;
using Operations = std::vector<forms::DrawingOperation>;
using MessageBoxes = std::vector<MessageBox>;

// How State() tells that a motion has locked its commands.
const std::string Locked =
    " Função1 DesenharGráfico ApagarGráfico CorGráfico CorFundo EixosRad Exemplos Abcissa"
    " DerivadaEsquerda DerivadaDireita Calcular Relacionar";

// The usual message box of the page.
inline MessageBox Limits(const std::string& text) { return {text, 64, "Limites"}; }
const MessageBox NotPlotted = Limits("Deve desenhar primeiro o gráfico da função.");

// A drawing in words, so that it can be compared and read.
inline std::string Told(const forms::DrawingOperation& drawn) {
  std::ostringstream out;
  out << static_cast<int>(drawn.What) << ": ";
  for (const double number : {drawn.X1, drawn.Y1, drawn.X2, drawn.Y2}) {
    out << std::round(number * 1e6) / 1e6 + 0.0 << ' ';
  }
  out << '"' << drawn.Text << "\" mode " << drawn.DrawMode << " style " << drawn.DrawStyle
      << " pen " << drawn.DrawWidth << " of " << drawn.Pen.Rgb << (drawn.Kept ? " kept" : "");
  return out.str();
}

// A test of the work page, which stands open on a machine with one device pixel to a logical one.
class WorkPageTest : public ApplicationTest {
 protected:
  WorkPageTest() {
    Module1::CodigoDominio = Module1::OrigemExemplos = 0;
    page.Show();
    page.Picture1.Observer = [this](const auto& drawn) { onKept.push_back(drawn); };
    page.Picture2.Observer = [this](const auto& drawn) { onLive.push_back(drawn); };
  }

  void Plot(const std::string& function) {
    page.Função1.UserType(function);
    onKept.clear();
    onLive.clear();
    page.DesenharGráfico.UserClick();
  }

  // Shows values and markers and marks an option.
  void Disturb() {
    for (forms::Label* value : {&page.Label2, &page.Label3, &page.Label6}) {
      value->Caption = "3";
    }
    page.Image1(0).Visible = true;
    page.Image1(1).Visible = true;
    page.DerivadaDireita.Value = true;
  }

  // The three values, what differs from a page at rest, and the locked controls, in words.
  std::string State() const {
    std::string words =
        page.Label2.Caption() + '|' + page.Label3.Caption() + '|' + page.Label6.Caption();
    const auto tell = [&words](bool holds, const char* word) { words += holds ? word : ""; };
    tell(page.Picture1.Visible, " kept");
    tell(page.Picture2.Visible, " live");
    tell(!page.Picture1.AutoRedraw, " unkept");
    tell(page.Picture1.DrawMode != forms::CopyPen, " inverting");
    tell(page.MousePointer != forms::MousePointer::Default, " busy");
    tell(page.Image1(0).Visible, " fixed");
    tell(page.Image1(1).Visible, " moving");
    tell(page.DerivadaEsquerda.Value, " left");
    tell(page.DerivadaDireita.Value, " right");
    for (const forms::Control* frame : page.Children()) {
      for (const forms::Control* control : frame->Children()) {
        tell(!control->Enabled, (" " + control->Name()).c_str());
      }
    }
    return words;
  }

  // Whether the middle of a marker is on a point of the plane.
  bool Marks(const forms::Image& marker, double x, double y) const {
    return marker.Left == 15 * std::floor(page.Picture1.LogicalX(x - 0.6 * 0.48)) &&
           marker.Top == 15 * std::floor(page.Picture1.LogicalY(y + 0.6 * 0.48));
  }

  Form12& page = The<Form12>();  // not after a test has closed the page
  Operations onKept;             // what was drawn on the surfaces
  Operations onLive;
};

}  // namespace clinorama::tests
