#pragma once

#include <functional>
#include <utility>

namespace clinorama::forms {

// Something that can happen to a control, with the page's handler for it. Pages bind a handler in
// their constructors; an event without one is ignored.
class Event {
 public:
  Event& operator=(std::function<void()> handler) {
    handler_ = std::move(handler);
    return *this;
  }
  // Whether a handler is bound.
  bool Bound() const { return handler_ != nullptr; }
  void operator()() const {
    if (handler_) {
      handler_();
    }
  }

 private:
  std::function<void()> handler_;
};

}  // namespace clinorama::forms
