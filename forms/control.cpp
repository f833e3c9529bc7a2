#include "forms/control.h"

#include <utility>

#include "forms/application.h"

namespace clinorama::forms {

Control::Control(Container& parent, std::string name, const Rect& rect)
    : Control(&parent, parent.page_, std::move(name), rect) {
  static_cast<Control&>(parent).children_.push_back(this);
}

Control::Control(Page& page, std::string name, const Rect& rect)
    : Control(nullptr, &page, std::move(name), rect) {}

Control::Control(Container* parent, Page* page, std::string name, const Rect& rect)
    : Left(*this, rect.Left),
      Top(*this, rect.Top),
      Width(*this, rect.Width),
      Height(*this, rect.Height),
      name_(std::move(name)),
      parent_(parent),
      page_(page) {}

std::string Control::SpokenName() const {
  std::string caption = CaptionText();
  if (!AccessibleName().empty()) {
    return caption.empty() ? AccessibleName() : AccessibleName() + ": " + caption;
  }
  if (!caption.empty()) {
    return caption;
  }
  return ToolTipText().empty() ? name_ : ToolTipText();
}

bool Control::Reachable() const {
  return Visible && Enabled && (parent_ == nullptr || parent_->Reachable());
}

bool Control::Clickable() const { return Reachable() && Application::Current().HasRoom(); }

void Control::SetFocus() { Application::Current().TheHost().SetFocus(*this); }

void Control::PropertyChanged(const PropertyBase& /*property*/) {
  Application::Current().TheHost().Changed(*this);
}

void Control::Fire(const Event& event) {
  Application::Current().Run(*page_, [&event] { event(); });
}

Control* FindControl(Control& container, const std::string& name) {
  for (Control* child : container.Children()) {
    if (child->Name() == name) {
      return child;
    }
    if (Control* found = FindControl(*child, name)) {
      return found;
    }
  }
  return nullptr;
}

}  // namespace clinorama::forms
