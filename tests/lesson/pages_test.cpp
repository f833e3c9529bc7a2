// The lesson: its pages one by one, with their buttons, markers and drawings; then the ways through
// it, pauses, and other pages called into a motion.

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "lesson/Form9.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {
namespace {

using Drawing = forms::DrawingOperation;
using Kind = Drawing::Kind;

// Drawings in a few words. A segment: its ends, ":" where it is dotted, the first letter of its
// colour, the width where it is not 1, and the mode of the pen where it does not copy: "&" merges
// and inverts, "~" inverts. Points that follow one another: the first, the last, colour, number.
std::string Told(const std::vector<Drawing>& drawings) {
  const std::map<std::uint32_t, std::string> pens = {
      {0x000000, "k"}, {0x0000FF, "b"}, {0xFF0000, "r"}, {0xFFFFFF, "w"}};
  const auto round = [](double value) { return std::round(value * 100) / 100 + 0.0; };
  std::ostringstream all;
  for (std::size_t i = 0; i < drawings.size(); ++i) {
    const Drawing& now = drawings[i];
    const auto joins = [&](std::size_t at) {
      return at < drawings.size() && drawings[at].What == Kind::Point &&
             drawings[at].Pen == now.Pen;
    };
    all << (now.What == Kind::Clear ? "cls " : now.What == Kind::Circle ? "circle " : now.Text);
    all << (now.Text.empty() ? "" : " ") << round(now.X1) << " " << round(now.Y1);
    std::string points;
    if (now.What == Kind::Line || now.What == Kind::Circle) {
      all << " " << round(now.X2) << " " << round(now.Y2);
    } else if (joins(i)) {
      const std::size_t first = i;
      while (joins(i + 1)) {
        ++i;
      }
      all << " .. " << round(drawings[i].X1) << " " << round(drawings[i].Y1);
      points = std::to_string(i - first + 1);
    }
    all << (now.What == Kind::Line && now.DrawStyle == forms::Dotted ? " :" : " ")
        << pens.at(now.Pen.Rgb) << (now.DrawWidth == 1 ? "" : std::to_string(now.DrawWidth))
        << (now.What == Kind::Text || now.DrawMode == forms::CopyPen ? ""
            : now.DrawMode == forms::InvertPixel                     ? "~"
                                                                     : "&")
        << points << "; ";
  }
  return all.str();
}

struct PageRow {
  const char* Buttons;  // enabled during the action
  int Steps;
  // What is drawn: all of it, or of a motion what comes before the first wait, what copies its pen,
  // and what comes after the last wait.
  std::string Drawing;
};

const std::string Quadrant =
    "cls 0 0 k; 0 0 9 0 k; 0 0 0 9 k; -0.1 8.9 0 9 k; 0.1 8.9 0 9 k; 8.9 0.1 9 0 k; "
    "8.9 -0.1 9 0 k; x 9.1 -0.1 k; y -0.3 9.3 k; ";
const std::string Margin =
    "cls 0 0 k; -9 9 -9 -9 k; -9 -9 9 -9 k; -9.1 8.9 -9 9 k; -8.9 8.9 -9 9 k; 8.9 -8.9 9 -9 k; "
    "8.9 -9.1 9 -9 k; x 9.1 -9.1 k; y -9.3 9.3 k; ";
const std::string Vertical = "0 9 0 -9 :k; a 0 -9.4 k; ";
const std::string Branches = Margin + "-7.07 8 .. 7.42 -8 b14488; " + Vertical;

// From page 1 on.
const PageRow Pages[] = {
    {"S", 0, ""},
    {"AS", 0, "cls 0 0 k; circle 0 0 4 0 b; -2 7.66 .. 8 -2.34 b10000; "},
    {"AS", 0, "cls 0 0 k; -6.93 9 .. 6.93 9 b13857; 4 9 4 -9 b; "},
    {"AS", 0, "cls 0 0 k; -5.6 -8 .. 5.6 8 b11209; P -0.4 -0.4 b; -5 3.33 .. 5 -3.33 b10000; "},
    {"AS", 0,
     Quadrant +
         "1 2.87 .. 8 7 b7000; a 3.9 -0.1 b; x 6.9 -0.1 b; f(a) -0.8 6.1 b; f(x) -0.8 7.1 b; "
         "A 3.9 6.5 b; X 6.9 7.5 b; 4 5.93 4 0 :b; 0 5.93 4 5.93 :b; 7 6.94 7 0 :b; "
         "0 6.94 7 6.94 :b; "},
    {"AS", 0, "4 5.93 8.74 7.52 b; 4 5.93 7 5.93 :b; 7 6.94 7 5.93 :r; "},
    {"PC", 301, "7 6.94 7 0 :b&; 7 6.94 0 6.94 :b&; 4 5.93 4 0 :b~; 4 5.93 0 5.93 :b~; "},
    {"PC", 301,
     "a 3.9 -0.1 b; x 20 20 b; f(a) -0.8 6.1 b; f(x) 20 20 b; A 3.9 6.5 b; X 20 20 b; "
     "4 5.93 8.74 7.52 w~; 7 6.94 7 0 :b&; 0 6.94 7 6.94 :b&; 4 5.93 7 5.93 :b&; "
     "4 5.93 8.74 7.52 b&; 4 5.93 4 0 :b~; 0 5.93 4 5.93 :b~; 4 5.93 4 5.93 :b~; "
     "4 5.93 8.32 8.45 b~; 4 5.93 8.32 8.45 b~; "},
    {"AS", 0, "4 5.93 8.32 8.45 r2; "},
    {"AS", 0,
     "4 5.93 4 0 :b; 0 5.93 4 5.93 :b; "
     "1.5 3.66 1.5 0 :b; 0 3.66 1.5 3.66 :b; a 3.9 -0.1 b; x 1.4 -0.1 b; "
     "f(a) -0.8 6.1 b; f(x) -0.8 3.8 b; A 3.9 6.5 b; X 1.3 4.2 b; "},
    {"AS", 0, "4 5.93 0.29 2.57 b; 4 5.93 4 3.66 :b; 1.5 3.66 4 3.66 :r; "},
    {"PC", 251, "1.5 3.66 1.5 0 :b&; 1.5 3.66 0 3.66 :b&; 4 5.93 4 0 :b~; 4 5.93 0 5.93 :b~; "},
    {"PC", 251,
     "4 5.93 0.29 2.57 w; 1.5 3.66 1.5 0 :b&; 0 3.66 4 3.66 :b&; 4 5.93 0.29 2.57 b&; "
     "4 5.93 4 0 :b~; 0 5.93 4 5.93 :b~; 4 5.93 -0.35 3.46 b~; 4 5.93 -0.35 3.46 b~; "},
    {"AS", 0, "4 5.93 -0.35 3.46 r2; "},
    {"AS", 0, ""},
    {"AS", 0, Margin + "-5.6 -8 .. 5.6 8 b11209; a 0 -9.4 k; 0 0 0 -9 :k; "},
    {"PC", 1602, "0 0 6.5 2.6 b&; 0 0 5.82 -3.88 r; 0 0 -5.82 3.88 b~; 0 0 -5.82 3.88 r; "},
    {"AS", 0, Branches},
    {"PC", 8002, "0 6 5.96 -3.24 b&; 0 6 0 -5 r; 0 6 0 -5 b~; 0 6 0 -5 r; "},
    {"AS", 0, Branches},
    {"PC", 8002, "0 3 8.59 -3.87 b&; 0 3 11 3 r; 0 3 0 -8 b~; 0 3 0 -8 r; "},
    {"PC", 0, Branches},
    {"ASPC", 8002, "0 1 10.54 -2.16 b&; 0 1 0 12 r; 0 1 0 -7 b~; 0 1 0 -7 r; "},
    {"AS", 0, Branches},
    {"PC", 8002, "0 -2 10.03 2.51 b&; 0 -2 0 9 r; 0 -2 -8 -2 b~; 0 -2 -8 -2 r; "},
    {"AS", 0, Branches},
    {"PC", 8002, "0 -4 7.97 3.58 b&; 0 -4 0 7 r; 0 -4 0 4 b~; 0 -4 0 4 r; "},
    {"AS", 0, Margin + "-8 4 .. 0 -3.9 b16010; " + Vertical},
    {"PC", 8002, "0 -4 5.86 5.31 b&; 0 -4 0 7 r; 0 -4 0 4 b~; 0 -4 0 4 r; "},
    {"PC", 0, Margin + "-8 -5 .. 8 -5 b16000; -5 -2 .. 5 -2 r10000; " + Vertical},
};

struct Marker {
  int Index;
  double X, Y;
  std::string SpokenName = {};  // empty: the same on all pages
};
const double Root = std::sqrt(2);
const double Fa = std::sqrt(48) - 1, Fr = std::sqrt(63) - 1, Fl = std::sqrt(21.75) - 1;

// The visible markers with the points that they show, of a page and those after it.
const std::map<int, std::vector<Marker>> Markers = {
    {1, {}},
    {2, {{5, 2 * Root + 0.12, 2 * Root - 0.12, "Ponto de contacto"}}},  // it stands a little beside
    {3, {{5, 4, 1, "Ponto de intersecção"}}},
    {4, {{5, 0, 0, "Ponto P"}}},
    {5,
     {{0, 4, Fa},
      {1, 7, Fr},
      {5, 7, 0, "Abcissa x à direita"},
      {9, 4, 0},
      {11, 0, Fa},
      {12, 0, Fr}}},
    {6, {{1, 7, Fr}, {5, 7, 0}, {12, 0, Fr}}},
    {8, {}},
    {10, {{0, 4, Fa}, {2, 1.5, Fl}, {6, 1.5, 0}, {9, 4, 0}, {11, 0, Fa}, {14, 0, Fl}}},
    {12,
     {{0, 4, Fa}, {2, 1.5, Fl}, {4, 1.5, Fl}, {6, 1.5, 0}, {9, 4, 0}, {11, 0, Fa}, {14, 0, Fl}}},
    {13, {{0, 4, Fa}, {2, 4, Fa}, {4, 1.5, Fl}, {6, 4, 0}, {9, 4, 0}, {11, 0, Fa}, {14, 0, Fa}}},
    {16, {{10, 0, 0}}},
    {18, {{16, 0, 6}, {17, 0, 3}, {18, 0, -2}}},
    {20, {{16, 0, 3}, {18, 0, -2}}},
    {22, {{16, 0, 1}, {17, 0, 3}, {18, 0, -2}}},
    {24, {{16, 0, -2}, {17, 0, 3}}},
    {26, {{16, 0, -4}, {17, 0, 3}, {18, 0, -2}}},
    {28, {{10, -0.05, -4}, {16, 0, -4}}},
    {30, {{16, 0, 3}}},
};

// At the starts of the moving points, from page 10 on.
const std::vector<Marker> Rings = {{3, 7, Fr},   {7, 7, 0},   {13, 0, Fr},
                                   {4, 1.5, Fl}, {8, 1.5, 0}, {15, 0, Fl}};

// The lesson on a scripted machine, opened at page 0, with what it draws on record.
class LessonTest : public ApplicationTest {
 protected:
  LessonTest() {
    page.Show();
    Record();
  }

