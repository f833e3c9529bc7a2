#include "desktop/views.h"

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "desktop/accessibility.h"
#include "desktop/look.h"
#include "desktop/speed_bar.h"
#include "desktop/surface_view.h"
#include "forms/controls.h"
#include "forms/picture_box.h"
#include "forms/units.h"

namespace clinorama::desktop {
namespace {

// Logical pixels for the border of a button, and between its icon and caption.
constexpr double ButtonBorder = 6;

class LabelWidget : public QLabel {
 public:
  LabelWidget(forms::Label& label, QWidget* parent) : QLabel(parent), label_(label) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
      label_.UserClick();
    }
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) {
      label_.UserDoubleClick();
    }
  }

 private:
  forms::Label& label_;
};

// A button that the return key presses too, once, however long it is held.
class ButtonWidget : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      if (!event->isAutoRepeat()) {
        click();
      }
    } else {
      QToolButton::keyPressEvent(event);
    }
  }
};

// An option whose mark only the page sets: a click is told to the page and changes nothing here.
class OptionWidget : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void nextCheckState() override {}
};

// A box drawn with its caption set into its upper edge, so that it measures what its control says.
class FrameWidget : public QGroupBox {
 public:
  FrameWidget(const forms::Frame& frame, QWidget* parent) : QGroupBox(parent), frame_(frame) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    const double zoom = ZoomOf(*this);
    const int captionLeft = qRound(9 * zoom);
    const int captionGap = qRound(4 * zoom);
    const double rounding = 4 * zoom;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics = painter.fontMetrics();
    const int top = metrics.height() / 2;
    // A frame that reaches a little below its page still shows its lower edge.
    const int bottom = std::min(height(), parentWidget()->height() - y());
    const int line = LineWidth(zoom);
    const QRectF edge(line / 2.0, top + line / 2.0, width() - line, bottom - top - line);
    painter.setPen(QPen(palette().color(QPalette::Dark), line));
    painter.drawRoundedRect(edge, rounding, rounding);
    const QString caption = TextFor(frame_.Caption);
    if (caption.isEmpty()) {
      return;
    }
    const int captionWidth = metrics.horizontalAdvance(caption);
    painter.fillRect(captionLeft - captionGap, 0, captionWidth + 2 * captionGap, metrics.height(),
                     palette().color(QPalette::Window));
    painter.setPen(ColorFor(frame_.ForeColor));
    painter.drawText(captionLeft, metrics.ascent(), caption);
  }

 private:
  const forms::Frame& frame_;
};

// A picture at any place of the screen's own pixels, which need not be one of the toolkit's. It is
// made when it is first seen and dropped when it is hidden: of the pages of a manual only one is
// seen.
class ImageWidget : public QWidget {
 public:
  ImageWidget(const forms::Image& image, QWidget* parent) : QWidget(parent), image_(image) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

