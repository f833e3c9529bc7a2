#pragma once

#include <string>

#include "forms/control.h"
#include "forms/surface.h"

namespace clinorama::forms {

// A surface on a page, with pictures lying on it.
class PictureBox : public Container, public Surface {
 public:
  PictureBox(Container& parent, std::string name, const Rect& rect, std::string spokenName);

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  // Puts what was drawn on the screen now, from inside a handler.
  void Refresh();

 protected:
  void PropertyChanged(const PropertyBase& property) override;
  void ScreenChanged() override;
  void PaintText(Raster& raster, const TextRun& run) override;
};

}  // namespace clinorama::forms
