#pragma once

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "forms/host.h"
#include "forms/picture_box.h"

namespace clinorama::benchmarks {

// A machine without windows and without a clock: nothing is shown, and nobody answers. What is left
// is the program's own work.
class NullHost : public forms::Host {
 public:
  explicit NullHost(double density = 1) : density_(density) {}

  double Density() const override { return density_; }
  void Shown(forms::Page& /*page*/) override {}
  void Hidden(forms::Page& /*page*/) override {}
  void Unloaded(forms::Page& /*page*/) override {}
  void Changed(forms::Control& /*control*/) override {}
  void Drawn(forms::PictureBox& /*picture*/) override {}
  void Flush(forms::PictureBox& /*picture*/) override {}
  void PaintText(forms::Raster& /*raster*/, const forms::TextRun& /*run*/) override {}
  void SetFocus(forms::Control& /*control*/) override {}
  void MsgBox(const std::string& text, int /*style*/, const std::string& /*title*/) override {
    std::cerr << text << '\n';
    std::exit(1);
  }
  std::optional<forms::Color> ShowColor(forms::Color /*now*/) override { return std::nullopt; }
  void Wait(int /*milliseconds*/) override {}
  void WaitForEvents() override {}
  [[noreturn]] void End() override { std::exit(0); }

 private:
  double density_;  // device pixels to a logical pixel
};

}  // namespace clinorama::benchmarks
