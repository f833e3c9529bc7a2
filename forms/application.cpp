#include "forms/application.h"

#include <cstdlib>
#include <utility>

#include "base/failure.h"
#include "forms/page_ended.h"

namespace clinorama::forms {
namespace {

Application* current = nullptr;

// Puts a value into a variable for as long as a handler runs.
template <class T>
class ForNow {
 public:
  ForNow(T& variable, T value) : variable_(variable), before_(std::exchange(variable, value)) {}
  ~ForNow() { variable_ = before_; }
  ForNow(const ForNow&) = delete;
  ForNow& operator=(const ForNow&) = delete;

 private:
  T& variable_;
  T before_;
};

}  // namespace

Application::Application(Host& host) : host_(host) { current = this; }

Application::~Application() {
  pages_.clear();
  unloaded_.clear();
  current = nullptr;
}

Application& Application::Current() { return *current; }

void Application::Run(Page& page, const std::function<void()>& handler) {
  if (!page.loaded_) {
    return;
  }
  {
    const ForNow ofPage(page.handlers_, page.handlers_ + 1);
    const ForNow ofAll(depth_, depth_ + 1);
    const ForNow<Page*> running(running_, &page);
    try {
      handler();
    } catch (const PageEnded&) {
      // The page of this handler is gone, and the handler with it.
    } catch (const base::Failure& failure) {
      MsgBox(failure.Description());
    }
  }
  DropUnloaded();
}

void Application::BecameActive(Page& page) {
  if (active_ == &page || !page.loaded_) {
    return;
  }
  active_ = &page;
  Run(page, [&page] { page.Form_Activate(); });
}

void Application::ShowOrHide(Page& page) {
  if (page.Visible) {
    host_.Shown(page);
    BecameActive(page);
    return;
  }
  if (active_ == &page) {
    active_ = nullptr;
  }
  host_.Hidden(page);
}

void Application::Unload(Page& page) {
  for (auto slot = pages_.begin(); slot != pages_.end(); ++slot) {
    if (slot->second.get() != &page) {
      continue;
    }
    if (active_ == &page) {
      active_ = nullptr;
    }
    page.loaded_ = false;
    host_.Unloaded(page);
    unloaded_.push_back(std::move(slot->second));
    pages_.erase(slot);
    return;
  }
}

void Application::DropUnloaded() {
  std::erase_if(unloaded_, [](const auto& page) { return page->handlers_ == 0; });
}

void MsgBox(const std::string& text, int style, const std::string& title) {
  Application::Current().TheHost().MsgBox(text, style, title);
}

void End() {
  Application::Current().TheHost().End();
  std::abort();  // for the compiler: no host comes back from there
}

}  // namespace clinorama::forms
