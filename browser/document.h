#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "forms/color.h"
#include "forms/letters.h"
#include "forms/raster.h"
#include "forms/surface.h"

// The functions of the document, which JavaScript implements (site/view.js). Those that wait give
// the browser its turn: the program's stack is put aside meanwhile, and nothing else of the program
// runs.
namespace clinorama::browser::document {

// What the user did; the numbers are those of site/queue.js.
enum class EventKind {
  Click = 0,
  DoubleClick = 1,
  Type = 2,
  Scroll = 3,
  Hold = 4,
  Close = 5,
  Activate = 6,
  Fit = 7,  // the pages have another size, and the number is that of one of them
};

struct Event {
  EventKind Kind = EventKind::Click;
  int Number = 0;  // of a page, a control or a menu item that may be gone
  int Value = 0;   // the step of a bar, or whether it is held
  std::string Text;
};

// Device pixels to a logical pixel.
double Density();

// Pages and controls, by their descriptions and numbers.
void CreatePage(const std::string& description);
void ShowPage(int number);
void HidePage(int number);
void DropPage(int number);
void Update(const std::string& descriptions);
void Focus(int number);
// Shows a rectangle of a surface.
void Put(int number, const forms::Raster& raster, const forms::PixelRect& rect);
// Paints a black text into a white raster.
void PaintText(forms::Raster& raster, const forms::TextRun& run, const forms::Letters& letters);

// The next thing that the user did.
std::optional<Event> TakeEvent();

// Wait: until an event comes or the time is over, at least for one turn; until an event comes;
// until the screen has shown a frame.
void Turn(double milliseconds);
void WaitForEvent();
void WaitForFrame();
// Whether the screen has shown a frame since this was true.
bool IsFrameDue();
// No handler is on the stack: what a motion has come to can be told.
void AtRest();

// Boxes, until the user closes them.
void ShowBox(const std::string& text, bool information, const std::string& title);
std::optional<forms::Color> ChooseColor(forms::Color now);
// Shows that the program has ended, and never comes back.
void ShowEnd();

}  // namespace clinorama::browser::document
