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
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "desktop/look.h"
#include "desktop/speed_bar.h"
#include "desktop/surface_view.h"
#include "forms/controls.h"
#include "forms/picture_box.h"
#include "forms/units.h"

namespace clinorama::desktop {
namespace {

// Logical pixels for the border of a button, and between its icon and caption.
constexpr int ButtonBorder = 6;

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

// A button that the return key presses too.
class ButtonWidget : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      click();
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
    constexpr int CaptionLeft = 9;
    constexpr int CaptionGap = 4;
    constexpr double Rounding = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics = painter.fontMetrics();
    const int top = metrics.height() / 2;
    // A frame that reaches a little below its page still shows its lower edge.
    const int bottom = std::min(height(), parentWidget()->height() - y());
    const QRectF edge(0.5, top + 0.5, width() - 1, bottom - top - 1);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRoundedRect(edge, Rounding, Rounding);
    const QString caption = TextFor(frame_.Caption);
    if (caption.isEmpty()) {
      return;
    }
    const int captionWidth = metrics.horizontalAdvance(caption);
    painter.fillRect(CaptionLeft - CaptionGap, 0, captionWidth + 2 * CaptionGap, metrics.height(),
                     palette().color(QPalette::Window));
    painter.setPen(ColorFor(frame_.ForeColor));
    painter.drawText(CaptionLeft, metrics.ascent(), caption);
  }

 private:
  const forms::Frame& frame_;
};

Qt::Alignment AlignmentFor(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return Qt::AlignRight | Qt::AlignTop;
    case forms::Alignment::Center:
      return Qt::AlignHCenter | Qt::AlignTop;
    case forms::Alignment::Left:
      break;
  }
  return Qt::AlignLeft | Qt::AlignTop;
}

View ViewOf(forms::Label& label, QWidget& parent) {
  const bool clickable = label.Click.Bound() || label.DblClick.Bound();
  auto* widget = clickable ? new LabelWidget(label, &parent) : new QLabel(&parent);
  widget->setTextFormat(Qt::PlainText);
  return {widget, [&label, widget] {
            const bool bordered = label.Bordered;
            widget->setFrameStyle(bordered ? int(QFrame::Panel) | int(QFrame::Sunken)
                                           : int(QFrame::NoFrame));
            widget->setAutoFillBackground(bordered);
            QPalette palette;
            palette.setColor(QPalette::WindowText, ColorFor(label.ForeColor));
            if (bordered) {
              palette.setColor(QPalette::Window, Qt::white);
            }
            widget->setPalette(palette);
            widget->setFont(FontFor(label.Font));
            Qt::Alignment alignment = AlignmentFor(label.Alignment);
            if (bordered) {
              alignment = (alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
            }
            widget->setAlignment(alignment);
            widget->setText(TextFor(forms::VisibleText(label.Font, label.Caption)));
          }};
}

View ViewOf(forms::TextBox& box, QWidget& parent) {
  auto* widget = new QLineEdit(&parent);
  widget->setDragEnabled(false);  // a drag runs an event loop of its own, inside the widget
  QObject::connect(widget, &QLineEdit::textEdited, widget,
                   [&box](const QString& text) { box.UserType(text.toStdString()); });
  return {widget, [&box, widget] {
            widget->setFont(FontFor(box.Font));
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
  return {widget, [&button, widget] {
            widget->setFont(FontFor(button.Font));
            widget->setText(TextFor(button.Caption));
            const bool captioned = !button.Caption().empty();
            widget->setToolButtonStyle(button.Picture.empty() ? Qt::ToolButtonTextOnly
                                       : captioned            ? Qt::ToolButtonTextUnderIcon
                                                              : Qt::ToolButtonIconOnly);
            const QRect place = PlaceOf(button);
            const int textHeight = captioned ? widget->fontMetrics().height() + ButtonBorder : 0;
            const int side =
                std::min(place.width() - ButtonBorder, place.height() - textHeight - ButtonBorder);
            const QSize size(std::max(side, 0), std::max(side, 0));
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
  return {widget, [&option, widget] {
            widget->setText(TextFor(option.Caption));
            widget->setChecked(option.Value);
          }};
}

View ViewOf(forms::CheckBox& box, QWidget& parent) {
  auto* widget = new QCheckBox(&parent);
  QObject::connect(widget, &QCheckBox::toggled, widget, [&box](bool on) { box.Value = on; });
  return {widget, [&box, widget] { widget->setChecked(box.Value); }};
}

View ViewOf(forms::Frame& frame, QWidget& parent) {
  auto* widget = new FrameWidget(frame, &parent);
  return {widget, [widget] { widget->update(); }};
}

View ViewOf(forms::Image& image, QWidget& parent) {
  auto* widget = new QLabel(&parent);
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  if (QFile words(QStringLiteral(":/%1.txt").arg(TextFor(image.Picture)));
      words.open(QIODevice::ReadOnly)) {
    widget->setAccessibleDescription(QString::fromUtf8(words.readAll()));
  }
  // Rendered when it is first to be seen: of the pages of a manual most never are.
  return {widget, [&image, widget] {
            if (!image.Visible || !widget->pixmap(Qt::ReturnByValue).isNull()) {
              return;
            }
            widget->setPixmap(
                PictureFor(image.Picture, PlaceOf(image).size(), widget->devicePixelRatioF()));
          }};
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
  return {widget, [&bar, widget, sign] { widget->setValue(sign * (bar.Value - bar.Min)); }};
}

View ViewOf(forms::PictureBox& picture, QWidget& parent) {
  return {new SurfaceView(picture, &parent), [] {}};
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

QRect PlaceOf(const forms::Control& control) {
  // A marker may be sent far off its surface; it is as invisible a little beyond.
  const auto pixel = [](double twips) {
    constexpr double Far = 10000;
    return static_cast<int>(std::lround(std::clamp(twips / forms::TwipsToPixel, -Far, Far)));
  };
  return {pixel(control.Left), pixel(control.Top), pixel(control.Width), pixel(control.Height)};
}

void SynchroniseView(const forms::Control& control, const View& view) {
  view.Widget->setGeometry(PlaceOf(control));
  view.Widget->setEnabled(control.Enabled);
  view.Widget->setToolTip(TextFor(control.ToolTipText));
  view.Widget->setAccessibleName(TextFor(control.SpokenName()));
  view.Synchronise();
  view.Widget->setVisible(control.Visible);
}

}  // namespace clinorama::desktop
