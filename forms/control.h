#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/event.h"
#include "forms/property.h"

namespace clinorama::forms {

class CheckBox;
class CommandButton;
class Container;
class Frame;
class HScrollBar;
class Image;
class Label;
class OptionButton;
class Page;
class PictureBox;
class TextBox;

// Something that treats each kind of control in its own way, as a host does.
class ControlVisitor {
 public:
  virtual void Visit(Label& label) = 0;
  virtual void Visit(TextBox& box) = 0;
  virtual void Visit(CommandButton& button) = 0;
  virtual void Visit(OptionButton& option) = 0;
  virtual void Visit(CheckBox& box) = 0;
  virtual void Visit(Frame& frame) = 0;
  virtual void Visit(Image& image) = 0;
  virtual void Visit(HScrollBar& bar) = 0;
  virtual void Visit(PictureBox& picture) = 0;

 protected:
  ~ControlVisitor() = default;
};

// Place and size in twips; the place is counted from the upper left corner of the container.
struct Rect {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
};

// What all controls have in common. A control is state: it holds what its properties say and tells
// the host of the application when one changes. It registers with its container when it is made,
// so that a host can walk the tree of a page; it must live as long as its container.
class Control : public PropertyOwner {
 public:
  Control(Container& parent, std::string name, const Rect& rect);

  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Property<double> Left;  // twips, as the next three
  Property<double> Top;
  Property<double> Width;
  Property<double> Height;
  Property<bool> Visible{*this, true};
  Property<bool> Enabled{*this, true};
  Property<std::string> ToolTipText{*this, {}};
  // What a screen reader says where neither caption nor tool tip tells what the control is for.
  Property<std::string> AccessibleName{*this, {}};

  // Calls the visitor's function for the kind of this control.
  virtual void Accept(ControlVisitor& visitor) = 0;
  // The controls that this one holds, in the order of their declaration, which is also the order of
  // the tabulator key.
  const std::vector<Control*>& Children() const { return children_; }

  const std::string& Name() const { return name_; }
  Container* Parent() const { return parent_; }
  Page& OwnerPage() const { return *page_; }

  // What a screen reader says: AccessibleName and behind it the caption, as a value has one; or
  // else the first of caption, tool tip and name that is not empty.
  std::string SpokenName() const;
  // Whether a user can reach the control: it and all its containers are enabled and visible.
  bool Reachable() const;
  // Whether a click of the user may start a handler: the control can be reached, and the stack has
  // room for another handler.
  bool Clickable() const;
  // Gives the control the keyboard.
  void SetFocus();

 protected:
  // For a page, which has no container.
  Control(Page& page, std::string name, const Rect& rect);

  void PropertyChanged(const PropertyBase& property) override;
  // Runs an event's handler under the rules of Application::Run.
  void Fire(const Event& event);
  virtual std::string CaptionText() const { return {}; }

 private:
  Control(Container* parent, Page* page, std::string name, const Rect& rect);

  std::string name_;
  Container* parent_;
  Page* page_;
  std::vector<Control*> children_;
};

// A control that may hold others.
class Container : public Control {
 public:
  using Control::Control;
};

// The control in a page or container with a name such as "Calcular" or "Image1(3)", at any depth;
// null where there is none.
Control* FindControl(Control& container, const std::string& name);

// Controls of one kind under one name, numbered from a first index: "Image1(0)", "Image1(1)", ...
template <class Kind>
class ControlArray {
 public:
  template <class... Arguments>
  ControlArray(Container& parent, const std::string& name, int first, int count,
               const Arguments&... arguments)
      : first_(first) {
    for (int index = first; index < first + count; ++index) {
      controls_.push_back(
          std::make_unique<Kind>(parent, name + "(" + std::to_string(index) + ")", arguments...));
    }
  }

  // With each control made by a function of its index and full name, which returns a unique_ptr.
  // The highest index is made first, so that the lowest lies above the others.
  template <class Make>
  ControlArray(const std::string& name, int first, int count, Make make) : first_(first) {
    for (int index = first + count - 1; index >= first; --index) {
      controls_.insert(controls_.begin(), make(index, name + "(" + std::to_string(index) + ")"));
    }
  }

  // The control of an index; one outside the array is std::out_of_range.
  Kind& operator()(int index) const {
    return *controls_.at(static_cast<std::size_t>(index - first_));
  }
  int First() const { return first_; }
  int Last() const { return first_ + static_cast<int>(controls_.size()) - 1; }

 private:
  int first_;
  std::vector<std::unique_ptr<Kind>> controls_;
};

}  // namespace clinorama::forms
