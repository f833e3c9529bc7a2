#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/host.h"
#include "forms/picture_box.h"

namespace clinorama::tests {

// What ScriptedHost::End throws in the place of ending the process. It is no std::exception, so
// that it passes every handler on the stack and reaches the test.
struct ProgramEnded {};

// What stops a handler that waits for something its script never brings; see LongestWait.
struct WaitedForever {};

using MessageBox = std::tuple<std::string, int, std::string>;  // text, style, title

// A machine without windows and without a clock: what the user does is a script, and what the
// program did is kept for the test to read. A step is one wait; steps are counted from 1 since the
// host was made, and those of nested handlers count too.
class ScriptedHost final : public forms::Host {
 public:
  // More steps than any motion has: beyond them a handler is taken to wait for ever.
  static constexpr int LongestWait = 100'000;

  double DeviceDensity = 1;
  int Depth = forms::GreatestDepth;
  std::optional<forms::Color> ChosenColor;  // what the user chooses; nothing: cancels
  std::function<void()> DuringMessageBox;   // runs while a box is open
  std::function<void()> EachStep;           // runs in every step, before the step's own actions

  long long WaitedMilliseconds = 0;
  int Steps = 0;
  std::vector<MessageBox> MessageBoxes;
  std::vector<std::string> PageCalls;  // such as "Shown Form12", "Hidden ...", "Unloaded ..."
  std::vector<const forms::Control*> Changes;
  std::vector<const forms::PictureBox*> Flushes;
  std::vector<std::string> Focused;  // the names of controls
  std::vector<forms::Color> ColorsOffered;
  std::vector<forms::TextRun> Texts;
  int DrawnCalls = 0;

  // Has the user do something in a step; several actions of one step run in the order given.
  void AtStep(int step, std::function<void()> action) { script_.emplace(step, std::move(action)); }

  double Density() const override { return DeviceDensity; }
  void Shown(forms::Page& page) override { PageCalls.push_back("Shown " + page.Name()); }
  void Hidden(forms::Page& page) override { PageCalls.push_back("Hidden " + page.Name()); }
  void Unloaded(forms::Page& page) override { PageCalls.push_back("Unloaded " + page.Name()); }
  void Changed(forms::Control& control) override { Changes.push_back(&control); }
  void Drawn(forms::PictureBox& /*picture*/) override { ++DrawnCalls; }
  void Flush(forms::PictureBox& picture) override {
    picture.TakeDirty();
    Flushes.push_back(&picture);
  }
  void PaintText(forms::Raster& /*raster*/, const forms::TextRun& run) override {
    Texts.push_back(run);
  }
  void SetFocus(forms::Control& control) override { Focused.push_back(control.Name()); }
  void MsgBox(const std::string& text, int style, const std::string& title) override {
    MessageBoxes.emplace_back(text, style, title);
    if (DuringMessageBox) {
      DuringMessageBox();
    }
  }
  std::optional<forms::Color> ShowColor(forms::Color now) override {
    ColorsOffered.push_back(now);
    return ChosenColor;
  }
  int GreatestDepth() const override { return Depth; }
  void Wait(int milliseconds) override {
    WaitedMilliseconds += milliseconds;
    WaitForEvents();
  }
  void WaitForEvents() override {
    if (++Steps > LongestWait) {
      ADD_FAILURE() << "A handler waits for ever: it waited " << Steps << " times.";
      throw WaitedForever{};
    }
    const int step = Steps;  // nested steps count it on
    if (EachStep) {
      EachStep();
    }
    while (script_.contains(step)) {
      const auto action = script_.extract(script_.lower_bound(step));
      action.mapped()();
    }
  }
  [[noreturn]] void End() override { throw ProgramEnded{}; }

 private:
  std::multimap<int, std::function<void()>> script_;
};

// A test with a program of its own, on a scripted host.
class ApplicationTest : public testing::Test {
 protected:
  ScriptedHost host;
  forms::Application application{host};
};

}  // namespace clinorama::tests
