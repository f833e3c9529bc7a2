// The table of the twelve drawing buttons. A row holds all that is particular to its button.

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

const Procedure PlotOfFunction{.Preparations = {RefuseEmpty, ShowHourglass, ShowLive},
                               .EmptyMessage = LongMessage,
                               .FocusWhenEmpty = true,
                               .OnFailure = Convention::ReportAndStop,
                               .Report = {forms::InformationBox, "Relações"}};
const Procedure ColouringOfFunction{.Preparations = {RefuseEmpty, ShowLive},
                                    .EmptyMessage = LongMessage,
                                    .FocusWhenEmpty = true,
                                    .OnFailure = Convention::ReportAndStop,
                                    .Report = {forms::PlainBox, forms::ProgramTitle}};
// The live canvas is shown first, so it stays in view when the box is empty.
const Procedure CurveOfDerivative{.Preparations = {ShowLive, RefuseEmpty, ShowHourglass},
                                  .EmptyMessage = ShortMessage,
                                  .OnFailure = Convention::SkipSilently};
const Procedure ZerosOfDerivative{.Preparations = {RefuseEmpty, ShowHourglass, ShowLive},
                                  .EmptyMessage = ShortMessage,
                                  .OnFailure = Convention::SkipSilently};
// Dots on the function swap no canvases: before the first drawing they are not seen.
const Procedure ExtremaOfFunction{.Preparations = {RefuseEmpty, ShowHourglass},
                                  .EmptyMessage = ShortMessage,
                                  .OnFailure = Convention::Ignore};
const Procedure InflexionsOfFunction{.Preparations = {RefuseEmpty, ShowHourglass},
                                     .EmptyMessage = ShortMessage,
                                     .FocusWhenEmpty = true,
                                     .OnFailure = Convention::Ignore};

// Which abscissas are sampled.
constexpr Range Fine = {-8, 8, 0.0005};
constexpr Range Medium = {-8, 8, 0.001};
constexpr Range Coarse = {-8, 8, 0.01};
constexpr Range MediumAndBeyond = {-8.1, 8.1, 0.001};

constexpr OpenInterval Graduated = {-8, 8};
constexpr OpenInterval NearZero = {-0.01, 0.01};
constexpr OpenInterval Anywhere = {};

constexpr int Green = 10;    // increasing; the first derivative is positive
constexpr int Red = 12;      // decreasing; negative
constexpr int Cyan = 11;     // concave upward; the second derivative is positive
constexpr int Magenta = 13;  // concave downward; negative
constexpr int Extremum = Red;
constexpr int Inflexion = Green;

// Tests of a sample. sampling.h says what each strategy compares the value with.
bool Any(const Sample& /*sample*/) { return true; }
bool NotZero(const Sample& sample) { return sample.Value != 0; }
bool Above(const Sample& sample) { return sample.Value > sample.Reference; }
bool Below(const Sample& sample) { return sample.Value < sample.Reference; }
bool Level(const Sample& sample) { return sample.Value == sample.Reference; }
bool NotBelow(const Sample& sample) { return sample.Value >= sample.Reference; }
bool NotAbove(const Sample& sample) { return sample.Value <= sample.Reference; }
// Not below, or not above, both neighbours. A constant function passes, and so do the ends of a
// domain.
bool AtExtremum(const Sample& sample) {
  const double y = sample.Value;
  return (sample.Reference <= y && y >= sample.SecondReference) ||
         (sample.Reference >= y && y <= sample.SecondReference);
}

}  // namespace

