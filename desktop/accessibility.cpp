#include "desktop/accessibility.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

#include "desktop/look.h"
#include "desktop/page_window.h"
#include "forms/controls.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {
namespace {

// What assistive technology takes a kind of control for.
class RoleOf final : public forms::ControlVisitor {
 public:
  explicit RoleOf(forms::Control& control) { control.Accept(*this); }

  void Visit(forms::Label& /*label*/) override { Role = QAccessible::StaticText; }
  void Visit(forms::TextBox& /*box*/) override { Role = QAccessible::EditableText; }
  void Visit(forms::CommandButton& /*button*/) override { Role = QAccessible::Button; }
  void Visit(forms::OptionButton& /*option*/) override { Role = QAccessible::RadioButton; }
  void Visit(forms::CheckBox& /*box*/) override { Role = QAccessible::CheckBox; }
  void Visit(forms::Frame& /*frame*/) override { Role = QAccessible::Grouping; }
  void Visit(forms::Image& /*image*/) override { Role = QAccessible::Graphic; }
  void Visit(forms::HScrollBar& /*bar*/) override { Role = QAccessible::ScrollBar; }
  void Visit(forms::PictureBox& /*picture*/) override { Role = QAccessible::Canvas; }

  QAccessible::Role Role = QAccessible::NoRole;
};

// The control that a widget shows; null for other widgets, and when the page is gone.
forms::Control* ControlOf(const QWidget& widget) {
  const auto* window = dynamic_cast<const PageWindow*>(widget.window());
  return window == nullptr ? nullptr : window->ControlOf(widget);
}

class ControlInterface : public QAccessibleWidget {
 public:
  explicit ControlInterface(QWidget* widget, QAccessible::Role role)
      : QAccessibleWidget(widget, role) {}

  // The name as it is now, though no event tells of each change in a motion.
  QString text(QAccessible::Text which) const override {
    const forms::Control* control = ControlOf(*widget());
    return which == QAccessible::Name && control != nullptr ? TextFor(control->SpokenName())
                                                            : QAccessibleWidget::text(which);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (role() == QAccessible::RadioButton) {
      state.checkable = true;
      state.checked = Button()->isChecked();
    }
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (Button() != nullptr && Button()->isEnabled()) {
      names.prepend(pressAction());
    }
    return names;
  }

  void doAction(const QString& action) override {
    if (action == pressAction() && Button() != nullptr) {
      QMetaObject::invokeMethod(Button(), &QAbstractButton::click, Qt::QueuedConnection);
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  QAbstractButton* Button() const { return qobject_cast<QAbstractButton*>(object()); }
};

// A picture of a text is read as the text.
class DocumentInterface final : public ControlInterface, public QAccessibleTextInterface {
 public:
  explicit DocumentInterface(QWidget* widget) : ControlInterface(widget, QAccessible::Document) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : ControlInterface::interface_cast(type);
  }
  using ControlInterface::text;

  QString text(int start, int end) const override { return Words().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(Words().size()); }
  int cursorPosition() const override { return cursor_; }
  void setCursorPosition(int position) override { cursor_ = position; }

  // Nothing of it can be selected, and the places of its letters in the picture are not known.
  void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int /*start*/, int /*end*/) override {}
  void removeSelection(int /*index*/) override {}
  void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
  QRect characterRect(int /*offset*/) const override { return rect(); }
  int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
  void scrollToSubstring(int /*start*/, int /*end*/) override {}
  QString attributes(int /*offset*/, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 private:
  QString Words() const { return widget()->property(WordsProperty).toString(); }

  int cursor_ = 0;
};

QAccessibleInterface* InterfaceFor(const QString& /*kind*/, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) {
    return nullptr;
  }
  if (dynamic_cast<PageWindow*>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Window);
  }
  if (dynamic_cast<Announcer*>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Notification);
  }
  forms::Control* control = ControlOf(*widget);
  if (control == nullptr) {
    return nullptr;
  }
  if (widget->property(WordsProperty).isValid()) {
    return new DocumentInterface(widget);
  }
  switch (const QAccessible::Role role = RoleOf(*control).Role) {
    case QAccessible::EditableText:  // the toolkit's own have a text or a value
    case QAccessible::ScrollBar:
    case QAccessible::CheckBox:
      return nullptr;
    default:
      return new ControlInterface(widget, role);
  }
}

}  // namespace

void MakeAccessible() { QAccessible::installFactory(InterfaceFor); }

Announcer::Announcer(QWidget* parent) : QWidget(parent) {
  resize(1, 1);
  lower();
}

void Announcer::Announce(const QString& text) {
  setAccessibleName(text);
  QAccessibleEvent event(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&event);
}

void Announcer::hideEvent(QHideEvent* /*event*/) { setAccessibleName(QString()); }

}  // namespace clinorama::desktop
