#pragma once

#include <string>

#include "forms/control.h"
#include "forms/surface.h"

namespace clinorama::forms {

// How many points a curve grows by from one picture on the screen to the next: at 60 pictures in a
// second, a curve of 48,000 points takes about a second to appear.
inline constexpr int PointsToPicture = 800;

// A surface on a page, with pictures lying on it.
class PictureBox : public Container, public Surface {
 public:
  PictureBox(Container& parent, std::string name, const Rect& rect, std::string spokenName);

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  // Tells, from inside a handler, that another point of a curve was drawn. Every PointsToPicture of
  // them are shown together.
  void Refresh();

 protected:
  void PropertyChanged(const PropertyBase& property) override;
  void ScreenChanged() override;
  void PaintText(Raster& raster, const TextRun& run) override;

 private:
  int newPoints_ = 0;  // since the last picture
};

}  // namespace clinorama::forms