  void Record() {
    drawn.clear();
    host.Steps = 0;
    host.WaitedMilliseconds = 0;
    page.Picture1.Observer = [this](const Drawing& drawing) { drawn.push_back(drawing); };
  }

  // Walks forwards; the motions on the way run to their ends.
  void GoTo(int number) {
    for (int i = std::stoi(page.Label3.Caption()); i < number; ++i) {
      page.Seguinte.UserClick();
    }
    Record();
  }

  std::string EnabledButtons() const {
    std::string letters;
    for (const auto* button : {&page.Anterior, &page.Seguinte, &page.Parar, &page.Continuar}) {
      if (button->Enabled) {
        letters += button->Name().front();
      }
    }
    return letters;
  }

  // The numbers of the visible texts.
  std::string Texts() const {
    std::string numbers = page.Image5.Visible ? "definition " : "";
    for (int i = page.Image4.First(); i <= page.Image4.Last(); ++i) {
      if (page.Image4(i).Visible) {
        numbers += std::to_string(i);
      }
    }
    return numbers;
  }

  void ExpectAt(const std::vector<Marker>& markers) {
    const double corner = page.Picture1.ScaleWidth() == 11 ? 0.12 : 0.24;
    for (const auto& [index, x, y, name] : markers) {
      const forms::Image& image = page.Image1(index);
      EXPECT_EQ(image.Left / 15, std::floor(page.Picture1.LogicalX(x - corner))) << index;
      EXPECT_EQ(image.Top / 15, std::floor(page.Picture1.LogicalY(y + corner))) << index;
      if (!name.empty()) {
        EXPECT_EQ(image.SpokenName(), name);
      }
    }
  }

