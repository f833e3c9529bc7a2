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

constexpr double Limit = 12;             // the range is -12 to 12 on both axes
constexpr double MarginsInRange = 50;    // a margin is this part of the range
constexpr double Pi = 3.14159;           // the digits that the graduation works with
constexpr double TickHalf = 2;           // pixels on either side of an axis
constexpr double RadianLabelDepth = -6;  // pixels from the axis to the top of a label

// The two walks of a graduation, from the origin outwards; the origin itself is left out.
template <class Mark>
void WalkBothWays(double min, double max, double step, Mark mark) {
  const auto unlessOrigin = [&mark](double i) {
    if (i != 0) {
      mark(i);
    }
  };
  CountedLoop(0, std::floor(max), step, unlessOrigin);
  CountedLoop(0, std::floor(min), -step, unlessOrigin);
}

}  // namespace

void Form12::DesenharEixos() {
  const auto onBoth = [this](auto draw) {
    draw(Picture1);
    draw(Picture2);
  };

  onBoth([](PictureBox& surface) {
    surface.ClearPicture();
    surface.ScaleInPixels();
    surface.DrawMode = forms::CopyPen;
    surface.DrawStyle = forms::Solid;
  });
  Picture1.AutoRedraw = true;
  Image1(0).Visible = false;
  Image1(1).Visible = false;
  Label2.Caption = "";
  Label3.Caption = "";

  XMin = -Limit;
  XMax = Limit;
  YMin = -Limit;
  YMax = Limit;
  MargemX = std::abs(XMax - XMin) / MarginsInRange;
  MargemY = std::abs(YMax - YMin) / MarginsInRange;
  PixelX = std::abs((XMax + 2 * MargemX) - (XMin - 2 * MargemX)) / Picture1.ScaleWidth();
  PixelY = std::abs((YMax + 2 * MargemY) - (YMin - 2 * MargemY)) / Picture1.ScaleHeight();

  onBoth([this](PictureBox& surface) {
    surface.Scale(XMin - 2 * MargemX, YMax + 2 * MargemY, XMax + 2 * MargemX, YMin - 2 * MargemY);
    surface.DrawWidth = 1;
    surface.Line(XMin - MargemX, 0, XMax + MargemX, 0);
    surface.Line(0, YMin - MargemY, 0, YMax + MargemY);
  });
  Image3.Move(XMax + MargemX - 3 * PixelX, 4 * PixelY);
  Image2.Move(-(4 * PixelX), YMax + MargemY);
  Image3.Visible = true;
  Image2.Visible = true;

  onBoth([this](PictureBox& surface) {
    surface.Font.Name = "MS Sans Serif";
    surface.Font.Bold = true;
    surface.PrintAt(XMax + MargemX + 2 * PixelX, -5 * PixelY, "x");
    surface.PrintAt(-12 * PixelX, YMax + MargemY + 9 * PixelY, "y");
  });

  if (MarcaX.Value && !EmRadianos) {
    WalkBothWays(XMin, XMax, base::NumberFrom(PassoX.Text()), [&](double i) {
      onBoth(
          [&](PictureBox& surface) { surface.Line(i, -TickHalf * PixelY, i, TickHalf * PixelY); });
    });
  } else if (MarcaX.Value) {
    MarcarRadianos();
  }
  if (MarcaY.Value) {
    WalkBothWays(YMin, YMax, base::NumberFrom(PassoY.Text()), [&](double i) {
      onBoth(
          [&](PictureBox& surface) { surface.Line(-TickHalf * PixelX, i, TickHalf * PixelX, i); });
    });
  }

  const auto setNumberFont = [](PictureBox& surface) {
    surface.Font = {.Name = "MS Serif", .Size = 6, .Bold = true};
  };
  if (GradNumX.Value && !EmRadianos) {
    onBoth(setNumberFont);
    WalkBothWays(XMin, XMax, base::NumberFrom(PassoX.Text()), [&](double i) {
      onBoth([&](PictureBox& surface) {
        surface.PrintAt(i - 8 * PixelX, -8 * PixelY, PrintedNumber(i));
      });
    });
  } else if (GradNumX.Value) {
    GraduarRadianos();
  }
  if (GradNumY.Value) {
    onBoth(setNumberFont);
    WalkBothWays(YMin, YMax, base::NumberFrom(PassoY.Text()), [&](double i) {
      onBoth([&](PictureBox& surface) {
        surface.PrintAt(-18 * PixelX, i + 5 * PixelY, PrintedNumber(i));
      });
    });
  }
}

// The live surface gets no marks in radians, as it is seen for a moment only.
void Form12::MarcarRadianos() {
  WalkBothWays(XMin, XMax, Pi / 2,
               [this](double i) { Picture1.Line(i, -TickHalf * PixelY, i, TickHalf * PixelY); });
}

// One label on each multiple of π/2 within the range: the first of each kind without a number,
// the others numbered along a walk. In the font "symbol" the letter p shows as π.
void Form12::GraduarRadianos() {
  struct Labels {
    std::string Unit;    // text of the first label, and what follows the number in the others
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

// The live surface keeps its own ground: white, whatever was chosen.
void Form12::CorFundo_Click() {
  CommonDialog2.ShowColor();
  Picture1.BackColor(CommonDialog2.Color);
  DesenharEixos();
}

// The colour takes effect at the next plotting.
void Form12::CorGráfico_Click() { CommonDialog1.ShowColor(); }

void Form12::ApagarGráfico_Click() {
  Picture1.ClearPicture();
  DesenharEixos();
  Image1(0).Visible = false;
  Label2.Caption = "";
  Label3.Caption = "";
  Label6.Caption = "";
}

}  // namespace clinorama
