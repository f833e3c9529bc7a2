#pragma once

#include <optional>
#include <set>
#include <string>

#include "browser/document.h"
#include "browser/numbers.h"
#include "forms/host.h"

namespace clinorama::browser {

// A document as the pages' host. What the user does lies in a queue of the document until a wait
// delivers it, nested. What pages change is collected and shown before the browser gets its turn,
// in a motion once a frame, as no more could be seen. It holds no rule of the program.
class BrowserHost final : public forms::Host {
 public:
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
  void Wait(int milliseconds) override;
  void WaitForEvents() override;
  [[noreturn]] void End() override;

  // Delivers events until the program ends.
  [[noreturn]] void Run();

 private:
  void FitSurfaces(forms::Control& container);
  void ShowChanges();
  void DeliverEvents();
  void Deliver(const document::Event& event);

  Numbers numbers_;
  std::set<int> changed_;  // controls, until the changes are shown
  std::set<int> drawn_;    // surfaces
  int stepsOfFrame_ = 0;   // of motions, since changes were shown
};

}  // namespace clinorama::browser
