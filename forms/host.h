#pragma once

#include <optional>
#include <string>

#include "forms/color.h"
#include "forms/surface.h"

namespace clinorama::forms {

class Control;
class Page;
class PictureBox;

// Each motion that is started inside the wait of another takes some of the stack. Nobody clicks so
// often by hand, and 256 KiB hold so many handlers.
inline constexpr int GreatestDepth = 200;

// What the pages need of the machine they run on. The desktop implements it with windows, a
// browser with a document, the tests with a script. Calls about controls of a page that has no
// window yet may come in and are to be ignored: a window is built from the state of its page.
class Host {
 public:
  Host() = default;
  virtual ~Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  // Device pixels to a logical pixel, read when a page is created. Where it changes later, the host
  // tells the surfaces.
  virtual double Density() const = 0;

  // Build the page's window, or raise it, and give it the keyboard.
  virtual void Shown(Page& page) = 0;
  virtual void Hidden(Page& page) = 0;
  // The page is about to be discarded; nothing may refer to it or its controls afterwards.
  virtual void Unloaded(Page& page) = 0;

  // A property of the control (or of the page itself) took a new value.
  virtual void Changed(Control& control) = 0;
  // Something was drawn since the surface's changed pixels were last taken.
  virtual void Drawn(PictureBox& picture) = 0;
  // Put what was drawn on the screen and wait until the screen shows it, for a frame of the screen;
  // no events are delivered. It is called once for many points of a curve.
  virtual void Flush(PictureBox& picture) = 0;
  // Paint the text into a small white raster; the surface prints it from there.
  virtual void PaintText(Raster& raster, const TextRun& run) = 0;
  virtual void SetFocus(Control& control) = 0;

  // Show a modal box; style 64 is the information icon, 0 none.
  virtual void MsgBox(const std::string& text, int style, const std::string& title) = 0;
  // Let the user choose a colour, starting from the present one; nothing when cancelled.
  virtual std::optional<Color> ShowColor(Color now) = 0;

  // Deliver events for so many milliseconds, from the first moment, and at least once; handlers run
  // nested.
  virtual void Wait(int milliseconds) = 0;
  // Wait until there is an event, however long, and deliver what there is; handlers run nested.
  virtual void WaitForEvents() = 0;
  // How many handlers may be on the stack before further clicks are ignored; at least 2. A host
  // with a small stack sets fewer.
  virtual int GreatestDepth() const { return forms::GreatestDepth; }
  // End the program at once, from any depth of handlers.
  [[noreturn]] virtual void End() = 0;
};

}  // namespace clinorama::forms
