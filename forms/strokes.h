#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "forms/color.h"
#include "forms/font.h"

namespace clinorama::forms {

// A position on a surface, as shares of its width and height: 0 is the left or upper edge, 1 the
// other one.
struct Place {
  double X = 0;
  double Y = 0;
  bool operator==(const Place&) const = default;
};

// What the painting of a figure needs beside its places.
struct Stroke {
  enum class Figure {
    Line,    // both ends
    Point,   // its centre
    Circle,  // its centre, and its point on the right
    Text,    // its upper left corner
  };
  Figure What = Figure::Line;
  Color Pen;
  int DrawMode = 0;
  int DrawStyle = 0;
  int DrawWidth = 1;
  bool Kept = false;  // whether it goes to the kept picture too
  bool operator==(const Stroke&) const = default;
};

// A text with its letters; of no use to other figures.
struct Writing {
  std::string Text;
  forms::Font Font;
};

// All figures since a surface was wiped, in their order, so that they can be painted again in other
// pixels. A curve has tens of thousands of points, so alike figures share their stroke.
class Strokes {
 public:
  // So many places take 16 MB. Beyond them nothing is remembered.
  static constexpr std::size_t MostPlaces = 1 << 20;

  void Clear() { *this = Strokes(); }

  // A black line that is taken away again right after it was drawn is forgotten: it leaves nothing.
  // `writing` is null but for a text.
  void Add(const Stroke& stroke, std::span<const Place> places, const Writing* writing = nullptr);

  // Forgets the figures that are not on the kept picture.
  void DropPassing();

  // Whether there was room for all of them.
  bool Complete() const { return complete_; }

  // Calls `paint` for each figure, with its stroke, its places and its writing.
  template <class Paint>
  void ForEach(Paint paint) const {
    const Place* places = places_.data();
    const Writing* writing = writings_.data();
    for (const Run& run : runs_) {
      const bool written = run.Look.What == Stroke::Figure::Text;
      for (std::size_t i = 0; i < run.Figures; ++i, places += run.PlacesOfEach) {
        paint(run.Look, std::span(places, run.PlacesOfEach), written ? writing++ : nullptr);
      }
    }
  }

 private:
  // Figures of the same look that follow each other.
  struct Run {
    Stroke Look;
    std::size_t PlacesOfEach;
    std::size_t Figures;
  };

  bool TakesAway(const Stroke& stroke, std::span<const Place> places) const;

  std::vector<Run> runs_;
  std::vector<Place> places_;
  std::vector<Writing> writings_;
  bool complete_ = true;
};

}  // namespace clinorama::forms
