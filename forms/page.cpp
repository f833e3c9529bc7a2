#include "forms/page.h"

#include <utility>

#include "forms/application.h"
#include "forms/page_ended.h"

namespace clinorama::forms {

Page::Page(std::string name, const Rect& clientArea, std::string caption)
    : Container(*this, std::move(name), clientArea), Caption(*this, std::move(caption)) {
  Visible = false;
}

void Page::Show() {
  if (Visible) {
    Application::Current().ShowOrHide(*this);
  } else {
    Visible = true;  // which comes to the same
  }
}

void Page::Unload() { Application::Current().Unload(*this); }

void Page::UserClose() {
  Visible = false;
  Unload();
}

void Page::Wait(int milliseconds) {
  Application& application = Application::Current();
  application.TheHost().Wait(milliseconds);
  while (loaded_ && application.BarHeld()) {
    application.TheHost().WaitForEvents();
  }
  if (!loaded_) {
    throw PageEnded{};
  }
}

void Page::WaitFor(const bool& flag) {
  while (loaded_ && !flag) {
    Application::Current().TheHost().WaitForEvents();
  }
  if (!loaded_) {
    throw PageEnded{};
  }
}

bool Page::CanPause() const { return Application::Current().HasRoom(); }

void Page::PropertyChanged(const PropertyBase& property) {
  if (!loaded_) {
    return;
  }
  if (&property == &Visible) {
    Application::Current().ShowOrHide(*this);
  } else {
    Container::PropertyChanged(property);
  }
}

}  // namespace clinorama::forms
