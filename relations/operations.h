#pragma once

#include <limits>
#include <string>
#include <vector>

#include "relations/Form13.h"
#include "relations/recovery.h"
#include "relations/sampling.h"

namespace clinorama::relations {

// What an operation does before it samples, in its own order.
enum class Preparation {
  RefuseEmpty,    // an empty box ends the operation with a message
  ShowHourglass,  // until the end of the operation
  ShowLive,       // shows the live canvas and hides the persistent one, until the end
};

// The message box of a failure that is reported.
struct FailureReport {
  int Style;
  const char* Title;
};

// How an operation begins, and what it does about an empty box and about failures. Several
// operations share a procedure.
struct Procedure {
  std::vector<Preparation> Preparations;
  const char* EmptyMessage;
  bool FocusWhenEmpty = false;  // the box gets the focus after the message
  Convention OnFailure;
  FailureReport Report{};  // for ReportAndStop
};

// An interval without its ends.
struct OpenInterval {
  double Above = -std::numeric_limits<double>::infinity();
  double Below = std::numeric_limits<double>::infinity();

  bool Holds(double value) const { return value > Above && value < Below; }
};

// Stands for the colour of the curve's chooser where a number of the palette is expected.
constexpr int CurveColor = -1;

// Where a sample passes the test, a point is plotted in the colour.
struct PointRule {
  bool (*Test)(const Sample& sample);
  int Color;        // QBColor number, or CurveColor
  double Lift = 0;  // distance of the point above the sample's value, in user units
};

}  // namespace clinorama::relations

namespace clinorama {

// What a drawing button does: a row of the table in operations.cpp.
struct Form13::Operation {
  forms::CommandButton Form13::*Button;
  Window Form13::*On;
  const relations::Procedure& Procedure;
  relations::Strategy Sampling;
  relations::Range Over;
  relations::OpenInterval Values;  // of the samples that may be plotted
  // Plots only where Solution is not 0. A failure to read it counts as a test passed.
  bool NotOnZeros = false;
  std::vector<relations::PointRule> Rules;
  bool OnBothCanvases = true;  // false: on the persistent one only, which need not be in view
  bool AtSolution = false;     // the ordinate of the point is Solution, read again
  int DotSize = 1;             // pixels across
  void (*AtEnd)(Form13& page) = nullptr;
};

}  // namespace clinorama
