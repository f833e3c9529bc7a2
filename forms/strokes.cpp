#include "forms/strokes.h"

#include <algorithm>
#include <utility>

#include "forms/raster.h"

namespace clinorama::forms {

void Strokes::Add(const Stroke& stroke, std::span<const Place> places, const Writing* writing) {
  if (TakesAway(stroke, places)) {
    places_.resize(places_.size() - places.size());
    if (--runs_.back().Figures == 0) {
      runs_.pop_back();
    }
    return;
  }
  if (places_.size() + places.size() > MostPlaces) {
    Clear();
    complete_ = false;
  }
  if (!complete_) {
    return;
  }
  if (runs_.empty() || runs_.back().Look != stroke) {
    runs_.push_back({stroke, places.size(), 0});
  }
  ++runs_.back().Figures;
  places_.insert(places_.end(), places.begin(), places.end());
  if (writing != nullptr) {
    writings_.push_back(*writing);
  }
}

// A pen that is drawn by NotMerge and then by Invert adds its bits to the pixels; black has none.
bool Strokes::TakesAway(const Stroke& stroke, std::span<const Place> places) const {
  if (stroke.DrawMode != static_cast<int>(RasterOperation::Invert) || runs_.empty()) {
    return false;
  }
  Stroke drawn = stroke;
  drawn.DrawMode = static_cast<int>(RasterOperation::NotMerge);
  return drawn.Pen == Black && runs_.back().Look == drawn &&
         std::equal(places.begin(), places.end(), places_.end() - std::ssize(places));
}

void Strokes::DropPassing() {
  if (std::all_of(runs_.begin(), runs_.end(), [](const Run& run) { return run.Look.Kept; })) {
    return;
  }
  Strokes kept;
  kept.complete_ = complete_;
  ForEach([&](const Stroke& stroke, std::span<const Place> places, const Writing* writing) {
    if (stroke.Kept) {
      kept.Add(stroke, places, writing);
    }
  });
  *this = std::move(kept);
}

}  // namespace clinorama::forms
