#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "forms/picture_box.h"
#include "forms/pixel_line.h"
#include "forms/units.h"

namespace clinorama::forms {

Label::Label(Container& parent, std::string name, const Rect& rect, std::string caption)
    : Control(parent, std::move(name), rect), Caption(*this, std::move(caption)) {}

void Label::UserClick() {
  if (Clickable()) {
    Fire(Click);
  }
}

void Label::UserDoubleClick() {
  if (Clickable()) {
    Fire(DblClick);
  }
}

TextBox::TextBox(Container& parent, std::string name, const Rect& rect, std::string text,
                 std::string toolTip)
    : Control(parent, std::move(name), rect), Text(*this, std::move(text)) {
  ToolTipText = std::move(toolTip);
}

void TextBox::UserType(const std::string& text) {
  if (Reachable()) {
    Text = text;
  }
}

void TextBox::PropertyChanged(const PropertyBase& property) {
  Control::PropertyChanged(property);
  if (&property == &Text) {
    Fire(Change);
  }
}

CommandButton::CommandButton(Container& parent, std::string name, const Rect& rect,
                             std::string caption, std::string picture, std::string toolTip)
    : Control(parent, std::move(name), rect),
      Caption(*this, std::move(caption)),
      Picture(std::move(picture)) {
  ToolTipText = std::move(toolTip);
}

void CommandButton::UserClick() {
  if (Clickable()) {
    Fire(Click);
  }
}

void Pair(CommandButton& a, CommandButton& b) {
  a.Twin = &b;
  b.Twin = &a;
}

OptionButton::OptionButton(Container& parent, std::string name, const Rect& rect,
                           std::string caption, std::string toolTip)
    : Control(parent, std::move(name), rect), Caption(*this, std::move(caption)) {
  ToolTipText = std::move(toolTip);
}

void OptionButton::UserClick() {
  if (!Clickable() || Value) {
    return;
  }
  Value = true;
  Fire(Click);
}

void OptionButton::PropertyChanged(const PropertyBase& property) {
  Control::PropertyChanged(property);
  if (&property != &Value || !Value) {
    return;
  }
  for (Control* sibling : Parent()->Children()) {
    auto* option = dynamic_cast<OptionButton*>(sibling);
    if (option != nullptr && option != this) {
      option->Value = false;
    }
  }
}

CheckBox::CheckBox(Container& parent, std::string name, const Rect& rect, bool value)
    : Control(parent, std::move(name), rect), Value(*this, value) {}

Frame::Frame(Container& parent, std::string name, const Rect& rect, std::string caption,
             std::string toolTip)
    : Container(parent, std::move(name), rect), Caption(*this, std::move(caption)) {
  ToolTipText = std::move(toolTip);
}

Image::Image(Container& parent, std::string name, const Rect& rect, std::string picture,
             std::string spokenName)
    : Control(parent, std::move(name), rect), Picture(std::move(picture)) {
  AccessibleName = std::move(spokenName);
}

void Image::Move(double left, double top) {
  const auto& surface = dynamic_cast<const PictureBox&>(*Parent());
  // Both coordinates are mapped before the first is stored: a move that fails has no effect. The
  // picture starts at the pixel that holds the point, as a drawing there would.
  const double density = surface.Density();
  const int x = PixelOf(surface.LogicalX(left) * density);
  const int y = PixelOf(surface.LogicalY(top) * density);
  Left = x / density * TwipsToPixel;
  Top = y / density * TwipsToPixel;
}

HScrollBar::HScrollBar(Container& parent, std::string name, const Rect& rect, int min, int max,
                       int value, std::string spokenName)
    : Control(parent, std::move(name), rect), Min(min), Max(max), Value(*this, value) {
  AccessibleName = std::move(spokenName);
}

void HScrollBar::UserScroll(int value) {
  if (Reachable()) {
    Value = std::clamp(value, std::min(Min, Max), std::max(Min, Max));
  }
}

HScrollBar::~HScrollBar() { UserHold(false); }

void HScrollBar::UserHold(bool held) {
  if (held == held_) {
    return;
  }
  held_ = held;
  Application::Current().heldBars_ += held ? 1 : -1;
}

Menu::Menu(Page& page, std::string name, std::string caption)
    : Name(std::move(name)), Caption(std::move(caption)), page_(page) {
  page.menuBar_.push_back(this);
}

Menu::Menu(Menu& parent, std::string name, std::string caption)
    : Name(std::move(name)), Caption(std::move(caption)), page_(parent.page_) {
  parent.items_.push_back(this);
}

void Menu::UserClick() {
  if (page_.Clickable()) {
    Application::Current().Run(page_, [this] { Click(); });
  }
}

void CommonDialog::ShowColor() {
  Color = Application::Current().TheHost().ShowColor(Color).value_or(Color);
}

}  // namespace clinorama::forms