  void ExpectMarkersOf(int number) {
    const auto& markers = std::prev(Markers.upper_bound(number))->second;
    ExpectAt(markers);
    std::size_t visible = 0;
    for (int i = page.Image1.First(); i <= page.Image1.Last(); ++i) {
      visible += page.Image1(i).Visible;
    }
    EXPECT_EQ(visible, markers.size());
    for (const Marker& marker : markers) {
      EXPECT_TRUE(page.Image1(marker.Index).Visible) << marker.Index;
    }
  }

  // Shows the next page and tells its drawing as the table does.
  std::string ShowNext(const PageRow& row, const std::string& label) {
    Record();
    page.Picture1.Observer = [&](const Drawing& drawing) {
      if (drawn.empty()) {
        EXPECT_EQ(EnabledButtons() + page.Label3.Caption(), row.Buttons + label);
      }
      drawn.push_back(drawing);
    };
    std::vector<std::size_t> waits;
    host.EachStep = [&] {
      waits.push_back(drawn.size());
      rings = page.Image1(4).Visible && page.Image1(8).Visible && page.Image1(15).Visible;
    };
    page.Seguinte.UserClick();
    page.Picture1.Observer = nullptr;
    std::vector<Drawing> told;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
      if (waits.empty() || i < waits.front() || i >= waits.back() ||
          drawn[i].DrawMode == forms::CopyPen) {
        told.push_back(drawn[i]);
      }
    }
    return Told(told);
  }

