#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <typeindex>
#include <vector>

#include "forms/host.h"
#include "forms/page.h"

namespace clinorama::forms {

// The running program: its pages, which of them is active, and the handlers on the stack. There is
// one at a time.
class Application {
 public:
  explicit Application(Host& host);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  static Application& Current();
  Host& TheHost() { return host_; }

  // The one instance of a kind of page, made and loaded, hidden, if it is not there.
  template <class Kind>
  Kind& Instance() {
    std::unique_ptr<Page>& slot = pages_[typeid(Kind)];
    if (!slot) {
      slot = std::make_unique<Kind>();
      slot->loaded_ = true;
      slot->Form_Load();
    }
    return static_cast<Kind&>(*slot);
  }

  // Runs a handler of a page, unless the page has been unloaded. A failure that the handler lets
  // out is shown in a message box and ends the handler only; any other exception passes through.
  void Run(Page& page, const std::function<void()>& handler);

  // The page whose handler runs; null where none does. Of nested handlers it is the innermost.
  Page* Running() const { return running_; }
  // Whether no handler is on the stack.
  bool AtRest() const { return depth_ == 0; }
  // Whether the stack has room for another handler, see Host::GreatestDepth.
  bool HasRoom() const { return depth_ < host_.GreatestDepth(); }

  // Whether the user holds any speed bar. Motions stand still meanwhile.
  bool BarHeld() const { return heldBars_ > 0; }

  // Tells that a page has come to the front, by Show or by the user. Only when it was not the
  // active one already does it run Form_Activate: coming back from a message box or from another
  // program's window is no activation.
  void BecameActive(Page& page);

 private:
  friend class HScrollBar;
  friend class Page;
  void ShowOrHide(Page& page);  // as its Visible says
  void Unload(Page& page);
  void DropUnloaded();

  Host& host_;
  std::map<std::type_index, std::unique_ptr<Page>> pages_;
  std::vector<std::unique_ptr<Page>> unloaded_;  // still with handlers on the stack
  Page* active_ = nullptr;
  Page* running_ = nullptr;
  int depth_ = 0;  // handlers on the stack, of all pages
  int heldBars_ = 0;
};

// The one instance of a kind of page: The<Form12>().Show().
template <class Kind>
Kind& The() {
  return Application::Current().Instance<Kind>();
}

// The title of boxes that name none.
inline constexpr const char* ProgramTitle = "Clinorama";

inline constexpr int PlainBox = 0;
inline constexpr int InformationBox = 64;

// Shows a modal message box and waits until the user closes it.
void MsgBox(const std::string& text, int style = PlainBox, const std::string& title = ProgramTitle);

// Ends the program at once, without asking.
[[noreturn]] void End();

}  // namespace clinorama::forms
