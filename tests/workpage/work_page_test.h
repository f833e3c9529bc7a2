#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "base/Module1.h"
#include "shell/Form2.h"
#include "tests/support/color_at.h"
#include "tests/support/scripted_host.h"
#include "workpage/Form12.h"

namespace clinorama::tests {

using forms::DrawingOperation;
using forms::PictureBox;
using forms::Raster;
using forms::The;
using Kind = forms::DrawingOperation::Kind;
using Operations = std::vector<forms::DrawingOperation>;

// How many pixels of two rasters of one size differ.
inline int Differences(const Raster& a, const Raster& b) {
  const int count = a.Width() * a.Height();
  return std::inner_product(a.Data(), a.Data() + count, b.Data(), 0, std::plus<>(),
                            std::not_equal_to<>());
}

inline int PixelsOf(const Raster& raster, forms::Color color) {
  const int count = raster.Width() * raster.Height();
  return static_cast<int>(std::count(raster.Data(), raster.Data() + count, color.Rgb));
}

// A drawing in words, so that lists of them can be compared and read.
inline std::string Told(const DrawingOperation& drawn) {
  if (drawn.What == Kind::Clear) {
    return "clear";
  }
  std::ostringstream out;
  for (const double number : {drawn.X1, drawn.Y1, drawn.X2, drawn.Y2}) {
    out << std::round(number * 1e6) / 1e6 + 0.0 << ' ';
  }
  out << '"' << drawn.Text << "\" mode " << drawn.DrawMode << " style " << drawn.DrawStyle
      << " pen " << drawn.DrawWidth << " of " << drawn.Pen.Rgb << (drawn.Kept ? " kept" : "");
  return out.str();
}

// What is drawn on a surface for as long as this lives.
class Recording {
 public:
  explicit Recording(PictureBox& surface) : surface_(surface) {
    surface.Observer = [this](const DrawingOperation& operation) { Drawn.push_back(operation); };
  }
  ~Recording() { surface_.Observer = nullptr; }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  std::vector<std::string> ToldInOrder() const {
    std::vector<std::string> told;
    std::transform(Drawn.begin(), Drawn.end(), std::back_inserter(told), Told);
    return told;
  }

  Operations Drawn;

 private:
  PictureBox& surface_;
};

// A test of the work page, which stands open on a machine with one device pixel to a logical one.
class WorkPageTest : public ApplicationTest {
 protected:
  WorkPageTest() {
    Module1::PaginaInstrucoes = 0;
    Module1::PaginaComentarios = 0;
    Module1::CodigoDominio = 0;
    Module1::OrigemExemplos = 0;
    page.Show();
  }

  // The colour that a raster of the canvas shows at a point of the plane.
  forms::Color ColorAt(const Raster& raster, double x, double y) const {
    return tests::ColorAt(page.Picture1, raster, x, y);
  }

  void Plot(const std::string& function) {
    page.Função1.UserType(function);
    page.DesenharGráfico.UserClick();
  }

  // Whether a plotting was attempted: the right option asks for it before it asks for an abscissa.
  bool PlottedOnce() {
    page.Abcissa.UserType("");
    page.DerivadaDireita.UserClick();
    const std::string text = host.MessageBoxes.back().Text;
    host.MessageBoxes.pop_back();
    page.Abcissa.UserType("2");
    return text == "Tem de indicar a abcissa do ponto.";
  }

  // How many of the twelve controls that a motion locks are locked.
  int LockedCommands() const {
    const std::vector<const forms::Control*> commands = {
        &page.Função1,  &page.DesenharGráfico,  &page.ApagarGráfico,   &page.CorGráfico,
        &page.CorFundo, &page.EixosRad,         &page.Abcissa,         &page.Exemplos,
        &page.Calcular, &page.DerivadaEsquerda, &page.DerivadaDireita, &page.Relacionar};
    return static_cast<int>(std::count_if(commands.begin(), commands.end(),
                                          [](const auto* command) { return !command->Enabled; }));
  }

  // Goes to another page and comes back.
  void Return() {
    The<Form2>().Show();
    page.Show();
  }

  Form12& page = The<Form12>();  // not after a test has closed the page
};

}  // namespace clinorama::tests
