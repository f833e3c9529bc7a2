#include "forms/picture_box.h"

#include <utility>

#include "forms/application.h"

namespace clinorama::forms {

PictureBox::PictureBox(Container& parent, std::string name, const Rect& rect,
                       std::string spokenName)
    : Container(parent, std::move(name), rect),
      Surface(rect.Width, rect.Height, Application::Current().TheHost().Density()) {
  AccessibleName = std::move(spokenName);
}

void PictureBox::Refresh() {
  if (++newPoints_ < PointsToPicture) {
    return;
  }
  newPoints_ = 0;
  Application::Current().TheHost().Flush(*this);
}

void PictureBox::PropertyChanged(const PropertyBase& property) {
  if (&property == &Visible && Visible) {
    newPoints_ = 0;
    Restore();
  }
  if (&property == &Width || &property == &Height) {
    Resize(Width, Height);
  }
  Container::PropertyChanged(property);
}

void PictureBox::ScreenChanged() { Application::Current().TheHost().Drawn(*this); }

void PictureBox::PaintText(Raster& raster, const TextRun& run) {
  Application::Current().TheHost().PaintText(raster, run);
}

}  // namespace clinorama::forms
