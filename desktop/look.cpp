#include "desktop/look.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "desktop/accessibility.h"
#include "desktop/portuguese.h"
#include "desktop/style.h"
#include "forms/raster.h"

namespace clinorama::desktop {
namespace {

constexpr double PixelsToPoint = 96.0 / 72.0;
// Below this size in device pixels the digits of an axis are painted without grey edges and never
// bold, as their strokes are a pixel wide at the least: that keeps them sharp. The letters "x" and
// "y" would look like others then.
constexpr int SmallestSmoothed = 10;
// Smaller digits cannot be told apart.
constexpr int SmallestDigits = 8;

constexpr const char* ZoomProperty = "zoom";

const QString PlainFamily = QStringLiteral("DejaVu Sans");
const QString ComicFamily = QStringLiteral("Comic Neue");

// Rounded down, so that no text outgrows the place that the layout gives it.
int PixelSize(const forms::Font& font, double density) {
  constexpr double RoundingError = 1e-6;
  return std::max(1, static_cast<int>(font.Size * PixelsToPoint * density + RoundingError));
}

}  // namespace

void SetLook() {
  QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Portugal));
  QGuiApplication::setDesktopFileName(QStringLiteral("clinorama"));
  QApplication::setStyle(new Style);
  QApplication::setPalette(LightPalette());
  QApplication::setFont(FontFor({}, 1));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/clinorama.svg")));
  MakeAccessible();
  static Portuguese translator;
  QApplication::installTranslator(&translator);
}

QPalette LightPalette() {
  const QColor page(0xE9, 0xEE, 0xF6);
  QPalette palette(QColor(0xE3, 0xE9, 0xF2), page);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Dark, QColor(0x9A, 0xA6, 0xBA));
  palette.setColor(QPalette::Highlight, QColor(0x1F, 0x4F, 0xD8));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  const QColor faint(0x8A, 0x92, 0xA0);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  return palette;
}

void SetLookOf(QWidget& window, double zoom) {
  window.setProperty(ZoomProperty, zoom);
  window.setPalette(LightPalette());
  window.setFont(FontFor({}, zoom));
  window.setLayoutDirection(Qt::LeftToRight);
}

double ZoomOf(const QWidget& widget) {
  const QVariant zoom = widget.window()->property(ZoomProperty);
  return zoom.isValid() ? zoom.toDouble() : 1;
}

int LineWidth(double zoom) { return std::max(1, static_cast<int>(zoom)); }

QFont FontFor(const forms::Font& font, double zoom) {
  QFont chosen(font.Name == "Comic Sans MS" ? ComicFamily : PlainFamily);
  chosen.setPixelSize(PixelSize(font, zoom));
  chosen.setBold(font.Bold);
  chosen.setItalic(false);
  return chosen;
}

QFont SurfaceFontFor(const forms::TextRun& run) {
  QFont chosen = FontFor(run.Font, run.Density);
  // Axes are laid out for a symbol font that is narrower than the plain family: its labels stand
  // less than two pixels apart otherwise.
  if (forms::IsSymbolFont(run.Font)) {
    chosen.setStretch(QFont::SemiCondensed);
  }
  const bool letters = std::any_of(run.Text.begin(), run.Text.end(), [](char sign) {
    return (sign >= 'A' && sign <= 'Z') || (sign >= 'a' && sign <= 'z');
  });
  chosen.setPixelSize(std::max(chosen.pixelSize(), SmallestDigits));
  if (chosen.pixelSize() < SmallestSmoothed && !letters) {
    chosen.setBold(false);
    chosen.setHintingPreference(QFont::PreferFullHinting);
    chosen.setStyleStrategy(QFont::NoAntialias);
  }
  return chosen;
}

QColor ColorFor(forms::Color color) { return QColor::fromRgb(color.Rgb); }

forms::Color ColorFrom(const QColor& color) { return {color.rgb() & forms::ColorBits}; }

QString TextFor(const std::string& text) { return QString::fromStdString(text); }

QPixmap PictureFor(const std::string& name, QSizeF size, double ratio) {
  const QSize pixels = (size * ratio).toSize();
  const QString file = QStringLiteral(":/%1.svg").arg(TextFor(name));
  const QString key = QStringLiteral("%1@%2x%3").arg(file).arg(pixels.width()).arg(pixels.height());
  QPixmap pixmap;
  if (name.empty() || QPixmapCache::find(key, &pixmap)) {
    return pixmap;
  }
  QSvgRenderer renderer(file);
  if (!renderer.isValid()) {
    return pixmap;
  }
  pixmap = QPixmap(pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  renderer.render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(ratio);
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

}  // namespace clinorama::desktop
