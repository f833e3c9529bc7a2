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
  ShowLive,       // brings the live canvas to the front, and the persistent one back at the end
};

// A message box for failures, where they are reported.
struct Report {
  int Style;
  const char* Title;
};

// The manners that several operations share.
struct Manner {
  std::vector<Preparation> Preparations;
  const char* EmptyMessage;
  bool FocusWhenEmpty = false;  // the box gets the focus after the message
  Convention OnFailure;
  Report FailureBox{};  // for ReportAndStop
};

// An open interval.
struct Interval {
  double Above = -std::numeric_limits<double>::infinity();
  double Below = std::numeric_limits<double>::infinity();

  bool Holds(double value) const { return value > Above && value < Below; }
};

// The colour of the curve's chooser, in the place of a number of the palette.
constexpr int CurveColor = -1;

// A point that is plotted where a sample passes a test.
struct Mark {
  bool (*Test)(const Sample& sample);
  int Color;        // QBColor number, or CurveColor
  double Lift = 0;  // how far above the sample's value the point stands, user units
};

}  // namespace clinorama::relations

namespace clinorama {

// What a drawing button does: a row of the table in operations.cpp.
struct Form13::Operation {
  forms::CommandButton Form13::*Button;
  Window Form13::*On;
  const relations::Manner& Manners;
  relations::Strategy Sampling;
  relations::Range Over;
  relations::Interval Values;  // of the samples that may be plotted
  bool NotOnZeros = false;     // Solution must not be 0, and a failure to read it fails the test
  std::vector<relations::Mark> Marks;
  bool OnBothCanvases = true;  // else on the persistent one only
  bool AtSolution = false;     // the ordinate plotted is read from Solution once more
  int DotSize = 1;             // pixels across
  void (*AtEnd)(Form13& page) = nullptr;
};

}  // namespace clinorama