const std::vector<Form13::Operation> Form13::Operations = {
    // Curves, in the colours of the choosers. Zeros of the function are left out.
    {.Button = &Form13::DesenharGráfico,
     .On = &Form13::functionWindow_,
     .Procedure = PlotOfFunction,
     .Sampling = Values,
     .Over = Fine,
     .Values = Graduated,
     .Rules = {{NotZero, CurveColor}}},
    {.Button = &Form13::DesenharPrimeira,
     .On = &Form13::firstWindow_,
     .Procedure = CurveOfDerivative,
     .Sampling = FirstQuotients,
     .Over = Medium,
     .Values = Graduated,
     .Rules = {{Any, CurveColor}}},
    {.Button = &Form13::DesenharSegunda,
     .On = &Form13::secondWindow_,
     .Procedure = CurveOfDerivative,
     .Sampling = SecondQuotients,
     .Over = Medium,
     .Values = Graduated,
     .Rules = {{Any, CurveColor}}},

    // Monotony. Where the function is constant both colours show, one a little above the other.
    {.Button = &Form13::ColocarCoresFunção,
     .On = &Form13::functionWindow_,
     .Procedure = ColouringOfFunction,
     .Sampling = ForwardPairs,
     .Over = Fine,
     .Values = Graduated,
     .Rules = {{Above, Green}, {Below, Red}, {Level, Green, -0.02}, {Level, Red, 0.01}},
     .AtEnd = [](Form13& page) { page.ModoCoresFunção = 1; }},
    {.Button = &Form13::ColocarCoresPrimeira1,
     .On = &Form13::firstWindow_,
     .Procedure = CurveOfDerivative,
     .Sampling = FirstQuotients,
     .Over = Medium,
     .Values = Graduated,
     .NotOnZeros = true,
     .Rules = {{Above, Green}, {Below, Red}}},

    // Concavity. A second derivative of 0 shows below its axis. Where the function lies on its
    // chord both colours are plotted, and the later one stays visible.
    {.Button = &Form13::ColocarCoresFunção2,
     .On = &Form13::functionWindow_,
     .Procedure = ColouringOfFunction,
     .Sampling = Chords,
     .Over = Medium,
     .Values = Graduated,
     .Rules = {{NotAbove, Cyan}, {NotBelow, Magenta}},
     .AtEnd = [](Form13& page) { page.ModoCoresFunção = 2; }},
    {.Button = &Form13::ColocarCoresPrimeira2,
     .On = &Form13::firstWindow_,
     .Procedure = CurveOfDerivative,
     .Sampling = AdjacentQuotients,
     .Over = Medium,
     .Values = Graduated,
     .NotOnZeros = true,
     .Rules = {{Above, Cyan}, {Below, Magenta}}},
    {.Button = &Form13::ColocarCoresSegunda,
     .On = &Form13::secondWindow_,
     .Procedure = CurveOfDerivative,
     .Sampling = StoredSecondQuotients,
     .Over = Medium,
     .Values = Graduated,
     .Rules = {{Above, Cyan}, {Below, Magenta}, {Level, Cyan, -0.1}},
     .AtEnd = [](Form13& page) { page.ModoCoresSegunda = 1; }},

    // Special points, as dots. The settings at the end of the first two rows change nothing
    // visible.
    {.Button = &Form13::ExtremosFunção,
     .On = &Form13::functionWindow_,
     .Procedure = ExtremaOfFunction,
     .Sampling = Neighbours,
     .Over = Medium,
     .Values = Graduated,
     .Rules = {{AtExtremum, Extremum}},
     .OnBothCanvases = false,
     .DotSize = 7,
     .AtEnd = [](Form13& page) { page.Persistent(page.functionWindow_).FillStyle = 1; }},
    {.Button = &Form13::InflexõesFunção,
     .On = &Form13::functionWindow_,
     .Procedure = InflexionsOfFunction,
     .Sampling = TurningChords,
     .Over = Coarse,
     .Values = Anywhere,
     .Rules = {{Any, Inflexion}},
     .OnBothCanvases = false,
     .AtSolution = true,
     .DotSize = 7,
     .AtEnd =
         [](Form13& page) {
           page.Persistent(page.functionWindow_).ForeColor = forms::Black;
           page.Persistent(page.functionWindow_).FillColor = forms::Red;
         }},
    {.Button = &Form13::ZerosPrimeira,
     .On = &Form13::firstWindow_,
     .Procedure = ZerosOfDerivative,
     .Sampling = FirstQuotients,
     .Over = Medium,
     .Values = NearZero,
     .Rules = {{Any, Extremum}},
     .DotSize = 5},
    {.Button = &Form13::ZerosSegunda,
     .On = &Form13::secondWindow_,
     .Procedure = ZerosOfDerivative,
     .Sampling = SecondQuotients,
     .Over = MediumAndBeyond,
     .Values = NearZero,
     .Rules = {{Any, Inflexion}},
     .DotSize = 5},
};

}  // namespace clinorama
