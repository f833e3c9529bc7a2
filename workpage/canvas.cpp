// The canvas of the work page: a cartesian plane of fixed range with its axes, tick marks and
// numbers, in units or radians.

#include <cmath>
#include <string>

#include "base/counted_loop.h"
#include "base/number_text.h"
#include "forms/application.h"
#include "workpage/Form12.h"

namespace clinorama {

using base::CountedLoop;
using base::PrintedNumber;
using forms::PictureBox;

namespace {

constexpr double MarginsInRange = 50;    // a margin is this part of the range
constexpr double Pi = 3.14159;           // the digits that the graduation works with
constexpr double TickHalf = 2;           // pixels on either side of an axis
constexpr double RadianLabelDepth = -6;  // pixels from the axis to the top of a label

// The two walks of a graduation, from the origin outwards; the origin itself is left out.
template <class Draw>
void WalkBothWays(double min, double max, double step, Draw draw) {
  const auto unlessOrigin = [&draw](double i) {
    if (i != 0) {
      draw(i);
    }
  };
  CountedLoop(0, std::floor(max), step, unlessOrigin);
  CountedLoop(0, std::floor(min), -step, unlessOrigin);
}

}  // namespace

void Form12::DesenharEixos() {
  ClearCanvas();
  SetScale();
  DrawAxes();
  PrintAxisNames();
  DrawTicks();
  PrintNumbers();
}

template <class Draw>
void Form12::OnBothSurfaces(Draw draw) {
  draw(Picture1);
  draw(Picture2);
}

void Form12::ClearCanvas() {
  OnBothSurfaces([](PictureBox& surface) {
    surface.ClearPicture();
    surface.ScaleInPixels();
    surface.DrawMode = forms::CopyPen;
    surface.DrawStyle = forms::Solid;
    surface.DrawWidth = 1;
  });
  Picture1.AutoRedraw = true;
  Image1(0).Visible = false;
  Image1(1).Visible = false;
  Label2.Caption = "";
  Label3.Caption = "";
}

// The surfaces show two margins beyond the range on every side. Their width and height are read in
// pixels, so this needs surfaces that ClearCanvas has just left.
void Form12::SetScale() {
  XMin = -Limit;
  XMax = Limit;
  YMin = -Limit;
  YMax = Limit;
  MargemX = std::abs(XMax - XMin) / MarginsInRange;
  MargemY = std::abs(YMax - YMin) / MarginsInRange;
  PixelX = std::abs((XMax + 2 * MargemX) - (XMin - 2 * MargemX)) / Picture1.ScaleWidth();
  PixelY = std::abs((YMax + 2 * MargemY) - (YMin - 2 * MargemY)) / Picture1.ScaleHeight();
  OnBothSurfaces([this](PictureBox& surface) {
    surface.Scale(XMin - 2 * MargemX, YMax + 2 * MargemY, XMax + 2 * MargemX, YMin - 2 * MargemY);
  });
}

void Form12::DrawAxes() {
  OnBothSurfaces([this](PictureBox& surface) {
    surface.Line(XMin - MargemX, 0, XMax + MargemX, 0);
    surface.Line(0, YMin - MargemY, 0, YMax + MargemY);
  });
  Image3.Move(XMax + MargemX - 3 * PixelX, 4 * PixelY);
  Image2.Move(-(4 * PixelX), YMax + MargemY);
}

// The names have the size of the numbers that were printed last.
void Form12::PrintAxisNames() {
  OnBothSurfaces([this](PictureBox& surface) {
    surface.Font.Name = "MS Sans Serif";
    surface.Font.Bold = true;
    surface.PrintAt(XMax + MargemX + 2 * PixelX, -5 * PixelY, "x");
    surface.PrintAt(-12 * PixelX, YMax + MargemY + 9 * PixelY, "y");
  });
}

// Draws at each step of an axis, on both surfaces. The text of the step must be a number.
template <class Draw>
void Form12::Graduate(double min, double max, const forms::TextBox& step, Draw draw) {
  WalkBothWays(min, max, base::NumberFrom(step.Text()),
               [&](double i) { OnBothSurfaces([&](PictureBox& surface) { draw(surface, i); }); });
}

void Form12::DrawTickOfX(PictureBox& surface, double x) {
  surface.Line(x, -TickHalf * PixelY, x, TickHalf * PixelY);
}

void Form12::DrawTicks() {
  if (MarcaX.Value && EmRadianos) {
    MarcarRadianos();
  } else if (MarcaX.Value) {
    Graduate(XMin, XMax, PassoX,
             [this](PictureBox& surface, double i) { DrawTickOfX(surface, i); });
  }
  if (MarcaY.Value) {
    Graduate(YMin, YMax, PassoY, [this](PictureBox& surface, double i) {
      surface.Line(-TickHalf * PixelX, i, TickHalf * PixelX, i);
    });
  }
}

void Form12::PrintNumbers() {
  const auto setFont = [](PictureBox& surface) {
    surface.Font = {.Name = "MS Serif", .Size = 6, .Bold = true};
  };
  if (GradNumX.Value && EmRadianos) {
    GraduarRadianos();
  } else if (GradNumX.Value) {
    OnBothSurfaces(setFont);
    Graduate(XMin, XMax, PassoX, [this](PictureBox& surface, double i) {
      surface.PrintAt(i - 8 * PixelX, -8 * PixelY, PrintedNumber(i));
    });
  }
  if (GradNumY.Value) {
    OnBothSurfaces(setFont);
    Graduate(YMin, YMax, PassoY, [this](PictureBox& surface, double i) {
      surface.PrintAt(-18 * PixelX, i + 5 * PixelY, PrintedNumber(i));
    });
  }
}

// The live surface gets no graduation in radians: it is seen only while a graph is plotted.
void Form12::MarcarRadianos() {
  WalkBothWays(XMin, XMax, Pi / 2, [this](double i) { DrawTickOfX(Picture1, i); });
}

// One label on each multiple of π/2 within the range. The first of each kind has no number. In the
// font "symbol" the letter p looks like π.
void Form12::GraduarRadianos() {
  struct Labels {
    std::string Unit;    // text of the first label; in the others it follows the number
    double First;        // abscissa of the first label
    double FirstOffset;  // pixels from there to the left edge of its text
    double Second;       // where the numbered labels begin
    double End;
    int Number;  // of the second label
    int NumberStep;
  };
  const double walkOffset = 6;
  const Labels families[] = {
      {"p/2", -Pi / 2, 6, -3 * Pi / 2, -Limit, -3, -2},
      {"p", -Pi, 4, -2 * Pi, -Limit, -2, -1},
      {"p/2", Pi / 2, 4, 3 * Pi / 2, Limit, 3, 2},
      {"p", Pi, 2, 2 * Pi, Limit, 2, 1},
  };

  Picture1.FillStyle = 0;
  Picture1.Font = {.Name = "symbol", .Size = 8, .Bold = false};
  const double top = RadianLabelDepth * PixelY;
  for (const Labels& family : families) {
    const bool negative = family.First < 0;
    Picture1.PrintAt(family.First - family.FirstOffset * PixelX, top,
                     (negative ? "-" : "") + family.Unit);
    int number = family.Number;
    CountedLoop(family.Second, family.End, negative ? -Pi : Pi, [&](double i) {
      Picture1.PrintAt(i - walkOffset * PixelX, top, PrintedNumber(number) + family.Unit);
      number += family.NumberStep;
    });
  }
}

// The button names the graduation that a click will bring, not the present one.
void Form12::EixosRad_Click() {
  EmRadianos = !EmRadianos;
  EixosRad.ToolTipText = EmRadianos ? "Graduar o eixo das abcissas em unidades."
                                    : "Graduar o eixo das abcissas em radianos.";
  EixosRad.Caption = EmRadianos ? "Unidades" : "Radianos";
  DesenharEixos();
}

// The live surface stays white, whatever colour was chosen.
void Form12::CorFundo_Click() {
  CommonDialog2.ShowColor();
  Picture1.BackColor(CommonDialog2.Color);
  DesenharEixos();
}

// The colour takes effect at the next plotting.
void Form12::CorGráfico_Click() { CommonDialog1.ShowColor(); }

void Form12::ApagarGráfico_Click() {
  DesenharEixos();
  Label6.Caption = "";
}

}  // namespace clinorama
