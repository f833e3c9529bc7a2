// Draws the pictures of the manual's ideas and of the examples, from what the program's own pages
// draw:
//
//   draw_ideas RESOURCES
//
// Each page is driven by its own buttons. Values that the page shows beside a drawing are written
// into a file of their own, from which the manual's pages take them.

#include <algorithm>
#include <cmath>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "relations/Form13.h"
#include "tools/file.h"
#include "tools/recording.h"
#include "tools/sheet.h"
#include "workpage/Form12.h"
#include "workpage/tangent.h"

namespace clinorama::tools {
namespace {

using Button = forms::CommandButton Form13::*;

constexpr double CurveWidth = 2.4;       // pixels
constexpr double SmallCurveWidth = 1.6;  // in the small pictures of the examples
constexpr double Gap = 8;                // between panels

constexpr forms::Color Green = forms::QBColor(10);

std::filesystem::path resources;

void WriteValues(const std::string& name, const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values) {
    text += (text.empty() ? "[" : ", ") + ("\"" + value + "\"");
  }
  WriteIfNew(resources / name, text + "]\n");
}

double ValueOf(const std::string& expression, double x) {
  clsEquation equation;
  equation.Equation(expression);
  return ValueAt(equation, x);
}

// A row of panels of one width, each a moment of a motion.
class Strip {
 public:
  Strip(int count, double width, double height, const Interval& x, const Interval& y)
      : width_((width - (count - 1) * Gap) / count),
        height_(height),
        x_(x),
        y_(y),
        sheet_(width, height) {}

  void Add(const std::vector<Trace>& traces, const std::vector<double>& numbers,
           const std::vector<std::pair<Point, forms::Color>>& dots) {
    const Panel panel = {next_ * (width_ + Gap), 0, width_, height_, x_, y_};
    sheet_.DrawPlane(panel);
    sheet_.DrawNumbers(panel, traces, numbers);
    sheet_.Draw(panel, traces, CurveWidth);
    for (const auto& [point, color] : dots) {
      sheet_.DrawDot(panel.Place(point), color);
    }
    ++next_;
  }

  std::string Text() const { return sheet_.Text(); }

