// The twelve drawing buttons, each told once and in full by its row. Rows that look alike differ
// where this table shows it and nowhere else.

#include "relations/operations.h"

#include "forms/application.h"

namespace clinorama {

using namespace relations;

namespace {

constexpr const char* ShortMessage = "Deve escrever a expressão analítica da função.";
constexpr const char* LongMessage =
    "Deve escrever a expressão analítica da função que pretende representar graficamente.";

constexpr auto RefuseEmpty = Preparation::RefuseEmpty;
constexpr auto ShowHourglass = Preparation::ShowHourglass;
constexpr auto ShowLive = Preparation::ShowLive;

const Manner PlotOfFunction{.Preparations = {RefuseEmpty, ShowHourglass, ShowLive},
                            .EmptyMessage = LongMessage,
                            .FocusWhenEmpty = true,
                            .OnFailure = Convention::ReportAndStop,
                            .FailureBox = {forms::InformationBox, "Relações"}};
const Manner ColouringOfFunction{.Preparations = {RefuseEmpty, ShowLive},
                                 .EmptyMessage = LongMessage,
                                 .FocusWhenEmpty = true,
                                 .OnFailure = Convention::ReportAndStop,
                                 .FailureBox = {forms::PlainBox, forms::ProgramTitle}};
// The live canvas comes first here, and stays in front when the box is empty.
const Manner CurveOfDerivative{.Preparations = {ShowLive, RefuseEmpty, ShowHourglass},
                               .EmptyMessage = ShortMessage,
                               .OnFailure = Convention::SkipSilently};
const Manner ZerosOfDerivative{.Preparations = {RefuseEmpty, ShowHourglass, ShowLive},
                               .EmptyMessage = ShortMessage,
                               .OnFailure = Convention::SkipSilently};
// Dots on the function change no canvas: before the first drawing they are not seen.
const Manner ExtremaOfFunction{.Preparations = {RefuseEmpty, ShowHourglass},
                               .EmptyMessage = ShortMessage,
                               .OnFailure = Convention::Ignore};
const Manner InflexionsOfFunction{.Preparations = {RefuseEmpty, ShowHourglass},
                                  .EmptyMessage = ShortMessage,
                                  .FocusWhenEmpty = true,
                                  .OnFailure = Convention::Ignore};

// How dense the samples are.
constexpr Range Fine = {-8, 8, 0.0005};
constexpr Range Medium = {-8, 8, 0.001};
constexpr Range Coarse = {-8, 8, 0.01};
constexpr Range MediumAndBeyond = {-8.1, 8.1, 0.001};

constexpr Interval Graduated = {-8, 8};
constexpr Interval NearZero = {-0.01, 0.01};
constexpr Interval Anywhere = {};

constexpr int Green = 10;    // increasing; the first derivative is positive
constexpr int Red = 12;      // decreasing; negative
constexpr int Cyan = 11;     // concave upward; the second derivative is positive
constexpr int Magenta = 13;  // concave downward; negative
constexpr int Extremum = Red;
constexpr int Inflexion = Green;

// Tests of a sample; the strategies say what its value is compared with.
bool Any(const Sample& /*sample*/) { return true; }
bool NotZero(const Sample& sample) { return sample.Value != 0; }
bool Above(const Sample& sample) { return sample.Value > sample.Reference; }
bool Below(const Sample& sample) { return sample.Value < sample.Reference; }
bool Level(const Sample& sample) { return sample.Value == sample.Reference; }
bool NotBelow(const Sample& sample) { return sample.Value >= sample.Reference; }
bool NotAbove(const Sample& sample) { return sample.Value <= sample.Reference; }
// Not below or not above both neighbours: flat stretches pass, and so do the ends of a domain.
bool AtExtremum(const Sample& sample) {
  const double y = sample.Value;
  return (sample.Reference <= y && y >= sample.SecondReference) ||
         (sample.Reference >= y && y <= sample.SecondReference);
}

}  // namespace

const std::vector<Form13::Operation>& Form13::Operations() {
  static const std::vector<Operation> table = {
      // Curves, in the colours of the choosers. True zeros of the function are left out.
      {.Button = &Form13::DesenharGráfico,
       .On = &Form13::JanelaFunção,
       .Manners = PlotOfFunction,
       .Sampling = Values,
       .Over = Fine,
       .Values = Graduated,
       .Marks = {{NotZero, CurveColor}}},
      {.Button = &Form13::DesenharPrimeira,
       .On = &Form13::JanelaPrimeira,
       .Manners = CurveOfDerivative,
       .Sampling = FirstQuotients,
       .Over = Medium,
       .Values = Graduated,
       .Marks = {{Any, CurveColor}}},
      {.Button = &Form13::DesenharSegunda,
       .On = &Form13::JanelaSegunda,
       .Manners = CurveOfDerivative,
       .Sampling = SecondQuotients,
       .Over = Medium,
       .Values = Graduated,
       .Marks = {{Any, CurveColor}}},

      // Monotony. On the function a level stretch shows in both colours, a little apart.
      {.Button = &Form13::ColocarCoresFunção,
       .On = &Form13::JanelaFunção,
       .Manners = ColouringOfFunction,
       .Sampling = ForwardPairs,
       .Over = Fine,
       .Values = Graduated,
       .Marks = {{Above, Green}, {Below, Red}, {Level, Green, -0.02}, {Level, Red, 0.01}},
       .AtEnd = [](Form13& page) { page.ModoCoresFunção = 1; }},
      {.Button = &Form13::ColocarCoresPrimeira1,
       .On = &Form13::JanelaPrimeira,
       .Manners = CurveOfDerivative,
       .Sampling = FirstQuotients,
       .Over = Medium,
       .Values = Graduated,
       .NotOnZeros = true,
       .Marks = {{Above, Green}, {Below, Red}}},

      // Concavity. A second derivative of 0 shows below its axis; a function on its chord counts as
      // both, with the later colour on top.
      {.Button = &Form13::ColocarCoresFunção2,
       .On = &Form13::JanelaFunção,
       .Manners = ColouringOfFunction,
       .Sampling = Chords,
       .Over = Medium,
       .Values = Graduated,
       .Marks = {{NotAbove, Cyan}, {NotBelow, Magenta}},
       .AtEnd = [](Form13& page) { page.ModoCoresFunção = 2; }},
      {.Button = &Form13::ColocarCoresPrimeira2,
       .On = &Form13::JanelaPrimeira,
       .Manners = CurveOfDerivative,
       .Sampling = AdjacentQuotients,
       .Over = Medium,
       .Values = Graduated,
       .NotOnZeros = true,
       .Marks = {{Above, Cyan}, {Below, Magenta}}},
      {.Button = &Form13::ColocarCoresSegunda,
       .On = &Form13::JanelaSegunda,
       .Manners = CurveOfDerivative,
       .Sampling = StoredSecondQuotients,
       .Over = Medium,
       .Values = Graduated,
       .Marks = {{Above, Cyan}, {Below, Magenta}, {Level, Cyan, -0.1}},
       .AtEnd = [](Form13& page) { page.ModoCoresSegunda = 1; }},

      // Special points, as dots. What the dots of the function leave on the pen shows nowhere.
      {.Button = &Form13::ExtremosFunção,
       .On = &Form13::JanelaFunção,
       .Manners = ExtremaOfFunction,
       .Sampling = Neighbours,
       .Over = Medium,
       .Values = Graduated,
       .Marks = {{AtExtremum, Extremum}},
       .OnBothCanvases = false,
       .DotSize = 7,
       .AtEnd = [](Form13& page) { page.Persistent(page.JanelaFunção).FillStyle = 1; }},
      {.Button = &Form13::InflexõesFunção,
       .On = &Form13::JanelaFunção,
       .Manners = InflexionsOfFunction,
       .Sampling = TurningChords,
       .Over = Coarse,
       .Values = Anywhere,
       .Marks = {{Any, Inflexion}},
       .OnBothCanvases = false,
       .AtSolution = true,
       .DotSize = 7,
       .AtEnd =
           [](Form13& page) {
             page.Persistent(page.JanelaFunção).ForeColor = forms::Black;
             page.Persistent(page.JanelaFunção).FillColor = forms::Red;
           }},
      {.Button = &Form13::ZerosPrimeira,
       .On = &Form13::JanelaPrimeira,
       .Manners = ZerosOfDerivative,
       .Sampling = FirstQuotients,
       .Over = Medium,
       .Values = NearZero,
       .Marks = {{Any, Extremum}},
       .DotSize = 5},
      {.Button = &Form13::ZerosSegunda,
       .On = &Form13::JanelaSegunda,
       .Manners = ZerosOfDerivative,
       .Sampling = SecondQuotients,
       .Over = MediumAndBeyond,
       .Values = NearZero,
       .Marks = {{Any, Inflexion}},
       .DotSize = 5},
  };
  return table;
}

}  // namespace clinorama
