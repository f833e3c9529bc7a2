#include "desktop/style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/menu_bar.h"

namespace clinorama::desktop {
namespace {

double ZoomFor(const QWidget* widget) { return widget == nullptr ? 1 : ZoomOf(*widget); }

// Draws the shapes of one widget, in lines of its zoom.
class Shapes {
 public:
  Shapes(QPainter& painter, const QStyleOption& option, const QWidget* widget)
      : painter_(painter), option_(option), zoom_(ZoomFor(widget)) {}

  QColor Color(QPalette::ColorRole role) const { return option_.palette.color(role); }
  bool Is(QStyle::StateFlag state) const { return option_.state.testFlag(state); }

  void Field(const QRectF& rect, const QBrush& ground) { Box(rect, Edge(), ground); }

  void Button(const QRectF& rect, bool pressed, bool under) {
    const QColor face = Color(QPalette::Button);
    QLinearGradient ground(rect.topLeft(), rect.bottomLeft());
    ground.setColorAt(0, pressed ? face.darker(115) : face.lighter(under ? 112 : 106));
    ground.setColorAt(1, pressed ? face.darker(110) : face);
    Box(rect, Color(QPalette::Dark), ground);
  }

  // A radio button's.
  void Mark(const QRectF& rect) {
    Paint(QPen(Edge(), Line()), Color(QPalette::Base), [&] { painter_.drawEllipse(Inside(rect)); });
    if (Is(QStyle::State_On)) {
      const double margin = rect.width() / 4;
      Paint(Qt::NoPen, Color(QPalette::Text),
            [&] { painter_.drawEllipse(rect.adjusted(margin, margin, -margin, -margin)); });
    }
  }

  // Points to the left or to the right, in the middle of a rectangle.
  void Arrow(const QRectF& rect, bool left) {
    const double size = 4 * zoom_;
    const QPointF tip(left ? -size / 2 : size / 2, 0);
    const QPointF side(0, size);
    const QPointF middle = rect.center();
    Paint(Qt::NoPen, Color(QPalette::ButtonText), [&] {
      painter_.drawPolygon(QPolygonF({middle + tip, middle - tip - side, middle - tip + side}));
    });
  }

  void Focus(const QRectF& rect) { Box(rect, Color(QPalette::Highlight), Qt::NoBrush); }

 private:
  int Line() const { return LineWidth(zoom_); }
  QColor Edge() const {
    return Color(Is(QStyle::State_HasFocus) ? QPalette::Highlight : QPalette::Dark);
  }

  // The line lies inside the rectangle.
  void Box(const QRectF& rect, const QColor& line, const QBrush& ground) {
    const double rounding = 2 * zoom_;
    Paint(QPen(line, Line()), ground,
          [&] { painter_.drawRoundedRect(Inside(rect), rounding, rounding); });
  }
  QRectF Inside(const QRectF& rect) const {
    const double half = Line() / 2.0;
    return rect.adjusted(half, half, -half, -half);
  }

  template <class Draw>
  void Paint(const QPen& pen, const QBrush& ground, Draw draw) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(pen);
    painter_.setBrush(ground);
    draw();
    painter_.restore();
  }

  QPainter& painter_;
  const QStyleOption& option_;
  double zoom_;
};

}  // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  const int size = QProxyStyle::pixelMetric(metric, option, widget);
  switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_RadioButtonLabelSpacing:
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
    case PM_MessageBoxIconSize:
    case PM_ButtonMargin:
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return qRound(size * ZoomFor(widget));
    default:
      return size;
  }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
    return 0;  // they would be the desktop's, in another size
  }
  if (const auto* bar = dynamic_cast<const MenuBar*>(widget); hint == SH_UnderlineShortcut && bar) {
    return bar->MarksLetters();
  }
  return QProxyStyle::styleHint(hint, option, widget, data);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  switch (type) {
    case CT_MenuBarItem:
      return contents + (size - contents) * ZoomFor(widget);
    case CT_MenuItem:
      // Before the text the toolkit leaves room for a mark that grows with the text's height, and
      // does not count it.
      return size + QSize(qRound(21 * (std::max(1.0, ZoomFor(widget)) - 1)), 0);
    default:
      return size;
  }
}

QPixmap Style::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                   const QStyleOption* option) const {
  QStyleOption own(*option);
  own.palette = LightPalette();  // not the desktop's
  return QProxyStyle::generatedIconPixmap(mode, pixmap, &own);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  Shapes shapes(*painter, *option, widget);
  const QRect& rect = option->rect;
  switch (element) {
    case PE_Frame:
      return shapes.Field(rect, Qt::NoBrush);
    case PE_PanelLineEdit:
      return shapes.Field(rect, shapes.Color(QPalette::Base));
    case PE_PanelButtonTool:
      return shapes.Button(rect, shapes.Is(State_Sunken),
                           shapes.Is(State_MouseOver) && shapes.Is(State_Enabled));
    case PE_IndicatorRadioButton:
      return shapes.Mark(rect);
    case PE_FrameFocusRect:
      return shapes.Focus(rect);
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  Shapes shapes(*painter, *option, widget);
  if (element == CE_MenuBarItem && shapes.Is(State_Selected) && !shapes.Is(State_Sunken)) {
    shapes.Focus(option->rect);
  }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  if (control != CC_ScrollBar) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  Shapes shapes(*painter, *option, widget);
  const auto part = [&](SubControl which) {
    return subControlRect(control, option, which, widget);
  };
  const auto pressed = [&](SubControl which) {
    return shapes.Is(State_Sunken) && option->activeSubControls.testFlag(which);
  };
  shapes.Field(option->rect, shapes.Color(QPalette::Window).darker(107));
  for (const SubControl which : {SC_ScrollBarSubLine, SC_ScrollBarAddLine, SC_ScrollBarSlider}) {
    shapes.Button(part(which), pressed(which), false);
  }
  shapes.Arrow(part(SC_ScrollBarSubLine), true);
  shapes.Arrow(part(SC_ScrollBarAddLine), false);
  if (shapes.Is(State_HasFocus)) {
    shapes.Focus(option->rect);
  }
}

}  // namespace clinorama::desktop