 private:
  double width_;
  double height_;
  Interval x_;
  Interval y_;
  Sheet sheet_;
  int next_ = 0;
};

// Three semi-secants at the right of the initial point, and the semi-tangent.
void DrawSemiSecants(Studio& studio) {
  constexpr double PointA = 2;  // the page's initial abscissa
  const Opened<Form12> opened;
  Form12& page = opened.Page();
  const Recording recording(page.Picture1);
  page.DesenharGráfico.UserClick();
  const std::string function = page.Função1.Text();
  const Point fixed = {PointA, ValueOf(function, PointA)};

  Strip strip(4, 554, 96, {-1, 6.2}, {-0.9, 4.2});
  std::vector<std::string> values;
  double x = PointA + 3;  // where the walk begins; it takes 100 steps for a unit
  studio.Watch(
      {1, 101, 201}, [&] { page.DerivadaDireita.UserClick(); },
      [&] {
        strip.Add(recording.Now(), {PointA, x},
                  {{fixed, Green}, {{x, ValueOf(function, x)}, forms::Red}});
        values.push_back(page.Label3.Caption());
        x -= 1;
      });
  strip.Add(recording.Now(), {PointA}, {{fixed, Green}});
  values.push_back(page.Label3.Caption());
  WriteIfNew(resources / "manual/graphs/ideia_semi_secantes.svg", strip.Text());
  WriteValues("manual/graphs/ideia_semi_secantes.json", values);
}

// The tangent where the graph grows, at a maximum, and where the graph falls.
void DrawTangents(Studio& studio) {
  constexpr double Start = -12;
  constexpr double Step = 0.001;
  const std::vector<double> places = {2, 3.673, 5};
  const Opened<Form12> opened;
  Form12& page = opened.Page();
  const Recording recording(page.Picture1);
  page.DesenharGráfico.UserClick();
  const std::string function = page.Função1.Text();

  std::vector<int> steps(places.size());
  std::transform(places.begin(), places.end(), steps.begin(),
                 [](double x) { return static_cast<int>(std::lround((x - Start) / Step)) + 1; });
  Strip strip(3, 554, 114, {-1, 7.4}, {-0.9, 4.5});
  std::vector<std::string> values;
  studio.Watch(
      steps, [&] { page.Calcular.UserClick(); },
      [&] {
        const double x = places[values.size()];
        strip.Add(recording.Now(), {x}, {{{x, ValueOf(function, x)}, forms::Red}});
        values.push_back(page.Label6.Caption());
      });
  WriteIfNew(resources / "manual/graphs/ideia_tangentes.svg", strip.Text());
  WriteValues("manual/graphs/ideia_tangentes.json", values);
}

// One of the windows of the relations page in a picture: how high it is and what it shows.
struct Part {
  int Window;  // 1 the function, 2 and 3 its derivatives
  double Height;
  Interval Y;
};

// The windows of the relations page one above the other, after some of its buttons.
struct Stack {
  const char* File;
  const char* Expression;
  std::vector<Button> Buttons;
  double Width;
  Interval X;
  std::vector<Part> Parts;
};

// The middle of a run of dots.
Point Middle(const Trace& dots) {
  const Point& first = dots.Points.front();
  const Point& last = dots.Points.back();
  return {(first.X + last.X) / 2, (first.Y + last.Y) / 2};
}

// From each dot of the function, a line down to the zero that belongs to it: that of the first
// derivative for an extremum, which is red, and that of the second for an inflexion.
void DrawVerticals(Sheet& sheet, const std::vector<Panel>& panels, const std::vector<Part>& parts,
                   const std::vector<Trace>& function) {
  for (const Trace& trace : function) {
    if (trace.What != Trace::Kind::Dot || !panels.front().Holds(Middle(trace))) {
      continue;
    }
    const int window = trace.Pen == forms::Red ? 2 : 3;
    const Point start = panels.front().Place(Middle(trace));
    for (std::size_t i = 1; i < parts.size(); ++i) {
      if (parts[i].Window == window) {
        sheet.DrawVertical(start.X, start.Y, panels[i].Down(0));
      }
    }
  }
}

void DrawStack(const Stack& stack) {
  const Opened<Form13> opened;
  Form13& page = opened.Page();
  page.Função1.UserType(stack.Expression);
  const Recording recordings[] = {Recording(page.Picture1(1)), Recording(page.Picture1(3)),
                                  Recording(page.Picture1(5))};
  for (const Button button : stack.Buttons) {
    (page.*button).UserClick();
  }
  std::vector<Panel> panels;
  double top = 0;
  for (const Part& part : stack.Parts) {
    panels.push_back({0, top, stack.Width, part.Height, stack.X, part.Y});
    top += part.Height + Gap;
  }
  std::vector<double> numbers;
  for (double x = -8; x <= 8; x += stack.X.Length() < 10 ? 1 : 2) {
    if (x != 0) {
      numbers.push_back(x);
    }
  }
  Sheet sheet(stack.Width, top - Gap);
  for (const Panel& panel : panels) {
    sheet.DrawPlane(panel);
  }
  DrawVerticals(sheet, panels, stack.Parts, recordings[0].Now());
  for (std::size_t i = 0; i < panels.size(); ++i) {
    const std::vector<Trace> traces = recordings[stack.Parts[i].Window - 1].Now();
    sheet.DrawNumbers(panels[i], traces, numbers);
    sheet.Draw(panels[i], traces, CurveWidth);
  }
  WriteIfNew(resources / "manual/graphs" / stack.File, sheet.Text());
}

constexpr const char* Initial = "x*(1-cos(x))/2";

const std::vector<Stack>& Stacks() {
  static const std::vector<Button> drawn = {&Form13::DesenharGráfico, &Form13::DesenharPrimeira};
  static const std::vector<Button> signs = {&Form13::ColocarCoresFunção,
                                            &Form13::ColocarCoresPrimeira1, &Form13::ExtremosFunção,
                                            &Form13::ZerosPrimeira};
  static const std::vector<Stack> stacks = {
      {"ideia_dominio.svg",
       "sqr(x)",
       drawn,
       176,
       {-5, 5},
       {{1, 53, {-1.2, 3}}, {2, 53, {-1.2, 3}}}},
      {"ideia_salto.svg",
       "int(x)",
       drawn,
       176,
       {-5, 5},
       {{1, 53, {-2.1, 2.1}}, {2, 53, {-2.1, 2.1}}}},
      {"ideia_bico.svg", "abs(x)", drawn, 176, {-5, 5}, {{1, 53, {-1.2, 3}}, {2, 53, {-2.1, 2.1}}}},
      {"ideia_colorir1.svg",
       Initial,
       signs,
       430,
       {-7.3, 7.3},
       {{1, 120, {-4, 4}}, {2, 100, {-2.6, 3.4}}}},
      {"ideia_colorir2.svg",
       Initial,
       {&Form13::ColocarCoresFunção2, &Form13::ColocarCoresPrimeira2, &Form13::ColocarCoresSegunda,
        &Form13::InflexõesFunção, &Form13::ZerosSegunda},
       430,
       {-7.3, 7.3},
       {{1, 84, {-4, 4}}, {2, 68, {-2.6, 3.4}}, {3, 68, {-3.8, 3.8}}}},
      {"ideia_bolas.svg",
       Initial,
       {&Form13::DesenharGráfico, &Form13::DesenharPrimeira, &Form13::DesenharSegunda,
        &Form13::ExtremosFunção, &Form13::InflexõesFunção, &Form13::ZerosPrimeira,
        &Form13::ZerosSegunda},
       330,
       {-7.3, 7.3},
       {{1, 86, {-4, 4}}, {2, 66, {-2.6, 3.4}}, {3, 66, {-3.8, 3.8}}}},
      {"comentarios_cubica.svg",
       "x^3/4-x",
       {&Form13::ColocarCoresFunção, &Form13::ColocarCoresPrimeira1, &Form13::ColocarCoresSegunda,
        &Form13::ExtremosFunção, &Form13::InflexõesFunção, &Form13::ZerosPrimeira,
        &Form13::ZerosSegunda},
       200,
       {-3.4, 3.4},
       {{1, 78, {-3, 3}}, {2, 78, {-1.8, 4.2}}, {3, 78, {-4, 4}}}},
  };
  return stacks;
}

// The pictures of one example, as the relations page draws and colours it.
struct Example {
  const char* Expression;
  Interval X;
  Interval Function;
  Interval First;
  Interval Second;
};

constexpr double Side = 7.9;  // the page shows abscissas and ordinates between -8 and 8
constexpr Example Examples[] = {
    {"3sen(x)-cos(2x)", {-Side, Side}, {-5, 5}, {-7, 7}, {-8, 8}},
    {"(x+5)*(x+1)*(x-3)*(x-6)/30", {-Side, Side}, {-8, 8}, {-8, 8}, {-8, 8}},
    {"x^2/(x^2+x-12)", {-Side, Side}, {-8, 8}, {-8, 8}, {-8, 8}},
    {"1/cos(x)", {-7.5, 7.5}, {-8, 8}, {-8, 8}, {-8, 8}},
    {"3sen(x)-sen(3x)", {-Side, Side}, {-5, 5}, {-8, 8}, {-8, 8}},
    {"5sen(x)/x", {-Side, Side}, {-2.5, 6}, {-4, 4}, {-4, 4}},
};

void DrawExample(const Example& example, int number) {
  constexpr double Large = 150;
  constexpr double Small = 73;
  constexpr double TextRoom = 16;
  const Opened<Form13> opened;
  Form13& page = opened.Page();
  page.Função1.UserType(example.Expression);
  const Recording function(page.Picture1(1));
  const Recording first(page.Picture1(3));
  const Recording second(page.Picture1(5));
  for (const Button button :
       {&Form13::DesenharGráfico, &Form13::ColocarCoresPrimeira1, &Form13::ColocarCoresSegunda}) {
    (page.*button).UserClick();
  }
  const std::string name = "examples/exemplo_" + std::to_string(number);

  Sheet large(Large, Large);
  large.Write({Large / 2, 11}, 9.9, example.Expression);
  const Panel plane = {0, TextRoom, Large, Large - TextRoom, example.X, example.Function};
  large.DrawPlane(plane);
  large.DrawNumbers(plane, function.Now(), {-6, -4, -2, 2, 4, 6});
  large.Draw(plane, function.Now(), CurveWidth);
  WriteIfNew(resources / (name + ".svg"), large.Text());

  const auto drawSmall = [&](const Recording& recording, const Interval& y, const char* suffix) {
    Sheet small(Small, Small);
    const Panel panel = {0, 0, Small, Small, example.X, y};
    small.DrawPlane(panel, 2);
    small.Draw(panel, recording.Now(), SmallCurveWidth);
    WriteIfNew(resources / (name + suffix), small.Text());
  };
  drawSmall(first, example.First, "_primeira.svg");
  drawSmall(second, example.Second, "_segunda.svg");
}

void DrawAll() {
  Studio studio;
  const forms::Application application(studio);
  DrawSemiSecants(studio);
  DrawTangents(studio);
  for (const Stack& stack : Stacks()) {
    DrawStack(stack);
  }
  int number = 0;
  for (const Example& example : Examples) {
    DrawExample(example, ++number);
  }
}

}  // namespace
}  // namespace clinorama::tools

int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::cerr << "usage: draw_ideas RESOURCES\n";
    return 2;
  }
  try {
    clinorama::tools::resources = argv[1];
    clinorama::tools::DrawAll();
  } catch (const std::exception& failure) {
    std::cerr << "draw_ideas: " << failure.what() << "\n";
    return 1;
  }
  return 0;
}
