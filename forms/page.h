#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace clinorama::forms {

class CommandButton;
class Menu;

enum class MousePointer { Default = 0, Hourglass = 11 };

// A window of the program, with a client area of fixed size. Each kind of page has one instance,
// reached by The<Kind>() (see application.h); it is made and loaded on first use, and discarded by
// Unload with all its state.
class Page : public Container {
 public:
  // Place and size of the client area on the screen, in twips.
  Page(std::string name, const Rect& clientArea, std::string caption);

  // A page is no control of another one: it has no kind.
  void Accept(ControlVisitor& /*visitor*/) override {}

  Property<std::string> Caption;
  Property<forms::MousePointer> MousePointer{*this, forms::MousePointer::Default};

  const std::vector<Menu*>& MenuBar() const { return menuBar_; }

  // What a host's keys do on this page. Page Up and Page Down, as a presenter's remote sends them,
  // press these buttons; null where there are none. Escape closes the page as its frame does.
  CommandButton* PageUp = nullptr;
  CommandButton* PageDown = nullptr;
  bool ClosedByEscape = false;

  // Shows the page above the others, or brings it there.
  void Show();
  // Discards the page. It is gone for everyone at once, though the object lives on until none of
  // its own handlers is on the stack.
  void Unload();
  bool Loaded() const { return loaded_; }
  // What closing the window by its frame does: hide and unload, unless a page says otherwise.
  virtual void UserClose();

  // The page has just been made.
  virtual void Form_Load() {}
  // The page has become the active one of this program's pages.
  virtual void Form_Activate() {}

 protected:
  // The wait of a motion's step: lets events run, nested, for that time, and for as long as the
  // user holds a speed bar. When the page was unloaded meanwhile this does not return: the handler
  // that waits is unwound.
  void Wait(int milliseconds);
  // The wait of a pause: lets events run, nested, until one of their handlers sets the flag.
  void WaitFor(const bool& flag);
  // Whether a pause can end again: the handler that ends it needs room on the stack as well.
  bool CanPause() const;

  void PropertyChanged(const PropertyBase& property) override;
  std::string CaptionText() const override { return Caption(); }

 private:
  friend class Application;
  friend class Menu;

  bool loaded_ = false;
  int handlers_ = 0;  // of this page, on the stack
  std::vector<Menu*> menuBar_;
};

}  // namespace clinorama::forms
