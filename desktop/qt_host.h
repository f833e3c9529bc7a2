#pragma once

#include <QElapsedTimer>
#include <map>
#include <optional>
#include <string>

#include "forms/host.h"

class QWidget;

namespace clinorama::desktop {

class PageWindow;

// The desktop as the pages' host: windows, dialogs and the event loop of the toolkit. It holds no
// rule of the program.
class QtHost : public forms::Host {
 public:
  QtHost();
  ~QtHost() override;

  double Density() const override;
  void Shown(forms::Page& page) override;
  void Hidden(forms::Page& page) override;
  void Unloaded(forms::Page& page) override;
  void Changed(forms::Control& control) override;
  void Drawn(forms::PictureBox& picture) override;
  void Flush(forms::PictureBox& picture) override;
  void PaintText(forms::Raster& raster, const forms::TextRun& run) override;
  void SetFocus(forms::Control& control) override;
  void MsgBox(const std::string& text, int style, const std::string& title) override;
  std::optional<forms::Color> ShowColor(forms::Color now) override;
  void Sleep(int milliseconds) override;
  // Does not return while the speed bar is held down.
  void DoEvents() override;
  [[noreturn]] void End() override;

 private:
  PageWindow* WindowOf(forms::Control& control);

  std::map<forms::Page*, PageWindow*> windows_;
  QElapsedTimer sinceFlush_;
};

}  // namespace clinorama::desktop