  void Place(double zoom) {
    const double ratio = devicePixelRatioF();
    const QRect pixels = PlaceOf(image_, zoom * ratio);
    const QRect place = QRectF(pixels.x() / ratio, pixels.y() / ratio, pixels.width() / ratio,
                               pixels.height() / ratio)
                            .toAlignedRect();
    corner_ = QPointF(pixels.topLeft()) / ratio - place.topLeft();
    setGeometry(place);
    const QSizeF size = QSizeF(pixels.size()) / ratio;
    if (!image_.Visible) {
      picture_ = QPixmap();
    } else if (picture_.deviceIndependentSize() != size) {
      picture_ = PictureFor(image_.Picture, size, ratio);
    }
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QStylePainter painter(this);
    painter.drawPixmap(corner_, picture_);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    if (option.state.testFlag(QStyle::State_HasFocus) &&
        option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
      painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
  }

 private:
  const forms::Image& image_;
  QPixmap picture_;
  QPointF corner_;  // of the picture in the widget, in the toolkit's pixels
};

Qt::Alignment AlignmentFor(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return Qt::AlignRight;
    case forms::Alignment::Center:
      return Qt::AlignHCenter;
    case forms::Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

View ViewOf(forms::Label& label, QWidget& parent) {
  const bool clickable = label.Click.Bound() || label.DblClick.Bound();
  auto* widget = clickable ? new LabelWidget(label, &parent) : new QLabel(&parent);
  widget->setTextFormat(Qt::PlainText);
  return {widget, [&label, widget](double zoom) {
            const bool bordered = label.Bordered;
            widget->setFrameShape(bordered ? QFrame::StyledPanel : QFrame::NoFrame);
            widget->setAutoFillBackground(bordered);
            QPalette palette;
            palette.setColor(QPalette::WindowText, ColorFor(label.ForeColor));
            if (bordered) {
              palette.setColor(QPalette::Window, Qt::white);
            }
            widget->setPalette(palette);
            widget->setFont(FontFor(label.Font, zoom));
            widget->setAlignment(AlignmentFor(label.Alignment) |
                                 (bordered || label.InMiddle ? Qt::AlignVCenter : Qt::AlignTop));
            widget->setText(TextFor(forms::VisibleText(label.Font, label.Caption)));
          }};
}

View ViewOf(forms::TextBox& box, QWidget& parent) {
  auto* widget = new QLineEdit(&parent);
  widget->setDragEnabled(false);  // a drag runs an event loop of its own, inside the widget
  // Also when it comes from assistive technology.
  QObject::connect(widget, &QLineEdit::textChanged, widget,
                   [&box](const QString& text) { box.UserType(text.toStdString()); });
  return {widget, [&box, widget](double zoom) {
            widget->setFont(FontFor(box.Font, zoom));
            const int margin = qRound(2 * zoom);
            widget->setTextMargins(margin, 0, margin, 0);
            const QString text = TextFor(box.Text);
            if (widget->text() != text) {
              widget->setText(text);
            }
          }};
}

View ViewOf(forms::CommandButton& button, QWidget& parent) {
  auto* widget = new ButtonWidget(&parent);
  widget->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(widget, &QToolButton::clicked, widget, [&button] { button.UserClick(); });
  return {widget, [&button, widget](double zoom) {
            widget->setFont(FontFor(button.Font, zoom));
            widget->setText(TextFor(button.Caption));
            const bool captioned = !button.Caption().empty();
            widget->setToolButtonStyle(button.Picture.empty() ? Qt::ToolButtonTextOnly
                                       : captioned            ? Qt::ToolButtonTextUnderIcon
                                                              : Qt::ToolButtonIconOnly);
            const QSize place = PlaceOf(button, zoom).size();
            const int border = qRound(ButtonBorder * zoom);
            const int textHeight = captioned ? widget->fontMetrics().height() + border : 0;
            const int side =
                std::max(0, std::min(place.width(), place.height() - textHeight) - border);
            const QSize size(side, side);
            widget->setIconSize(size);
            widget->setIcon(PictureFor(button.Picture, size, widget->devicePixelRatioF()));
          }};
}

// The page keeps the rule of one mark at most, so the widget's own rule is off: it would not let
// the last mark go.
View ViewOf(forms::OptionButton& option, QWidget& parent) {
  auto* widget = new OptionWidget(&parent);
  widget->setAutoExclusive(false);
  QObject::connect(widget, &QRadioButton::clicked, widget, [&option] { option.UserClick(); });
  return {widget, [&option, widget](double zoom) {
            widget->setFont(FontFor({}, zoom));
            widget->setText(TextFor(option.Caption));
            widget->setChecked(option.Value);
          }};
}

View ViewOf(forms::CheckBox& box, QWidget& parent) {
  auto* widget = new QCheckBox(&parent);
  QObject::connect(widget, &QCheckBox::toggled, widget, [&box](bool on) { box.Value = on; });
  return {widget, [&box, widget](double /*zoom*/) { widget->setChecked(box.Value); }};
}

View ViewOf(forms::Frame& frame, QWidget& parent) {
  auto* widget = new FrameWidget(frame, &parent);
  return {widget, [widget](double zoom) {
            widget->setFont(FontFor({}, zoom));
            widget->update();
          }};
}

View ViewOf(forms::Image& image, QWidget& parent) {
  auto* widget = new ImageWidget(image, &parent);
  if (QFile words(QStringLiteral(":/%1.txt").arg(TextFor(image.Picture)));
      words.open(QIODevice::ReadOnly)) {
    widget->setProperty(WordsProperty, QString::fromUtf8(words.readAll()));
    widget->setFocusPolicy(Qt::TabFocus);
  }
  return {widget, [widget](double zoom) { widget->Place(zoom); }};
}

// The widget counts steps from the left end, whichever way the control's values run: its own
// inversion would leave its arrows and groove moving the thumb the wrong way.
View ViewOf(forms::HScrollBar& bar, QWidget& parent) {
  auto* widget = new SpeedBar([&bar](bool held) { bar.UserHold(held); }, &parent);
  const int sign = bar.Min <= bar.Max ? 1 : -1;
  widget->setRange(0, std::abs(bar.Max - bar.Min));
  widget->setPageStep(1);
  QObject::connect(widget, &QScrollBar::valueChanged, widget,
                   [&bar, sign](int steps) { bar.UserScroll(bar.Min + sign * steps); });
  return {widget, [&bar, widget, sign](double /*zoom*/) {
            widget->setValue(sign * (bar.Value - bar.Min));
          }};
}

View ViewOf(forms::PictureBox& picture, QWidget& parent) {
  return {new SurfaceView(picture, &parent), [](double /*zoom*/) {}};
}

class ViewMaker final : public forms::ControlVisitor {
 public:
  explicit ViewMaker(QWidget& parent) : parent_(parent) {}

  void Visit(forms::Label& label) override { Made = ViewOf(label, parent_); }
  void Visit(forms::TextBox& box) override { Made = ViewOf(box, parent_); }
  void Visit(forms::CommandButton& button) override { Made = ViewOf(button, parent_); }
  void Visit(forms::OptionButton& option) override { Made = ViewOf(option, parent_); }
  void Visit(forms::CheckBox& box) override { Made = ViewOf(box, parent_); }
  void Visit(forms::Frame& frame) override { Made = ViewOf(frame, parent_); }
  void Visit(forms::Image& image) override { Made = ViewOf(image, parent_); }
  void Visit(forms::HScrollBar& bar) override { Made = ViewOf(bar, parent_); }
  void Visit(forms::PictureBox& picture) override { Made = ViewOf(picture, parent_); }

  View Made;

 private:
  QWidget& parent_;
};

}  // namespace

View MakeView(forms::Control& control, QWidget& parent) {
  ViewMaker maker(parent);
  control.Accept(maker);
  return std::move(maker.Made);
}

QRect PlaceOf(const forms::Control& control, double zoom) {
  const auto pixel = [zoom](double twips) { return qRound(forms::LogicalPixels(twips) * zoom); };
  return {pixel(control.Left), pixel(control.Top), pixel(control.Width), pixel(control.Height)};
}

const forms::Label* AsValue(const forms::Control& control) {
  const auto* label = dynamic_cast<const forms::Label*>(&control);
  return label != nullptr && label->Bordered ? label : nullptr;
}

void SynchroniseView(const forms::Control& control, const View& view, double zoom) {
  view.Widget->setGeometry(PlaceOf(control, zoom));
  view.Widget->setEnabled(control.Enabled);
  const QString toolTip = TextFor(control.ToolTipText);
  if (view.Widget->toolTip() != toolTip) {
    view.Widget->setToolTip(toolTip);
  }
  const QString name = TextFor(control.SpokenName());
  // Each change is told to assistive technology.
  if (view.Widget->accessibleName().isEmpty() ||
      (view.Widget->accessibleName() != name && AsValue(control) == nullptr)) {
    view.Widget->setAccessibleName(name);
  }
  view.Synchronise(zoom);
  view.Widget->setVisible(control.Visible);
}

}  // namespace clinorama::desktop