  Form9& page = forms::The<Form9>();
  std::vector<Drawing> drawn;
  bool rings = false;  // whether a motion showed those of the left side in its last step
};

TEST_F(LessonTest, ShowsItsPagesOneByOneForwardsAndBack) {
  for (int number = 1; number <= 31; ++number) {
    SCOPED_TRACE(number);
    const PageRow& row = Pages[std::min(number, 30) - 1];
    EXPECT_EQ(ShowNext(row, std::to_string(number)), row.Drawing);
    ExpectMarkersOf(number);
    if (number == 12) {
      ExpectAt(Rings);
      EXPECT_TRUE(rings);
    }
    EXPECT_EQ(host.Steps, row.Steps);
    EXPECT_EQ(host.WaitedMilliseconds, 5 * row.Steps);
    EXPECT_EQ(EnabledButtons(), number == 1 ? "S" : number == 23 ? "ASPC" : "AS");
    EXPECT_EQ(page.Label3.Caption(), number < 30 ? std::to_string(number) : "Final");
    EXPECT_EQ(Texts(), (number == 1 ? "definition " : "") + std::to_string(std::min(number, 30)));
  }
  for (const int to : {28, 26, 24, 22, 20, 18, 16, 15, 5, 4, 3, 2, 1}) {
    page.Anterior.UserClick();
    EXPECT_EQ(page.Label3.Caption(), std::to_string(to));
    EXPECT_EQ(Texts(), (to == 1 ? "definition " : "") + std::to_string(to));
    EXPECT_EQ(page.Picture1.ScaleWidth(), to == 5 ? 11 : 20);
    if (to != 15) {
      ExpectMarkersOf(to);
    }
    if (to == 15 || to == 1) {  // the drawing before stays
      const int column = static_cast<int>(page.Picture1.LogicalX(to == 1 ? -4 : -9));
      EXPECT_EQ(page.Picture1.Kept().At(column, page.Picture1.Kept().Height() / 2),
                to == 1 ? forms::Blue : forms::Black);
    }
  }
  EXPECT_EQ(EnabledButtons(), "S");
}

