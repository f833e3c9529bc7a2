#pragma once

#include <functional>
#include <string>
#include <vector>

#include "benchmarks/null_host.h"
#include "forms/application.h"
#include "forms/surface.h"
#include "tools/graph.h"

namespace clinorama::tools {

// What a page drew, joined to a few lines, in user coordinates.
struct Trace {
  enum class Kind {
    Curve,  // points one pixel wide, one beside the other
    Dot,    // points of a wider pen that lie together and look like one
    Line,
    Guide,  // a dotted line
  };
  Kind What = Kind::Curve;
  forms::Color Pen;
  std::vector<Point> Points;
};

// A page that is shown as long as this lives. What takes down its drawings is to be made after it.
template <class Kind>
class Opened {
 public:
  Opened() { page_.Show(); }
  ~Opened() { page_.UserClose(); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  Kind& Page() const { return page_; }

 private:
  Kind& page_ = forms::The<Kind>();
};

// Takes down what is drawn on a surface of the program. The axes are left out: each picture has its
// own.
class Recording {
 public:
  explicit Recording(forms::Surface& surface);
  ~Recording() { surface_.Observer = nullptr; }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  // What lies on the surface now, with the figure of a motion that is shown in passing.
  std::vector<Trace> Now() const;

 private:
  void Take(const forms::DrawingOperation& operation);
  void TakePoint(const forms::DrawingOperation& operation);
  void TakeLine(const forms::DrawingOperation& operation);

  forms::Surface& surface_;
  std::vector<Trace> traces_;
  std::vector<Trace> passing_;  // the figure of a motion, which inverts white to black
};

// A machine without windows, on which a picture can be taken in the middle of a motion.
class Studio : public benchmarks::NullHost {
 public:
  // Runs the motion that a click starts, and takes pictures in some of its steps, counted from 1.
  template <class Click, class TakePicture>
  void Watch(const std::vector<int>& steps, Click click, TakePicture takePicture) {
    step_ = 0;
    eachStep_ = [&] {
      for (const int step : steps) {
        if (step == step_) {
          takePicture();
        }
      }
    };
    click();
    eachStep_ = nullptr;
  }

  void Wait(int milliseconds) override;

 private:
  int step_ = 0;
  std::function<void()> eachStep_;
};

}  // namespace clinorama::tools
