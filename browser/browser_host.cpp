#include "browser/browser_host.h"

#include <emscripten.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "browser/description.h"
#include "browser/json.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "forms/letters.h"
#include "forms/picture_box.h"

namespace clinorama::browser {
namespace {

constexpr int MillisecondsOfFrame = 16;

// A motion that waits for nothing makes so many steps from one frame of the screen to the next: the
// tangent then runs along a graph in four seconds, as it does on the desktop.
constexpr int StepsToFrame = 100;

// Passes on what the user did to a control.
class Delivery final : public forms::ControlVisitor {
 public:
  explicit Delivery(const document::Event& event) : event_(event) {}

  void Visit(forms::Label& label) override {
    event_.Kind == document::EventKind::Click ? label.UserClick() : label.UserDoubleClick();
  }
  void Visit(forms::TextBox& box) override { box.UserType(event_.Text); }
  void Visit(forms::CommandButton& button) override { button.UserClick(); }
  void Visit(forms::OptionButton& option) override { option.UserClick(); }
  void Visit(forms::CheckBox& box) override { box.Value = event_.Value != 0; }
  void Visit(forms::Frame& /*frame*/) override {}
  void Visit(forms::Image& /*image*/) override {}
  void Visit(forms::HScrollBar& bar) override {
    if (event_.Kind == document::EventKind::Hold) {
      bar.UserHold(event_.Value != 0);
    } else {
      bar.UserScroll(bar.Min + (bar.Min <= bar.Max ? event_.Value : -event_.Value));
    }
  }
  void Visit(forms::PictureBox& /*picture*/) override {}

 private:
  const document::Event& event_;
};

}  // namespace

double BrowserHost::Density() const { return document::Density(); }

void BrowserHost::Shown(forms::Page& page) {
  if (numbers_.Of(&page) == 0) {
    numbers_.Add(page);
    document::CreatePage(DescriptionOfAll(page, numbers_));
    FitSurfaces(page);
  }
  document::ShowPage(numbers_.Of(&page));
}

// Shows all that they hold: the document does not know it yet, or no longer.
void BrowserHost::FitSurfaces(forms::Control& container) {
  for (forms::Control* child : container.Children()) {
    if (auto* picture = dynamic_cast<forms::PictureBox*>(child)) {
      picture->Density(Density());
      picture->TakeDirty();
      document::Put(numbers_.Of(picture), picture->Screen(), picture->Screen().Bounds());
    }
    FitSurfaces(*child);
  }
}

void BrowserHost::Hidden(forms::Page& page) { document::HidePage(numbers_.Of(&page)); }

void BrowserHost::Unloaded(forms::Page& page) {
  document::DropPage(numbers_.Of(&page));
  numbers_.Drop(page);
}

void BrowserHost::Changed(forms::Control& control) { changed_.insert(numbers_.Of(&control)); }
void BrowserHost::Drawn(forms::PictureBox& picture) { drawn_.insert(numbers_.Of(&picture)); }

// The numbers of what is gone, or was not yet there, stand for nothing.
void BrowserHost::ShowChanges() {
  JsonArray descriptions;
  for (const int number : std::exchange(changed_, {})) {
    if (forms::Control* control = numbers_.ControlOf(number)) {
      descriptions.Add(Description(*control, numbers_));
    }
  }
  if (!descriptions.Empty()) {
    document::Update(descriptions.Done());
  }
  for (const int number : std::exchange(drawn_, {})) {
    auto* picture = dynamic_cast<forms::PictureBox*>(numbers_.ControlOf(number));
    if (picture == nullptr) {
      continue;
    }
    if (const forms::PixelRect rect = picture->TakeDirty(); !rect.Empty()) {
      document::Put(number, picture->Screen(), rect);
    }
  }
}

void BrowserHost::Flush(forms::PictureBox& /*picture*/) {
  ShowChanges();
  document::WaitForFrame();
}

void BrowserHost::PaintText(forms::Raster& raster, const forms::TextRun& run) {
  document::PaintText(raster, run, forms::LettersFor(run));
}

void BrowserHost::SetFocus(forms::Control& control) {
  ShowChanges();
  document::Focus(numbers_.Of(&control));
}

void BrowserHost::MsgBox(const std::string& text, int style, const std::string& title) {
  ShowChanges();
  document::ShowBox(text, style == forms::InformationBox, title);
}

std::optional<forms::Color> BrowserHost::ShowColor(forms::Color now) {
  ShowChanges();
  return document::ChooseColor(now);
}

// Even a wait of no time gives the browser one turn: without it a motion would be over before
// anyone saw it. The steps of a motion between two frames of the screen cannot be seen, and to show
// them all would take longer than they do.
void BrowserHost::Wait(int milliseconds) {
  const double end = emscripten_get_now() + milliseconds;
  do {
    if (++stepsOfFrame_ > StepsToFrame) {
      document::WaitForFrame();
    }
    if (milliseconds >= MillisecondsOfFrame || document::IsFrameDue()) {
      stepsOfFrame_ = 0;
      ShowChanges();
    }
    document::Turn(std::max(0.0, end - emscripten_get_now()));
    DeliverEvents();
  } while (emscripten_get_now() < end);
}

void BrowserHost::WaitForEvents() {
  ShowChanges();
  document::WaitForEvent();
  DeliverEvents();
}

void BrowserHost::DeliverEvents() {
  while (const std::optional<document::Event> event = document::TakeEvent()) {
    Deliver(*event);
  }
}

void BrowserHost::Deliver(const document::Event& event) {
  if (forms::Menu* item = numbers_.ItemOf(event.Number)) {
    item->UserClick();
    return;
  }
  forms::Control* control = numbers_.ControlOf(event.Number);
  if (control == nullptr) {
    return;  // its page is gone
  }
  // The document shows already what the user did; the control may see it otherwise.
  changed_.insert(event.Number);
  if (event.Kind == document::EventKind::Fit) {
    FitSurfaces(*control);
  } else if (event.Kind == document::EventKind::Activate) {
    forms::Application::Current().BecameActive(control->OwnerPage());
  } else if (event.Kind == document::EventKind::Close) {
    forms::Page& page = control->OwnerPage();
    forms::Application::Current().Run(page, [&page] { page.UserClose(); });
  } else {
    if (dynamic_cast<forms::OptionButton*>(control) != nullptr) {
      for (forms::Control* sibling : control->Parent()->Children()) {
        if (dynamic_cast<forms::OptionButton*>(sibling) != nullptr) {
          Changed(*sibling);
        }
      }
    }
    Delivery delivery(event);
    control->Accept(delivery);
  }
}

void BrowserHost::Run() {
  for (;;) {
    ShowChanges();
    document::AtRest();
    WaitForEvents();
  }
}

// Handlers may stand many levels deep on the stack, so nothing is unwound; the program has nothing
// to save.
void BrowserHost::End() {
  ShowChanges();
  document::ShowEnd();
  std::abort();  // for the compiler
}

}  // namespace clinorama::browser