TEST_F(LessonTest, OpensWithTheDefinition) {
  EXPECT_EQ(page.Label3.Caption(), "0");
  EXPECT_EQ(Texts(), "definition 0");
  EXPECT_EQ(EnabledButtons(), "S");
  EXPECT_TRUE(page.Parar.Visible && page.Continuar.Visible);
  EXPECT_EQ(page.Image4(7).Picture, "lesson/pagina_07");
  EXPECT_EQ(page.Image4(33).Picture, "");
  // The green disc of the cusp lies over the blue one.
  const auto& children = page.Picture1.Children();
  EXPECT_GT(std::find(children.begin(), children.end(), &page.Image1(10)),
            std::find(children.begin(), children.end(), &page.Image1(16)));
}

TEST_F(LessonTest, LeadsBackToTheStartOfADrawing) {
  // From further and further on; the other ways back are walked from the end.
  for (const auto& [from, to] : {std::pair{2, 1}, {6, 5}, {7, 5}, {13, 5}, {15, 5}, {17, 16}}) {
    GoTo(from);
    page.Anterior.UserClick();
    EXPECT_EQ(page.Label3.Caption(), std::to_string(to)) << from;
    EXPECT_TRUE(page.Picture1.DrawMode == forms::CopyPen || to > 5) << from;
  }
}

TEST_F(LessonTest, PausesAMotionWithItsFigureStanding) {
  GoTo(6);
  double place = 0;
  host.AtStep(100, [&] {
    place = page.Image1(5).Left;
    page.Parar.UserClick();
  });
  host.AtStep(120, [&] {
    EXPECT_TRUE(page.Continuar.Reachable() && !page.Parar.Visible);
    EXPECT_TRUE(page.Image1(7).Visible && page.Image1(13).Visible) << "the rings";
    EXPECT_EQ(page.Image1(5).Left(), place);
    EXPECT_EQ(drawn.back().DrawMode, forms::NotMergePen);
    page.Continuar.UserClick();
    EXPECT_TRUE(page.Parar.Visible && !page.Continuar.Visible && !page.Continuar.Enabled);
    page.HScroll1.UserScroll(10);
  });
  host.AtStep(220, [&] {
    page.HScroll1.UserScroll(0);
    host.Depth = 2;
    page.Parar.UserClick();
    EXPECT_TRUE(page.Parar.Visible) << "a pause that nothing could end is none";
  });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 301 + 20);
  EXPECT_EQ(host.WaitedMilliseconds, 100 * 5 + 100 * 10) << "the slider acts from the next step on";
}

TEST_F(LessonTest, CallsOtherPagesIntoAMotion) {
  GoTo(22);
  // A later page: it is shown once more after the motion.
  host.AtStep(10, [&] {
    page.Seguinte.UserClick();
    EXPECT_EQ(Texts(), "24");
    EXPECT_EQ(page.Picture1.DrawMode, forms::NotMergePen) << "as the motion has it";
  });
  host.AtStep(11, [&] { EXPECT_EQ(drawn.back().DrawMode, forms::NotMergePen); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 8002);
  EXPECT_NE(Told(drawn).find("cls"), Told(drawn).rfind("cls"));
  EXPECT_EQ(page.Label3.Caption(), "24");
  EXPECT_EQ(EnabledButtons(), "AS");

  // An earlier page: the motion goes on over its drawing.
  page.Anterior.UserClick();
  Record();
  host.AtStep(10, [&] { page.Anterior.UserClick(); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 8002);
  EXPECT_EQ(Texts() + EnabledButtons(), "22AS");
  EXPECT_EQ(drawn.back().Pen, forms::Red);

  // A motion in the motion: it changes the point A, and its page is shown once more.
  Record();
  host.AtStep(10, [&] {
    page.Seguinte.UserClick();
    page.Seguinte.UserClick();
    EXPECT_EQ(host.Steps, 10 + 8002);
  });
  host.AtStep(10 + 8002 + 1, [&] { EXPECT_EQ(drawn.back().Y1, -2); });
  page.Seguinte.UserClick();
  EXPECT_EQ(host.Steps, 3 * 8002);
  EXPECT_EQ(Texts(), "25");
}

}  // namespace
}  // namespace clinorama::tests
