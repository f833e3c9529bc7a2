// The axes of the drawing windows, graduated in units or in radians. All lengths are in user units;
// a canvas shows -10 to 10 on both axes.

#include <string>

#include "base/counted_loop.h"
#include "base/number_text.h"
#include "relations/Form13.h"

namespace clinorama {

using base::PrintedNumber;
using forms::PictureBox;

namespace {

constexpr double Pi = 3.14159;  // no more digits, so the places of marks and labels are exact
constexpr int LastNumber = 8;
constexpr double TickHalf = 0.1;

struct RadianLabel {
  const char* Text;  // in the font "symbol", whose p shows as π
  double Left;
};

constexpr RadianLabel RadianLabels[] = {
    {"-5p/2", -5 * Pi / 2 - 0.9},
    {"-2p", -2 * Pi - 0.5},
    {"-3p/2", -3 * Pi / 2 - 0.6},
    {"-p", -Pi - 0.3},
    {"-p/2", -Pi / 2 - 0.5},
    {"p/2", Pi / 2 - 0.5},
    {"p", Pi - 0.3},
    {"3p/2", 3 * Pi / 2 - 0.6},
    {"2p", 2 * Pi - 0.3},
    {"5p/2", 5 * Pi / 2 - 0.6},
};

template <class Body>
void ForEachNumber(Body body) {
  for (int j = -LastNumber; j <= LastNumber; ++j) {
    body(j);
  }
}

void SetNumberFont(PictureBox& canvas) {
  canvas.Font.Name = "MS Serif";
  canvas.Font.Size = 6;
}

// Wipes the canvas and draws the axes with their arrow heads. The tip of the horizontal arrow
// stands at 9.1, though its axis ends at 9.
void DrawAxes(PictureBox& canvas) {
  canvas.DrawStyle = forms::Solid;
  canvas.DrawMode = forms::CopyPen;
  canvas.Cls();
  canvas.Line(-9, 0, 9, 0);
  canvas.Line(0, 9, 0, -9);
  canvas.Line(-0.15, 8.7, 0, 9);
  canvas.Line(0.15, 8.7, 0, 9);
  canvas.Line(8.7, -0.15, 9.1, 0);
  canvas.Line(8.7, 0.15, 9.1, 0);
}

void MarkAbscissa(PictureBox& canvas, double x) { canvas.Line(x, TickHalf, x, -TickHalf); }

void MarkOrdinate(PictureBox& canvas, double y) { canvas.Line(-TickHalf, y, TickHalf, y); }

void NumberOrdinate(PictureBox& canvas, int j) {
  if (j != 0) {
    canvas.PrintAt(-0.7, j + 0.3, PrintedNumber(j));
  }
}

// The letters keep the font size of the numbers.
void NameAxes(PictureBox& canvas) {
  canvas.Font.Name = "MS Sans Serif";
  canvas.Font.Bold = true;
  canvas.PrintAt(9.2, -0.3, "x");
  canvas.PrintAt(-0.7, 9.7, "y");
}

void DrawUnits(PictureBox& canvas) {
  canvas.Font.Bold = true;
  DrawAxes(canvas);
  SetNumberFont(canvas);
  ForEachNumber([&](int j) {
    MarkAbscissa(canvas, j);
    if (j != 0) {
      canvas.PrintAt(j - 0.3, -0.4, PrintedNumber(j));
    }
  });
  ForEachNumber([&](int j) {
    MarkOrdinate(canvas, j);
    NumberOrdinate(canvas, j);
  });
  NameAxes(canvas);
}

// The boldness is not set: the numbers of the y axis have that of the graduation before.
void DrawRadians(PictureBox& canvas) {
  DrawAxes(canvas);
  // By rounding the counter is above 3π in the last pass, so the last mark is that of 5π/2.
  base::CountedLoop(-5 * Pi / 2, 3 * Pi, Pi / 2, [&](double t) { MarkAbscissa(canvas, t); });
  ForEachNumber([&](int j) { MarkOrdinate(canvas, j); });
  SetNumberFont(canvas);
  ForEachNumber([&](int j) {
    for (int time = 0; time < 2; ++time) {
      canvas.PSet(-0.05, j);
      canvas.PSet(0.1, j);
    }
    NumberOrdinate(canvas, j);
  });
  NameAxes(canvas);
  canvas.Font = {.Name = "symbol", .Size = 9, .Bold = false};
  for (const RadianLabel& label : RadianLabels) {
    canvas.PrintAt(label.Left, -0.6, label.Text);
  }
}

}  // namespace

void Form13::GraduarTodas() {
  for (int index = Picture1.First(); index <= Picture1.Last(); ++index) {
    DrawUnits(Picture1(index));
  }
}

void Form13::GraduarUnidades(const Window& window) {
  DrawUnits(Persistent(window));
  DrawUnits(Live(window));
  if (window.UnitsSetButton) {
    SetGraduation(window, false);
  }
}

void Form13::GraduarRadianos(const Window& window) {
  DrawRadians(Persistent(window));
  DrawRadians(Live(window));
  SetGraduation(window, true);
}

void Form13::RedrawAxes(const Window& window) {
  if (window.Radianos) {
    GraduarRadianos(window);
  } else {
    GraduarUnidades(window);
  }
}

// Sets the field and the button. The button names the graduation that a click brings.
void Form13::SetGraduation(const Window& window, bool radians) {
  window.EixosRad.ToolTipText = radians ? "Graduar o eixo das abcissas em unidades"
                                        : "Graduar o eixo das abcissas em radianos";
  window.EixosRad.Caption = radians ? "Unidades" : "Radianos";
  window.Radianos = radians;
}

void Form13::ToggleGraduation(const Window& window) {
  SetGraduation(window, !window.Radianos);
  RedrawAxes(window);
}

}  // namespace clinorama
