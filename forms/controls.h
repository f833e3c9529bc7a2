#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/color.h"
#include "forms/control.h"
#include "forms/font.h"

namespace clinorama::forms {

// The functions named User... are what a host calls when the user acts on a control. They check
// that the user can reach it, so that a scripted host cannot press what a real user could not. A
// click is ignored where handlers are nested too deeply.

enum class Alignment { Left = 0, Right = 1, Center = 2 };

class Label : public Control {
 public:
  Label(Container& parent, std::string name, const Rect& rect, std::string caption = {});
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  Property<std::string> Caption;
  Property<forms::Font> Font{*this, {}};
  Property<Color> ForeColor{*this, Black};
  Property<forms::Alignment> Alignment{*this, forms::Alignment::Left};
  Property<bool> Bordered{*this, false};  // drawn as a white field
  Property<bool> InMiddle{*this, false};  // whether the text stands in the middle, not at the top

  Event Click;
  Event DblClick;
  void UserClick();
  void UserDoubleClick();

 protected:
  std::string CaptionText() const override { return VisibleText(Font, Caption); }
};

// One line of text that the user edits.
class TextBox : public Control {
 public:
  TextBox(Container& parent, std::string name, const Rect& rect, std::string text,
          std::string toolTip = {});
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  Property<std::string> Text;
  // Whether nothing is left of the text without its blanks.
  bool Blank() const { return Text().find_first_not_of(' ') == std::string::npos; }
  Property<forms::Font> Font{*this, {.Size = 9.75}};

  Event Change;  // after the text became another, by the user or by a page
  void UserType(const std::string& text);

 protected:
  void PropertyChanged(const PropertyBase& property) override;
};

// A push button with a picture above its caption.
class CommandButton : public Control {
 public:
  CommandButton(Container& parent, std::string name, const Rect& rect, std::string caption,
                std::string picture = {}, std::string toolTip = {});
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  Property<std::string> Caption;
  Property<forms::Font> Font{*this, {.Name = "MS Serif", .Size = 6}};
  const std::string Picture;  // the name of a picture, such as "icons/cor"
  // The button that is shown in the place of this one while this one is hidden; null where there is
  // none. A host hands the keyboard over to it.
  CommandButton* Twin = nullptr;

  Event Click;
  void UserClick();

 protected:
  std::string CaptionText() const override { return Caption(); }
};

// Makes each of two buttons the other's twin.
void Pair(CommandButton& a, CommandButton& b);

// One of several choices in a container; marking one takes the mark from the others.
class OptionButton : public Control {
 public:
  OptionButton(Container& parent, std::string name, const Rect& rect, std::string caption,
               std::string toolTip = {});
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  Property<std::string> Caption;
  Property<bool> Value{*this, false};

  Event Click;  // after the user marked it; a click on a marked option is none
  void UserClick();

 protected:
  void PropertyChanged(const PropertyBase& property) override;
  std::string CaptionText() const override { return Caption(); }
};

class CheckBox : public Control {
 public:
  CheckBox(Container& parent, std::string name, const Rect& rect, bool value);
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  Property<bool> Value;
};

// A box with a caption around other controls.
class Frame : public Container {
 public:
  Frame(Container& parent, std::string name, const Rect& rect, std::string caption = {},
        std::string toolTip = {});
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  Property<std::string> Caption;
  Property<Color> ForeColor{*this, Black};

 protected:
  std::string CaptionText() const override { return Caption(); }
};

// A picture of the program's resources, scaled to the control's size.
class Image : public Control {
 public:
  Image(Container& parent, std::string name, const Rect& rect, std::string picture,
        std::string spokenName = {});
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  const std::string Picture;

  // Puts the upper left corner at a point of the surface that holds the image, in the surface's
  // user coordinates; failure 6 for a coordinate beyond 32-bit reals. The container must be a
  // PictureBox.
  void Move(double left, double top);
};

// A horizontal slider. Min stands at the left end and may be above Max.
class HScrollBar : public Control {
 public:
  HScrollBar(Container& parent, std::string name, const Rect& rect, int min, int max, int value,
             std::string spokenName);
  ~HScrollBar() override;
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  const int Min;
  const int Max;
  Property<int> Value;

  void UserScroll(int value);
  // The user presses the bar by mouse or key, or lets go of it; a host lets go of a bar that is
  // hidden, disabled or loses the keyboard. Motions stand still while a bar is held.
  void UserHold(bool held);
  bool Held() const { return held_; }

 private:
  bool held_ = false;
};

// An item of a menu bar or menu: it holds others or does something.
class Menu {
 public:
  // An item of the page's menu bar.
  Menu(Page& page, std::string name, std::string caption);
  // An item of a menu.
  Menu(Menu& parent, std::string name, std::string caption);
  Menu(const Menu&) = delete;
  Menu& operator=(const Menu&) = delete;

  const std::string Name;
  const std::string Caption;
  Event Click;

  const std::vector<Menu*>& Items() const { return items_; }
  void UserClick();

 private:
  Page& page_;
  std::vector<Menu*> items_;
};

// The chooser of a colour. It is never seen itself; its Color is the page's store of that colour.
class CommonDialog {
 public:
  forms::Color Color;

  // Lets the user choose; Color stays as it was when the user cancels.
  void ShowColor();
};

}  // namespace clinorama::forms
